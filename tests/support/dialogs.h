// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/parts.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <functional>

namespace testing {

/// Waits, while a function under test is blocked by a modal dialog, for such a dialog and answers
/// it as a user would. Made before the call that opens the dialog; wasAsked() tells afterwards
/// whether it came. A dialog of another kind is left alone.
template<typename Dialog>
class Answer
{
public:
    explicit Answer(std::function<void(Dialog&)> reply) : m_reply(std::move(reply))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            m_timer.stop();
            m_asked = true;
            m_reply(*dialog);
        });
        m_timer.start(1);
    }
    bool wasAsked() const { return m_asked; }

private:
    std::function<void(Dialog&)> m_reply;
    QTimer m_timer;
    bool m_asked = false;
};

/// What a user does who writes a path into a file dialog's line and presses Return.
inline void choose(QFileDialog& dialog, const QString& path)
{
    part<QLineEdit>(&dialog, "fileNameEdit")->setText(path);
    static_cast<QDialog&>(dialog).accept();
}

} // namespace testing
