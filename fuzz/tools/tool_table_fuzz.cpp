// SPDX-License-Identifier: MIT
/// Tables of measurement tools. The input is the file.

#include "fuzz/support/target.h"
#include "overlay/tool_file.h"
#include "tools/tool_files.h"

using fuzz::mustHold;

int LLVMFuzzerInitialize(int*, char***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(bytes), int(size));
    overlay::Tools tools;
    if (!tools::toolsFromCsv(file, tools).isEmpty()) {
        mustHold(tools == overlay::Tools(), "of a wrong table nothing is taken");
        return 0;
    }
    mustHold(overlay::wrongWith(tools).isEmpty(), "every tool is one that the window holds");
    overlay::Tools again;
    const QByteArray table = tools::toolsToCsv(tools);
    mustHold(tools::toolsFromCsv(table, again).isEmpty() && again == tools,
             "what is written as a table is read again");
    mustHold(overlay::toolsFromJson(overlay::toolsToJson(tools), again).isEmpty() && again == tools,
             "and as JSON, too");
    return 0;
}
