// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/selection_export.h"

#include <QProgressDialog>
#include <QTimer>

class QLabel;
class QProgressBar;

/// Carries out an order between events, shows how far it is when that takes a while, and ends in
/// one message that tells what was written and what was not. Can be cancelled between two
/// photographs.
///
/// Owned by the window around the browser, not by the browser, which goes with its disk: then the
/// photographs left over fail, and the message tells. Starts by itself, and deletes itself.
class SelectionJob : public QProgressDialog
{
    Q_OBJECT

public:
    SelectionJob(const analysis::SelectionOrder& order, QWidget* window);

private:
    void step();
    void showNextName();
    void finish();
    QString summary() const;
    QStringList failureTexts() const;

    analysis::SelectionExport m_export;
    QLabel* m_name;      ///< a child
    QProgressBar* m_bar; ///< a child
    QTimer m_steps;
};
