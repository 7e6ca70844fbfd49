#pragma once

#include <QImage>
#include <QSize>

class MyLabel;

namespace analysis {

/// The label's tools and markers at three times a picture's size, on a transparent ground, for the
/// report. `picture` is the size of the thermal picture (240 × 320); the result is one pixel wider
/// than three times that.
///
/// The label is left as it was, shown or hidden, and repaints itself once. Null for an empty size.
QImage reportOverlay(MyLabel& label, const QSize& picture);

} // namespace analysis
