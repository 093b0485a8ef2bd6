// Named hard cases of addition and subtraction (add.hpp).
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

TEST_CASE_TEMPLATE("a sum", S, Small, Large) {
    const auto one = S::Fraction(S::Leading({Top}), 1);
    const auto allOnes = S::Fraction(S::Leading({}, Ones), 1);

    SUBCASE("whose carry goes through all words and out at the top") {
        S::CheckLikePlain(Call::Add, allOnes, S::Fraction(S::Leading({Top}), 2 - S::Bits));
    }
    SUBCASE("that is rounded up through all words") {
        S::CheckLikePlain(Call::Add, allOnes, S::Fraction(S::Leading({Top}), 1 - S::Bits));
    }
    SUBCASE("of a number that lies half a unit below the last bit is rounded to even") {
        S::CheckLikePlain(Call::Add, one, S::Fraction(S::Leading({Top}), 1 - S::Bits));
        S::CheckLikePlain(Call::Add, S::Fraction(S::Ending(S::Leading({Top}), 1), 1),
                          S::Fraction(S::Leading({Top}), 1 - S::Bits));
    }
    SUBCASE("of a number that lies a bit more than half a unit below the last bit") {
        S::CheckLikePlain(Call::Add, one,
                          S::Fraction(S::Ending(S::Leading({Top}), 1), 1 - S::Bits));
    }
    SUBCASE("of numbers as far apart as the mantissa is long, and one bit more or less") {
        for (int apart = -1; apart <= 2; ++apart) {
            for (const Call call : {Call::Add, Call::AddCut, Call::Subtract, Call::SubtractCut}) {
                CAPTURE(apart);
                S::CheckLikePlain(call, one,
                                  S::Fraction(S::Leading({}, Ones), 1 - S::Bits - apart));
                S::CheckLikePlain(call, S::Fraction(S::Leading({}, Ones), 1 - S::Bits - apart),
                                  one);
            }
        }
    }
    SUBCASE("of which all words but the lowest bit cancel out") {
        S::CheckLikePlain(Call::Subtract, S::Fraction(S::Ending(S::Leading({Top}), 1), 1), one);
    }
    SUBCASE("shifted by every number of bits within two words") {
        for (int bits = 0; bits <= 2 * vqz::kernels::WordBits; ++bits) {
            CAPTURE(bits);
            S::CheckLikePlain(Call::Add, allOnes,
                              S::Fraction(S::Leading({0xC0000001}, 0xA5), 1 - bits));
        }
    }
    SUBCASE("whose exponent overflows") {
        auto greatest = allOnes;
        greatest.exponent.fill(Ones);
        greatest.exponent.back() = Ones >> 1;
        const auto result = S::CheckLikePlain(Call::Add, greatest, greatest);
        CHECK(result.carry == 1);
    }
    SUBCASE("of operands whose flags contradict their mantissas") {
        for (const std::uint8_t info :
             {ZeroFlag, NanFlag, FlagsWithoutMeaning, std::uint8_t{0xFF}}) {
            CAPTURE(int{info});
            const auto odd = S::Fraction(S::Leading({Top}, Ones), 1, info);
            S::CheckLikePlain(Call::Add, odd, one);
            S::CheckLikePlain(Call::Add, one, odd);
            S::CheckLikePlain(Call::Subtract, S::Make({}, 0), odd);
        }
    }
}
