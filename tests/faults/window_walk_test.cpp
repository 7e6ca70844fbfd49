// SPDX-License-Identifier: MIT
#include "analysis/windows/photo_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "tests/faults/endurance.h"
#include "tests/faults/window_user.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QToolTip>

#include <algorithm>

namespace {

/// Deeper, and whatever is on top is closed: dialogs can be answered in their order alone.
constexpr int deepest = 6;

} // namespace

/// A user without a plan does one thing after the other, also inside the event loops of dialogs and
/// menus. Nothing may crash, hang or be left over.
class WindowWalkTest : public QObject
{
    Q_OBJECT

public slots:
    /// Where reports would be opened.
    void opened(const QUrl&) {}

private slots:
    void wherePossible()
    {
        config::create(QStringLiteral("CH"));
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "opened");
        simulator::SimulatedImager imager;
        imager.setFrameRate(0);
        imager.setDiskPlugged(true);
        imager.takePhotograph();
        imager.takePhotograph();
        MainWindow window;
        window.show();
        m_window = &window;
        testing::WindowUser user(window, imager, testing::scale().seed);
        m_user = &user;
        // Made once, by whichever menu or drag needs it first.
        QApplication::clipboard();
        QApplication::desktop();

        // What Qt and the fonts make once and keep.
        walk(usual);
        const testing::Holdings before = testing::holdings();
        const int times = testing::scale().times;
        walk(times);
        QTRY_COMPARE(testing::leftOver(before, testing::holdings()), QString());
        QStringList counts;
        const QMap<QString, int>& done = user.counts();
        for (auto count = done.begin(); count != done.end(); ++count)
            counts.append(QStringLiteral("%1 %2").arg(count.key()).arg(count.value()));
        qInfo("%d steps, seed %u, at most %d inside each other", times, testing::scale().seed,
              m_deepest);
        qInfo("%s", qPrintable(counts.join(QStringLiteral(", "))));
        qInfo("before: %s", qPrintable(before.text()));
        qInfo("after:  %s", qPrintable(testing::holdings().text()));
        QVERIFY(m_deepest > 2);
        QVERIFY(done.value(QStringLiteral("menus of dialogs")) > 0);
        QVERIFY(done.value(QStringLiteral("devices below dialogs and menus")) > 0);
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }

private:
    static constexpr int usual = 3000; ///< steps after which every kind of thing has been made

    void walk(int steps)
    {
        m_left = steps;
        next();
        // Whatever blocks, blocks inside a step, and the next one comes from its event loop.
        while (m_left > 0 || m_depth > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        comeToRest();
    }

    void next() { QTimer::singleShot(0, this, &WindowWalkTest::step); }

    void step()
    {
        if (m_left <= 0 || QTest::currentTestFailed()) {
            m_left = 0;
            if (m_depth > 0) {
                m_user->closeTopmost();
                next();
            }
            return;
        }
        if (--m_left % 10'000 == 0)
            qInfo("%d to go: %s", m_left, qPrintable(testing::holdings().text()));
        next();
        ++m_depth;
        m_deepest = std::max(m_deepest, m_depth);
        if (m_depth > deepest)
            m_user->closeTopmost();
        else
            m_user->act(m_depth);
        --m_depth;
        if (m_depth == 0 && m_left % 500 == 0)
            tidyUp();
        QCOMPARE(m_window->liveWindow() != nullptr, m_window->mode() == 1);
        QCOMPARE(m_window->browser() != nullptr, m_window->mode() == 2);
    }

    /// Everything out and closed; what is on its way out goes.
    void comeToRest()
    {
        m_user->plug(false, false);
        QTRY_VERIFY([this] {
            if (m_user->reachable() != m_window)
                m_user->closeTopmost();
            return m_user->reachable() == m_window && !m_window->findChild<QDialog*>();
        }());
        m_user->menuEntry(1);
        m_user->menuEntry(0);
        m_window->timeout_connect();
        for (int i = 0; i < 2; ++i) { // the last two settings dialogs are kept
            m_user->menuEntry(2);
            m_window->settingsDialog()->close();
        }
        QCOMPARE(m_window->mode(), -1);
        QToolTip::hideText();               // would go by itself, ten seconds later
        QApplication::clipboard()->clear(); // what was copied from a message is a document
        tidyUp();
    }

    /// The files that were written make lists longer, not the program worse.
    static void tidyUp()
    {
        QDir documents(config::documentsPath());
        for (const QFileInfo& file : documents.entryInfoList(QDir::Files | QDir::NoDotAndDotDot))
            QFile::remove(file.filePath());
        QDir records(config::folderPath());
        for (const QString& record : records.entryList({QStringLiteral("2*")}, QDir::Dirs))
            QDir(records.filePath(record)).removeRecursively();
    }

    MainWindow* m_window = nullptr;
    testing::WindowUser* m_user = nullptr;
    int m_left = 0;  ///< steps to go
    int m_depth = 0; ///< steps inside each other
    int m_deepest = 0;
};

int main(int argc, char** argv)
{
    return testing::runScaled<WindowWalkTest>(argc, argv, 4000);
}

#include "window_walk_test.moc"
