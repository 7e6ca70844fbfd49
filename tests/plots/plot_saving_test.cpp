// SPDX-License-Identifier: MIT
#include "plots/plot_view.h"
#include "tests/plots/sample_plots.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/test_run.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <memory>

using namespace plots;

/// Files of a plot, through the dialog that leads to them.
class PlotSavingTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> frame; ///< stands in for the main window
    QPointer<QWidget> beside;       ///< a window of its own, which can go at any time
    PlotView* view = nullptr;
    std::unique_ptr<testing::Folder> target;

    QFileDialog* dialog() const
    {
        return frame->findChild<QFileDialog*>(QString(), Qt::FindDirectChildrenOnly);
    }
    void save(const QString& name) const
    {
        view->save();
        QVERIFY(dialog());
        testing::choose(*dialog(), *target / name);
        QTRY_VERIFY(!dialog());
    }
    QByteArray bytesOf(const QString& name) const
    {
        QFile file(*target / name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void init()
    {
        testing::profile().reset();
        target = std::make_unique<testing::Folder>();
        frame = std::make_unique<QWidget>();
        frame->show();
        beside = new QWidget(frame.get(), Qt::Window);
        view = new PlotView(beside);
        view->resize(640, 400);
        view->setPlot(testing::twoCurves());
        view->setFileName(QStringLiteral("IMG001 L0"));
        beside->show();
    }
    void cleanup() { frame.reset(); }

    void itGoesToTheDocumentsUnlessAnotherFolderIsChosen()
    {
        view->save();
        QVERIFY(dialog() && dialog()->isVisible());
        QCOMPARE(dialog()->selectedFiles().value(0),
                 testing::profile().home() + QStringLiteral("/Documents/IMG001 L0.png"));
        QCOMPARE(dialog()->nameFilters().size(), 3);
        dialog()->reject();
        QTRY_VERIFY(!dialog());
        QCOMPARE(target->files(), QStringList());
    }

    void theEndOfTheNameSaysWhatIsWritten()
    {
        save(QStringLiteral("a.png"));
        QImage picture;
        QVERIFY(picture.load(*target / QStringLiteral("a.png")));
        QCOMPARE(picture.pixel(1, 1), QColor(Qt::white).rgb());
        save(QStringLiteral("a.PDF"));
        QVERIFY(bytesOf(QStringLiteral("a.PDF")).startsWith("%PDF-"));
        save(QStringLiteral("a.csv"));
        QCOMPARE(bytesOf(QStringLiteral("a.csv")), csvOf(view->plot().table));
        save(QStringLiteral("plain"));
        QVERIFY(bytesOf(QStringLiteral("plain.png")).startsWith("\x89PNG"));
    }

    void theNameFollowsTheChosenKind()
    {
        view->save();
        QFileDialog& where = *dialog();
        where.selectNameFilter(QStringLiteral("CSV (*.csv)"));
        emit where.filterSelected(QStringLiteral("CSV (*.csv)"));
        QVERIFY(where.selectedFiles().value(0).endsWith(QStringLiteral("/IMG001 L0.csv")));
        testing::choose(where, *target / QStringLiteral("other"));
        QTRY_VERIFY(!dialog());
        QCOMPARE(bytesOf(QStringLiteral("other.csv")), csvOf(view->plot().table));
    }

    void aFullDiskIsToldAndWhatWasThereStays()
    {
        save(QStringLiteral("a.csv"));
        const QByteArray before = bytesOf(QStringLiteral("a.csv"));
        {
            const testing::FullDisk full(10);
            const testing::Answer<QMessageBox> replace(
                [](QMessageBox& question) { question.button(QMessageBox::Yes)->click(); });
            save(QStringLiteral("a.csv"));
        }
        QCOMPARE(bytesOf(QStringLiteral("a.csv")), before);
        QCOMPARE(target->files(), QStringList{QStringLiteral("a.csv")});
        auto* message = frame->findChild<QMessageBox*>();
        QVERIFY(message);
        QVERIFY(message->text().contains(QStringLiteral("a.csv")));
        message->accept();
        QTRY_VERIFY(!frame->findChild<QMessageBox*>());
    }

    void theDialogEndsWithThePlot()
    {
        view->save();
        QVERIFY(dialog());
        delete beside;
        QTRY_VERIFY(!dialog());
    }
};

int main(int argc, char** argv)
{
    return testing::run<PlotSavingTest>(argc, argv);
}

#include "plot_saving_test.moc"
