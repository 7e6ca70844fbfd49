// SPDX-License-Identifier: MIT
#pragma once

#include <qwt_scale_draw.h>

namespace plots {

/// A scale whose numbers have the digits of the whole program, whatever the computer's language.
class PlainScale : public QwtScaleDraw
{
public:
    QwtText label(double value) const override;
};

} // namespace plots
