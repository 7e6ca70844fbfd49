// SPDX-License-Identifier: MIT
#pragma once

#include "files/outcome.h"

#include <QElapsedTimer>

namespace tools {

/// Writes to the standard output. False, with the reason in errno, when that fails.
bool print(const QByteArray& text);
/// Writes out what print() still holds back. False as above.
bool flushOutput();

/// The error line of a print() or flushOutput() that has just failed.
void printOutputError();

/// One printable line on the error output, behind the program's name.
void printError(const QString& text);

/// What went wrong, in a few words.
QString reason(const files::Outcome& outcome);

/// A line on the error output that tells how far the work is. Does nothing unless `shown`.
class ProgressBar
{
public:
    ProgressBar(int total, bool shown);
    ~ProgressBar() { hide(); }
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void step();
    /// Until the next step: before something else is printed.
    void hide();

private:
    int m_total;
    bool m_shown;
    int m_done = 0;
    bool m_isVisible = false;
    QElapsedTimer m_sinceDrawn;
};

} // namespace tools
