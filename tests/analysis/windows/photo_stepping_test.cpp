// SPDX-License-Identifier: MIT
#include "analysis/windows/tool_commands.h"
#include "overlay/my_label.h"
#include "tests/analysis/windows/browser_test.h"

#include <QPointer>

/// From one photograph of the folder to the next, without the list.
class PhotoSteppingTest : public testing::BrowserTest
{
    Q_OBJECT

    MyLabel& label() const { return *testing::part<MyLabel>(opened(), "label"); }
    void openFrom(const QStringList& names, int index)
    {
        addPhotographs(addDrive(QStringLiteral("disk")), names);
        openWindow();
        QApplication::setActiveWindow(window.get());
        window->list_item_doubleclicked(list()->item(index));
        QVERIFY(opened());
        QTRY_VERIFY(label().hasFocus());
    }
    void step(Qt::Key key) const
    {
        QTRY_VERIFY(opened()->isVisible());
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }

private slots:
    void thePictureHasTheFocusOnceAPhotographIsOpen()
    {
        openFrom(names(2), 0);
        QVERIFY(label().hasFocus());
    }

    void theKeysOpenTheNextAndThePreviousPhotograph()
    {
        openFrom(names(3), 0);
        QPointer<Analysis_Widget> before = opened();
        for (const char* name : {"IMG00001.bmp", "IMG00002.bmp", "IMG00002.bmp"}) {
            step(Qt::Key_PageDown);
            QCOMPARE(opened()->fileName, QString::fromLatin1(name));
            QTRY_VERIFY(label().hasFocus());
            QCOMPARE(window->findChildren<Analysis_Widget*>().size(), 1);
            QCOMPARE(tabs().currentIndex(), 1);
        }
        QVERIFY(!before);
        before = opened();
        step(Qt::Key_PageDown); // at the end
        QVERIFY(before == opened());
        for (const char* name : {"IMG00001.bmp", "IMG00000.bmp", "IMG00000.bmp"}) {
            step(Qt::Key_PageUp);
            QCOMPARE(opened()->fileName, QString::fromLatin1(name));
        }
    }

    void fromAnyPartOfTheWindow()
    {
        openFrom(names(3), 0);
        for (const char* part : {"tableWidget", "comboBox", "pushButton_8"}) {
            testing::part<QWidget>(opened(), part)->setFocus(Qt::TabFocusReason);
            step(part == QLatin1String("comboBox") ? Qt::Key_PageUp : Qt::Key_PageDown);
        }
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00001.bmp")); // down, up and down
    }

    void aPhotographThatCannotBeOpenedIsToldAndPassed()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        testing::putFile(root + QStringLiteral("DCIM_100/IMG00001.bmp"), "x");
        addPhotographs(root, {QStringLiteral("IMG00000.bmp"), QStringLiteral("IMG00002.bmp")});
        openWindow();
        QApplication::setActiveWindow(window.get());
        window->list_item_doubleclicked(list()->item(0));
        const QPointer<Analysis_Widget> first = opened();
        QTRY_VERIFY(label().hasFocus());
        step(Qt::Key_PageDown);
        QTRY_VERIFY(message() && message()->isVisible());
        QCOMPARE(message()->text(), QStringLiteral("该图片解析失败，请确认型号是否正确!"));
        QVERIFY(first == opened());
        message()->accept();
        QTRY_VERIFY(!message());
        QApplication::setActiveWindow(window.get());
        QTRY_VERIFY(label().hasFocus());
        step(Qt::Key_PageDown);
        QVERIFY(!message());
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00002.bmp"));
    }

    void whereAnotherFolderIsListedNothingHappens()
    {
        openFrom(names(2), 0);
        addPhotographs(addDrive(QStringLiteral("other")), names(2));
        tabs().setCurrentIndex(0);
        click("pushButton"); // both drives are listed now
        driveList().setCurrentRow(1);
        QCOMPARE(window->fileNames.size(), 2);
        tabs().setCurrentIndex(1);
        const QPointer<Analysis_Widget> first = opened();
        opened()->setFocus(-1);
        step(Qt::Key_PageDown);
        QVERIFY(first == opened());
    }

    void pressedTwiceBeforeItIsOpenGoesTwoFurther()
    {
        openFrom(names(4), 0);
        const QPointer<Analysis_Widget> first = opened();
        emit first->commands().stepRequested(1);
        emit first->commands().stepRequested(1);
        QCoreApplication::processEvents();
        QVERIFY(!first);
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00002.bmp"));
    }

    void toolsAreThereForTheNextPhotograph()
    {
        openFrom(names(2), 0);
        overlay::PointTool point;
        point.name = QStringLiteral("P0");
        point.x = 5;
        point.y = 6;
        label().pointList = {point};
        step(Qt::Key_PageDown);
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00001.bmp"));
        QVERIFY(label().pointList.isEmpty());
        for (QAction* action : opened()->commands().findChildren<QAction*>()) {
            if (action->text() == QStringLiteral("应用上次的测量"))
                action->trigger();
        }
        QCOMPARE(label().pointList, QVector<overlay::PointTool>{point});
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotoSteppingTest>(argc, argv);
}

#include "photo_stepping_test.moc"
