// SPDX-License-Identifier: MIT
/// The configuration record. The input is the file.

#include "config/configuration_record.h"
#include "fuzz/support/surroundings.h"
#include "fuzz/support/target.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QtEndian>

namespace {

using fuzz::mustHold;

/// The text in a file, worked out from the format alone.
QString textIn(const QByteArray& file)
{
    QByteArray bytes = file;
    bytes.replace("\r", "");
    if (bytes.size() < 4)
        return {};
    const auto count = qFromBigEndian<quint32>(bytes.constData());
    if (count % 2 != 0 || qint64(count) > bytes.size() - 4)
        return {};
    QString text;
    for (int at = 4; at < 4 + int(count); at += 2)
        text.append(QChar(qFromBigEndian<quint16>(bytes.constData() + at)));
    return text;
}

QByteArray serialised(const QString& text)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(quint32(2 * text.size()), bytes.data());
    for (const QChar unit : text) {
        bytes.append(char(unit.unicode() >> 8));
        bytes.append(char(unit.unicode() & 0xFF));
    }
    return bytes;
}

QByteArray fileBytes()
{
    QFile file(config::filePath());
    mustHold(file.open(QIODevice::ReadOnly), "the record is still there");
    return file.readAll();
}

/// What a writer leaves behind: the new text, and the tail of what was longer.
QByteArray overwritten(const QByteArray& file, const QString& text)
{
    const QByteArray bytes = serialised(text);
    return bytes + file.mid(bytes.size());
}

void mustHoldRecord(const config::Record& record, const QStringList& fields)
{
    mustHold(record.reserved == fields.value(0), "field 0 is what stands there");
    mustHold(record.language == fields.value(1), "field 1 is what stands there");
    mustHold(record.alarmFolder == fields.value(2), "field 2 is what stands there");
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::prepare();
    QDir().mkpath(config::folderPath());
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(bytes), int(size));
    fuzz::putFile(config::filePath(), file);
    const QStringList before = textIn(file).split(QLatin1Char(','));
    mustHoldRecord(config::read(), before);
    mustHold(fileBytes() == file, "reading changes nothing");

    const QString language = QStringLiteral("KO");
    const QStringList changed{before.value(0), language, before.value(2)};
    const QString text = changed.join(QLatin1Char(','));
    mustHold(config::replaceLanguage(language) == text, "the other fields are carried along");
    const QByteArray rewritten = overwritten(file, text);
    mustHold(fileBytes() == rewritten, "the new record, then the old tail");
    const QStringList after = textIn(rewritten).split(QLatin1Char(','));
    mustHoldRecord(config::read(), after);
    // A carriage return among the bytes is the one thing that does not survive.
    if (!serialised(text).contains('\r'))
        mustHold(after == changed, "what was written is read");

    // A folder of the stranger's making, commas included.
    const QString folder = textIn(file);
    const QString second =
        QStringList{after.value(0), after.value(1), folder}.join(QLatin1Char(','));
    config::replaceAlarmFolder(folder);
    mustHold(fileBytes() == overwritten(rewritten, second), "the folder is written whole");
    mustHoldRecord(config::read(), textIn(overwritten(rewritten, second)).split(QLatin1Char(',')));
    return 0;
}
