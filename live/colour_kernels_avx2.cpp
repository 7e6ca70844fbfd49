// Compiled with AVX2; called only where the processor has it.
#include "live/colour_kernel_vectors.h"
#include "live/colour_kernels.h"

#include <immintrin.h>

namespace live {
namespace {

struct Avx2
{
    using Register = __m256i;
    static constexpr int lanes = 2;

    /// The upper lane takes what comes 16 pixels later.
    static Register load(const uchar* p)
    {
        const auto* const from = reinterpret_cast<const __m128i*>(p);
        return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(from)),
                                       _mm_loadu_si128(from + 2), 1);
    }
    /// The lower lanes of all three, then the upper ones.
    static void store(uchar* p, Register first, Register second, Register third)
    {
        auto* const to = reinterpret_cast<__m256i*>(p);
        _mm256_storeu_si256(to, _mm256_permute2x128_si256(first, second, 0x20));
        _mm256_storeu_si256(to + 1, _mm256_blend_epi32(third, first, 0xF0));
        _mm256_storeu_si256(to + 2, _mm256_permute2x128_si256(second, third, 0x31));
    }
    static Register pairs(short even, short odd)
    {
        return _mm256_set_epi16(odd, even, odd, even, odd, even, odd, even, odd, even, odd, even,
                                odd, even, odd, even);
    }
    static Register bitAnd(Register a, Register b) { return _mm256_and_si256(a, b); }
    static Register bitOr(Register a, Register b) { return _mm256_or_si256(a, b); }
    template<int bits>
    static Register shiftRight32(Register a)
    {
        return _mm256_srai_epi32(a, bits);
    }
    static Register add16(Register a, Register b) { return _mm256_add_epi16(a, b); }
    static Register subtract16(Register a, Register b) { return _mm256_sub_epi16(a, b); }
    static Register add32(Register a, Register b) { return _mm256_add_epi32(a, b); }
    static Register highProduct(Register a, Register b) { return _mm256_mulhi_epi16(a, b); }
    static Register sumOfProducts(Register a, Register b) { return _mm256_madd_epi16(a, b); }
    static Register sumOfBytes(Register a, Register b) { return _mm256_maddubs_epi16(a, b); }
    static Register saturate(Register a, Register b) { return _mm256_packus_epi16(a, b); }
    static Register shuffle(Register a, const Shuffle& shuffle)
    {
        return _mm256_shuffle_epi8(
            a, _mm256_load_si256(reinterpret_cast<const __m256i*>(shuffle.data())));
    }
};

} // namespace

void convertAvx2(const uchar* yuyv, int pixels, uchar* rgb)
{
    convertVectors<Avx2>(yuyv, pixels, rgb);
}

} // namespace live
