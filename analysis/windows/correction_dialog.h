// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"
#include "analysis/windows/viewed_photograph.h"

#include <QDialog>

class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;

namespace analysis {

class TemperatureBox;

/// With which emissivities and surroundings a photograph is corrected, and what becomes of the
/// hottest pixel, of the selected tool or else of the picture.
///
/// The photograph is corrected at once as it is typed, and again as it was before when the dialog
/// is rejected. Opened with dialogs::open(); the photograph may go while it is open. GUI thread
/// only.
class CorrectionDialog : public QDialog
{
    Q_OBJECT

public:
    CorrectionDialog(ViewedPhotograph& viewed, QWidget* parent);

    void done(int result) override;

private:
    QDoubleSpinBox* emissivityBox(const char* name, double value, double most);
    void takeSample();
    Correction typed() const;
    void take();
    void showResult();
    QString problem() const;
    QString result() const;

    const QPointer<ViewedPhotograph> m_viewed;
    const std::optional<Correction> m_before;
    const Unit m_unit;
    QString m_sampled; ///< what m_sample is the hottest pixel of
    std::optional<Reading> m_sample;
    QDoubleSpinBox* m_stored;
    QDoubleSpinBox* m_emissivity;
    TemperatureBox* m_reflected;
    QLabel* m_result;
    QDialogButtonBox* m_buttons;
};

} // namespace analysis
