// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/selection_export.h"

#include <QMenu>

/// The context menu of the photographs chosen in the browser: what can be done with all of them at
/// once. Lives until it closes. Asks for a folder where one is needed and leaves the rest to a
/// SelectionJob, which outlives the browser: the disk may be pulled out at any time.
class BrowserMenu : public QMenu
{
    Q_OBJECT

public:
    /// `names` are the chosen photographs of `folder`, maybe none; `modelIndex` is their layout.
    BrowserMenu(QString folder, QStringList names, int modelIndex, QWidget* browser);

signals:
    void openRequested(const QString& name);

private:
    void addTask(const QString& text, analysis::SelectionTask task);
    void askForFolder(analysis::SelectionTask task);
    void showFolder();

    const QString m_folder;
    const QStringList m_names;
    const int m_modelIndex;
};
