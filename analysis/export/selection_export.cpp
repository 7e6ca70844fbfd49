// SPDX-License-Identifier: MIT
#include "analysis/export/selection_export.h"

#include "analysis/report/photograph_report.h"
#include "files/paths.h"

using files::Outcome;

namespace analysis {
namespace {

ExportOptions exportOptions(const SelectionOrder& order)
{
    ExportOptions options;
    options.modelIndex = format::layoutOf(order.modelIndex).modelIndex;
    if (order.task == SelectionTask::Tiff)
        options.format = ExportFormat::Tiff;
    else if (order.task == SelectionTask::Png)
        options.format = ExportFormat::Png;
    return options;
}

} // namespace

SelectionExport::SelectionExport(SelectionOrder order) : m_order(std::move(order)) {}

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
    const ExportOptions options = exportOptions(m_order);
    if (m_order.task != SelectionTask::Report)
        return exportPhotograph(path, m_reader, target(suffixOf(options.format)), options);
    return fileOf(
        path, options.modelIndex, m_reader, target(QStringLiteral("pdf")), options.existing, [&] {
            return reportPdf(photographReport(path, m_reader, std::nullopt, {}, m_order.language));
        });
}

} // namespace analysis
