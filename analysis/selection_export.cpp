#include "analysis/selection_export.h"

#include "analysis/photograph_report.h"
#include "analysis/whole_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace analysis {
namespace {

int layoutOf(const SelectionOrder& order)
{
    return order.modelIndex == 1 ? 1 : 0;
}

ExportOptions exportOptions(const SelectionOrder& order)
{
    ExportOptions options;
    options.modelIndex = layoutOf(order);
    if (order.task == SelectionTask::Tiff)
        options.format = ExportFormat::Tiff;
    else if (order.task == SelectionTask::Png)
        options.format = ExportFormat::Png;
    return options;
}

/// The copy keeps the time of the last change where the file system can; that is no reason to fail.
Outcome copyFile(const QString& path, const QString& target)
{
    if (QFileInfo(target).exists())
        return {Problem::AlreadyThere, {}};
    QFile photograph(path);
    if (!photograph.open(QIODevice::ReadOnly))
        return {Problem::CannotRead, photograph.errorString()};
    const qint64 size = photograph.size();
    const QByteArray bytes = photograph.readAll();
    if (photograph.error() != QFile::NoError)
        return {Problem::CannotRead, photograph.errorString()};
    if (bytes.size() != size)
        return {Problem::TooShort, QStringLiteral("%1/%2").arg(bytes.size()).arg(size)};
    const QDateTime changed = photograph.fileTime(QFileDevice::FileModificationTime);
    const Outcome outcome = writeWholeFile(target, bytes, false);
    QFile copy(target);
    if (outcome.isGood() && copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        copy.setFileTime(changed, QFileDevice::FileModificationTime);
    return outcome;
}

} // namespace

SelectionExport::SelectionExport(SelectionOrder order, OverlayPainter overlay)
    : m_order(std::move(order)), m_overlay(std::move(overlay)), m_exporter(exportOptions(m_order))
{
}

void SelectionExport::step()
{
    const QString& name = nextName();
    const Outcome outcome = writeFileOf(name);
    if (!outcome.isGood())
        m_failures.push_back({name, outcome});
    ++m_done;
}

Outcome SelectionExport::writeFileOf(const QString& name)
{
    const QString path = QDir(m_order.folder).filePath(name);
    const QDir target(m_order.target);
    if (m_order.task == SelectionTask::Copy)
        return copyFile(path, target.filePath(name));
    if (m_order.task == SelectionTask::Report)
        return writeReport(path, target.filePath(exportName(name, QStringLiteral("pdf"))));
    const QString suffix = suffixOf(exportOptions(m_order).format);
    return m_exporter.run(path, target.filePath(exportName(name, suffix)));
}

Outcome SelectionExport::writeReport(const QString& path, const QString& target)
{
    if (QFileInfo(target).exists())
        return {Problem::AlreadyThere, {}};
    const Outcome reading = m_reader.read(path, layoutOf(m_order));
    if (!reading.isGood())
        return reading;
    const ToolLists noTools{{}, {}, {}, {}};
    const Report report = photographReport(path, m_reader, UnitChoice::AsStored, noTools,
                                           m_overlay(m_reader.photograph()), m_order.language);
    return writeWholeFile(target, reportPdf(report), false);
}

} // namespace analysis
