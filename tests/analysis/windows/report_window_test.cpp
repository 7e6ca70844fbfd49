// SPDX-License-Identifier: MIT
#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/tool_commands.h"
#include "analysis/windows/viewed_photograph.h"
#include "config/configuration_record.h"
#include "dialogs/dialogs.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "tests/analysis/pdf_reader.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"
#include "tests/support/translation.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>
#include <memory>

using testing::Answer;

/// The save button, from the click to the opened file.
class ReportWindowTest : public QObject
{
    Q_OBJECT

public slots:
    void open(const QUrl& url) { m_opened.append(url); }

private slots:
    void initTestCase() { QDesktopServices::setUrlHandler("file", this, "open"); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }

    void init()
    {
        testing::profile().reset();
        m_opened.clear();
        m_window = std::make_unique<Analysis_Widget>();
        // Warmer to the right, in a palette from blue to red.
        testing::Shot shot;
        shot.gray = [](int x, int) {
            return x;
        };
        shot.palette = [](int v) {
            return (v >> 3) << 11 | (31 - (v >> 3));
        };
        shot.markers = {60, 80, 180, 240, 121, 161};
        const QString photograph = testing::profile().home() + "/IR_00007.bmp";
        testing::putFile(photograph, testing::photographBytes(shot));
        QVERIFY(m_window->set_Image_addr(photograph, 0));
    }
    void cleanup() { m_window.reset(); }

    void theFileIsWrittenAnnouncedAndOpened_data()
    {
        QTest::addColumn<bool>("shown");
        QTest::newRow("shown window") << true;
        QTest::newRow("hidden window") << false;
    }

    void theFileIsWrittenAnnouncedAndOpened()
    {
        QFETCH(bool, shown);
        if (shown) {
            m_window->show();
            QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        }
        measure();
        Answer<QFileDialog> file([this](QFileDialog& dialog) {
            QCOMPARE(dialog.parentWidget(), m_window.get());
            QCOMPARE(dialog.windowTitle(), QString("保存的文件"));
            QCOMPARE(dialog.nameFilters(), QStringList("Items files(*.pdf)"));
            QCOMPARE(dialog.directory().absolutePath(), config::documentsPath());
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            testing::choose(dialog, "отчёт 报告.pdf");
        });
        Answer<QMessageBox> message([this](QMessageBox& box) {
            QCOMPARE(box.parentWidget(), m_window.get());
            QCOMPARE(box.windowTitle(), QString("提示"));
            QCOMPARE(box.text(), QString("导出文件成功!"));
            QCOMPARE(box.icon(), QMessageBox::Information);
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QVERIFY(QFile::exists(target()));
            QVERIFY(m_opened.isEmpty());
            box.button(QMessageBox::Ok)->click();
        });
        click();
        QVERIFY(file.wasAsked());
        QVERIFY(message.wasAsked());
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(target())});

        QCOMPARE(testing::pdfInfo(target(), "Title"), QString("IR_00007.bmp"));
        const QString text = testing::pdfText(target()).simplified();
        const auto* information = testing::part<QTableWidget>(m_window.get(), "tableWidget_2");
        for (int row = 0; row < 10; ++row)
            QVERIFY2(text.contains(information->item(row, 1)->text()),
                     qPrintable(information->item(row, 1)->text()));
        QVERIFY(text.contains("测温信息(°C) 名称 类型 高 低 平均 P0 点"));
        QVERIFY(text.contains(rowTexts().join(' ')));

        // 720 × 960 beside the scale, with the point's cross and the markers on it.
        const QImage canvas = testing::pdfImages(target()).value(0);
        QCOMPARE(canvas.size(), QSize(930, 960));
        QVERIFY(qBlue(canvas.pixel(215, 400)) > 240);
        QVERIFY(qRed(canvas.pixel(925, 400)) > 220);
        QVERIFY(qGreen(canvas.pixel(925, 400)) < 10);
        const QRgb cross = canvas.pixel(210 + 361 - 8, 569); // green, for it is the selected tool
        QVERIFY(qGreen(cross) > 200 && qRed(cross) < 60 && qBlue(cross) < 60);
    }

    void fahrenheitThroughout()
    {
        measure();
        testing::part<QComboBox>(m_window.get(), "comboBox")->setCurrentIndex(1);
        QVERIFY(save());
        const QString text = testing::pdfText(target()).simplified();
        QVERIFY(text.contains("测温信息(°F)"));
        QVERIFY(text.contains("单位: °F"));
        QVERIFY(text.contains("中心温度: 95.0")); // 35.0 °C
        QVERIFY(text.contains("最高温度: 122.0"));
        QVERIFY(text.contains("最低温度: 68.0"));
        QVERIFY(text.contains(rowTexts().join(' ')));
        QVERIFY(rowTexts().at(2).toDouble() > 68);
    }

    /// Above 40.0 °C: from column 170 of 240 on. Corrected readings are not the report's.
    void theIsothermIsInThePicture()
    {
        QVERIFY(save());
        const QImage without = testing::pdfImages(target()).value(0);
        const QString text = testing::pdfText(target());
        analysis::Isotherm above;
        above.from = 40;
        m_window->commands().viewed().setIsotherm(above);
        m_window->commands().viewed().setCorrection(analysis::Correction{0.95, 0.5, 20});
        QVERIFY(save());
        const QImage with = testing::pdfImages(target()).value(0);
        QVERIFY(std::abs(qRed(with.pixel(210 + 3 * 200, 50)) - 85) < 4);
        QVERIFY(std::abs(qBlue(with.pixel(210 + 3 * 200, 50)) - 255) < 4);
        QCOMPARE(with.copy(0, 0, 210 + 3 * 168, 960), without.copy(0, 0, 210 + 3 * 168, 960));
        QCOMPARE(testing::pdfText(target()), text);
    }

    void theSpanOfTheColourBarCounts()
    {
        QVERIFY(save());
        const QImage whole = testing::pdfImages(target()).value(0);
        const QRgb before = whole.pixel(300, 400);
        auto* bar = m_window->findChild<My_ColorSlider*>();
        bar->startValue = 250; // all but the coldest take one colour
        QVERIFY(save());
        const QImage canvas = testing::pdfImages(target()).value(0);
        QVERIFY(canvas.pixel(300, 400) != before);
        QCOMPARE(canvas.pixel(300, 400), canvas.pixel(900, 400));
        // The strip beside the picture is of the whole palette: red at the top, blue at the bottom.
        const QRect strip(80, 0, 60, 960);
        QCOMPARE(canvas.copy(strip), whole.copy(strip));
        QCOMPARE(canvas.pixel(100, 1), qRgb(248, 0, 0));
        QCOMPARE(canvas.pixel(100, 958), qRgb(0, 0, 248));
    }

    void kindsOfToolsAreTranslated()
    {
        const testing::Translation english(":/Demo_EN.qm");
        QVERIFY(english.isLoaded());
        measure();
        QCOMPARE(rowTexts().at(1), QString("Point"));
        QVERIFY(save());
        QVERIFY(testing::pdfText(target()).simplified().contains("P0 Point"));
    }

    void aDeletedToolIsNotInTheReport()
    {
        measure();
        testing::part<QPushButton>(m_window.get(), "pushButton_3")->click();
        QVERIFY(save());
        QVERIFY(testing::pdfText(target()).simplified().contains("名称 类型 高 低 平均"));
        QVERIFY(!testing::pdfText(target()).contains("P0"));
    }

    void theConfiguredLanguageMovesTheTexts()
    {
        config::create("RU");
        const QString photograph = m_window->path;
        m_window = std::make_unique<Analysis_Widget>();
        QVERIFY(m_window->set_Image_addr(photograph, 0));
        QVERIFY(save());
        const auto words = testing::pdfWords(target()).value(0);
        const auto emissivity = std::find_if(words.begin(), words.end(),
                                             [](const auto& word) { return word.text == "0.95"; });
        QVERIFY(emissivity != words.end());
        QVERIFY(std::abs(emissivity->box.left() - (10 + 8000 * 72.0 / 1200)) < 1.4);
    }

    void cancelledDialogsWriteNothing()
    {
        Answer<QFileDialog> file([](QFileDialog& dialog) { dialog.reject(); });
        clickInVain(file);
    }

    void nothingIsSaidOfAPathThatCannotBeWritten()
    {
        testing::LogRecorder log;
        // Gone between the choice and the writing.
        const QString folder = config::documentsPath() + "/gone";
        QVERIFY(QDir().mkpath(folder));
        Answer<QFileDialog> file([&](QFileDialog& dialog) {
            dialog.setDirectory(folder);
            testing::choose(dialog, "report.pdf");
            QVERIFY(QDir().rmdir(folder));
        });
        clickInVain(file);
    }

    void theWindowMayEndWhileTheFileIsChosen()
    {
        const QPointer<Analysis_Widget> page = m_window.get();
        Answer<QFileDialog> file([this](QFileDialog&) { dialogs::end(m_window.release()); });
        click();
        QVERIFY(file.wasAsked());
        QTRY_VERIFY(!page);
        QVERIFY(QDir(config::documentsPath()).isEmpty());
    }

    void theReportOpensThoughTheWindowHasEnded()
    {
        Answer<QFileDialog> file(
            [](QFileDialog& dialog) { testing::choose(dialog, "отчёт 报告.pdf"); });
        const QPointer<Analysis_Widget> page = m_window.get();
        Answer<QMessageBox> message([this](QMessageBox&) { dialogs::end(m_window.release()); });
        click();
        QVERIFY(message.wasAsked());
        QTRY_VERIFY(!page);
        QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(target())});
    }

    void beforeAnyPhotographThereIsAnEmptyReport()
    {
        testing::LogRecorder log;
        m_window = std::make_unique<Analysis_Widget>();
        QVERIFY(save());
        QCOMPARE(testing::pdfInfo(target(), "Pages"), QString("2"));
        for (const QString& message : log.messages())
            QVERIFY2(message.startsWith("This plugin does not support"), qPrintable(message));
    }

    void withoutAViewerTheClickStillEnds()
    {
        QDesktopServices::unsetUrlHandler("file");
        testing::LogRecorder log; // the platform says that it cannot open files
        QVERIFY(save());
        QDesktopServices::setUrlHandler("file", this, "open");
        QVERIFY(QFile::exists(target()));
    }

private:
    static QString target() { return config::documentsPath() + "/отчёт 报告.pdf"; }

    void click() { testing::part<QPushButton>(m_window.get(), "pushButton")->click(); }
    /// Nothing is written, opened or said.
    void clickInVain(const Answer<QFileDialog>& file)
    {
        const Answer<QMessageBox> message([](QMessageBox& box) { box.accept(); });
        click();
        QVERIFY(file.wasAsked());
        QVERIFY(!message.wasAsked());
        QVERIFY(m_opened.isEmpty());
        QVERIFY(QDir(config::documentsPath()).isEmpty());
    }

    /// One point in the middle, selected, and its row in the tool table.
    void measure()
    {
        auto* label = m_window->findChild<MyLabel*>();
        label->setToolMode(2);
        label->pointList[0].x = 120;
        label->pointList[0].y = 190;
        label->currentType = QStringLiteral("P");
        label->selectedIndex = 0;
        m_window->updat_Tool_Temp();
    }

    QStringList rowTexts() const
    {
        const auto* tools = testing::part<QTableWidget>(m_window.get(), "tableWidget");
        QStringList texts;
        for (int column = 0; column < 5; ++column)
            texts.append(tools->item(0, column)->text());
        return texts;
    }

    /// Saves under target(), overwriting without being asked; false when no success was announced.
    bool save()
    {
        QFile::remove(target());
        Answer<QFileDialog> file(
            [](QFileDialog& dialog) { testing::choose(dialog, "отчёт 报告.pdf"); });
        Answer<QMessageBox> message([](QMessageBox& box) { box.accept(); });
        click();
        return message.wasAsked();
    }

    std::unique_ptr<Analysis_Widget> m_window;
    QList<QUrl> m_opened;
};

int main(int argc, char** argv)
{
    return testing::run<ReportWindowTest>(argc, argv);
}
#include "report_window_test.moc"
