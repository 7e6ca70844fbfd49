// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/file_buffer.h"
#include "analysis/photograph/photograph.h"
#include "analysis/photograph/units.h"
#include "files/outcome.h"

#include <memory>
#include <optional>

namespace analysis {

/// Reads photographs one after another for work on whole folders, where nobody looks at each.
///
/// Stricter than the analysis window: no photograph owes a byte to the ones before it, and one that
/// ends before its parameter block does is refused instead of being read from what lies behind it.
/// A few megabytes; one for each thread.
class PhotographReader
{
public:
    PhotographReader();

    /// `modelIndex` is 0 or 1; without it, the layout is the one in which the machine ID of a known
    /// imager stands, and 0 if that goes for both. One that stands in neither, of a file that
    /// begins as layout 0 does and ends early, is too short and of no other imager. After
    /// Problem::OtherImager readCount(), modelIndex() and the parameters are this photograph's and
    /// nothing else is; after any other problem nothing is.
    files::Outcome read(const QString& path, std::optional<int> modelIndex);

    int readCount() const { return m_readCount; } ///< bytes, at most FileBuffer::size
    int modelIndex() const { return m_modelIndex; }
    bool isRaw() const { return hasRawImage(m_readCount); }
    const Photograph& photograph() const { return *m_photograph; }

private:
    std::optional<quint32> machineId(const format::Layout& layout) const;
    /// The layout that the bitmap in front is of, when the file ends before its blocks do.
    const format::Layout* cutOffLayout() const;
    std::optional<int> knownLayout() const;
    QString machineIds() const;

    FileBuffer m_buffer;
    std::unique_ptr<Photograph> m_photograph; ///< too large for a stack
    int m_readCount = 0;
    int m_modelIndex = 0;
};

/// What the unit selector shows, and how stored temperatures become shown ones, in a window that
/// has just opened the photograph and was then switched to the wanted unit.
struct ShownUnit
{
    Unit unit = Unit::Celsius;
    Conversion conversion;
};

/// `wanted` is nothing for the unit that the photograph opens with.
ShownUnit shownUnit(std::optional<Unit> wanted, int fileUnit, bool raw);

} // namespace analysis
