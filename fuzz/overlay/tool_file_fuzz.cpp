// SPDX-License-Identifier: MIT
/// Files of measurement tools. The input is the file.

#include "fuzz/support/target.h"
#include "overlay/tool_file.h"
#include "overlay/tool_rules.h"

#ifdef SANITIZED
#include <sanitizer/lsan_interface.h>
#endif

namespace {

using fuzz::mustHold;

/// Qt's reader of JSON never frees what stands under a key that comes twice.
QString read(const QByteArray& file, overlay::Tools& tools)
{
#ifdef SANITIZED
    const __lsan::ScopedDisabler leaksOfQt;
#endif
    return overlay::toolsFromJson(file, tools);
}

void mustHoldTools(const overlay::Tools& tools)
{
    overlay::forEachTool(tools, [](const auto& tool) {
        mustHold(isInside(tool) && !isUnfinished(tool), "every tool is one that the window holds");
        mustHold(overlay::numberIn(tool.name, tool.kind).has_value(), "and named as its tools are");
        mustHold(tool.colour.isValid(), "in a colour");
    });
    mustHold(overlay::wrongWith(tools).isEmpty(), "nothing is wrong with what was taken");
    mustHold(overlay::selectedPlace(tools) < 0, "none is selected");
}

} // namespace

int LLVMFuzzerInitialize(int*, char***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(bytes), int(size));
    overlay::Tools tools;
    if (!read(file, tools).isEmpty()) {
        mustHold(tools == overlay::Tools(), "of a wrong file nothing is taken");
        return 0;
    }
    mustHoldTools(tools);
    const QByteArray written = overlay::toolsToJson(tools);
    overlay::Tools again;
    mustHold(overlay::toolsFromJson(written, again).isEmpty(), "what is written can be read");
    mustHold(again == tools, "and is the same");
    mustHold(overlay::toolsToJson(again) == written, "to the byte");
    return 0;
}
