// SPDX-License-Identifier: MIT
#include "analysis/photograph/photograph_reader.h"

#include "files/paths.h"
#include "files/reading.h"

#include <QStringList>
#include <QtEndian>

#include <algorithm>

using files::Outcome;
using files::Problem;

namespace analysis {
namespace {

using format::Layout;
using format::layouts;

/// Everything that is measured and shown ends with the third marker.
constexpr int bytesNeeded(const Layout& layout)
{
    return layout.parameters + format::parameter::markerC + 4;
}

/// What any photograph has, in whichever layout.
int fewestBytes()
{
    const auto* const shortest =
        std::min_element(layouts.begin(), layouts.end(), [](const Layout& a, const Layout& b) {
            return bytesNeeded(a) < bytesNeeded(b);
        });
    return bytesNeeded(*shortest);
}

/// FileBuffer only says that it failed; the system is asked once more for the reason.
Outcome whyUnreadable(const QString& path)
{
    QFile file(files::localPath(path));
    const Outcome opened = files::openForReading(file);
    if (!opened.isGood())
        return opened;
    file.read(1);
    return {Problem::CannotRead, file.errorString()};
}

Outcome tooShort(int bytes, int needed)
{
    return {Problem::TooShort, QStringLiteral("%1/%2").arg(bytes).arg(needed)};
}

} // namespace

PhotographReader::PhotographReader() : m_photograph(std::make_unique<Photograph>()) {}

Outcome PhotographReader::read(const QString& path, std::optional<int> modelIndex)
{
    m_buffer.clear();
    m_readCount = m_buffer.read(path);
    if (m_readCount < 0)
        return whyUnreadable(path);
    const int fewest = modelIndex ? bytesNeeded(format::layoutOf(*modelIndex)) : fewestBytes();
    if (m_readCount < fewest)
        return tooShort(m_readCount, fewest);

    const std::optional<int> layout = modelIndex ? modelIndex : knownLayout();
    const Layout* const cutOff = layout ? nullptr : cutOffLayout();
    if (cutOff)
        return tooShort(m_readCount, bytesNeeded(*cutOff));
    if (!layout)
        return {Problem::NeitherLayout, machineIds()};
    m_modelIndex = *layout;
    if (!analysis::read(m_buffer.bytes(), m_readCount, m_modelIndex, *m_photograph))
        return {Problem::OtherImager, QString::number(m_photograph->parameters.machineId)};
    return {};
}

const Layout* PhotographReader::cutOffLayout() const
{
    const uchar* const bytes = m_buffer.bytes();
    constexpr int bitsOfAPixel = 28; // its place in a bitmap's header
    const Layout* shortest = nullptr;
    for (const Layout& layout : layouts) {
        const bool hasItsPicture = bytes[bitsOfAPixel] == 8 * layout.pixelBytes;
        if (hasItsPicture && (!shortest || bytesNeeded(layout) < bytesNeeded(*shortest)))
            shortest = &layout;
    }
    const bool isBitmap = bytes[0] == 'B' && bytes[1] == 'M';
    return isBitmap && shortest && m_readCount < bytesNeeded(*shortest) ? shortest : nullptr;
}

/// Nothing where the photograph ends before its blocks do.
std::optional<quint32> PhotographReader::machineId(const Layout& layout) const
{
    if (m_readCount < bytesNeeded(layout))
        return std::nullopt;
    return qFromLittleEndian<quint32>(m_buffer.bytes() + layout.parameters +
                                      format::parameter::machineId);
}

std::optional<int> PhotographReader::knownLayout() const
{
    for (const Layout& layout : layouts) {
        const std::optional<quint32> id = machineId(layout);
        if (id && format::isSupported(layout, *id))
            return layout.modelIndex;
    }
    return std::nullopt;
}

QString PhotographReader::machineIds() const
{
    QStringList texts;
    for (const Layout& layout : layouts) {
        const std::optional<quint32> id = machineId(layout);
        texts.append(QStringLiteral("%1: %2")
                         .arg(layout.modelIndex)
                         .arg(id ? QString::number(*id) : QStringLiteral("-")));
    }
    return texts.join(QStringLiteral(", "));
}

ShownUnit shownUnit(std::optional<Unit> wanted, int fileUnit, bool raw)
{
    const Unit unit = wanted ? *wanted : unitAt(fileUnit).value_or(Unit::Celsius);
    constexpr int afterLoading = 0;
    return {unit, conversionFor(int(unit), afterLoading, fileUnit, raw, unchanged)};
}

} // namespace analysis
