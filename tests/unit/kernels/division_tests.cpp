// Named hard cases of division (divide.hpp, limb_division.hpp, factor_division.hpp).
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

TEST_CASE_TEMPLATE("a quotient", S, Small, Large) {
    const auto allOnes = S::Leading({}, Ones);
    const auto check = [](const auto& dividend, const auto& divisor) {
        S::CheckLikePlain(Call::Divide, S::Fraction(dividend), S::Fraction(divisor));
        S::CheckLikePlain(Call::DivideCut, S::Fraction(dividend), S::Fraction(divisor));
    };

    SUBCASE("of equal numbers is 1") {
        check(allOnes, allOnes);
        check(S::Leading({Top}, 0x12345678), S::Leading({Top}, 0x12345678));
    }
    SUBCASE("by a divisor one bit greater has only ones") {
        check(S::Ending(allOnes, Ones - 1), allOnes);
        check(S::Leading({Top}), S::Ending(S::Leading({Top}), 1));
    }
    SUBCASE("by a divisor one bit smaller is just above 1") {
        check(allOnes, S::Ending(allOnes, Ones - 1));
        check(S::Ending(S::Leading({Top}), 1), S::Leading({Top}));
    }
    SUBCASE("by a divisor whose first word has only ones, whose successor has no room") {
        check(S::Leading({Top}, 0x9E3779B9), S::Leading({Ones}, 0x7F4A7C15));
        check(allOnes, S::Leading({Ones}, 1));
    }
    SUBCASE("by the divisor whose rounded inverse is off the most") {
        // The first word is the smallest, and all below it are ones.
        check(S::Leading({Ones}, Ones), S::Leading({Top}, Ones));
        check(S::Leading({Top, 1}), S::Leading({Top}, Ones));
    }
    SUBCASE("by a divisor of one word: every remainder is the largest, and each digit, too") {
        check(S::Ending(allOnes, Ones - 1), S::Leading({Ones}));
        check(allOnes, S::Leading({Top}));
        check(S::Leading({Ones - 1}, Ones), S::Leading({Ones}));
    }
    SUBCASE("by a divisor of two words, and one with zero words in between") {
        check(allOnes, S::Leading({Ones, 1}));
        check(allOnes, S::Ending(S::Leading({Top}), 1));
    }
    SUBCASE("that comes out even, which its limbs leave open") {
        // dividend = 3 * 2^(n - 2), and the quotients are 3/2, 1 and 3/4.
        for (const Word first : {Top, Word{0xC0000000}}) {
            check(S::Leading({0xC0000000}), S::Leading({first}));
        }
        // (2^n - 1) / (2^(n / 2) + 1) = 2^(n / 2) - 1
        auto divisor = S::Leading({Top});
        divisor[S::Words / 2 - 1] |= Top;
        check(allOnes, divisor);
    }
    SUBCASE("that lies one unit beside one that comes out even") {
        auto divisor = S::Leading({Top});
        divisor[S::Words / 2 - 1] |= Top;
        check(S::Ending(allOnes, Ones - 1), divisor);
    }
    SUBCASE("whose digits are the largest, each 1 too small at first") {
        // 1 / (1 - 2^-28) has a 1 in each limb, and its complement only ones.
        check(S::Leading({Ones, 0xFFFFFFF0}, 0), S::Leading({0xFFFFFFF0}));
        check(allOnes, S::Leading({0xFFFFFFF0}, Ones));
        check(S::Leading({0xFFFFFFF0}, Ones), allOnes);
        // The same for limbs of 56 bits.
        check(S::Leading({Ones, 0xFFFFFF00}, 0), S::Leading({Ones, 0xFFFFFF00}));
        check(allOnes, S::Leading({Ones, 0xFFFFFF00}, Ones));
        check(S::Leading({Ones, 0xFFFFFF00}, Ones), allOnes);
    }
    SUBCASE("by a short divisor whose product with its inverse ends with zeros") {
        // The inverse of two words of ones is 2^63, that of 2^63 is 2^64 - 2; with words of 32 bits
        // the same for halves of these.
        for (const Word lowest : {Word{1}, Word{2}, Word{4}, Top}) {
            check(allOnes, S::Leading({Ones, Ones, 0, lowest}));
            check(allOnes, S::Leading({Ones, Ones, lowest}));
            check(allOnes, S::Leading({Top, 0, 0, lowest}));
            check(allOnes, S::Leading({Top, 0, lowest}));
            check(S::Leading({Top}), S::Leading({Ones, Ones, Ones, Ones, 0, lowest}));
        }
    }
    SUBCASE("by divisors of two and more words that are nearest to 1/2 and to 1") {
        for (int words = 2; words < S::Words; words += 1 + words / 12) {
            auto nearOne = S::Leading({}, Ones);
            std::fill_n(nearOne.begin(), S::Words - words, 0);
            auto nearHalf = S::Leading({Top});
            nearHalf[static_cast<std::size_t>(S::Words - words)] |= 1;
            CAPTURE(words);
            check(allOnes, nearOne);
            check(allOnes, nearHalf);
            check(nearHalf, nearOne);
            check(nearOne, nearHalf);
        }
    }
    SUBCASE("by divisors of every length") {
        for (int words = 1; words <= S::Words; words += 1 + words / 12) {
            auto divisor = S::Leading({}, 0xF00F0FF1);
            std::fill_n(divisor.begin(), S::Words - words, 0);
            CAPTURE(words);
            check(allOnes, divisor);
            check(S::Leading({Top}, 0x5A5A5A5A), divisor);
        }
    }
    SUBCASE("of numbers with leading zero bits") {
        check(S::Leading({1}, Ones), allOnes);
        check(allOnes, S::Leading({0, 0, 1}));
        check(S::Leading({}, 0), allOnes);
        check(S::Leading({0, 7}), S::Leading({0, 3}));
    }
    SUBCASE("by 0") {
        CHECK(
            S::CheckLikePlain(Call::Divide, S::Fraction(allOnes), S::Make({}, 0, ZeroFlag)).carry ==
            2);
    }
    SUBCASE("of operands whose flags contradict their mantissas") {
        for (const std::uint8_t info : {ZeroFlag, NanFlag, FlagsWithoutMeaning}) {
            CAPTURE(int{info});
            S::CheckLikePlain(Call::Divide, S::Fraction(allOnes, 0, info), S::Fraction(allOnes));
            S::CheckLikePlain(Call::Divide, S::Fraction(allOnes), S::Fraction(allOnes, 0, info));
        }
    }
}
