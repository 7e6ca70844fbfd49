#include "analysis/photo_window.h"

#include "platform/removable_drives.h"

photo_window::photo_window(QObject* /*owner*/, QWidget* parent) : QWidget(parent)
{
    imageFolder = platform::removableDrives().value(0) + QStringLiteral("DCIM_100");
}
