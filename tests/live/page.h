// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/dialogs.h"
#include "live/camer_window.h"
#include "tests/support/folder.h"
#include "tests/support/paint_counter.h"
#include "tests/support/parts.h"

#include <QByteArray>
#include <QColor>
#include <QEvent>
#include <QMap>
#include <QString>
#include <QWidget>

#include <memory>

/// What the tests of the live page share: frames made by hand, configuration records, and the page
/// with its widgets by object name.
namespace testing {

/// A frame of one gray level with its three words.
QByteArray grayFrame(int luma, int maximumTenths, int thresholdTenths, int emissivityHundredths);

/// Replaces the profile's configuration record.
void configure(const QString& language, const QString& alarmFolder);

/// A fresh history folder inside the profile.
QString makeFolder(const QString& name = QStringLiteral("alarms"));

/// The live page under test. It meets the cameras and the configuration there are when it is made.
class Page
{
public:
    Page() : m_window(std::make_unique<camer_window>()) {}

    camer_window* operator->() const { return m_window.get(); }
    camer_window& window() const { return *m_window; }
    void destroy() { m_window.reset(); }
    /// As the main window ends a page.
    void end() { dialogs::end(m_window.release()); }

    /// The widget of that object name; fails the test's run when there is none.
    template<typename T>
    T* get(const char* name) const
    {
        return part<T>(m_window.get(), name);
    }
    QString text(const char* label) const;
    QString style(const char* label) const;
    QStringList rows(const char* list) const;
    void check(const char* box, bool checked = true) const;
    /// Switches the alarm on, records included.
    void enableAlarm() const;
    void pressStop() const;
    /// Opens a record by a click, as the list of the history reports it.
    void openRecord(const QString& name) const;
    QStringList readings() const; ///< of the open record
    /// In the middle of its picture, black when there is none.
    QColor shownRecordColour() const;

    /// A picture and its numbers, as one frame brings them.
    void frame(float maximum, float threshold = 40.0F, float emissivity = 0.95F,
               int luma = 100) const;
    /// As many frames alike.
    void frames(int count, float maximum, float threshold = 40.0F) const;

private:
    std::unique_ptr<camer_window> m_window;
};

/// Each test of the live page has a profile of its own, in English, and an empty folder of records.
class PageTest : public QObject
{
    Q_OBJECT

protected:
    QString path(const QString& name) const { return m_folder + QLatin1Char('/') + name; }
    void putRecord(const QString& name, const QByteArray& text,
                   const QMap<QString, QColor>& pictures) const;

    QString m_folder; ///< of records

protected slots:
    void initTestCase();
    virtual void init();
    virtual void cleanup() {}
};

} // namespace testing
