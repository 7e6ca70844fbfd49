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

    static Register load(const uchar* p)
    {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
    }
    static void storeHeads(uchar* p, Register r)
    {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(r));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(p + 24), _mm256_extracti128_si256(r, 1));
    }
    static void storeTails(uchar* p, uchar* q, Register r)
    {
        storeTails(p, q, _mm256_castsi256_si128(r));
        storeTails(p + 24, q + 24, _mm256_extracti128_si256(r, 1));
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

private:
    static void storeTails(uchar* p, uchar* q, __m128i r)
    {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p + 16), r);
        _mm_storeh_pi(reinterpret_cast<__m64*>(q + 16), _mm_castsi128_ps(r));
    }
};

} // namespace

void convertAvx2(const uchar* yuyv, int pixels, uchar* rgb)
{
    convertVectors<Avx2>(yuyv, pixels, rgb);
}

} // namespace live
