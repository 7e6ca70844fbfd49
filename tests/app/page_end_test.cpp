// SPDX-License-Identifier: MIT
// Pages that end while a dialog of theirs is up, and a context menu of that dialog on top of it:
// nothing may go while an event loop still runs in it. What goes too early crashes this program.
#include "analysis/windows/photo_window.h"
#include "app/main_window.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "live/live_frame.h"
#include "platform/removable_drives.h"
#include "simulator/photograph.h"
#include "simulator/scene.h"
#include "simulator/simulated_camera.h"
#include "tests/support/dialogs.h"
#include "tests/support/folder.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QColorDialog>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using simulator::SimulatedCamera;
using testing::part;

namespace {

QStringList drives;

/// A right click, as the window system reports one.
void rightClick(QWidget* widget)
{
    const QPoint place(5, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
}

/// Right click in a file dialog's list. Its menu runs an event loop of its own; `event` happens
/// inside it. Returns when that menu is closed.
void withItsMenuOpen(const QFileDialog& dialog, const std::function<void()>& event)
{
    bool happened = false;
    QTimer::singleShot(0, [&] {
        happened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        event();
    });
    rightClick(part<QListView>(&dialog, "listView")->viewport());
    QVERIFY(happened);
}

QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// As the window system asks a window to close.
void closeByWindowManager(QWidget* window)
{
    QCloseEvent request;
    QCoreApplication::sendEvent(window->windowHandle(), &request);
}

} // namespace

class PageEndTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        testing::profile().reset();
        config::create(QStringLiteral("CH"));
        drives.clear();
        platform::setDriveProvider([] { return drives; });
        camera().unplug();
        m_disk = testing::profile().home() + QStringLiteral("/disk/");
        const simulator::Scene scene(simulator::SceneKind::Motor);
        testing::putFile(m_disk + QStringLiteral("DCIM_100/a.bmp"),
                         simulator::photograph(scene.field(0, 60), {}));
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        camera().unplug();
        platform::setDriveProvider({});
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aFolderDialogWithItsMenuOpen()
    {
        becomeDisk();
        const QPointer<photo_window> browser = m_window->browser();
        const QPointer<QFileDialog> dialog = askForExportFolder();
        withItsMenuOpen(*dialog, [this] { becomeCamera(); });
        QTRY_VERIFY(!dialog);
        QTRY_VERIFY(!browser);
        QTRY_COMPARE(m_window->mode(), 1);
    }

    void aFolderDialogClosedBelowItsMenu()
    {
        becomeDisk();
        const QPointer<QFileDialog> dialog = askForExportFolder();
        withItsMenuOpen(*dialog, [&] {
            closeByWindowManager(dialog);
            QVERIFY(!dialog || !dialog->isVisible());
            QTimer::singleShot(0, [] {
                while (QMenu* menu = openMenu())
                    menu->close();
            });
        });
        QTRY_VERIFY(!dialog);
        QVERIFY(m_window->browser());
    }

    void aFolderDialogClosedBelowItsMenuAndThenTheDevice()
    {
        becomeDisk();
        const QPointer<QFileDialog> dialog = askForExportFolder();
        withItsMenuOpen(*dialog, [&] {
            closeByWindowManager(dialog);
            becomeCamera();
        });
        QTRY_VERIFY(!dialog);
        QTRY_COMPARE(m_window->mode(), 1);
    }

    /// "Take photo": the page waits in the dialog, and the dialog in its menu.
    void aPictureDialogWithItsMenuOpen_data() { dialogRows(); }
    void aPictureDialogWithItsMenuOpen()
    {
        QFETCH(bool, isClosedFirst);
        becomeLive();
        const QPointer<camer_window> page = m_window->liveWindow();
        const testing::Answer<QFileDialog> answer([&](QFileDialog& dialog) {
            withItsMenuOpen(dialog, [&] {
                if (isClosedFirst)
                    closeByWindowManager(&dialog);
                becomeDisk();
                QVERIFY(page);
            });
        });
        part<QPushButton>(page, "pushButton")->click();
        QVERIFY(answer.wasAsked());
        QTRY_VERIFY(!page);
        QTRY_COMPARE(m_window->mode(), 2);
    }

    /// The browser waits in the report's file dialog, through the photograph inside it.
    void aReportDialogWithItsMenuOpen_data() { dialogRows(); }
    void aReportDialogWithItsMenuOpen()
    {
        QFETCH(bool, isClosedFirst);
        becomeDisk();
        const QPointer<photo_window> browser = m_window->browser();
        const QWidget* photograph = openPhotograph();
        const testing::Answer<QFileDialog> answer([&](QFileDialog& dialog) {
            withItsMenuOpen(dialog, [&] {
                if (isClosedFirst)
                    closeByWindowManager(&dialog);
                becomeCamera();
                QVERIFY(browser);
            });
        });
        part<QPushButton>(photograph, "pushButton")->click();
        QVERIFY(answer.wasAsked());
        QTRY_VERIFY(!browser);
        QTRY_COMPARE(m_window->mode(), 1);
    }

    void aColourDialogWithAMenuOpen()
    {
        becomeDisk();
        const QPointer<photo_window> browser = m_window->browser();
        const QWidget* photograph = openPhotograph();
        const testing::Answer<QColorDialog> answer([&](QColorDialog& dialog) {
            rightClick(dialog.findChild<QLineEdit*>());
            QVERIFY(openMenu());
            becomeCamera();
            QVERIFY(!openMenu());
            QVERIFY(browser);
        });
        part<QPushButton>(photograph, "pushButton_4")->click();
        QVERIFY(answer.wasAsked());
        QTRY_VERIFY(!browser);
        QTRY_COMPARE(m_window->mode(), 1);
    }

private:
    static void dialogRows()
    {
        QTest::addColumn<bool>("isClosedFirst"); // by the window manager, below its menu
        QTest::newRow("and the device goes") << false;
        QTest::newRow("closed, and then the device goes") << true;
    }

    static SimulatedCamera& camera() { return SimulatedCamera::instance(); }

    /// The imager as the computer sees it, and one look at it.
    void becomeDisk()
    {
        camera().unplug();
        drives = QStringList(m_disk);
        m_window->timeout_connect();
    }

    void becomeCamera()
    {
        drives.clear();
        camera().plug();
        m_window->timeout_connect();
    }

    void becomeLive()
    {
        becomeCamera();
        QTRY_VERIFY(camera().deliver(QByteArray(live::frameBytes, '\x80')));
        QTRY_VERIFY(!m_window->liveWindow()->currentPixmap.isNull());
    }

    QWidget* openPhotograph()
    {
        QListWidgetItem item(QStringLiteral("a.bmp"));
        m_window->browser()->list_item_doubleclicked(&item);
        return m_window->findChild<QWidget*>(QStringLiteral("Analysis_Widget"));
    }

    QFileDialog* askForExportFolder()
    {
        QListWidget* list = nullptr;
        for (QListWidget* candidate : m_window->browser()->findChildren<QListWidget*>()) {
            if (candidate->count() > 0 && candidate->item(0)->text() == QLatin1String("a.bmp"))
                list = candidate;
        }
        list->setCurrentRow(0);
        rightClick(list->viewport());
        const QPointer<QMenu> menu = openMenu();
        menu->actions().at(2)->trigger();
        if (menu)
            menu->close(); // as when the user clicks the entry
        return m_window->findChild<QFileDialog*>();
    }

    QString m_disk;
    std::unique_ptr<MainWindow> m_window;
};

int main(int argc, char** argv)
{
    return testing::run<PageEndTest>(argc, argv);
}

#include "page_end_test.moc"
