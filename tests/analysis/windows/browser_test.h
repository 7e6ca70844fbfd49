// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/photo_window.h"
#include "platform/removable_drives.h"
#include "resources/resources.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/folder.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include <memory>

namespace testing {

/// The browser over made-up disks: what its tests share.
class BrowserTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<QTemporaryDir> disks;
    QStringList drives;
    std::unique_ptr<photo_window> window;

    /// A drive's root, ending in "/", with the given folder on it.
    QString addDrive(const QString& name, const QString& folder = QStringLiteral("DCIM_100"))
    {
        const QString root = disks->filePath(name) + QLatin1Char('/');
        QDir().mkpath(root + folder);
        drives.append(root);
        return root;
    }

    static void addPhotographs(const QString& root, const QStringList& names,
                               const Shot& shot = Shot())
    {
        const QByteArray bytes = photographBytes(shot);
        for (const QString& name : names)
            putFile(root + QStringLiteral("DCIM_100/") + name, bytes);
    }

    void openWindow(QObject* owner = nullptr)
    {
        window = std::make_unique<photo_window>(owner);
        window->resize(1080, 680);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    template<typename T>
    T& child(const char* name) const
    {
        return *testing::part<T>(window.get(), name);
    }
    QListWidget& driveList() const { return child<QListWidget>("listWidget"); }
    QTabWidget& tabs() const { return child<QTabWidget>("tabWidget"); }
    /// On the first tab; the analysis window on the second has buttons of the same names.
    void click(const char* button) const
    {
        child<QWidget>("tab").findChild<QPushButton*>(QLatin1String(button))->click();
    }

    /// The list of thumbnails, null while the table is shown.
    QListWidget* list() const
    {
        for (QListWidget* found : window->findChildren<QListWidget*>()) {
            if (found != &driveList())
                return found;
        }
        return nullptr;
    }
    QTableWidget* table() const { return child<QWidget>("tab").findChild<QTableWidget*>(); }
    Analysis_Widget* opened() const
    {
        return child<QWidget>("tab_2").findChild<Analysis_Widget*>();
    }
    QMessageBox* message() const { return window->findChild<QMessageBox*>(); }

    QStringList shownNames() const
    {
        QStringList names;
        for (int i = 0; i < list()->count(); ++i)
            names.append(list()->item(i)->text());
        return names;
    }
    int readThumbnails() const
    {
        return int(std::count_if(window->thumbnails.begin(), window->thumbnails.end(),
                                 [](const QPixmap& pixmap) { return !pixmap.isNull(); }));
    }

    static QStringList names(int count)
    {
        QStringList list;
        for (int i = 0; i < count; ++i)
            list.append(QStringLiteral("IMG%1.bmp").arg(i, 5, 10, QLatin1Char('0')));
        return list;
    }

private slots:
    void initTestCase() { resources::load(); }
    void init()
    {
        testing::profile().reset();
        disks = std::make_unique<QTemporaryDir>();
        drives.clear();
        platform::setDriveProvider([this] { return drives; });
    }
    void cleanup()
    {
        window.reset();
        platform::setDriveProvider({});
    }
};

} // namespace testing
