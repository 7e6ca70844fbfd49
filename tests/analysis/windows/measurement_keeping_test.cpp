// SPDX-License-Identifier: MIT
#include "analysis/windows/measurement_keeping.h"
#include "analysis/windows/tool_commands.h"
#include "config/choices.h"
#include "overlay/my_color_slider.h"
#include "overlay/my_label.h"
#include "tests/analysis/windows/browser_test.h"
#include "tests/support/full_disk.h"

#include <QComboBox>
#include <QMenu>

using analysis::KeptMeasurements;
using testing::part;
using testing::Shot;

/// Measurements that come back with their photograph, from the browser on.
class MeasurementKeepingTest : public testing::BrowserTest
{
    Q_OBJECT

    static QString keptFolder() { return KeptMeasurements::usualFolder(); }
    static QStringList keptFiles()
    {
        return QDir(keptFolder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static Shot shot(int gray)
    {
        Shot made;
        made.gray = [gray](int, int) {
            return gray;
        };
        return made;
    }
    MyLabel& label() const { return *part<MyLabel>(opened(), "label"); }
    My_ColorSlider& bar() const { return *part<My_ColorSlider>(opened(), "widget"); }
    QComboBox& unit() const { return *part<QComboBox>(opened(), "comboBox"); }
    QTableWidget& tools() const { return *part<QTableWidget>(opened(), "tableWidget"); }
    void press(const char* button) const { part<QPushButton>(opened(), button)->click(); }
    QAction* choice() const
    {
        for (QAction* action : opened()->commands().findChildren<QAction*>()) {
            if (action->text() == QStringLiteral("随照片保存测量"))
                return action;
        }
        return nullptr;
    }
    void open(const QString& name) const
    {
        for (int i = 0; i < list()->count(); ++i) {
            if (list()->item(i)->text() == name)
                emit list()->itemDoubleClicked(list()->item(i));
        }
        QVERIFY(opened());
        QCOMPARE(opened()->fileName, name);
        QTRY_VERIFY(opened()->isVisible());
        QCoreApplication::processEvents();
    }
    void placePoint() const
    {
        press("pushButton_8");
        QTest::mouseClick(&label(), Qt::LeftButton, {}, label().rect().center());
    }
    void dragSpan() const
    {
        const QPoint from = bar().startMarker + QPoint(4, 0);
        QTest::mousePress(&bar(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + QPoint(0, 100), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(&bar(), &move);
        QTest::mouseRelease(&bar(), Qt::LeftButton, {}, from + QPoint(0, 100));
    }
    QStringList filesOnDisk() const
    {
        return QDir(drives.first() + QStringLiteral("DCIM_100"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// The browser over two photographs, and nothing kept yet.
    void begin()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, {QStringLiteral("a.bmp")}, shot(100));
        addPhotographs(root, {QStringLiteral("b.bmp")}, shot(200));
        openWindow();
    }

private slots:
    void usuallyNothingIsKept()
    {
        begin();
        open(QStringLiteral("a.bmp"));
        QVERIFY(choice() && !choice()->isChecked());
        placePoint();
        dragSpan();
        unit().setCurrentIndex(1);
        open(QStringLiteral("b.bmp"));
        open(QStringLiteral("a.bmp"));
        QCOMPARE(tools().rowCount(), 0);
        QCOMPARE(unit().currentIndex(), 0);
        window.reset();
        QVERIFY(!QFile::exists(keptFolder()));
        QVERIFY(!QFile::exists(config::choicesPath()));
    }

    void toolsSpanAndUnitComeBack()
    {
        begin();
        open(QStringLiteral("a.bmp"));
        choice()->trigger();
        QVERIFY(config::keepMeasurements());
        QCOMPARE(keptFiles(), QStringList()); // nothing was set up yet
        placePoint();
        press("pushButton_7");
        QTest::mousePress(&label(), Qt::LeftButton, {}, label().rect().center());
        const QPoint away = label().rect().center() + QPoint(40, 50);
        QMouseEvent move(QEvent::MouseMove, away, Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&label(), &move);
        QTest::mouseRelease(&label(), Qt::LeftButton, {}, away);
        dragSpan();
        unit().setCurrentIndex(1);
        const overlay::LineTool line = label().lineList.first();
        const int start = bar().startValue;
        QVERIFY(start > 20);

        open(QStringLiteral("b.bmp"));
        QVERIFY(choice()->isChecked());
        QCOMPARE(tools().rowCount(), 0);
        QCOMPARE(bar().startValue, 0);
        QCOMPARE(unit().currentIndex(), 0);

        open(QStringLiteral("a.bmp"));
        QCOMPARE(tools().rowCount(), 2);
        QCOMPARE(label().lineList.first(), line);
        QCOMPARE(bar().startValue, start);
        QCOMPARE(bar().endValue, 255);
        QCOMPARE(unit().currentIndex(), 1);
        QVERIFY(opened()->conversion.offset == analysis::toFahrenheit.offset);
        // It is where the photograph begins: nothing to undo.
        QTest::keyClick(opened(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(tools().rowCount(), 2);
        QCOMPARE(keptFiles().size(), 1);
        QCOMPARE(filesOnDisk(), QStringList({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}));
    }

    /// The same bytes, another name on another disk, in another run of the program.
    void aCopyOnAnotherDiskIsTheSamePhotograph()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        placePoint();
        window.reset();
        drives.clear();
        const QString other = addDrive(QStringLiteral("other"));
        addPhotographs(other, {QStringLiteral("copy.bmp")}, shot(100));
        addPhotographs(other, {QStringLiteral("different.bmp")}, shot(101));
        openWindow();
        open(QStringLiteral("different.bmp"));
        QCOMPARE(tools().rowCount(), 0);
        open(QStringLiteral("copy.bmp"));
        QCOMPARE(tools().rowCount(), 1);
    }

    /// Each change is on the disk at once: the program may be killed at any time.
    void eachChangeIsKeptAtOnce_data()
    {
        QTest::addColumn<int>("change");
        for (int change = 0; change < 5; ++change)
            QTest::addRow("%d", change) << change;
    }
    void eachChangeIsKeptAtOnce()
    {
        QFETCH(const int, change);
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        placePoint();
        const auto kept = [this] {
            return KeptMeasurements().find(
                KeptMeasurements::keyOf(opened()->fileBuffer.bytes(), opened()->readCount));
        };
        QVERIFY(kept() && overlay::countOf(kept()->tools) == 1);
        if (change == 0)
            press("pushButton_2");
        if (change == 1)
            press("pushButton_3");
        if (change == 2)
            QTest::keyClick(opened(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(overlay::countOf(kept()->tools), change < 3 ? 0 : 1);
        if (change == 3)
            dragSpan();
        QCOMPARE(kept()->startValue, change == 3 ? bar().startValue : 0);
        QVERIFY(change != 3 || bar().startValue > 20);
        if (change == 4)
            unit().setCurrentIndex(1);
        QVERIFY(kept()->unit == analysis::Unit(change == 4 ? 1 : 0));
    }

    /// Looking at photographs leaves no files.
    void lookingKeepsNothing()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        open(QStringLiteral("b.bmp"));
        window.reset();
        QCOMPARE(keptFiles(), QStringList());
    }

    void switchingOnKeepsWhatIsThere()
    {
        begin();
        open(QStringLiteral("a.bmp"));
        placePoint();
        QVERIFY(!QFile::exists(keptFolder()));
        choice()->trigger();
        QCOMPARE(keptFiles().size(), 1);
        choice()->trigger();
        QVERIFY(!config::keepMeasurements());
        placePoint();
        QTest::mouseClick(&label(), Qt::LeftButton, {}, label().rect().center() + QPoint(30, 0));
        const int shown = tools().rowCount();
        open(QStringLiteral("b.bmp"));
        choice()->trigger();
        open(QStringLiteral("a.bmp"));
        QVERIFY(shown > 1);
        QCOMPARE(tools().rowCount(), 1);
    }

    /// What was kept once stays, for the day when the choice is made again.
    void switchedOffNothingComesBack()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        placePoint();
        choice()->trigger();
        QVERIFY(!config::keepMeasurements());
        open(QStringLiteral("b.bmp"));
        open(QStringLiteral("a.bmp"));
        QCOMPARE(tools().rowCount(), 0);
        QCOMPARE(keptFiles().size(), 1);
        choice()->trigger();
        QCOMPARE(KeptMeasurements().find(keptFiles().first().left(64))->tools.pointList.size(), 1);
    }

    void whatIsDraggedWhenTheWindowGoesIsKeptToo()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        const QPoint from = bar().startMarker + QPoint(4, 0);
        QTest::mousePress(&bar(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + QPoint(0, 100), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(&bar(), &move);
        QCOMPARE(keptFiles(), QStringList());
        window.reset();
        QCOMPARE(keptFiles().size(), 1);
    }

    /// Its unit changes while the tools are still those of the photograph before.
    void anotherPhotographIsReadIntoTheWindow()
    {
        begin();
        config::setKeepMeasurements(true);
        Shot other = shot(50);
        other.unit = 1;
        addPhotographs(drives.first(), {QStringLiteral("f.bmp")}, other);
        open(QStringLiteral("a.bmp"));
        placePoint();
        const QString key = keptFiles().first().left(64);
        QVERIFY(opened()->set_Image_addr(window->imageFolder + QStringLiteral("/f.bmp"), 0));
        QCOMPARE(unit().currentIndex(), 1);
        window.reset();
        QCOMPARE(keptFiles().size(), 1);
        QVERIFY(KeptMeasurements().find(key)->unit == analysis::Unit::Celsius);
    }

    void aBrokenFileIsAsIfItWereNotThere()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        placePoint();
        open(QStringLiteral("b.bmp"));
        testing::putFile(keptFolder() + QLatin1Char('/') + keptFiles().first(), "{broken");
        open(QStringLiteral("a.bmp"));
        QCOMPARE(tools().rowCount(), 0);
        QVERIFY(!message());
        placePoint();
        open(QStringLiteral("b.bmp"));
        open(QStringLiteral("a.bmp"));
        QCOMPARE(tools().rowCount(), 1);
    }

    void aFullDiskIsToldOnceAndTheOldFileStays()
    {
        begin();
        config::setKeepMeasurements(true);
        open(QStringLiteral("a.bmp"));
        placePoint();
        const QString kept = keptFolder() + QLatin1Char('/') + keptFiles().first();
        QFile file(kept);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();

        {
            const testing::FullDisk full(10);
            unit().setCurrentIndex(1);
            unit().setCurrentIndex(0);
            unit().setCurrentIndex(1);
        }
        QVERIFY(message() && message()->isVisible());
        QCOMPARE(window->findChildren<QMessageBox*>().size(), 1);
        QVERIFY(message()->text().startsWith(QStringLiteral("测量未能与照片一起保存。\n")));
        message()->button(QMessageBox::Ok)->click();
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
        QCOMPARE(keptFiles().size(), 1);
        QTRY_VERIFY(!message());
        dragSpan(); // there is room again
        QVERIFY(!message());
        QVERIFY(KeptMeasurements().find(keptFiles().first().left(64))->unit ==
                analysis::Unit::Fahrenheit);
    }

    /// The choice itself cannot be written: then it is not made.
    void aChoiceThatCannotBeKept()
    {
        begin();
        open(QStringLiteral("a.bmp"));
        QVERIFY(QDir().mkpath(config::choicesPath())); // a folder stands in its place
        choice()->trigger();
        QVERIFY(!choice()->isChecked());
        QVERIFY(message());
        QCOMPARE(message()->text(), QStringLiteral("此选择未能保存。"));
    }
};

int main(int argc, char** argv)
{
    return testing::run<MeasurementKeepingTest>(argc, argv);
}

#include "measurement_keeping_test.moc"
