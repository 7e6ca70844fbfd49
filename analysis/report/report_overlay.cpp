// SPDX-License-Identifier: MIT
#include "analysis/report/report_overlay.h"

#include "overlay/tool_painting.h"

namespace analysis {

/// The one pixel more makes margins, without which a conversion to the sheet rounds differently.
QImage reportOverlay(const overlay::Tools& tools, const overlay::Spots& spots, const QSize& picture)
{
    if (picture.isEmpty())
        return {};
    const QSize enlarged = 3 * picture;
    overlay::Sheet sheet;
    sheet.geometry = {enlarged.width() + 1, enlarged.width(), enlarged.height(), enlarged.height()};
    return overlay::paintedTools(tools, spots, sheet);
}

} // namespace analysis
