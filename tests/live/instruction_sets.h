// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <hwy/highway.h>
#include <vector>

namespace testing {

/// The instruction sets among which live::convertPixels() chooses on this machine, as Highway
/// counts them, best first; hwy::TargetName() says their names. Plain C++ is among them.
inline std::vector<std::int64_t> instructionSets()
{
    std::vector<std::int64_t> sets = hwy::SupportedAndGeneratedTargets();
    if (sets.back() != HWY_STATIC_TARGET)
        sets.push_back(HWY_STATIC_TARGET);
    return sets;
}

/// While this lives, one of them is used.
class UsedInstructionSet
{
public:
    explicit UsedInstructionSet(std::int64_t set) { hwy::GetChosenTarget().Update(set); }
    ~UsedInstructionSet() { hwy::GetChosenTarget().DeInit(); }
    UsedInstructionSet(const UsedInstructionSet&) = delete;
    UsedInstructionSet& operator=(const UsedInstructionSet&) = delete;
};

} // namespace testing
