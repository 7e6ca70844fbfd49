// SPDX-License-Identifier: MIT
#include "analysis/photograph/area.h"
#include "analysis/photograph/details.h"
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/viewed_photograph.h"
#include "config/configuration_record.h"
#include "overlay/my_label.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/support/dialogs.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"
#include "tests/tools/thermaphoto.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

using testing::Ended;
using testing::Folder;
using testing::thermaphoto;

namespace {

const QByteArray toolFile = R"({"points": [[7, 9], [120, 160]], "lines": [[10, 300, 200, 20]],
    "rectangles": [[100, 100, 30, 60]], "circles": [[150, 200, 40]]})";

/// The same tools, drawn.
void placeTools(MyLabel& label)
{
    label.pointList = {{"P0", 7, 9}, {"P1", 120, 160}};
    label.lineList = {{"L0", 10, 300, 200, 20}};
    label.rectList = {{"R0", 100, 100, 30, 60}};
    label.circleList = {{"C0", 150, 200, 190, 200, 40}};
}

/// A photograph of one kind, its window with tools on it, and the tool file.
class Opened : public Folder
{
public:
    explicit Opened(const testing::Sample& kind)
        : photographPath(write(QStringLiteral("a.bmp"), kind.bytes())),
          toolPath(write(QStringLiteral("tools.json"), toolFile))
    {
        isGood = window.set_Image_addr(photographPath, kind.settings.modelIndex);
        placeTools(*window.findChild<MyLabel*>());
        window.updat_Tool_Temp();
    }

    QString cell(const char* table, int row, int column) const
    {
        return window.findChild<QTableWidget*>(QLatin1String(table))->item(row, column)->text();
    }

    void show(const QString& unit)
    {
        testing::part<QComboBox>(&window, "comboBox")
            ->setCurrentIndex(unit == QLatin1String("F") ? 1 : 0);
    }

    /// What the save button writes.
    QString save()
    {
        const QString target = *this / QStringLiteral("window.pdf");
        testing::Answer<QFileDialog> file(
            [&target](QFileDialog& dialog) { testing::choose(dialog, target); });
        testing::Answer<QMessageBox> message(
            [](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
        testing::part<QPushButton>(&window, "pushButton")->click();
        return target;
    }

    QString photographPath;
    QString toolPath;
    Analysis_Widget window;
    bool isGood = false;
};

void addKinds()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<QString>("unit");
    for (int i = 0; i < int(testing::samples().size()); ++i) {
        for (const char* unit : {"C", "F"})
            QTest::addRow("%s in %s", testing::samples()[std::size_t(i)].name, unit)
                << i << QString::fromLatin1(unit);
    }
}

} // namespace

/// The program beside the window: the same photograph, the same tools, the same texts and pages.
class WindowTest : public QObject
{
    Q_OBJECT

public slots:
    void ignore(const QUrl&) {}

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler("file", this, "ignore"); }
    void init() { testing::profile().reset(); }

    void information_data() { addKinds(); }
    void information();
    void toolTable_data() { addKinds(); }
    void toolTable();
    void correctedReadings_data() { addKinds(); }
    void correctedReadings();
    void report_data();
    void report();
    void reportInTheConfiguredLanguage_data();
    void reportInTheConfiguredLanguage();
    void reportWithoutTools();
    void reportsOfAFolder();
};

void WindowTest::information()
{
    QFETCH(int, sample);
    const testing::Sample& kind = testing::samples()[std::size_t(sample)];
    const Opened opened(kind);
    QVERIFY(opened.isGood);
    const QJsonObject object =
        thermaphoto({"info", "--json", opened.photographPath}).json()[0].toObject();
    const auto shown = [&opened](int row) {
        return opened.cell("tableWidget_2", row, 1);
    };
    QCOMPARE(QString::number(object["emissivity"].toDouble(), 'f', 2), shown(3));
    QCOMPARE("°" + object["unit"].toString(), shown(5));
    // The window converts everything about a raw image from °C, the words of a °F file, too.
    if (kind.settings.raw && kind.settings.fahrenheit)
        return;
    QCOMPARE(QString::number(object["centre"].toDouble(), 'f', 1), shown(6));
    QCOMPARE(QString::number(object["maximum"].toDouble(), 'f', 1), shown(7));
    QCOMPARE(QString::number(object["minimum"].toDouble(), 'f', 1), shown(8));
    QCOMPARE(QString::number(object["mean"].toDouble(), 'f', 1), shown(9));
}

void WindowTest::toolTable()
{
    QFETCH(int, sample);
    QFETCH(QString, unit);
    Opened opened(testing::samples()[std::size_t(sample)]);
    opened.show(unit);
    const QJsonArray tools = thermaphoto({"measure", "--tools", opened.toolPath, "--unit", unit,
                                          "--format", "json", opened.photographPath})
                                 .json()[0]
                                 .toObject()["tools"]
                                 .toArray();
    QCOMPARE(tools.size(), 5);
    for (int row = 0; row < 5; ++row) {
        const QJsonObject tool = tools[row].toObject();
        QCOMPARE(tool["name"].toString(), opened.cell("tableWidget", row, 0));
        QCOMPARE(tool["high"].toDouble(), opened.cell("tableWidget", row, 2).toDouble());
        QCOMPARE(tool["low"].toDouble(), opened.cell("tableWidget", row, 3).toDouble());
        QCOMPARE(tool["average"].toDouble(), opened.cell("tableWidget", row, 4).toDouble());
    }
}

void WindowTest::correctedReadings()
{
    QFETCH(int, sample);
    QFETCH(QString, unit);
    Opened opened(testing::samples()[std::size_t(sample)]);
    opened.show(unit);
    analysis::ViewedPhotograph& viewed = opened.window.commands().viewed();
    viewed.setCorrection(analysis::Correction{0.9, 0.5, 15});
    QVERIFY(viewed.corrected());
    const std::vector<analysis::Area> areas =
        areasOf(viewed.tools(), *viewed.corrected(), viewed.unit().conversion);
    const QString reflected = unit == QLatin1String("F") ? "59" : "15";
    const QJsonArray tools =
        thermaphoto({"measure", "--more", "--tools", opened.toolPath, "--unit", unit, "--format",
                     "json", "--stored-emissivity", "0.9", "--emissivity", "0.5", "--reflected",
                     reflected, opened.photographPath})
            .json()[0]
            .toObject()["tools"]
            .toArray();
    QCOMPARE(tools.size(), int(areas.size()));
    for (int row = 0; row < tools.size(); ++row) {
        const QJsonObject tool = tools[row].toObject();
        const auto details = detailsOf(areas[std::size_t(row)]);
        QVERIFY(details);
        QCOMPARE(tool["name"].toString(), areas[std::size_t(row)].name);
        QCOMPARE(QString::number(tool["high"].toDouble(), 'f', 1),
                 analysis::oneDecimal(details->high.value));
        QCOMPARE(QString::number(tool["median"].toDouble(), 'f', 3),
                 analysis::threeDecimals(details->median));
        QVERIFY(viewed.correctionName().contains("0.90 → 0.50"));
    }
}

void WindowTest::report_data()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("unit");
    QTest::newRow("layout 0, Chinese, C") << 0 << "CH"
                                          << "C";
    QTest::newRow("layout 0 of a F file, English, C") << 1 << "EN"
                                                      << "C";
    QTest::newRow("raw, Russian, F") << 3 << "RU"
                                     << "F";
    QTest::newRow("layout 1, Korean, F") << 4 << "KO"
                                         << "F";
}

/// The same words at the same places and the same pictures as from the save button.
void WindowTest::report()
{
    QFETCH(int, sample);
    QFETCH(QString, language);
    QFETCH(QString, unit);
    config::create(language);
    const testing::Translation translation(":/Demo_" + language + ".qm");
    QCOMPARE(translation.isLoaded(), language != QLatin1String("CH"));
    Opened opened(testing::samples()[std::size_t(sample)]);
    opened.show(unit);
    const QString expected = opened.save();
    QVERIFY(QFile::exists(expected));

    const QString out = opened / QStringLiteral("out");
    const Ended ended = thermaphoto({"report", "--tools", opened.toolPath, "--unit", unit,
                                     "--language", language, "-o", out, opened.photographPath});
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(ended.status, 0);
    const QString written = out + "/a.pdf";
    QCOMPARE(testing::pdfText(written), testing::pdfText(expected));
    QVERIFY(testing::pdfText(written).contains("R0"));
    QCOMPARE(testing::pdfInfo(written, "Title"), QString("a.bmp"));
    for (const int page : {1, 2})
        QCOMPARE(testing::pdfPage(written, page, 60), testing::pdfPage(expected, page, 60));
    QCOMPARE(testing::pdfImages(written), testing::pdfImages(expected));
}

void WindowTest::reportInTheConfiguredLanguage_data()
{
    QTest::addColumn<QString>("configured");
    QTest::addColumn<QString>("title");
    QTest::newRow("not configured") << QString() << "Image information";
    QTest::newRow("English") << "EN"
                             << "Image information";
    QTest::newRow("Chinese") << "CH"
                             << "图像信息";
    QTest::newRow("unknown") << "xx"
                             << "图像信息";
}

void WindowTest::reportInTheConfiguredLanguage()
{
    QFETCH(QString, configured);
    QFETCH(QString, title);
    if (!configured.isEmpty())
        config::create(configured);
    const Folder folder;
    folder.write("a.bmp", testing::samples()[0].bytes());
    QCOMPARE(thermaphoto({"report", "-o", "out", "a.bmp"}, folder.path()).status, 0);
    QVERIFY(testing::pdfText(folder / "out/a.pdf").contains(title));
    QCOMPARE(config::exists(), !configured.isEmpty());
}

void WindowTest::reportWithoutTools()
{
    const Folder folder;
    folder.write("a.bmp", testing::samples()[0].bytes());
    QCOMPARE(thermaphoto({"report", "--language", "CH", "-o", ".", "a.bmp"}, folder.path()).status,
             0);
    const QString text = testing::pdfText(folder / "a.pdf");
    QVERIFY(text.contains("测温信息(°C)"));
    QVERIFY(!text.contains("P0"));
    QCOMPARE(testing::pdfInfo(folder / "a.pdf", "Pages"), QString("2"));
}

void WindowTest::reportsOfAFolder()
{
    const Folder folder;
    for (int i = 0; i < 8; ++i)
        folder.write(QStringLiteral("in/%1.bmp").arg(i),
                     testing::samples()[std::size_t(i)].bytes());
    folder.write("in/8.bmp", "broken");
    folder.write("out/3.pdf", "mine");
    const auto run = [&](const QStringList& options) {
        return thermaphoto(QStringList{"report", "--language", "EN", "-o", "out", "in"} + options,
                           folder.path());
    };
    const Ended ended = run({"--jobs", "3"});
    QCOMPARE(ended.status, 1);
    QCOMPARE(ended.errorLines().size(), 2);
    QVERIFY(ended.errorLines()[0].contains("out/3.pdf is already there"));
    QVERIFY(ended.errorLines()[1].contains("in/8.bmp: too short"));
    QCOMPARE(folder.files().filter("out/").size(), 8);
    QCOMPARE(folder.read("out/3.pdf"), QByteArray("mine"));
    const QString text = testing::pdfText(folder / "out/5.pdf");

    QCOMPARE(run({"--jobs", "1", "--force"}).status, 1);
    QVERIFY(folder.read("out/3.pdf").startsWith("%PDF"));
    QCOMPARE(testing::pdfText(folder / "out/5.pdf"), text);
}

int main(int argc, char** argv)
{
    return testing::run<WindowTest>(argc, argv);
}

#include "tests/support/parts.h"
#include "window_test.moc"
