// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;

namespace plots {

class Chart;

/// Files of a plot. They go where the user chooses, into the documents folder unless he chooses
/// another, and are complete or absent; a message tells when one could not be written. GUI thread
/// only.
class PlotSaving
{
    Q_DECLARE_TR_FUNCTIONS(PlotSaving)

public:
    /// Asks where, without waiting for the answer; the name that is chosen, or else the chosen kind
    /// of file, says whether it becomes a picture, a page or a table. The dialog ends with `page`,
    /// which the chart lies in. `name` is the file's, without a suffix.
    static void ask(Chart& chart, const QString& name, QWidget* page);
};

} // namespace plots
