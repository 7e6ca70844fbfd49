// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <QWidget>

#include <map>
#include <vector>

class MyLabel;

namespace analysis {

/// What a window beside the picture points at in it. A single pixel is ringed, a larger part
/// framed.
struct PictureMark
{
    QRect pixels; ///< image coordinates
    QColor colour = Qt::white;
    QString caption = {}; ///< a word or two beside it
};

bool operator==(const PictureMark& left, const PictureMark& right);

/// Draws such marks on top of the picture and its tools. It lies on the label, lets the mouse
/// through, follows the label's size and is hidden while there is nothing to draw; the label, its
/// tools and whatever is made of them know nothing of it. GUI thread only.
class PictureMarks : public QWidget
{
    Q_OBJECT

public:
    /// Belongs to the label.
    explicit PictureMarks(MyLabel& label);

    /// Replaces the marks of this owner, which go with it.
    void show(const QObject& owner, const std::vector<PictureMark>& marks);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void forget(const QObject* owner);

    const MyLabel& m_label;
    std::map<const QObject*, std::vector<PictureMark>> m_marks;
};

} // namespace analysis
