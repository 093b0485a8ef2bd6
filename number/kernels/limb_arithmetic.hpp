// Products and quotients of long mantissas by limbs, the one place where these spend their time.
#pragma once

#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// Computes the highest `columns` columns of the product of two factors, the highest `leftCount`
/// and `rightCount` of the W words before `leftEnd` and `rightEnd`. The words of their sum end
/// before `productEnd`; there are as many as whole groups of limbs fill.
template <int W>
void MultiplyLimbsSse2(const Word* leftEnd, int leftCount, const Word* rightEnd, int rightCount,
                       int columns, Word* productEnd);
template <int W>
void MultiplyLimbsAvx2(const Word* leftEnd, int leftCount, const Word* rightEnd, int rightCount,
                       int columns, Word* productEnd);

/// Divides two normalised mantissas of W words, seen as fractions; the divisor's lowest words but
/// `divisorCount` are 0. Answers the integer part of the quotient. The words of its fraction end
/// before `quotientEnd`; there are as many as whole groups of limbs fill. The quotient is exact but
/// for the bits below limb LimbCount(W) of the fraction: it is less than two units of that limb too
/// small, and never too great.
template <int W>
Word DivideLimbsSse2(const Word* dividend, const Word* divisor, int divisorCount,
                     Word* quotientEnd);
template <int W>
Word DivideLimbsAvx2(const Word* dividend, const Word* divisor, int divisorCount,
                     Word* quotientEnd);

extern template void MultiplyLimbsSse2<64>(const Word*, int, const Word*, int, int, Word*);
extern template void MultiplyLimbsAvx2<64>(const Word*, int, const Word*, int, int, Word*);
extern template Word DivideLimbsSse2<8>(const Word*, const Word*, int, Word*);
extern template Word DivideLimbsSse2<64>(const Word*, const Word*, int, Word*);
extern template Word DivideLimbsAvx2<8>(const Word*, const Word*, int, Word*);
extern template Word DivideLimbsAvx2<64>(const Word*, const Word*, int, Word*);

}  // namespace vqz::kernels
