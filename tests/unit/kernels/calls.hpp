// Members of ttmath that have kernels, called twice in one program: with the kernels, and as ttmath
// has them. Numbers go in and out as bare words, since the two are different types.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "number/kernels/words.hpp"

namespace kernel_tests {

using vqz::kernels::Word;

/// A number as raw access writes it; the lowest word of a part is the first.
template <unsigned E, unsigned W>
struct Number {
    std::uint8_t info = 0;
    std::array<Word, E> exponent{};
    std::array<Word, W> mantissa{};
};

/// What is called; `second`, `word` and `text` of an input are what it needs.
enum class Call {
    Add,
    AddCut,
    Subtract,
    SubtractCut,
    Multiply,
    MultiplyCut,
    MultiplyByWord,
    Divide,
    DivideCut,
    PowUInt,
    PowInt,
    Pow,
    Exp,
    Ln,
    Sin,
    ATan,
    ASin,
    ASinFromHalf,  ///< the auxiliary function for arguments above 1/2, without a look at them
    ToText,        ///< in the base `word`
    FromText,      ///< likewise
    IntegerText,   ///< the mantissa as an integer, likewise
};

template <unsigned E, unsigned W>
struct Input {
    Number<E, W> first{};
    Number<E, W> second{};
    Word word = 0;
    std::string text;
};

template <unsigned E, unsigned W>
struct Output {
    Number<E, W> number;
    Word carry = 0;
    std::string text;
};

namespace plain {

template <unsigned E, unsigned W>
Output<E, W> Compute(Call call, const Input<E, W>& input);

extern template Output<2, 8> Compute(Call, const Input<2, 8>&);
extern template Output<16, 64> Compute(Call, const Input<16, 64>&);

}  // namespace plain

namespace with_kernels {

template <unsigned E, unsigned W>
Output<E, W> Compute(Call call, const Input<E, W>& input);

extern template Output<2, 8> Compute(Call, const Input<2, 8>&);
extern template Output<16, 64> Compute(Call, const Input<16, 64>&);

}  // namespace with_kernels

}  // namespace kernel_tests
