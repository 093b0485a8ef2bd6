// Factors: what the processor multiplies at once, one or more words. Rows of words are rows of
// factors, too, since both lie in memory with the lowest first.
#pragma once

#include <bit>
#include <limits>

#include BIGNUMBER_PROCESSOR_FACTORS
#include "number/kernels/words.hpp"

namespace vqz::kernels {

static_assert(std::endian::native == std::endian::little);

inline constexpr int FactorBits = std::numeric_limits<Factor>::digits;
inline constexpr int FactorWords = FactorBits / WordBits;
/// Whether long mantissas are multiplied and divided by factors; otherwise, by limbs in vectors.
inline constexpr bool AreFactorsWide = FactorBits > WordBits;

/// How many factors hold `words` words.
inline constexpr int FactorCount(int words) {
    return (words + FactorWords - 1) / FactorWords;
}

/// The factors of a row of words.
inline const StoredFactor* FactorsOf(const Word* words) {
    return reinterpret_cast<const StoredFactor*>(words);
}
inline StoredFactor* FactorsOf(Word* words) {
    return reinterpret_cast<StoredFactor*>(words);
}

}  // namespace vqz::kernels
