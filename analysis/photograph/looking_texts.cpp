// SPDX-License-Identifier: MIT
#include "analysis/photograph/looking_texts.h"

#include "analysis/photograph/radiance.h"

namespace analysis {
namespace {

QString temperature(double value, Unit unit)
{
    return oneDecimal(value) + QLatin1Char(' ') + signOf(unit);
}

QString fromCelsius(double celsius, Unit shown)
{
    return temperature(inUnit(celsius, shown), shown);
}

} // namespace

QString LookingTexts::emissivity(double value)
{
    constexpr int most = 6;
    int decimals = 2;
    QString text = QString::number(value, 'f', decimals);
    while (text.toDouble() != value && decimals < most)
        text = QString::number(value, 'f', ++decimals);
    return text;
}

QString LookingTexts::nameOf(const Correction& correction, Unit shown)
{
    return tr("已校正: ε %1 → %2, 反射温度 %3")
        .arg(emissivity(correction.storedEmissivity), emissivity(correction.emissivity),
             fromCelsius(correction.reflected, shown));
}

QString LookingTexts::reasonOf(CorrectionProblem problem, Unit shown)
{
    switch (problem) {
    case CorrectionProblem::None:
        break;
    case CorrectionProblem::StoredEmissivity:
        return tr("拍摄时的发射率须为 %1 至 %2。请输入设备当时的设定值。")
            .arg(emissivity(lowestEmissivity), emissivity(highestEmissivity));
    case CorrectionProblem::Emissivity:
        return tr("发射率须为 %1 至 %2。更低时看到的几乎只是环境的反射。")
            .arg(emissivity(lowestEmissivity), emissivity(highestEmissivity));
    case CorrectionProblem::Reflected:
        return tr("反射温度须为 %1 至 %2。")
            .arg(fromCelsius(radiance::lowest, shown), fromCelsius(radiance::highest, shown));
    }
    return {};
}

QString LookingTexts::reasonOf(ReadingProblem problem, Unit shown)
{
    switch (problem) {
    case ReadingProblem::None:
        break;
    case ReadingProblem::BelowSurroundings:
        return tr("没有温度: 来自此处的辐射少于仅由环境反射的辐射。");
    case ReadingProblem::OutsideTable:
        return tr("没有温度: 超出 %1 至 %2。")
            .arg(fromCelsius(radiance::lowest, shown), fromCelsius(radiance::highest, shown));
    }
    return {};
}

QString LookingTexts::unknownScale()
{
    return tr("照片没有说明温度的单位, 因此无法校正。");
}

QString LookingTexts::nameOf(const Isotherm& isotherm)
{
    const QString from = temperature(isotherm.from, isotherm.unit);
    const QString to = temperature(isotherm.to, isotherm.unit);
    switch (isotherm.side) {
    case Isotherm::Side::Above:
        return tr("等温线: 高于 %1").arg(from);
    case Isotherm::Side::Below:
        return tr("等温线: 低于 %1").arg(to);
    case Isotherm::Side::Inside:
        return tr("等温线: %1 至 %2").arg(from, to);
    case Isotherm::Side::Outside:
        return tr("等温线: %1 至 %2 以外").arg(from, to);
    }
    return {};
}

QString LookingTexts::reasonOf(IsothermProblem problem)
{
    switch (problem) {
    case IsothermProblem::None:
        break;
    case IsothermProblem::NotANumber:
        return tr("界限不是数字。");
    case IsothermProblem::Crossed:
        return tr("下限高于上限, 没有像素着色。");
    }
    return {};
}

} // namespace analysis
