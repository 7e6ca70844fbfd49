// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/browser_menu.h"
#include "analysis/windows/photo_window.h"
#include "analysis/windows/selection_job.h"
#include "platform/removable_drives.h"
#include "tests/analysis/photograph_writer.h"
#include "tests/support/folder.h"
#include "tests/support/parts.h"
#include "tests/support/test_run.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <memory>

namespace testing {

/// The browser over one disk, inside a window: what the tests of its menu, and of what the menu
/// starts for the chosen photographs, share.
class SelectionTest : public QObject
{
    Q_OBJECT

protected:
    enum Entry
    {
        Open,
        Csv,
        Tiff,
        Png,
        Report,
        Copy,
        Show
    };

    std::unique_ptr<QTemporaryDir> folders;
    QString root;                   ///< of the imager's disk
    QString target;                 ///< the folder to export to
    std::unique_ptr<QWidget> frame; ///< stands in for the main window
    QPointer<photo_window> page;

    QString photograph(const QString& name) const
    {
        return root + QStringLiteral("DCIM_100/") + name;
    }
    void write(const QString& name, const QByteArray& bytes) const
    {
        putFile(photograph(name), bytes);
    }
    static QString name(int index)
    {
        return QStringLiteral("IMG%1.bmp").arg(index, 3, 10, QLatin1Char('0'));
    }
    /// All different, some in °F.
    void addPhotographs(int count) const
    {
        for (int i = 0; i < count; ++i) {
            Shot shot;
            shot.gray = [i](int x, int y) {
                return (x + 2 * y + 7 * i) % 256;
            };
            shot.unit = i % 2;
            shot.markers = {10, 20, 30, 40, 121, 161};
            write(name(i), photographBytes(shot));
        }
    }

    void openBrowser(bool asTable = false)
    {
        page = new photo_window(nullptr, frame.get());
        page->resize(1080, 680);
        frame->resize(1080, 680);
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame.get()));
        if (asTable)
            part<QPushButton>(part<QWidget>(page, "tab"), "pushButton_3")->click();
        QCoreApplication::processEvents(); // lays the view out
    }
    QAbstractItemView& view() const
    {
        for (auto* found : part<QWidget>(page, "tab")->findChildren<QAbstractItemView*>()) {
            if (found->objectName() != QLatin1String("listWidget"))
                return *found;
        }
        qFatal("no view");
    }
    void choose(const QVector<int>& rows) const
    {
        view().clearSelection();
        for (const int row : rows)
            view().selectionModel()->select(view().model()->index(row, 0),
                                            QItemSelectionModel::Select |
                                                QItemSelectionModel::Rows);
    }
    /// As the mouse would ask for it.
    BrowserMenu* menu(const QPoint& place = {5, 5}) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                view().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view().viewport(), &event);
        return page->findChild<BrowserMenu*>();
    }
    static QList<QAction*> entries(const QMenu& menu)
    {
        QList<QAction*> found;
        for (QAction* action : menu.actions()) {
            if (!action->isSeparator())
                found.append(action);
        }
        return found;
    }
    /// Chooses an entry, and in the dialog that follows a folder.
    void start(Entry entry, const QString& folder)
    {
        BrowserMenu* shown = menu();
        QVERIFY(shown);
        entries(*shown).at(entry)->trigger();
        shown->close();
        auto* dialog = frame->findChild<QFileDialog*>();
        QVERIFY(dialog);
        QVERIFY(dialog->isModal());
        QVERIFY(dialog->fileMode() == QFileDialog::Directory);
        dialog->findChild<QLineEdit*>()->setText(folder);
        QMetaObject::invokeMethod(dialog, "accept");
    }
    void start(Entry entry) { start(entry, target); }

    SelectionJob* job() const { return frame->findChild<SelectionJob*>(); }
    QMessageBox* message() const { return frame->findChild<QMessageBox*>(); }
    /// The message at the end, which is confirmed.
    QString messageText()
    {
        if (!QTest::qWaitFor([this] { return message() && message()->isVisible(); }, 60000))
            return QStringLiteral("no message");
        const QString text = message()->text();
        message()->button(QMessageBox::Ok)->click();
        const bool isOver = QTest::qWaitFor([this] { return !message() && !job(); });
        return isOver ? text : QStringLiteral("not over");
    }
    QStringList written() const
    {
        return QDir(target).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString successText(int count) const
    {
        return QStringLiteral("已在文件夹“") + QDir::toNativeSeparators(target) +
               QStringLiteral("”中写入 %1 个文件。").arg(count);
    }

private slots:
    void init()
    {
        profile().reset();
        folders = std::make_unique<QTemporaryDir>();
        root = folders->filePath(QStringLiteral("disk/"));
        target = folders->filePath(QStringLiteral("導出 %1 out"));
        QVERIFY(QDir().mkpath(root + QStringLiteral("DCIM_100")));
        QVERIFY(QDir().mkpath(target));
        platform::setDriveProvider([this] { return QStringList(root); });
        frame = std::make_unique<QWidget>();
    }
    void cleanup()
    {
        frame.reset();
        platform::setDriveProvider({});
    }
};

} // namespace testing
