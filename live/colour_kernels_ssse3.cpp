// Compiled with SSSE3; called only where the processor has it.
#include "live/colour_kernel_vectors.h"
#include "live/colour_kernels.h"

#include <immintrin.h>

namespace live {
namespace {

struct Ssse3
{
    using Register = __m128i;
    static constexpr int lanes = 1;

    static Register load(const uchar* p)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    }
    static void store(uchar* p, Register first, Register second, Register third)
    {
        auto* const to = reinterpret_cast<__m128i*>(p);
        _mm_storeu_si128(to, first);
        _mm_storeu_si128(to + 1, second);
        _mm_storeu_si128(to + 2, third);
    }
    static Register pairs(short even, short odd)
    {
        return _mm_set_epi16(odd, even, odd, even, odd, even, odd, even);
    }
    static Register bitAnd(Register a, Register b) { return _mm_and_si128(a, b); }
    static Register bitOr(Register a, Register b) { return _mm_or_si128(a, b); }
    template<int bits>
    static Register shiftRight32(Register a)
    {
        return _mm_srai_epi32(a, bits);
    }
    static Register add16(Register a, Register b) { return _mm_add_epi16(a, b); }
    static Register subtract16(Register a, Register b) { return _mm_sub_epi16(a, b); }
    static Register add32(Register a, Register b) { return _mm_add_epi32(a, b); }
    static Register highProduct(Register a, Register b) { return _mm_mulhi_epi16(a, b); }
    static Register sumOfProducts(Register a, Register b) { return _mm_madd_epi16(a, b); }
    static Register sumOfBytes(Register a, Register b) { return _mm_maddubs_epi16(a, b); }
    static Register saturate(Register a, Register b) { return _mm_packus_epi16(a, b); }
    static Register shuffle(Register a, const Shuffle& shuffle)
    {
        return _mm_shuffle_epi8(a,
                                _mm_load_si128(reinterpret_cast<const __m128i*>(shuffle.data())));
    }
};

} // namespace

void convertSsse3(const uchar* yuyv, int pixels, uchar* rgb)
{
    convertVectors<Ssse3>(yuyv, pixels, rgb);
}

} // namespace live
