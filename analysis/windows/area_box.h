// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"

#include <QComboBox>

namespace analysis {

/// A list of some fixed entries and, below them, the tools of a photograph. A tool that was chosen
/// and goes leaves the first entry shown; when it comes back, by undo, it is the chosen one again.
/// GUI thread only.
class AreaBox : public QComboBox
{
    Q_OBJECT

public:
    explicit AreaBox(const QStringList& fixed);

    /// Lists these tools. Not told by signals.
    void list(const overlay::Tools& tools);
    /// As if the user had chosen it.
    void choose(const QString& tool);
    /// The name of the tool that is shown; empty for a fixed entry.
    QString tool() const;

private:
    const int m_fixed;
    QString m_chosen; ///< a tool, which may be gone
};

/// The tool of this name; of an empty name, the whole picture. Nothing when there is no such tool.
std::optional<Area> areaNamed(const QString& name, const overlay::Tools& tools,
                              const Temperatures& temperatures, Conversion conversion);

} // namespace analysis
