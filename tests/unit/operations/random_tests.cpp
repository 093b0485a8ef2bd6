// Rand: every bit of mantissa and exponent is random, and nothing else is.
#include <algorithm>

#include "tests/unit/operations/number_class.hpp"
#include "tests/unit/operations/random_draws.hpp"

namespace operation_tests {

TEST_CASE_TEMPLATE("random numbers reach every bit of mantissa and exponent", AnyNumber, Number256,
                   Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    // Each bit keeps one value over all draws with a chance of 2^-255.
    CheckBitCoverage(numberClass, 256);
    tests::CheckLedger(loaded.host());
}

TEST_CASE_TEMPLATE("two random numbers differ in the exponent", AnyNumber, Number256, Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    const AnyNumber first = Draw(numberClass);
    const AnyNumber second = Draw(numberClass);
    CHECK(first.exponent != second.exponent);
    CHECK(first.mantissa != second.mantissa);
}

TEST_CASE_TEMPLATE("a random number logs the sizes that it fills", AnyNumber, Number256,
                   Number2048) {
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    loaded.SetDebugging(true);
    Draw(numberClass);
    const auto lines = loaded.host().TakeDebugLog();
    constexpr bool big = AnyNumber::MantissaBits == 2048;
    CHECK(tests::Joined(lines).starts_with(
        big ? tests::LogLines({"GetRand", "mantissaLength 256", "exponentLength 64"})
            : tests::LogLines({"GetRand", "mantissaLength 32", "exponentLength 8"})));
}

}  // namespace operation_tests
