// SPDX-License-Identifier: MIT
#include "analysis/windows/picture_marks.h"

#include "overlay/my_label.h"

#include <QEvent>
#include <QPainter>

namespace analysis {
namespace {

constexpr int ringRadius = 8;
constexpr int gap = 4;

/// Where these pixels of the picture are on a label that shows it centred.
QRectF placeOf(const QRect& pixels, const overlay::Geometry& label)
{
    const double width = double(label.imageWidth) / overlay::imageColumns;
    const double height = double(label.imageHeight) / overlay::imageRows;
    const int left = label.labelWidth / 2 - label.imageWidth / 2;
    const int top = label.labelHeight / 2 - label.imageHeight / 2;
    return {left + pixels.x() * width, top + pixels.y() * height, pixels.width() * width,
            pixels.height() * height};
}

/// Dark below and coloured above, so that it shows on every palette.
template<typename Draw>
void drawTwice(QPainter& painter, const QColor& colour, Draw draw)
{
    painter.setPen(QPen(Qt::black, 3.5));
    draw();
    painter.setPen(QPen(colour, 1.5));
    draw();
}

void drawCaption(QPainter& painter, const QRectF& beside, const PictureMark& mark,
                 const QRect& within)
{
    const QSize size = painter.fontMetrics().size(0, mark.caption) + QSize(2 * gap, gap);
    QRectF box({beside.right() + gap, beside.top() - size.height() / 2.0}, size);
    if (box.right() > within.right())
        box.moveRight(beside.left() - gap);
    box.moveTop(qBound(double(within.top()), box.top(), within.bottom() - box.height()));
    painter.fillRect(box, QColor(0, 0, 0, 160));
    painter.setPen(mark.colour);
    painter.drawText(box, Qt::AlignCenter, mark.caption);
}

} // namespace

bool operator==(const PictureMark& left, const PictureMark& right)
{
    return left.pixels == right.pixels && left.colour == right.colour &&
           left.caption == right.caption;
}

PictureMarks::PictureMarks(MyLabel& label) : QWidget(&label), m_label(label)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
    setGeometry(label.rect());
    label.installEventFilter(this);
}

void PictureMarks::show(const QObject& owner, const std::vector<PictureMark>& marks)
{
    if (marks.empty()) {
        forget(&owner);
        return;
    }
    auto [known, isNew] = m_marks.try_emplace(&owner);
    if (isNew)
        connect(&owner, &QObject::destroyed, this, &PictureMarks::forget);
    if (!isNew && known->second == marks)
        return;
    known->second = marks;
    setVisible(true);
    update();
}

void PictureMarks::forget(const QObject* owner)
{
    if (m_marks.erase(owner) == 0)
        return;
    disconnect(owner, &QObject::destroyed, this, &PictureMarks::forget);
    setVisible(!m_marks.empty());
    update();
}

bool PictureMarks::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_label.rect());
    return QWidget::eventFilter(watched, event);
}

void PictureMarks::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto& [owner, marks] : m_marks) {
        for (const PictureMark& mark : marks) {
            const QRectF place = placeOf(mark.pixels, m_label);
            QRectF outline = place;
            if (mark.pixels.size() == QSize(1, 1)) {
                outline = QRectF(0, 0, 2 * ringRadius, 2 * ringRadius);
                outline.moveCenter(place.center());
                drawTwice(painter, mark.colour, [&] { painter.drawEllipse(outline); });
            } else {
                drawTwice(painter, mark.colour, [&] { painter.drawRect(outline); });
            }
            if (!mark.caption.isEmpty())
                drawCaption(painter, outline, mark, rect());
        }
    }
}

} // namespace analysis
