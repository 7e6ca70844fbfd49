// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/export/picture_export.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;

/// How a picture is to be saved: its scale, and what stands round it. Opened with dialogs::open();
/// what was chosen is asked for when it is accepted. GUI thread only.
class PictureDialog : public QDialog
{
    Q_OBJECT

public:
    PictureDialog(const analysis::ShownPicture& shown, QWidget* parent);

    analysis::PictureOptions options() const;
    /// The picture that was chosen.
    QImage picture() const;

private:
    void showSize();

    const analysis::ShownPicture m_shown;
    QComboBox* m_scale;
    QCheckBox* m_colourBar;
    QCheckBox* m_values; ///< disabled where nothing was measured
    QLabel* m_size;
};
