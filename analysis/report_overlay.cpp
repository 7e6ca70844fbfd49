#include "analysis/report_overlay.h"

#include "overlay/my_label.h"

#include <QPixmap>

namespace analysis {
namespace {

/// Puts the label's geometry back, however the rendering ends.
class FrozenLabel
{
public:
    FrozenLabel(MyLabel& label, const QSize& picture)
        : m_label(label), m_overlay(label.overlay), m_labelWidth(label.labelWidth),
          m_imageWidth(label.imageWidth), m_labelHeight(label.labelHeight),
          m_imageHeight(label.imageHeight)
    {
        label.frozenGeometry = true;
        label.labelWidth = 3 * picture.width() + 1;
        label.imageWidth = 3 * picture.width();
        label.labelHeight = label.imageHeight = 3 * picture.height();
        label.overlay = QPixmap();
    }
    ~FrozenLabel()
    {
        m_label.frozenGeometry = false;
        m_label.labelWidth = m_labelWidth;
        m_label.imageWidth = m_imageWidth;
        m_label.labelHeight = m_labelHeight;
        m_label.imageHeight = m_imageHeight;
        m_label.overlay = m_overlay;
        m_label.update();
    }
    FrozenLabel(const FrozenLabel&) = delete;
    FrozenLabel& operator=(const FrozenLabel&) = delete;

private:
    MyLabel& m_label;
    const QPixmap m_overlay;
    const int m_labelWidth;
    const int m_imageWidth;
    const int m_labelHeight;
    const int m_imageHeight;
};

} // namespace

QImage reportOverlay(MyLabel& label, const QSize& picture)
{
    if (picture.isEmpty())
        return {};
    const FrozenLabel frozen(label, picture);
    // Rendering works for hidden labels, too, and shows nobody the large overlay. One pixel is
    // enough: the overlay is drawn whole whatever part of the label is asked for.
    QPixmap nowhere(1, 1);
    label.render(&nowhere, QPoint(), QRegion(0, 0, 1, 1), QWidget::RenderFlags());
    return label.overlay.toImage();
}

} // namespace analysis
