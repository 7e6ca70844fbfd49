// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class QDialog;
class QMessageBox;

/// The one door through which pages open their dialogs, and through which a page ends although
/// dialogs of it, or context menus on top of them, are open: an imager can be pulled out at any
/// moment. Nothing is deleted while an event loop still runs in it. GUI thread only.
namespace dialogs {

/// Stands in a function that waits for a dialog's answer, from before the dialog is made until the
/// function ends. For as long its page, and whatever widget `waiter` lies in, outlives end().
class Waiting
{
public:
    explicit Waiting(QWidget* waiter);
    ~Waiting();
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    QPointer<QObject> m_mark; ///< a child of the waiter
};

/// True while a function of `page`, or of a widget in it, waits.
bool isWaiting(const QWidget* page);

/// Shows a dialog that nobody waits for. It deletes itself when it is closed, or rejects itself
/// when `page` goes, if there is one. It belongs to the window around the page, which stays.
void open(QDialog* dialog, const QWidget* page = nullptr);

/// Opens a message that something has failed; the text is no mark-up. `window` and `page` as above.
QMessageBox* warn(const QString& text, QWidget* window, const QWidget* page = nullptr);

/// Ends a page: closes its menus, those of its dialogs included, and rejects its dialogs. Deletes
/// it at once when nothing in it waits. Otherwise closes it, and it goes when what waited has come
/// to its end.
void end(QWidget* page);

} // namespace dialogs
