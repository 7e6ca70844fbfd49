// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/area.h"
#include "analysis/windows/viewed_photograph.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace analysis {

class TemperatureBox;

/// Which pixels of a photograph are coloured, and how. Limits are typed, or taken from a tool.
///
/// The photograph shows at once what is chosen, and again what it showed before when the dialog is
/// rejected. Opened with dialogs::open(); the photograph may go while it is open. GUI thread only.
class IsothermDialog : public QDialog
{
    Q_OBJECT

public:
    IsothermDialog(ViewedPhotograph& viewed, QWidget* parent);

    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// A line of the form for each limit.
    struct LimitLine
    {
        QLabel* caption;
        TemperatureBox* box;
        QComboBox* source;
    };

    Isotherm usual() const;
    LimitLine limitLine(const char* name, const QString& caption, double value);
    void fillSources(QComboBox& sources) const;
    void chooseColour();
    void take();
    void showResult();

    const QPointer<ViewedPhotograph> m_viewed;
    const std::optional<Isotherm> m_before;
    const Unit m_unit;
    const Area m_picture;
    Isotherm m_isotherm;
    QComboBox* m_side;
    LimitLine m_from;
    LimitLine m_to;
    QPushButton* m_colour;
    QLabel* m_result;
    QDialogButtonBox* m_buttons;
};

} // namespace analysis
