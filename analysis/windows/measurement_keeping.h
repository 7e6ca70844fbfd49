// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/kept_measurements.h"

#include <QObject>
#include <QPointer>

class QAction;
class QMessageBox;

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

class ToolCommands;

/// Remembers the tools, the colour bar's span and the unit of the photograph in an analysis window,
/// if the user has chosen that in the context menus, and brings them back when the photograph is
/// opened again. They are stored after each change, so that nothing is lost with the program.
/// Without that choice, nothing is read or written. GUI thread only.
class MeasurementKeeping : public QObject
{
    Q_OBJECT

public:
    /// Adds its entry to the menus. The form is that of the commands' window.
    MeasurementKeeping(ToolCommands& commands, const Ui::Analysis_Widget& form);
    ~MeasurementKeeping() override;

    /// To be called when a photograph has been opened in the window, once nobody else has the same
    /// photograph open.
    void bringBack();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose();
    QString presentKey() const;
    Measurements now() const;
    void show(const Measurements& measurements);
    void keep();
    files::Outcome store();
    void warn(const QString& text);

    ToolCommands& m_commands;
    const Ui::Analysis_Widget& m_form;
    QAction* m_choice;
    const KeptMeasurements m_store;
    QString m_key;        ///< of the photograph; empty until the user has made the choice
    Measurements m_known; ///< as kept; at first as the photograph opens
    QPointer<QMessageBox> m_warning;
};

} // namespace analysis
