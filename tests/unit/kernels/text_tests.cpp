// Named hard cases of texts (text.cpp).
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

TEST_CASE_TEMPLATE("the text of an integer", S, Small, Large) {
    const auto check = [](const typename S::Mantissa& mantissa, Word base) {
        CAPTURE(base);
        return S::CheckLikePlain(
                   Call::IntegerText,
                   {.first = S::Make(mantissa), .second = {}, .word = base, .text = "before"})
            .text;
    };
    SUBCASE("0") {
        CHECK(check({}, 10) == "0");
    }
    SUBCASE("with one block of digits, and the first with two") {
        CHECK(check({999999999}, 10) == "999999999");
        CHECK(check({1000000000}, 10) == "1000000000");
        CHECK(check({1000000001}, 10) == "1000000001");
    }
    SUBCASE("with zeros in the lower blocks") {
        CHECK(check({0xA7640000, 0x0DE0B6B3}, 10) == "1000000000000000000");
    }
    SUBCASE("of every length, in every base") {
        for (Word base = 0; base <= 18; ++base) {
            for (int words = 1; words <= S::Words; words += 1 + words / 6) {
                typename S::Mantissa mantissa{};
                std::fill_n(mantissa.begin(), words, Ones);
                check(mantissa, base);
            }
        }
    }
}

TEST_CASE_TEMPLATE("the text of a number", S, Small, Large) {
    SUBCASE("next to a power of 10") {
        for (const Word value : {999999999U, 1000000000U, 1000000001U, 99999U, 100000U}) {
            S::CheckLikePlain(Call::ToText,
                              {.first = S::Integer(value), .second = {}, .word = 10, .text = {}});
        }
    }
    SUBCASE("of one whose logarithm lies next to an integer: 2^2136 is just above 10^643") {
        for (const int exponent : {2135, 2136, 2137, -2136}) {
            CAPTURE(exponent);
            S::CheckLikePlain(Call::ToText,
                              {.first = S::Make(S::Leading({Top}), exponent - S::Bits + 1),
                               .second = {},
                               .word = 10,
                               .text = {}});
        }
    }
}

TEST_CASE_TEMPLATE("a number read from a text", S, Small, Large) {
    const auto check = [](const std::string& text, Word base = 10) {
        CAPTURE(text);
        S::CheckLikePlain(Call::FromText, {.first = {}, .second = {}, .word = base, .text = text});
    };
    SUBCASE("of digits that just fit into the mantissa, and one more") {
        const auto digits = static_cast<std::size_t>(S::Bits * 0.30103);
        for (std::size_t count = digits - 2; count < digits + 3; ++count) {
            check(std::string(count, '9'));
            check("0." + std::string(count, '9'));
            check(std::string(count, '1') + "." + std::string(count, '7'));
        }
    }
    SUBCASE("of digits that are behind blocks of zeros") {
        check("0.0000000000000000000000000001");
        check("1000000000000000000000000000000");
    }
    SUBCASE("in the smallest and the largest base") {
        check(std::string(S::Bits, '1'), 2);
        check(std::string(S::Bits + 1, '1'), 2);
        check(std::string(S::Bits / 4 + 1, 'F'), 16);
    }
}
