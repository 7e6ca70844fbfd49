// SPDX-License-Identifier: MIT
#pragma once

#include "files/whole_file.h"

namespace files {

/// Copies a file piece by piece, so that whoever calls decides what happens in between and when to
/// stop. The copy is complete or absent, never replaces anything and keeps the time of the last
/// change. An object that goes before isDone() leaves nothing behind.
class FileCopy
{
public:
    /// In bytes: what a disk of today writes within a hundredth of a second.
    static constexpr qint64 piece = 1'000'000;

    FileCopy(const QString& from, const QString& to);

    /// Copies the next piece; not after isDone().
    void step();

    bool isDone() const { return m_isDone; }
    const Outcome& outcome() const { return m_outcome; } ///< good until something fails

private:
    void start();
    void finish();
    void end(const Outcome& outcome);

    QFile m_from;
    WholeFile m_to;
    qint64 m_size = -1; ///< of the original; −1 before the first step
    qint64 m_copied = 0;
    bool m_isDone = false;
    Outcome m_outcome;
};

} // namespace files
