// SPDX-License-Identifier: MIT
#include "analysis/report/report_font.h"

#include "config/language.h"

namespace analysis {

QFont reportFont(int pixelSize, int weight, const QString& language)
{
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei"), config::languageOf(language).font});
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace analysis
