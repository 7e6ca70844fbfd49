// SPDX-License-Identifier: MIT
#include "analysis/export/selection_export.h"

#include "analysis/report/photograph_report.h"
#include "files/paths.h"
#include "files/whole_file.h"

using files::Existing;
using files::Outcome;
using files::Problem;

namespace analysis {
namespace {

int layoutOf(const SelectionOrder& order)
{
    return format::layoutOf(order.modelIndex).modelIndex;
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

} // namespace

SelectionExport::SelectionExport(SelectionOrder order)
    : m_order(std::move(order)), m_exporter(exportOptions(m_order))
{
}

void SelectionExport::step()
{
    const bool isCopy = m_order.task == SelectionTask::Copy;
    if (isCopy && !copyPiece())
        return;
    const Outcome outcome = isCopy ? m_copy->outcome() : writeFileOf(nextName());
    m_copy.reset();
    if (!outcome.isGood())
        m_failures.push_back({nextName(), outcome});
    ++m_done;
}

/// True when that was the last piece of this photograph.
bool SelectionExport::copyPiece()
{
    if (!m_copy)
        m_copy.emplace(files::pathIn(m_order.folder, nextName()),
                       files::pathIn(m_order.target, nextName()));
    m_copy->step();
    return m_copy->isDone();
}

Outcome SelectionExport::writeFileOf(const QString& name)
{
    const QString path = files::pathIn(m_order.folder, name);
    const auto target = [&](const QString& suffix) {
        return files::pathIn(m_order.target, exportName(name, suffix));
    };
    if (m_order.task == SelectionTask::Report)
        return writeReport(path, target(QStringLiteral("pdf")));
    return m_exporter.run(path, target(suffixOf(exportOptions(m_order).format)));
}

Outcome SelectionExport::writeReport(const QString& path, const QString& target)
{
    if (isRefused(target, Existing::Refuse))
        return {Problem::AlreadyThere, {}};
    const Outcome reading = m_reader.read(path, layoutOf(m_order));
    if (!reading.isGood())
        return reading;
    const Report report = photographReport(path, m_reader, std::nullopt, {}, m_order.language);
    return writeWholeFile(target, reportPdf(report), Existing::Refuse);
}

} // namespace analysis
