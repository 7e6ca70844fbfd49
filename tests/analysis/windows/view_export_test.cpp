// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_dialog.h"
#include "analysis/windows/view_export.h"
#include "dialogs/dialogs.h"
#include "files/table_text.h"
#include "overlay/tool_coordinates.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/test_run.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>

#include <memory>

using namespace analysis;

namespace {

overlay::Tools someTools()
{
    overlay::Tools tools;
    for (const overlay::KindRow& row : overlay::toolKinds)
        addTool(tools, row.kind, numbersOfNew(row.kind), Qt::white);
    return tools;
}

} // namespace

/// The clipboard and the files, through the dialogs that lead to them.
class ViewExportTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Photograph> photograph;
    std::unique_ptr<QWidget> frame; ///< stands in for the main window
    QPointer<QWidget> page;
    std::unique_ptr<testing::Folder> target;

    ShownPicture shown(const overlay::Tools& tools = someTools()) const
    {
        return shownPicture(*photograph, {}, tools, 0, 255);
    }
    PictureDialog* howDialog() const { return frame->findChild<PictureDialog*>(); }
    QFileDialog* whereDialog() const { return frame->findChild<QFileDialog*>(); }
    QMessageBox* message() const { return frame->findChild<QMessageBox*>(); }
    void savePicture(const QString& name) const
    {
        ViewExport::savePicture(shown(), QStringLiteral("/disk/IMG001.bmp"), page);
        howDialog()->accept();
        QTRY_VERIFY(whereDialog());
        testing::choose(*whereDialog(), *target / name);
        QTRY_VERIFY(!whereDialog() && !howDialog());
    }
    void saveTemperatures() const
    {
        ViewExport::saveTemperatures(*photograph, {Unit::Fahrenheit, toFahrenheit},
                                     QStringLiteral("/disk/IMG001.bmp"), page);
        QVERIFY(whereDialog());
    }

private slots:
    void init()
    {
        testing::profile().reset();
        photograph = std::make_unique<Photograph>();
        for (std::size_t i = 0; i < photograph->temperatures.size(); ++i)
            photograph->temperatures[i] = float(i % 320) / 4.0F;
        for (std::size_t i = 0; i < photograph->palette.size(); ++i)
            photograph->palette[i] = {uchar(i), 0, 0};
        target = std::make_unique<testing::Folder>();
        frame = std::make_unique<QWidget>();
        page = new QWidget(frame.get());
        frame->show();
    }
    void cleanup() { frame.reset(); }

    void thePictureGoesToTheClipboardAsLargeAsItIsShown()
    {
        const overlay::Geometry geometry{700, 450, 600, 600};
        ViewExport::copyPicture(shown(), geometry);
        const QImage copied = QGuiApplication::clipboard()->image();
        QCOMPARE(copied.size(), QSize(450, 600));
        QCOMPARE(copied.convertToFormat(QImage::Format_RGB32), pictureWithTools(shown(), geometry));
        // Without a picture, what was copied before stays.
        ViewExport::copyPicture(shown(), {});
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(450, 600));
    }

    void theTableGoesToTheClipboardInTwoForms()
    {
        const auto textsOf = [](const ToolCells& cells) {
            return QStringList(cells.begin(), cells.end());
        };
        files::TextRows rows{textsOf(toolCaptions())};
        for (const ToolCells& row : shown().measured)
            rows.push_back(textsOf(row));
        ViewExport::copyTable(rows, true);
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        QCOMPARE(data->text().count(QLatin1Char('\n')), 5);
        QVERIFY(data->text().startsWith(QStringLiteral("名称\t类型\t高\t低\t平均\nP0\t点\t")));
        QCOMPARE(data->text(), files::tabSeparated(rows));
        QCOMPARE(data->html(), files::htmlTable(rows, true));
    }

    void theDialogTellsTheSizeAndWhatIsChosen()
    {
        const std::unique_ptr<PictureDialog> dialog(new PictureDialog(shown(), frame.get()));
        auto& scale = *testing::part<QComboBox>(dialog.get(), "scale");
        auto& bar = *testing::part<QCheckBox>(dialog.get(), "colourBar");
        auto& values = *testing::part<QCheckBox>(dialog.get(), "values");
        QCOMPARE(scale.count(), 4);
        bar.setChecked(false);
        values.setChecked(false);
        scale.setCurrentIndex(3);
        QCOMPARE(dialog->options().scale, 4);
        QCOMPARE(dialog->picture().size(), QSize(960, 1280));
        QCOMPARE(testing::part<QLabel>(dialog.get(), "size")->text(),
                 QStringLiteral("960 × 1280 像素"));
        bar.setChecked(true);
        QVERIFY(dialog->picture().width() > 960);
        values.setChecked(true);
        QVERIFY(dialog->picture().height() > 1280);
        QVERIFY(values.isEnabled());
        const PictureDialog nothingMeasured(shown({}), frame.get());
        QVERIFY(!testing::part<QCheckBox>(&nothingMeasured, "values")->isEnabled());
    }

    void savesThePicture()
    {
        ViewExport::savePicture(shown(), QStringLiteral("/disk/IMG001.bmp"), page);
        QVERIFY(howDialog() && howDialog()->isVisible() && howDialog()->isModal());
        testing::part<QComboBox>(howDialog(), "scale")->setCurrentIndex(0);
        const QImage expected = howDialog()->picture();
        howDialog()->accept();
        QTRY_VERIFY(whereDialog());
        // Never the photograph's own folder, unless the user goes there.
        QCOMPARE(whereDialog()->selectedFiles().value(0),
                 testing::profile().home() + QStringLiteral("/Documents/IMG001.png"));
        testing::choose(*whereDialog(), *target / QStringLiteral("one")); // gets its suffix
        QTRY_VERIFY(!whereDialog());
        QCOMPARE(target->files(), QStringList{QStringLiteral("one.png")});
        QImage saved;
        QVERIFY(saved.load(*target / QStringLiteral("one.png")));
        QCOMPARE(saved.convertToFormat(QImage::Format_RGB32), expected);
        QVERIFY(!message());
    }

    void cancelWritesNothing()
    {
        ViewExport::savePicture(shown(), QStringLiteral("IMG001.bmp"), page);
        howDialog()->reject();
        QTRY_VERIFY(!howDialog());
        QVERIFY(!whereDialog());
        saveTemperatures();
        whereDialog()->reject();
        QTRY_VERIFY(!whereDialog());
        QVERIFY(target->files().isEmpty());
    }

    void savesTemperatures_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("begins");
        const auto row = [](const char* what, const QString& filter, const QString& name,
                            const QString& written, const QByteArray& begins) {
            QTest::newRow(what) << filter << name << written << begins;
        };
        row("CSV", "CSV (*.csv)", "a", "a.csv", "32,32,32,");
        row("TIFF", "TIFF (*.tiff)", "a", "a.tiff", QByteArray("II*\0", 4));
        row("NumPy", "NumPy (*.npy)", "a", "a.npy", "\x93NUMPY");
        row("the name says it", "CSV (*.csv)", "a.NPY", "a.NPY", "\x93NUMPY");
        row("a name that says nothing", "TIFF (*.tiff)", "a.v2", "a.v2", QByteArray("II*\0", 4));
    }
    void savesTemperatures()
    {
        QFETCH(const QString, filter);
        QFETCH(const QString, name);
        QFETCH(const QString, written);
        QFETCH(const QByteArray, begins);
        saveTemperatures();
        QCOMPARE(whereDialog()->selectedFiles().value(0),
                 testing::profile().home() + QStringLiteral("/Documents/IMG001.csv"));
        auto& filters = *testing::part<QComboBox>(whereDialog(), "fileTypeCombo");
        filters.setCurrentText(filter);
        emit filters.textActivated(filter);
        emit whereDialog()->filterSelected(filter);
        QVERIFY(whereDialog()->selectedFiles().value(0).endsWith(QStringLiteral("/IMG001.") +
                                                                 whereDialog()->defaultSuffix()));
        testing::choose(*whereDialog(), *target / name);
        QTRY_VERIFY(!whereDialog());
        QCOMPARE(target->files(), QStringList{written});
        QVERIFY(target->read(written).startsWith(begins));
    }

    /// What was seen when it was asked for, whatever becomes of the photograph meanwhile.
    void thePhotographMayBeReplacedMeanwhile()
    {
        saveTemperatures();
        photograph->temperatures.fill(1000.0F);
        testing::choose(*whereDialog(), *target / QStringLiteral("a.csv"));
        QTRY_VERIFY(!whereDialog());
        QVERIFY(target->read(QStringLiteral("a.csv")).startsWith("32,32,"));
    }

    void aPageThatGoesTakesItsDialogsAlong()
    {
        saveTemperatures();
        dialogs::end(page);
        QTRY_VERIFY(!whereDialog());
        QVERIFY(target->files().isEmpty());
    }

    void aFullDiskIsToldAndTheOldFileStays_data()
    {
        QTest::addColumn<bool>("isPicture");
        QTest::newRow("picture") << true;
        QTest::newRow("temperatures") << false;
    }
    void aFullDiskIsToldAndTheOldFileStays()
    {
        QFETCH(const bool, isPicture);
        target->write(QStringLiteral("a.png"), "old");
        auto full = std::make_unique<testing::FullDisk>(1000);
        const QString path = *target / QStringLiteral("a.png");
        const testing::Answer<QMessageBox> replace(
            [](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        if (isPicture) {
            savePicture(QStringLiteral("a.png"));
        } else {
            saveTemperatures();
            testing::choose(*whereDialog(), path);
        }
        QTRY_VERIFY(!whereDialog());
        full.reset();
        QVERIFY(replace.wasAsked());
        QTRY_VERIFY(message() && message()->isVisible());
        QVERIFY(message()->text().startsWith(QStringLiteral("文件“") +
                                             QDir::toNativeSeparators(path) +
                                             QStringLiteral("”未能写入")));
        QVERIFY(message()->textFormat() == Qt::PlainText);
        QCOMPARE(target->files(), QStringList{QStringLiteral("a.png")});
        QCOMPARE(target->read(QStringLiteral("a.png")), QByteArray("old"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<ViewExportTest>(argc, argv);
}

#include "view_export_test.moc"
