#include "number/kernels/lanes_sse2.hpp"
#include "number/kernels/limb_arithmetic.hpp"
#include "number/kernels/limb_division.hpp"
#include "number/kernels/limb_multiplication.hpp"

namespace vqz::kernels {

template <int W>
void MultiplyLimbsSse2(const Word* leftEnd, int leftCount, const Word* rightEnd, int rightCount,
                       int columns, Word* productEnd) {
    MultiplyLimbs<Sse2Lanes, W>({leftEnd, leftCount}, {rightEnd, rightCount}, columns, productEnd);
}

template <int W>
Word DivideLimbsSse2(const Word* dividend, const Word* divisor, int divisorCount,
                     Word* quotientEnd) {
    return LimbDivision<Sse2Lanes, W>::Divide(dividend, divisor, divisorCount, quotientEnd);
}

template void MultiplyLimbsSse2<64>(const Word*, int, const Word*, int, int, Word*);
template Word DivideLimbsSse2<8>(const Word*, const Word*, int, Word*);
template Word DivideLimbsSse2<64>(const Word*, const Word*, int, Word*);

}  // namespace vqz::kernels
