// SPDX-License-Identifier: MIT
#include "dialogs/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMessageBox>

namespace dialogs {
namespace {

const QString markName = QStringLiteral("dialogs::Waiting");

bool belongsTo(const QWidget* widget, const QWidget* owner)
{
    while (widget && widget != owner)
        widget = widget->parentWidget();
    return widget;
}

/// The topmost popup, if it is one of `owner` or nobody's: some of Qt's menus have no parent.
QWidget* openPopup(const QWidget* owner)
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup && (!popup->parentWidget() || belongsTo(popup, owner)) ? popup : nullptr;
}

void closePopups(const QWidget* owner)
{
    QWidget* popup = openPopup(owner);
    while (popup) {
        popup->close();
        QWidget* next = openPopup(owner);
        popup = next == popup ? nullptr : next;
    }
}

/// A dialog in `owner` that is on the screen.
QDialog* openDialog(const QWidget* owner)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (dialog && dialog != owner && dialog->isVisible() && belongsTo(dialog, owner))
            return dialog;
    }
    return nullptr;
}

/// A context menu of the dialog, or a question it asks by itself, runs an event loop in one of the
/// dialog's functions. It lives on that function's stack, so its end tells that the function ends.
void deleteWhenLeft(QDialog* dialog)
{
    QWidget* inner = qobject_cast<QMenu*>(openPopup(dialog));
    QDialog* question = inner ? nullptr : openDialog(dialog);
    if (question)
        inner = question;
    if (!inner) {
        dialog->deleteLater();
        return;
    }
    QObject::connect(inner, &QObject::destroyed, dialog, [dialog] { deleteWhenLeft(dialog); });
    if (question)
        question->reject();
    else
        inner->close();
}

} // namespace

Waiting::Waiting(QWidget* waiter) : m_mark(new QObject(waiter))
{
    m_mark->setObjectName(markName);
}

Waiting::~Waiting()
{
    if (!m_mark)
        return;
    // Out of its page first: whoever hears of its end counts those that are left.
    m_mark->setParent(nullptr);
    delete m_mark;
}

bool isWaiting(const QWidget* page)
{
    return page->findChild<QObject*>(markName);
}

void open(QDialog* dialog, const QWidget* page)
{
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog] { deleteWhenLeft(dialog); });
    if (page)
        QObject::connect(page, &QObject::destroyed, dialog, &QDialog::reject);
    dialog->open();
}

QMessageBox* warn(const QString& text, QWidget* window, const QWidget* page)
{
    auto* box =
        new QMessageBox(QMessageBox::Warning, QCoreApplication::translate("dialogs", "警告"), text,
                        QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText);
    open(box, page);
    return box;
}

void end(QWidget* page)
{
    closePopups(page);
    while (QDialog* dialog = openDialog(page))
        dialog->done(QDialog::Rejected);
    if (!isWaiting(page)) {
        delete page;
        return;
    }
    page->close();
    for (const QObject* mark : page->findChildren<QObject*>(markName))
        QObject::connect(mark, &QObject::destroyed, page, [page] {
            if (!isWaiting(page))
                page->deleteLater();
        });
}

} // namespace dialogs
