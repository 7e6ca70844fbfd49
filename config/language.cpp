// SPDX-License-Identifier: MIT
#include "config/language.h"

#include <algorithm>

namespace config {

const std::vector<Language>& languages()
{
    static const QString none;
    static const QString chinese = QStringLiteral("Noto Sans CJK SC");
    static const QString korean = QStringLiteral("Noto Sans CJK KR");
    // There is no qt_zh_EN.qm: Qt's own texts are English already.
    static const std::vector<Language> rows{
        {QStringLiteral("CH"), QStringLiteral("简体中文"), none, QStringLiteral(":/qt_zh_CN.qm"),
         none, QStringLiteral("qrc:/Sound/CH/Alarm.wav"), false, chinese},
        {QStringLiteral("EN"), QStringLiteral("English"), QStringLiteral(":/Demo_EN.qm"),
         QStringLiteral("qt_zh_EN.qm"), QStringLiteral(":/"),
         QStringLiteral("qrc:/Sound/EN/Alarm.wav"), false, chinese},
        {QStringLiteral("RU"), QStringLiteral("Russian"), QStringLiteral(":/Demo_RU.qm"),
         QStringLiteral(":/qtbase_ru.qm"), none, QStringLiteral("qrc:/Sound/RU/Alarm.wav"), true,
         chinese},
        {QStringLiteral("KO"), QStringLiteral("Korean"), QStringLiteral(":/Demo_KO.qm"),
         QStringLiteral(":/qtbase_ko.qm"), none, QStringLiteral("qrc:/Sound/KO/Alarm.wav"), false,
         korean},
    };
    return rows;
}

const Language* findLanguage(const QString& code)
{
    const auto& rows = languages();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&code](const Language& known) { return known.code == code; });
    return row == rows.end() ? nullptr : &*row;
}

const Language& languageOf(const QString& code)
{
    const Language* row = findLanguage(code);
    return row ? *row : languages().front();
}

} // namespace config
