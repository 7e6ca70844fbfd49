// SPDX-License-Identifier: MIT
#include "tests/analysis/report/report_pages.h"

#include <QDebug>
#include <QPainter>
#include <QPrinter>

#include <cmath>

namespace testing {

Words words(const QString& language)
{
    if (language == QLatin1String("EN"))
        return {"Image information",
                "Time:",
                "File name:",
                "File size:",
                "Size:",
                "Emissivity:",
                "Unit:",
                "Centre temperature:",
                "Average temperature:",
                "Maximum temperature:",
                "Minimum temperature:",
                "Measurement information",
                {"Name", "Type", "High", "Low", "Average"}};
    if (language == QLatin1String("RU"))
        return {"Данные снимка",
                "Время:",
                "Имя файла:",
                "Размер файла:",
                "Размер:",
                "Коэф. излучения:",
                "Единицы:",
                "Температура в центре:",
                "Средняя температура:",
                "Макс. температура:",
                "Мин. температура:",
                "Результаты измерений",
                {"Имя", "Тип", "Макс.", "Мин.", "Средн."}};
    if (language == QLatin1String("KO"))
        return {"이미지 정보",
                "시간:",
                "파일 이름:",
                "파일 크기:",
                "크기:",
                "방사율:",
                "단위:",
                "중심 온도:",
                "평균 온도:",
                "최고 온도:",
                "최저 온도:",
                "측정 정보",
                {"이름", "유형", "최고", "최저", "평균"}};
    return {"图像信息",
            "时间:",
            "文件名称:",
            "文件大小:",
            "大小:",
            "发射率:",
            "单位:",
            "中心温度:",
            "平均温度:",
            "最高温度:",
            "最低温度:",
            "测温信息",
            {"名称", "类型", "高", "低", "平均"}};
}

QVector<Text> firstPage(const QString& language, const analysis::Report& report)
{
    const Words w = words(language);
    const bool russian = language == QLatin1String("RU");
    const auto x = [russian](int standard, int inRussian) {
        return russian ? inRussian : standard;
    };
    return {
        {w.imageInformation, 600, 800, 75},
        {w.time, 600, 1200},
        {report.information[2], x(1700, 2300), 1200},
        {w.fileName, 600, 1500},
        {report.information[0], x(1700, 2300), 1500},
        {w.fileSize, 4100, 1500},
        {report.information[1], x(5200, 6100), 1500},
        {w.size, 600, 1800},
        {report.information[4], x(1700, 2300), 1800},
        {w.emissivity, 4100, 1800},
        {report.information[3], x(5200, 8000), 1800},
        {w.unit, 600, 2100},
        {report.information[5], x(1700, 2300), 2100},
        {w.centre, 600, 2700},
        {report.information[6], x(2300, 3300), 2700},
        {w.average, 4100, 2700},
        {report.information[9], x(5800, 7400), 2700},
        {w.maximum, 600, 3000},
        {report.information[7], x(2300, 4300), 3000},
        {w.minimum, x(4100, 5000), 3000}, // the maximum's value stands at 4300
        {report.information[8], x(5800, 7800), 3000},
    };
}

QVector<QVector<PdfWord>> asPrinted(const QVector<Text>& texts, const QString& language,
                                    const QString& path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPrinter::A4);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    QPainter painter(&printer);
    for (const Text& text : texts) {
        QFont font;
        font.setFamilies(
            {"Microsoft YaHei", language == "KO" ? "Noto Sans CJK KR" : "Noto Sans CJK SC"});
        font.setStyleStrategy(QFont::PreferNoShaping);
        font.setPixelSize(150);
        font.setWeight(text.weight);
        painter.setFont(font);
        painter.drawText(text.x, text.y, text.text);
        printer.newPage();
    }
    painter.end();
    return pdfWords(path);
}

bool stands(const QVector<PdfWord>& page, const QString& text, const QRectF& printed)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    for (int i = 0; i + parts.size() <= page.size(); ++i) {
        const QRectF box = page[i].box;
        if (std::abs(box.left() - printed.left()) > halfMillimetre ||
            std::abs(box.bottom() - printed.bottom()) > halfMillimetre ||
            std::abs(box.width() - printed.width()) > 0.2)
            continue;
        bool same = true;
        for (int k = 0; k < parts.size(); ++k)
            same = same && page[i + k].text == parts[k];
        if (same)
            return true;
    }
    return false;
}

bool overlapping(const QVector<PdfWord>& page)
{
    for (int i = 0; i < page.size(); ++i) {
        for (int k = i + 1; k < page.size(); ++k) {
            // The boxes include the font's line spacing; letters reach only about that far.
            const QRectF a = page[i].box.adjusted(0, 3, 0, -2);
            const QRectF b = page[k].box.adjusted(0, 3, 0, -2);
            if (a.intersects(b)) {
                qWarning().noquote() << page[i].text << "over" << page[k].text;
                return true;
            }
        }
    }
    return false;
}
} // namespace testing
