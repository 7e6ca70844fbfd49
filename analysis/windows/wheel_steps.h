// SPDX-License-Identifier: MIT
#pragma once

#include <QWheelEvent>

namespace analysis {

/// Counts whole steps of a wheel; touchpads turn by less than one at a time.
class WheelSteps
{
public:
    /// The steps that this turn completes, upward positive.
    int take(const QWheelEvent& event)
    {
        m_turned += event.angleDelta().y();
        const int steps = m_turned / QWheelEvent::DefaultDeltasPerStep;
        m_turned %= QWheelEvent::DefaultDeltasPerStep;
        return steps;
    }

private:
    int m_turned = 0; ///< not yet a whole step
};

} // namespace analysis
