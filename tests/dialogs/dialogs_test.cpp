// SPDX-License-Identifier: MIT
#include "dialogs/dialogs.h"
#include "tests/support/test_run.h"

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include <memory>

namespace {

/// Waits for a dialog's answer, as a page's slot does. The result of the dialog; `left` runs while
/// the function is still on the stack, the dialog no more.
int ask(QWidget* page, const std::function<void()>& meanwhile,
        const std::function<void()>& left = {})
{
    const dialogs::Waiting waiting(page);
    QDialog dialog(page);
    QTimer::singleShot(0, &dialog, meanwhile);
    const int answer = dialog.exec();
    if (left)
        left();
    return answer;
}

/// A menu as Qt's own context menus are: on the stack of the function that shows it. Whether it was
/// closed by what happened meanwhile.
bool showMenu(QWidget* owner, const std::function<void()>& meanwhile)
{
    QMenu menu(owner);
    menu.addAction(QStringLiteral("entry"));
    bool closed = false;
    QTimer::singleShot(0, &menu, [&] {
        meanwhile();
        closed = !menu.isVisible();
        menu.close();
    });
    menu.exec(QPoint(5, 5));
    return closed;
}

} // namespace

class DialogsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QMainWindow>();
        m_window->menuBar()->addMenu(QStringLiteral("menu"))->addAction(QStringLiteral("entry"));
        m_page = new QWidget;
        m_window->setCentralWidget(m_page);
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(!QApplication::activePopupWidget());
    }

    void aPageThatWaitsForNothingGoesAtOnce()
    {
        QVERIFY(!dialogs::isWaiting(m_page));
        dialogs::end(m_page);
        QVERIFY(!m_page);
    }

    void aPageGoesWithADialogNobodyWaitsFor()
    {
        QPointer<QDialog> dialog = new QDialog(m_page);
        dialog->show();
        dialogs::end(m_page);
        QVERIFY(!m_page && !dialog);
    }

    void aMessageOfFailureIsNoMarkUpAndGoesWithItsPage()
    {
        const QPointer<QMessageBox> box =
            dialogs::warn(QStringLiteral("<b>name</b>"), m_window.get(), m_page);
        QVERIFY(box->isVisible());
        QCOMPARE(box->parentWidget(), m_window.get());
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->windowTitle(), QStringLiteral("警告"));
        QCOMPARE(box->text(), QStringLiteral("<b>name</b>"));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        dialogs::end(m_page);
        QVERIFY(!m_page);
        QTRY_VERIFY(!box);
    }

    void aPageThatWaitsGoesWhenItsFunctionHasEnded()
    {
        bool wasWaiting = false;
        bool wasShown = true;
        QPointer<QWidget> inTheEnd;
        const int answer = ask(
            m_page,
            [&] {
                wasWaiting = dialogs::isWaiting(m_page) && dialogs::isWaiting(m_window.get());
                dialogs::end(m_page);
                wasShown = m_page->isVisible();
            },
            [&] {
                QCoreApplication::processEvents();
                inTheEnd = m_page;
            });
        QCOMPARE(answer, int(QDialog::Rejected));
        QVERIFY(wasWaiting);
        QVERIFY(!wasShown);
        QVERIFY(inTheEnd);
        QVERIFY(!dialogs::isWaiting(m_page));
        QTRY_VERIFY(!m_page);
    }

    void theWholePageWaitsForAWidgetInIt()
    {
        auto* part = new QLabel(m_page);
        ask(part, [this] {
            QVERIFY(dialogs::isWaiting(m_page));
            dialogs::end(m_page);
            QVERIFY(m_page);
        });
        QTRY_VERIFY(!m_page);
    }

    void twoFunctionsOfAPageWait()
    {
        bool first = false;
        ask(
            m_page,
            [&] {
                ask(m_page, [this] { dialogs::end(m_page); });
                QCoreApplication::processEvents();
                first = m_page;
            },
            [this] {
                QCoreApplication::processEvents();
                QVERIFY(m_page);
            });
        QVERIFY(first);
        QTRY_VERIFY(!m_page);
    }

    void anotherPageDoesNotWait()
    {
        auto* other = new QWidget(m_window.get());
        const QPointer<QWidget> watched = other;
        ask(m_page, [&] {
            dialogs::end(other);
            QVERIFY(!watched);
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (auto* dialog = qobject_cast<QDialog*>(window))
                    dialog->accept();
            }
        });
        QVERIFY(m_page && m_page->isVisible());
    }

    void theMenuOfADialogIsClosedFirst()
    {
        const int answer = ask(m_page, [this] {
            QVERIFY(showMenu(QApplication::activeModalWidget(), [this] { dialogs::end(m_page); }));
            QVERIFY(m_page);
        });
        QCOMPARE(answer, int(QDialog::Rejected));
        QTRY_VERIFY(!m_page);
    }

    /// As that of a file dialog's side bar.
    void aMenuWithoutAParentToo()
    {
        ask(m_page, [this] { QVERIFY(showMenu(nullptr, [this] { dialogs::end(m_page); })); });
        QTRY_VERIFY(!m_page);
    }

    void theWindowsOwnMenuStaysOpen()
    {
        auto* menu = m_window->menuBar()->actions().at(0)->menu();
        menu->popup(QPoint(5, 5));
        dialogs::end(m_page);
        QVERIFY(!m_page);
        QVERIFY(menu->isVisible());
        menu->close();
    }

    void anOpenedDialogDeletesItself()
    {
        const QPointer<QDialog> dialog = new QDialog(m_window.get());
        dialogs::open(dialog, m_page);
        QVERIFY(dialog->isVisible() && dialog->isModal());
        QVERIFY(!dialogs::isWaiting(m_page));
        dialog->accept();
        QTRY_VERIFY(!dialog);
        QVERIFY(m_page);
    }

    void anOpenedDialogClosesWithItsPage()
    {
        const QPointer<QDialog> dialog = new QDialog(m_window.get());
        dialogs::open(dialog, m_page);
        dialogs::end(m_page);
        QVERIFY(!m_page);
        QVERIFY(!dialog->isVisible());
        QTRY_VERIFY(!dialog);
    }

    void anOpenedDialogOutlivesItsMenu()
    {
        const QPointer<QDialog> dialog = new QDialog(m_window.get());
        dialogs::open(dialog, m_page);
        QVERIFY(showMenu(dialog, [&] {
            dialogs::end(m_page);
            QVERIFY(!m_page);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }));
        QVERIFY(dialog);
        QTRY_VERIFY(!dialog);
    }

    void anOpenedDialogOutlivesItsQuestionAndThatItsMenu()
    {
        const QPointer<QDialog> dialog = new QDialog(m_window.get());
        dialogs::open(dialog, m_page);
        QMessageBox question(dialog);
        QTimer::singleShot(0, &question, [&] {
            QVERIFY(showMenu(&question, [&] {
                dialog->reject();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }));
        });
        question.exec();
        QVERIFY(dialog);
        question.setParent(nullptr); // off this function's stack, as its end would take it
        QVERIFY(!QApplication::activeModalWidget());
    }

private:
    std::unique_ptr<QMainWindow> m_window;
    QPointer<QWidget> m_page; ///< in the window
};

int main(int argc, char** argv)
{
    return testing::run<DialogsTest>(argc, argv);
}

#include "dialogs_test.moc"
