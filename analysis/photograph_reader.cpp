#include "analysis/photograph_reader.h"

#include "files/paths.h"
#include "files/reading.h"

#include <QtEndian>

using files::Outcome;
using files::Problem;

namespace analysis {
namespace {

constexpr const format::Layout& layoutOf(int modelIndex)
{
    return modelIndex == 1 ? format::modelOne : format::modelZero;
}

/// Everything that is measured and shown ends with the third marker.
constexpr int bytesNeeded(int modelIndex)
{
    return layoutOf(modelIndex).parameters + format::parameter::markerC + 4;
}

constexpr bool isKnown(quint32 machineId)
{
    return machineId == 5 || machineId == 6;
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

} // namespace

PhotographReader::PhotographReader() : m_photograph(std::make_unique<Photograph>()) {}

Outcome PhotographReader::read(const QString& path, std::optional<int> modelIndex)
{
    m_buffer.clear();
    m_readCount = m_buffer.read(path);
    if (m_readCount < 0)
        return whyUnreadable(path);
    const int fewest = bytesNeeded(modelIndex.value_or(1));
    if (m_readCount < fewest)
        return {Problem::TooShort, QStringLiteral("%1/%2").arg(m_readCount).arg(fewest)};

    const std::optional<int> layout = modelIndex ? modelIndex : knownLayout();
    if (!layout)
        return {Problem::NeitherLayout, machineIds()};
    m_modelIndex = *layout;
    if (!analysis::read(m_buffer.bytes(), m_readCount, m_modelIndex, *m_photograph))
        return {Problem::OtherImager, QString::number(m_photograph->parameters.machineId)};
    return {};
}

bool PhotographReader::holdsBlocks(int modelIndex) const
{
    return m_readCount >= bytesNeeded(modelIndex);
}

quint32 PhotographReader::machineId(int modelIndex) const
{
    return qFromLittleEndian<quint32>(m_buffer.bytes() + layoutOf(modelIndex).parameters +
                                      format::parameter::machineId);
}

std::optional<int> PhotographReader::knownLayout() const
{
    for (const int modelIndex : {0, 1}) {
        if (holdsBlocks(modelIndex) && isKnown(machineId(modelIndex)))
            return modelIndex;
    }
    return std::nullopt;
}

QString PhotographReader::machineIds() const
{
    const auto text = [this](int modelIndex) {
        return holdsBlocks(modelIndex) ? QString::number(machineId(modelIndex))
                                       : QStringLiteral("-");
    };
    return QStringLiteral("0: %1, 1: %2").arg(text(0), text(1));
}

ShownUnit shownUnit(UnitChoice choice, int fileUnit, bool raw)
{
    const int index =
        choice == UnitChoice::AsStored ? int(fileUnit == 1) : int(choice == UnitChoice::Fahrenheit);
    constexpr int afterLoading = 0;
    return {index, conversionFor(index, afterLoading, fileUnit, raw, unchanged)};
}

} // namespace analysis
