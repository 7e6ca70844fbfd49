// SPDX-License-Identifier: MIT
#include "analysis/export/photograph_export.h"
#include "config/configuration_record.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/analysis/windows/selection_test.h"
#include "tests/support/full_disk.h"

using analysis::ExportFormat;
using testing::fileBytes;
using testing::photographBytes;
using testing::Shot;

/// What is written of the chosen photographs, from the menu to the files: each of its own, whole or
/// not at all, and told.
class SelectionExportTest : public testing::SelectionTest
{
    Q_OBJECT

private slots:
    void temperaturesAndPictures_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("modelIndex");
        QTest::newRow("csv") << int(Csv) << int(ExportFormat::Csv) << 0;
        QTest::newRow("tiff") << int(Tiff) << int(ExportFormat::Tiff) << 0;
        QTest::newRow("png") << int(Png) << int(ExportFormat::Png) << 0;
        QTest::newRow("csv, other layout") << int(Csv) << int(ExportFormat::Csv) << 1;
        QTest::newRow("csv, no layout") << int(Csv) << int(ExportFormat::Csv) << -1;
    }
    void temperaturesAndPictures()
    {
        QFETCH(int, entry);
        QFETCH(int, format);
        QFETCH(int, modelIndex);
        addPhotographs(4);
        if (modelIndex == 1) {
            for (int i = 0; i < 4; ++i) {
                Shot shot;
                shot.model = 1;
                shot.gray = [](int x, int) {
                    return x;
                };
                write(name(i), photographBytes(shot));
            }
        }
        openBrowser(true);
        page->modelIndex = modelIndex;
        choose({0, 1, 3});
        start(Entry(entry));
        QCOMPARE(messageText(), successText(3));

        analysis::ExportOptions options;
        options.format = ExportFormat(format);
        options.modelIndex = modelIndex == 1 ? 1 : 0;
        analysis::PhotographReader reader;
        const QString suffix = analysis::suffixOf(options.format);
        QStringList expected;
        for (const int i : {0, 1, 3}) {
            const QString file = QStringLiteral("IMG00%1.").arg(i) + suffix;
            expected.append(file);
            const QString alone = folders->filePath(file);
            QVERIFY(exportPhotograph(photograph(name(i)), reader, alone, options).isGood());
            QCOMPARE(fileBytes(target + QLatin1Char('/') + file), fileBytes(alone));
        }
        QCOMPARE(written(), expected);
    }

    /// What the file says, in the unit that it says it in.
    void everyPhotographInItsOwnUnit()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        write(QStringLiteral("c.bmp"), photographBytes(shot));
        shot.unit = 1;
        write(QStringLiteral("f.bmp"), photographBytes(shot));
        openBrowser();
        choose({0, 1});
        start(Csv);
        QCOMPARE(messageText(), successText(2));
        QVERIFY(fileBytes(target + QStringLiteral("/c.csv")).startsWith("50,50,"));
        QVERIFY(fileBytes(target + QStringLiteral("/f.csv")).startsWith("50,50,"));
    }

    void reports()
    {
        addPhotographs(2);
        openBrowser();
        choose({0, 1});
        start(Report);
        QCOMPARE(messageText(), successText(2));
        QCOMPARE(written(),
                 QStringList({QStringLiteral("IMG000.pdf"), QStringLiteral("IMG001.pdf")}));
        for (const QString& file : written()) {
            const QByteArray pdf = fileBytes(target + QLatin1Char('/') + file);
            QVERIFY(pdf.startsWith("%PDF-"));
            QVERIFY(pdf.contains("/Count 2"));
        }
    }

    /// Russian captions are longer, so their values stand further right.
    void reportsInTheConfiguredLanguage()
    {
        addPhotographs(2);
        openBrowser();
        choose({0});
        start(Report);
        QCOMPARE(messageText(), successText(1));
        config::create(QStringLiteral("RU"));
        choose({1});
        start(Report);
        QCOMPARE(messageText(), successText(1));
        const auto placeOfName = [this](int index) {
            const QString report =
                target + QStringLiteral("/IMG%1.pdf").arg(index, 3, 10, QLatin1Char('0'));
            for (const testing::PdfWord& word : testing::pdfWords(report).value(0)) {
                if (word.text == name(index))
                    return word.box.x();
            }
            return -1.0;
        };
        QVERIFY(placeOfName(0) > 0);
        QVERIFY(placeOfName(1) > placeOfName(0));
    }

    void copiesKeepBytesAndTime()
    {
        addPhotographs(2);
        const QString odd = QStringLiteral("Снимок №1 %1&.BMP");
        write(odd, QByteArray("any bytes\0\r\n", 12));
        const QDateTime changed(QDate(2021, 2, 3), QTime(4, 5, 6), Qt::UTC);
        {
            QFile file(photograph(odd));
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
        }
        openBrowser();
        choose({0, 1, 2});
        start(Copy);
        QCOMPARE(messageText(), successText(3));
        QCOMPARE(written().size(), 3);
        for (const QString& file : {name(0), name(1), odd})
            QCOMPARE(fileBytes(target + QLatin1Char('/') + file), fileBytes(photograph(file)));
        QCOMPARE(QFileInfo(target + QLatin1Char('/') + odd).lastModified().toUTC(), changed);
    }

    /// A path that begins with a colon is something built into the program; a name may.
    void aNameMayBeginWithAColon_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("file");
        QTest::newRow("csv") << int(Csv) << QStringLiteral(":night.csv");
        QTest::newRow("tiff") << int(Tiff) << QStringLiteral(":night.tiff");
        QTest::newRow("png") << int(Png) << QStringLiteral(":night.png");
        QTest::newRow("report") << int(Report) << QStringLiteral(":night.pdf");
        QTest::newRow("copy") << int(Copy) << QStringLiteral(":night.bmp");
    }
    void aNameMayBeginWithAColon()
    {
        QFETCH(int, entry);
        QFETCH(QString, file);
        write(QStringLiteral(":night.bmp"), photographBytes(Shot()));
        openBrowser();
        choose({0});
        start(Entry(entry));
        QCOMPARE(messageText(), successText(1));
        QCOMPARE(written(), QStringList({file}));
        QVERIFY(QFileInfo(target + QLatin1Char('/') + file).size() > 100);
    }

    void badPhotographsAmongGoodOnes()
    {
        addPhotographs(6);
        Shot other;
        other.machineId = 7;
        write(name(1), photographBytes(other));
        write(name(2), photographBytes(Shot()).left(1000));
        openBrowser();
        QVERIFY(QFile::remove(photograph(name(4))));
        choose({0, 1, 2, 3, 4, 5});
        start(Csv);
        QTRY_VERIFY(message());
        QVERIFY(message()->icon() == QMessageBox::Warning);
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines.at(0), successText(3));
        QCOMPARE(lines.at(1), QStringLiteral("3 张照片未能处理："));
        QCOMPARE(lines.at(2), QStringLiteral("IMG001.bmp：不是受支持设备的照片（机器ID 7）"));
        QCOMPARE(lines.at(3), QStringLiteral("IMG002.bmp：文件不完整（1000/307792 字节）"));
        QVERIFY(lines.at(4).startsWith(QStringLiteral("IMG004.bmp：无法读取（")));
        QCOMPARE(written(), QStringList({QStringLiteral("IMG000.csv"), QStringLiteral("IMG003.csv"),
                                         QStringLiteral("IMG005.csv")}));
    }

    void badPhotographsAmongReportsAndCopies_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("reports") << int(Report) << QStringLiteral(".pdf");
        QTest::newRow("copies") << int(Copy) << QStringLiteral(".bmp");
    }
    void badPhotographsAmongReportsAndCopies()
    {
        QFETCH(int, entry);
        QFETCH(QString, suffix);
        addPhotographs(3);
        openBrowser();
        QVERIFY(QFile::remove(photograph(name(1))));
        choose({0, 1, 2});
        start(Entry(entry));
        const QStringList lines = messageText().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.at(0), successText(2));
        QVERIFY(lines.at(2).startsWith(QStringLiteral("IMG001.bmp：无法读取（")));
        QCOMPARE(written(), QStringList({QStringLiteral("IMG000") + suffix,
                                         QStringLiteral("IMG002") + suffix}));
    }

    void whatIsThereStays_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("file");
        QTest::newRow("csv") << int(Csv) << "IMG001.csv";
        QTest::newRow("report") << int(Report) << "IMG001.pdf";
        QTest::newRow("copy") << int(Copy) << "IMG001.bmp";
    }
    void whatIsThereStays()
    {
        QFETCH(int, entry);
        QFETCH(QString, file);
        addPhotographs(2);
        QFile there(target + QLatin1Char('/') + file);
        QVERIFY(there.open(QIODevice::WriteOnly));
        there.write("mine");
        there.close();
        openBrowser();
        choose({0, 1});
        start(Entry(entry));
        QCOMPARE(messageText(),
                 successText(1) + QStringLiteral("\n1 张照片未能处理：\n"
                                                 "IMG001.bmp：目标文件夹中已有同名文件"));
        QCOMPARE(fileBytes(there.fileName()), QByteArray("mine"));
        QCOMPARE(written().size(), 2);
    }

    void aFullDisk()
    {
        addPhotographs(3);
        openBrowser();
        choose({0, 1, 2});
        const testing::FullDisk full(100'000);
        start(Tiff);
        const QString text = messageText();
        QVERIFY(text.startsWith(QStringLiteral("没有写入任何文件。\n3 张照片未能处理：\n"
                                               "IMG000.bmp：无法写入（")));
        QCOMPARE(written(), QStringList());
    }

    /// Exporting leaves the imager's disk as it was.
    void nothingIsWrittenToTheDisk()
    {
        addPhotographs(2);
        const auto listing = [this] {
            return QDir(root + QStringLiteral("DCIM_100"))
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
        };
        const QStringList before = listing();
        openBrowser();
        for (const Entry entry : {Csv, Tiff, Png, Report, Copy}) {
            choose({0, 1});
            start(entry);
            QCOMPARE(messageText(), successText(2));
        }
        QCOMPARE(written().size(), 10);
        QCOMPARE(listing(), before);
    }
};

int main(int argc, char** argv)
{
    return testing::run<SelectionExportTest>(argc, argv);
}

#include "selection_export_test.moc"
