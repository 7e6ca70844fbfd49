// SPDX-License-Identifier: MIT
// What a screen reader has to say about each window: whatever takes the keyboard, and whatever
// shows something without saying it in words, has a name.
#include "analysis/windows/details_window.h"
#include "analysis/windows/photo_window.h"
#include "analysis/windows/spots_window.h"
#include "analysis/windows/tool_commands.h"
#include "app/main_window.h"
#include "app/seting.h"
#include "config/configuration_record.h"
#include "live/camer_window.h"
#include "simulator/simulated_imager.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>

#include <algorithm>
#include <memory>

namespace {

/// With the captions that are tied to it.
QString nameOf(QWidget* widget)
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    QString name = spoken->text(QAccessible::Name);
    for (const auto& caption : spoken->relations(QAccessible::Label))
        name.prepend(caption.first->text(QAccessible::Name) + QLatin1Char(' '));
    return name;
}

bool hasLetters(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// Parts of a widget speak through it: those of a named one, and Qt's own, as scroll bars,
/// viewports and whatever is called "qt_…".
bool isPartOfAnother(const QWidget* widget)
{
    return !widget->parentWidget()->accessibleName().isEmpty() ||
           widget->objectName().startsWith(QLatin1String("qt_")) || widget->focusProxy() ||
           qobject_cast<const QScrollBar*>(widget);
}

/// A picture, or a value that says nothing without its caption.
bool isMute(const QWidget* widget)
{
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (!label)
        return false;
    const bool isPicture = !label->pixmap(Qt::ReturnByValue).isNull();
    return isPicture || (!label->text().isEmpty() && !hasLetters(label->text()));
}

/// The widgets of a window that a screen reader has nothing to say about.
QStringList silentIn(QWidget* window)
{
    QStringList silent;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible() || isPartOfAnother(widget))
            continue;
        const bool takesKeys = widget->focusPolicy() != Qt::NoFocus;
        if ((takesKeys || isMute(widget)) && !hasLetters(nameOf(widget)))
            silent.append(QStringLiteral("%1 %2 in %3")
                              .arg(QLatin1String(widget->metaObject()->className()),
                                   widget->objectName(), widget->parentWidget()->objectName()));
    }
    return silent;
}

} // namespace

class AccessibleNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        config::create(QStringLiteral("CH"));
        m_imager.setFrameRate(0);
        m_imager.setDiskPlugged(true);
        m_imager.takePhotograph();
        m_imager.setDiskPlugged(false);
    }

    void init()
    {
        m_imager.setCameraPlugged(false);
        m_imager.setDiskPlugged(false);
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    void waiting() { everythingSpeaks(m_window.get()); }

    void livePicture()
    {
        goLive();
        everythingSpeaks(m_window.get());
    }

    void alarmHistory()
    {
        goLive();
        camer_window* page = m_window->liveWindow();
        for (int i = 0; i < 7; ++i)
            QVERIFY(m_imager.sendFrame());
        page->saveAlarmRecord();
        testing::part<QTabWidget>(page, "tabWidget")->setCurrentIndex(1);
        auto* records = testing::part<QListWidget>(page, "listWidget_2");
        QCOMPARE(records->count(), 1);
        records->setCurrentRow(0);
        emit records->itemClicked(records->item(0));
        everythingSpeaks(m_window.get());
    }

    void thumbnails()
    {
        becomeDisk();
        everythingSpeaks(m_window.get());
    }

    void table()
    {
        becomeDisk();
        m_window->browser()->on_pushButton_3_clicked();
        everythingSpeaks(m_window.get());
    }

    void photograph()
    {
        openPhotograph();
        everythingSpeaks(m_window.get());
    }

    void besideThePhotograph()
    {
        auto& viewed = openPhotograph().commands().viewed();
        everythingSpeaks(&analysis::BesideWindow::open<analysis::DetailsWindow>(viewed));
        everythingSpeaks(&analysis::BesideWindow::open<analysis::SpotsWindow>(viewed));
    }

    void settings()
    {
        m_window->Action_chose();
        everythingSpeaks(m_window->settingsDialog());
    }

    /// Two lists side by side are told from each other.
    void listsHaveNamesOfTheirOwn()
    {
        becomeDisk();
        QStringList names;
        for (auto* list : m_window->findChildren<QListWidget*>()) {
            if (list->isVisible())
                names.append(nameOf(list));
        }
        QCOMPARE(names.size(), 2);
        QVERIFY2(names.at(0) != names.at(1), qPrintable(names.at(0)));
    }

private:
    void goLive()
    {
        m_imager.setCameraPlugged(true);
        m_window->timeout_connect();
        QTRY_VERIFY(m_imager.sendFrame());
        QTRY_VERIFY(!m_window->liveWindow()->currentPixmap.isNull());
        QTRY_VERIFY(m_window->liveWindow()->isVisible());
    }

    void becomeDisk()
    {
        m_imager.setDiskPlugged(true);
        m_window->timeout_connect();
        QCOMPARE(m_window->browser()->fileNames.size(), 1);
        QTRY_VERIFY(m_window->browser()->isVisible());
    }

    Analysis_Widget& openPhotograph()
    {
        becomeDisk();
        QListWidgetItem item(m_window->browser()->fileNames.at(0));
        m_window->browser()->list_item_doubleclicked(&item);
        auto* window = testing::part<Analysis_Widget>(m_window.get(), "Analysis_Widget");
        if (!QTest::qWaitFor([window] { return window->isVisible(); }))
            qFatal("the photograph does not open");
        return *window;
    }

    static void everythingSpeaks(QWidget* window)
    {
        const QStringList silent = silentIn(window);
        QVERIFY2(silent.isEmpty(), qPrintable(silent.join(QStringLiteral("; "))));
    }

    simulator::SimulatedImager m_imager;
    std::unique_ptr<MainWindow> m_window;
};

int main(int argc, char** argv)
{
    return testing::run<AccessibleNamesTest>(argc, argv);
}

#include "accessible_names_test.moc"
