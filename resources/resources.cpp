// SPDX-License-Identifier: MIT
#include "resources/resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE declares a function of the global namespace, so it cannot stand inside another.
static void registerResources()
{
    Q_INIT_RESOURCE(thermadesk_resources);
    Q_INIT_RESOURCE(thermadesk_compressed_resources);
}

void resources::load()
{
    static const bool loaded = (registerResources(), true);
    Q_UNUSED(loaded)
}
