// SPDX-License-Identifier: MIT
#include "tests/analysis/windows/browser_test.h"

#include <QLabel>
#include <QPointer>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using testing::photographBytes;
using testing::Shot;

/// Opening photographs from the browser, good and bad ones.
class PhotoOpeningTest : public testing::BrowserTest
{
    Q_OBJECT

private slots:
    void aDoubleClickOpensThePhotograph()
    {
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        addPhotographs(addDrive(QStringLiteral("disk")), names(3), shot);
        openWindow();
        const QRect place = list()->visualItemRect(list()->item(1));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(tabs().currentIndex(), 1);
        QVERIFY(opened());
        QCOMPARE(opened()->path, window->imageFolder + QStringLiteral("/IMG00001.bmp"));
        QCOMPARE(opened()->photograph.mean, 50.0);
        QTRY_VERIFY(opened()->isVisible());

        // Another one takes its place.
        const QPointer<Analysis_Widget> first = opened();
        tabs().setCurrentIndex(0);
        click("pushButton_3");
        emit table()->itemDoubleClicked(table()->item(2, 4));
        QCOMPARE(opened()->fileName, QStringLiteral("IMG00002.bmp"));
        QVERIFY(!first);
        QCOMPARE(window->findChildren<Analysis_Widget*>().size(), 1);
    }

    void theKeyboardOpensThePhotograph_data()
    {
        QTest::addColumn<bool>("asTable");
        QTest::newRow("thumbnails") << false;
        QTest::newRow("table") << true;
    }
    void theKeyboardOpensThePhotograph()
    {
        QFETCH(bool, asTable);
        addPhotographs(addDrive(QStringLiteral("disk")), names(3));
        openWindow();
        QApplication::setActiveWindow(window.get());
        if (asTable)
            click("pushButton_3");
        QAbstractItemView* view = asTable ? static_cast<QAbstractItemView*>(table()) : list();
        view->setFocus();
        QTRY_VERIFY(view->hasFocus());
        view->setCurrentIndex(view->model()->index(0, 0));
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
        QVERIFY(opened());
    }

    void theModelPicksTheLayout()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.model = 1;
        addPhotographs(root, {QStringLiteral("a.bmp")}, shot);
        openWindow();
        window->modelIndex = 1;
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(opened());
        QCOMPARE(opened()->photograph.mean, 20.0);
    }

    void whatCannotBeOpenedIsReported_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"another machine", "deleted meanwhile", "empty", "cut"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
        if (!testing::onWindows())
            QTest::newRow("pipe meanwhile") << QStringLiteral("pipe meanwhile");
    }
    void whatCannotBeOpenedIsReported()
    {
        QFETCH(QString, kind);
        const QString root = addDrive(QStringLiteral("disk"));
        addPhotographs(root, {QStringLiteral("good.bmp"), QStringLiteral("bad.bmp")});
        const QString bad = root + QStringLiteral("DCIM_100/bad.bmp");
        Shot other;
        other.machineId = 7;
        if (kind == QLatin1String("another machine"))
            testing::putFile(bad, photographBytes(other));
        else if (kind == QLatin1String("empty"))
            testing::putFile(bad, {});
        else if (kind == QLatin1String("cut"))
            testing::putFile(bad, photographBytes(Shot()).left(307766));
        openWindow();
        window->list_item_doubleclicked(list()->item(1));
        QVERIFY(opened());
        const QPointer<Analysis_Widget> first = opened();
        tabs().setCurrentIndex(0);
        if (kind.endsWith(QLatin1String("meanwhile")))
            QVERIFY(QFile::remove(bad));
#ifndef Q_OS_WIN
        if (kind.startsWith(QLatin1String("pipe")))
            QCOMPARE(::mkfifo(QFile::encodeName(bad).constData(), 0600), 0); // waits for ever
#endif

        window->list_item_doubleclicked(list()->item(0));
        QTRY_VERIFY(message() && message()->isVisible());
        QVERIFY(message()->isModal());
        QCOMPARE(message()->windowTitle(), QStringLiteral("警告"));
        QCOMPARE(message()->text(), QStringLiteral("该图片解析失败，请确认型号是否正确!"));
        QVERIFY(message()->icon() == QMessageBox::Information);
        message()->button(QMessageBox::Ok)->click();
        QTRY_VERIFY(!message());
        QCOMPARE(tabs().currentIndex(), 0);
        QCOMPARE(opened(), first.data());
        QCOMPARE(window->findChildren<Analysis_Widget*>().size(), 1);
    }

    void theWindowMayGoWhileTheWarningIsUp()
    {
        testing::putFile(addDrive(QStringLiteral("disk")) + QStringLiteral("DCIM_100/a.bmp"), "x");
        openWindow();
        const QRect place = list()->visualItemRect(list()->item(0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, place.center());
        QTRY_VERIFY(message());
        const QPointer<QMessageBox> box = message();
        window.reset();
        QVERIFY(!box);
    }

    void theDiskMayGoWhileAPhotographIsOpen()
    {
        const QString root = addDrive(QStringLiteral("disk"));
        Shot shot;
        shot.gray = [](int, int) {
            return 255;
        };
        addPhotographs(root, names(2), shot);
        openWindow();
        window->list_item_doubleclicked(list()->item(0));
        QVERIFY(QDir(root).removeRecursively());
        drives.clear();
        QCoreApplication::processEvents();
        opened()->updat_XY_Temp(3, 4);
        QCOMPARE(testing::part<QLabel>(opened(), "label_4")->text(), QStringLiteral("50.0°C"));
        window.reset();
        QCoreApplication::processEvents();
    }
};

int main(int argc, char** argv)
{
    return testing::run<PhotoOpeningTest>(argc, argv);
}

#include "photo_opening_test.moc"
