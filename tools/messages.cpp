// SPDX-License-Identifier: MIT
#include "tools/messages.h"

#include "tools/texts.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace tools {

using files::Outcome;
using files::Problem;

bool print(const QByteArray& text)
{
    return std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout) ==
           std::size_t(text.size());
}

bool flushOutput()
{
    return std::fflush(stdout) == 0;
}

void printOutputError()
{
    printError(QStringLiteral("the output cannot be written: ") +
               files::textOf({errno, std::generic_category()}));
}

void printError(const QString& text)
{
    const QByteArray bytes = "thermaphoto: " + printable(text).toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stderr);
}

QString reason(const Outcome& outcome)
{
    switch (outcome.problem) {
    case Problem::None:
        return {};
    case Problem::CannotRead:
        return QStringLiteral("cannot be read: ") + outcome.detail;
    case Problem::NotAFile:
        return QStringLiteral("is not a regular file");
    case Problem::TooLarge:
        return QStringLiteral("too large: %1 bytes").arg(outcome.detail);
    case Problem::TooShort:
        return QStringLiteral("too short for a photograph: %1 bytes").arg(outcome.detail);
    case Problem::OtherImager:
        return QStringLiteral("machine ID %1 is of no known imager").arg(outcome.detail);
    case Problem::NeitherLayout:
        return QStringLiteral("neither layout has the machine ID of a known imager (%1)")
            .arg(outcome.detail);
    case Problem::AlreadyThere:
        return QStringLiteral("is already there (--force replaces it)");
    case Problem::CannotWrite:
        return QStringLiteral("cannot be written: ") + outcome.detail;
    }
    return {};
}

ProgressBar::ProgressBar(int total, bool shown) : m_total(total), m_shown(shown) {}

void ProgressBar::step()
{
    ++m_done;
    constexpr qint64 betweenDrawings = 100; // ms
    if (!m_shown || (m_isVisible && m_sinceDrawn.elapsed() < betweenDrawings))
        return;
    constexpr int cells = 30;
    const int full = int(qint64(m_done) * cells / m_total);
    const QByteArray bar = QByteArray(full, '#') + QByteArray(cells - full, '-');
    std::fprintf(stderr, "\r[%s] %d/%d", bar.constData(), m_done, m_total);
    m_isVisible = true;
    m_sinceDrawn.start();
}

void ProgressBar::hide()
{
    if (m_isVisible)
        std::fputs("\r\x1b[K", stderr);
    m_isVisible = false;
}

} // namespace tools
