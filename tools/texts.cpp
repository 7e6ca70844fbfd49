// SPDX-License-Identifier: MIT
#include "tools/texts.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tools {
namespace {

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

} // namespace

QString printable(QString text)
{
    std::replace_if(text.begin(), text.end(), isControl, QLatin1Char('?'));
    return text;
}

QByteArray jsonLine(const QJsonObject& object)
{
    QString line;
    // Qt leaves those from 0x7F on as they are; here they can only stand inside of texts.
    for (const QChar character :
         QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact))) {
        if (isControl(character))
            line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        else
            line += character;
    }
    return line.toUtf8();
}

} // namespace tools
