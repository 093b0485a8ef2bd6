// An integer that grows, and keeps count of the words in use.
#pragma once

#include "number/kernels/specialisations.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {

/// A non-negative integer of at most W words; 0 to begin with.
template <ttmath::uint W>
class GrowingInteger {
public:
    /// Makes it integer * factor + summand, unless that gets too large: then it
    /// returns false.
    bool Append(Word factor, Word summand) {
        if (words_ == W && MultiplyAdd(factor, summand, [](Word&, Word) {}) != 0) {
            return false;
        }
        const Word carry =
            MultiplyAdd(factor, summand, [](Word& word, Word result) { word = result; });
        if (carry != 0) {
            integer_.table[words_] = carry;
            ++words_;
        }
        return true;
    }

    /// Makes `number` the integer.
    template <ttmath::uint E>
    void StoreTo(ttmath::Big<E, W>& number) const {
        number.SetZero();
        number.mantissa = integer_;
        number.Standardizing();
    }

private:
    ttmath::UInt<W> integer_{0U};
    std::size_t words_ = 0;

    /// Computes integer * factor + summand: calls `tell` with each word of the integer and the word
    /// that takes its place, and returns the word above them.
    template <typename Tell>
    Word MultiplyAdd(Word factor, Word summand, Tell tell) {
        DoubleWord carry = summand;
        for (std::size_t i = 0; i < words_; ++i) {
            carry += DoubleWord{integer_.table[i]} * factor;
            tell(integer_.table[i], Low(carry));
            carry = High(carry);
        }
        return Low(carry);
    }
};

}  // namespace vqz::kernels
