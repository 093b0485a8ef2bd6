// How a case of the kernels' tests is written: operands with a reason, and a comparison with ttmath
// that says by how much a result is off.
#pragma once

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include <doctest/doctest.h>

#include "tests/unit/kernels/calls.hpp"

namespace kernel_tests {

/// A size of number, for cases that go through all of them.
template <unsigned E, unsigned W>
struct Size {
    using NumberType = Number<E, W>;
    using Mantissa = std::array<Word, W>;
    static constexpr int Words = W;
    static constexpr int Bits = W * vqz::kernels::WordBits;

    /// The leading words, the highest first, with `filler` in all others.
    static Mantissa Leading(std::initializer_list<Word> words, Word filler = 0) {
        Mantissa mantissa;
        mantissa.fill(filler);
        std::copy(words.begin(), words.end(), mantissa.rbegin());
        return mantissa;
    }
    /// The same with the lowest word chosen, too.
    static Mantissa Ending(Mantissa mantissa, Word lowest) {
        mantissa[0] = lowest;
        return mantissa;
    }

    /// mantissa * 2^exponent
    static NumberType Make(const Mantissa& mantissa, std::int64_t exponent = 0,
                           std::uint8_t info = 0) {
        NumberType number{.info = info, .exponent = {}, .mantissa = mantissa};
        number.exponent.fill(exponent < 0 ? ~Word{0} : 0);
        number.exponent[0] = vqz::kernels::Low(static_cast<std::uint64_t>(exponent));
        number.exponent[1] = vqz::kernels::High(static_cast<std::uint64_t>(exponent));
        return number;
    }
    /// mantissa, with the point before its top bit, * 2^exponent: from 1/2 to 1 for exponent 0
    static NumberType Fraction(const Mantissa& mantissa, std::int64_t exponent = 0,
                               std::uint8_t info = 0) {
        return Make(mantissa, exponent - Bits, info);
    }
    /// A number as the programs of tests/differential/ print it: flags, exponent and mantissa in
    /// hexadecimal digits, the highest word first. Zeros at the mantissa's end may be left out.
    static NumberType Printed(std::string_view line) {
        NumberType number;
        REQUIRE(line.size() > 3 + 8 * E);
        REQUIRE((line[2] == ' ' && line[3 + 8 * E] == ' '));
        number.info = static_cast<std::uint8_t>(FromHex(line.substr(0, 2)));
        ReadWords(number.exponent, line.substr(3, 8 * E));
        ReadWords(number.mantissa, line.substr(4 + 8 * E));
        return number;
    }
    static NumberType Integer(Word value) {
        Mantissa mantissa{};
        const int zeros = std::countl_zero(value);
        mantissa[W - 1] = value << zeros;
        return Make(mantissa, vqz::kernels::WordBits - zeros - Bits);
    }

    /// "too large by 2" and the like: how one mantissa differs from another.
    static std::string Difference(const Mantissa& actual, const Mantissa& expected) {
        const bool isLarger = std::lexicographical_compare(expected.rbegin(), expected.rend(),
                                                           actual.rbegin(), actual.rend());
        const Mantissa& larger = isLarger ? actual : expected;
        const Mantissa& smaller = isLarger ? expected : actual;
        bool borrow = false;
        Word low = 0;
        bool isSmall = true;
        for (std::size_t i = 0; i < W; ++i) {
            const std::uint64_t difference =
                std::uint64_t{larger[i]} - smaller[i] - (borrow ? 1 : 0);
            borrow = vqz::kernels::High(difference) != 0;
            if (i == 0) {
                low = vqz::kernels::Low(difference);
            } else if (vqz::kernels::Low(difference) != 0) {
                isSmall = false;
            }
        }
        if (isSmall && low == 0) {
            return "right";
        }
        return std::string(isLarger ? "too large by " : "too small by ") +
               (isSmall ? std::to_string(low) : "more than a word");
    }

    static void CheckEqual(const Output<E, W>& actual, const Output<E, W>& expected) {
        CHECK_MESSAGE(
            Difference(actual.number.mantissa, expected.number.mantissa) == "right",
            "the mantissa is " << Difference(actual.number.mantissa, expected.number.mantissa));
        CHECK(actual.number.exponent == expected.number.exponent);
        CHECK(int{actual.number.info} == int{expected.number.info});
        CHECK(actual.carry == expected.carry);
        CHECK(actual.text == expected.text);
    }

    /// Calls with the kernels and without, and compares everything that comes out.
    static Output<E, W> CheckLikePlain(Call call, const Input<E, W>& input) {
        auto expected = plain::Compute(call, input);
        CheckEqual(with_kernels::Compute(call, input), expected);
        return expected;
    }
    static Output<E, W> CheckLikePlain(Call call, const NumberType& first,
                                       const NumberType& second = {}) {
        return CheckLikePlain(call, {.first = first, .second = second, .word = 0, .text = {}});
    }

    /// Calls with the kernels alone, where ttmath would not come to an end.
    static Output<E, W> Compute(Call call, const NumberType& first, const NumberType& second = {}) {
        const Input<E, W> input = {.first = first, .second = second, .word = 0, .text = {}};
        return with_kernels::Compute(call, input);
    }

private:
    static Word FromHex(std::string_view digits) {
        Word word = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), word, 16);
        REQUIRE((read.ec == std::errc() && read.ptr == digits.data() + digits.size()));
        return word;
    }
    /// The words of `digits`, the highest first; the last digits and words may be missing.
    static void ReadWords(std::span<Word> words, std::string_view digits) {
        REQUIRE(digits.size() <= 8 * words.size());
        for (std::size_t at = 0; at < digits.size(); at += 8) {
            std::string word(digits.substr(at, 8));
            word.resize(8, '0');
            words[words.size() - 1 - at / 8] = FromHex(word);
        }
    }
};

using Small = Size<2, 8>;
using Large = Size<16, 64>;

/// The flag bits of a number.
inline constexpr std::uint8_t SignFlag = 0x80;
inline constexpr std::uint8_t NanFlag = 0x40;
inline constexpr std::uint8_t ZeroFlag = 0x20;
inline constexpr std::uint8_t FlagsWithoutMeaning = 0x1F;

inline constexpr Word Ones = ~Word{0};
inline constexpr Word Top = vqz::kernels::TopBit;

}  // namespace kernel_tests
