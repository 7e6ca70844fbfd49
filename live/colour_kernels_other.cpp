#include "live/colour_kernels.h"

namespace live {

std::vector<NamedKernel> colourKernels()
{
    return {{"plain", convertPlain}};
}

} // namespace live
