// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace analysis {

/// Black or white, whichever is read better on this colour: their contrast is at least 4.5 : 1.
QColor inkOn(const QColor& ground);

/// Shows a square of pixels as large cells in their colours, each with its reading as long as that
/// can be read, the one in the middle framed. GUI thread only.
class MagnifiedPixels : public QWidget
{
    Q_OBJECT

public:
    struct Cell
    {
        QColor colour; ///< invalid for one outside the picture, which is hatched and has no text
        QString text;
    };
    struct Content
    {
        int size = 0;            ///< cells along a side: odd
        std::vector<Cell> cells; ///< row by row
        int longestText = 0; ///< letters that all texts have room for, so that they keep their size
    };

    explicit MagnifiedPixels(QWidget* parent = nullptr);

    /// Paints only when something is other than before.
    void show(const Content& content);
    const Content& content() const { return m_content; }

    /// Where a cell is; rows and columns count from 0. Empty when nothing is shown.
    QRect placeOf(int column, int row) const;
    /// Height of the readings' letters; 0 when cells are too small for any.
    int textSize() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Content m_content;
};

} // namespace analysis
