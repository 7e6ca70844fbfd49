// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Holds the picture of the analysis window and keeps it wider than three quarters of its height,
/// the shape of the thermal picture, at every size of the window. On a label of exactly that shape
/// there would be no margin to tell how a mouse position relates to the picture, and the label
/// could not say what lies under the pointer.
///
/// The one child takes the whole width; where that is too little for the height, it is made lower
/// and stands in the middle, on the white that also surrounds the picture on the child itself.
class PictureFrame : public QWidget
{
    Q_OBJECT

public:
    explicit PictureFrame(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};
