// SPDX-License-Identifier: MIT
#include "analysis/export/details_text.h"

namespace analysis {

QString DetailsText::number(double value)
{
    return QString::number(value, 'f', 2);
}

QString DetailsText::captionOf(Figure figure)
{
    static constexpr std::array<const char*, figures.size()> captions{
        QT_TRANSLATE_NOOP("DetailsText", "最高"), QT_TRANSLATE_NOOP("DetailsText", "最低"),
        QT_TRANSLATE_NOOP("DetailsText", "平均"), QT_TRANSLATE_NOOP("DetailsText", "标准差"),
        QT_TRANSLATE_NOOP("DetailsText", "中位数")};
    return tr(captions[std::size_t(figure)]);
}

QStringList DetailsText::captions(const QString& sign, double threshold)
{
    QStringList captions;
    for (const FigureRow& row : figures)
        captions.append(tr("%1 (%2)").arg(captionOf(row.figure), sign));
    const QString limit = number(threshold) + QLatin1Char(' ') + sign;
    captions << tr("像素") << tr("高于 %1 (%)").arg(limit) << tr("低于 %1 (%)").arg(limit)
             << tr("温差 ΔT (%1)").arg(sign);
    return captions;
}

QStringList DetailsText::values(const Area& area, const std::optional<Details>& details,
                                double threshold, const std::optional<double>& difference)
{
    QStringList texts;
    for (const FigureRow& row : figures)
        texts.append(details ? number(valueOf(*details, row.figure)) : QString());
    texts << QString::number(details ? details->pixels : 0);
    for (const auto& share : {shareAbove, shareBelow})
        texts.append(details ? number(100 * share(area, threshold)) : QString());
    texts << (difference ? number(*difference) : QString());
    return texts;
}

/// Compared as the table shows them: what it rounds away is no difference.
QStringList DetailsText::otherInTable(const ToolRow& table, const Area& area,
                                      const std::optional<Details>& details)
{
    if (area.readings.empty())
        return {tr("此工具不含任何像素：表格显示的是计算的起始值。")};
    QStringList reasons;
    const int without = details ? details->withoutReading : int(area.readings.size());
    if (without > 0)
        reasons.append(tr("没有温度读数的像素：%1。此处不计入。").arg(without));
    if (!details)
        return reasons;
    if (table.high != oneDecimal(details->high.value))
        reasons.append(
            tr("表格中的最高值为 %1：表格从该值开始比较，而这里没有更热的像素。").arg(table.high));
    if (table.low != oneDecimal(details->low.value))
        reasons.append(
            tr("表格中的最低值为 %1：表格从该值开始比较，而这里没有更冷的像素。").arg(table.low));
    if (table.average != oneDecimal(details->mean))
        reasons.append(
            tr("表格中的平均值为 %1：表格以单精度求和，因此末位有偏差。").arg(table.average));
    return reasons;
}

} // namespace analysis
