#include "live/colour_kernels.h"

namespace live {

std::vector<NamedKernel> colourKernels()
{
    std::vector<NamedKernel> kernels{{"plain", convertPlain}};
    if (__builtin_cpu_supports("ssse3"))
        kernels.push_back({"ssse3", convertSsse3});
    if (__builtin_cpu_supports("avx2"))
        kernels.push_back({"avx2", convertAvx2});
    return kernels;
}

} // namespace live
