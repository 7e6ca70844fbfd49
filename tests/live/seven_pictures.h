// SPDX-License-Identifier: MIT
#pragma once

#include "live/alarm_records.h"

namespace testing {

/// Pictures for a record, all the same.
inline QList<QImage> sevenPictures()
{
    QImage picture(240, 320, QImage::Format_RGB888);
    picture.fill(Qt::darkYellow);
    QList<QImage> pictures;
    for (int i = 0; i < live::recordPictures; ++i)
        pictures.append(picture);
    return pictures;
}

} // namespace testing
