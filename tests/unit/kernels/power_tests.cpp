// Named hard cases of integer powers (power.hpp).
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

namespace {

constexpr auto PowerCalls = {Call::Pow, Call::PowInt, Call::PowUInt};

}  // namespace

TEST_CASE(
    "an integer power whose exponent has the zero flag, with the operands as they are printed") {
    const auto base = Small::Printed("00 FFFFFFFFFFFA51C6 8F28");
    const auto power = Small::Printed("20 FFFFFFFFFFFFFF06 BC000000");
    CHECK(base.mantissa == Small::Leading({0x8F280000}));
    CHECK(base.exponent == Small::Make({}, -372282).exponent);
    for (const Call call : PowerCalls) {
        CHECK(Small::CheckLikePlain(call, base, power).number.mantissa == base.mantissa);
    }
}

TEST_CASE_TEMPLATE("an integer power", S, Small, Large) {
    SUBCASE("whose exponent has the zero flag and a mantissa other than 0") {
        // The units bit is set, and ttmath multiplies once: the result is the base.
        auto power = S::Make(S::Leading({0xBC000000}), 6 - S::Bits, ZeroFlag);
        const auto base = S::Make(S::Leading({0x8F280000}), -372282 - S::Bits);
        for (const Call call : PowerCalls) {
            const auto result = S::CheckLikePlain(call, base, power);
            CHECK(result.number.mantissa == base.mantissa);
        }
        power.info |= SignFlag;
        for (const Call call : PowerCalls) {
            S::CheckLikePlain(call, base, power);
        }
    }
    SUBCASE("whose exponent has any flags") {
        for (int info = 0; info < 0x100; info += 0x10) {
            for (const Call call : PowerCalls) {
                CAPTURE(info);
                auto power = S::Integer(5);
                power.info = static_cast<std::uint8_t>(info | 1);
                S::CheckLikePlain(call, S::Integer(3), power);
                S::CheckLikePlain(call, power, S::Integer(3));
            }
        }
    }
    SUBCASE("whose exponent or base has leading zero bits") {
        const auto unnormalised = S::Make(S::Leading({5}), vqz::kernels::WordBits - S::Bits);
        for (const Call call : PowerCalls) {
            S::CheckLikePlain(call, S::Integer(3), unnormalised);
            S::CheckLikePlain(call, unnormalised, S::Integer(3));
        }
    }
    SUBCASE("that just fits into the mantissa, and that does not") {
        for (const Word power :
             {Word{S::Bits - 2}, Word{S::Bits - 1}, Word{S::Bits}, Word{S::Bits + 1}}) {
            CAPTURE(power);
            S::CheckLikePlain(Call::Pow, S::Integer(2), S::Integer(power));
            S::CheckLikePlain(Call::Pow, S::Integer(3), S::Integer(power));
        }
    }
    SUBCASE("of a negative number") {
        auto base = S::Integer(7);
        base.info = SignFlag;
        S::CheckLikePlain(Call::Pow, base, S::Integer(4));
        S::CheckLikePlain(Call::Pow, base, S::Integer(5));
    }
    SUBCASE("of 0 and with 0") {
        const auto zero = S::Make({}, 0, ZeroFlag);
        for (const Call call : PowerCalls) {
            CHECK(S::CheckLikePlain(call, zero, zero).carry == 2);
            S::CheckLikePlain(call, zero, S::Integer(3));
            S::CheckLikePlain(call, S::Integer(3), zero);
        }
    }
    SUBCASE("of 1 and -1, also with flags that mean nothing") {
        for (const std::uint8_t info : {std::uint8_t{0}, SignFlag, FlagsWithoutMeaning}) {
            CAPTURE(int{info});
            auto one = S::Integer(1);
            one.info = info;
            for (const Word power : {1U, 2U, 3U, 1000U, 1001U}) {
                for (const Call call : PowerCalls) {
                    S::CheckLikePlain(call, one, S::Integer(power));
                }
            }
            S::CheckLikePlain(Call::PowUInt, one, S::Make(S::Leading({0xC0000000}), 1000));
        }
    }
    SUBCASE("with exponents up to the largest, for which ttmath would take centuries") {
        constexpr int compared = 20'000;
        const auto zero = S::Make({});
        const auto half = S::Make(S::Leading({Top}), -S::Bits);
        for (auto base : {S::Integer(1), zero, half}) {
            for (const std::uint8_t info : {std::uint8_t{0}, SignFlag, FlagsWithoutMeaning}) {
                CAPTURE(int{info});
                base.info = info;
                for (const auto& mantissa : {S::Leading({Top}), S::Leading({5}), zero.mantissa}) {
                    const auto expected =
                        S::CheckLikePlain(Call::PowUInt, base, S::Make(mantissa, compared));
                    auto power = S::Make(mantissa);
                    power.exponent.back() = Ones >> 1;
                    S::CheckEqual(S::Compute(Call::PowUInt, base, power), expected);
                }
            }
        }
    }
    SUBCASE("whose result has no room") {
        auto huge = S::Integer(3);
        huge.exponent.back() = Ones >> 2;
        CHECK(S::CheckLikePlain(Call::PowUInt, huge, S::Integer(100)).carry == 1);
    }
}
