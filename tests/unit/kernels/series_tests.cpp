// Named hard cases of the power series (series.cpp, series_tail.hpp).
#include "number/kernels/vector_kernels.hpp"
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

namespace {

/// A series of which each term is the one before times the multiplier, and is added.
template <typename S>
vqz::kernels::TailStart Growing(const typename S::Mantissa& sum, const typename S::Mantissa& term,
                                const typename S::Mantissa& multiplier, int termShift,
                                int multiplierShift) {
    const auto ratio = [](Word) { return vqz::kernels::PreparedRatio({1, 1}); };
    return {.sum = sum.data(),
            .term = term.data(),
            .multiplier = multiplier.data(),
            .termShift = termShift,
            .multiplierShift = multiplierShift,
            .subtract = false,
            .alternate = false,
            .wholeGroups = false,
            .next = 1,
            .ratio = ratio};
}

}  // namespace

TEST_CASE("a logarithm of leading zero bits takes more terms than are added in fixed point") {
    // The series' argument is near 1 then, and its terms get small slowly: 2000 are not enough.
    for (const Word top : {Word{0x15F619A0}, Word{0x15F719A0}, Word{0x15F819A0}}) {
        CAPTURE(top);
        Large::CheckLikePlain(Call::Ln, Large::Make(Large::Leading({top}), 1 - Large::Bits));
    }
}

TEST_CASE_TEMPLATE("terms that get small slowly are added in fixed point to the last", S, Small,
                   Large) {
    // Each term is 63/128 of the one before. The first one to add is 63/128 of 2^(top - 41), where
    // 2^top is the sum; the last one is the first below 1/2, and changes nothing.
    using namespace vqz::kernels;
    constexpr Word lastIndex = S::Words == 8 ? 211 : 1963;
    auto sum = S::Leading({Top});
    const auto term = sum;
    const auto multiplier = S::Leading({Word{63} << 26});
    const auto start = Growing<S>(sum, term, multiplier, 41, 1);
    CHECK(vectorKernels->Of<S::Words>().addTail(sum.data(), start) == lastIndex);
    CHECK(sum[S::Words - 1] == Top);
    CHECK(sum[S::Words - 2] == (Word{63} << 22) / 65);
}

TEST_CASE_TEMPLATE("a term that is far too small for the sum's last bit ends a series", S, Small,
                   Large) {
    using namespace vqz::kernels;
    const auto full = S::Leading({}, Ones);
    for (const int termShift : {41, S::Bits - 57, S::Bits - 29, S::Bits - 28, S::Bits - 1}) {
        for (const int multiplierShift : {S::Bits - termShift + 2, S::Bits - 1}) {
            CAPTURE(termShift);
            CAPTURE(multiplierShift);
            auto sum = S::Leading({Top});
            const auto start = Growing<S>(sum, full, full, termShift, multiplierShift);
            CHECK(vectorKernels->Of<S::Words>().addTail(sum.data(), start) == 1);
            CHECK(sum == S::Leading({Top}));
        }
    }
}

TEST_CASE_TEMPLATE("a series", S, Small, Large) {
    const auto calls = {Call::Exp, Call::Ln, Call::Sin, Call::ATan, Call::ASin};
    SUBCASE("of an argument next to 0, which has one term") {
        for (const Call call : calls) {
            S::CheckLikePlain(call, S::Fraction(S::Leading({Top}), 2 - S::Bits));
        }
    }
    SUBCASE("of an argument of few bits, whose terms are exact for long") {
        for (const Call call : calls) {
            for (const int exponent : {-1, -3, -20}) {
                S::CheckLikePlain(call, S::Fraction(S::Leading({Top}), exponent));
            }
        }
    }
    SUBCASE("of an argument next to where it is split: 1/2, 1, 2 and pi/4") {
        for (const Call call : calls) {
            for (const Word top : {Top, Ones, Word{0xC90FDAA2}, Word{0xC90FDAA3}}) {
                for (const int exponent : {0, 1}) {
                    S::CheckLikePlain(call, S::Fraction(S::Leading({top}, top), exponent));
                }
            }
        }
    }
    SUBCASE("of 1, and of 1 with contradicting flags") {
        for (const Call call : calls) {
            for (const std::uint8_t info :
                 {std::uint8_t{0}, SignFlag, ZeroFlag, NanFlag, FlagsWithoutMeaning}) {
                S::CheckLikePlain(call, S::Fraction(S::Leading({Top}), 1, info));
                S::CheckLikePlain(call, S::Fraction(S::Leading({0xB504F333}), 0, info));
            }
        }
    }
    SUBCASE("of the arc sine keeps flag bits without a meaning, above 1 as well") {
        // No member passes an argument above 1.
        for (const int exponent : {0, 1, 2}) {
            CAPTURE(exponent);
            S::CheckLikePlain(Call::ASinFromHalf,
                              S::Fraction(S::Leading({0xB504F333}), exponent, FlagsWithoutMeaning));
        }
    }
}

TEST_CASE_TEMPLATE("e to a number whose mantissa is 0, without the zero flag, is 1", S, Small,
                   Large) {
    for (const std::uint8_t info : {std::uint8_t{0}, SignFlag}) {
        auto number = S::Make({}, 0, info);
        for (const int exponent : {-S::Bits, -1, 0, 1, 20'000}) {
            CAPTURE(exponent);
            const auto result = S::CheckLikePlain(Call::Exp, S::Make({}, exponent, info));
            S::CheckEqual(result, {.number = S::Integer(1), .carry = 0, .text = {}});
        }
        // ttmath takes as many steps as the exponent says, so nothing compares with it here.
        for (const Word top : {Word{1}, Ones >> 2}) {
            number.exponent.back() = top;
            const auto result = S::Compute(Call::Exp, number);
            S::CheckEqual(result, {.number = S::Integer(1), .carry = 0, .text = {}});
        }
    }
}
