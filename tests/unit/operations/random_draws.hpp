// Drawing random numbers from a class.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tests/unit/operations/number_class.hpp"

namespace operation_tests {

/// One value of Rand. Checks that it is a plain positive number by its flags.
template <typename AnyNumber>
AnyNumber Draw(NumberClass<AnyNumber>& numberClass) {
    const std::uintptr_t answer =
        numberClass.Call(numberClass.RoutineOf("Rand as $"), {}, standin::ReturnKind::Word);
    CHECK(tests::TakeRaised(standin::Host::Current()) == "");
    const auto value = numberClass.ReadAndRelease(answer);
    REQUIRE(value.has_value());
    CHECK(value->flags == 0);
    return *value;
}

/// Checks that over that many draws each bit of mantissa and exponent is seen as 0 and as 1.
template <typename AnyNumber>
void CheckBitCoverage(NumberClass<AnyNumber>& numberClass, int draws) {
    AnyNumber ones;
    AnyNumber zeros;
    const auto note = [](auto& seenOnes, auto& seenZeros, const auto& words) {
        for (std::size_t index = 0; index < words.size(); ++index) {
            seenOnes[index] |= words[index];
            seenZeros[index] |= ~words[index];
        }
    };
    for (int count = 0; count < draws; ++count) {
        const AnyNumber value = Draw(numberClass);
        note(ones.mantissa, zeros.mantissa, value.mantissa);
        note(ones.exponent, zeros.exponent, value.exponent);
    }
    AnyNumber all;
    all.mantissa.fill(0xFFFFFFFF);
    all.exponent.fill(0xFFFFFFFF);
    CHECK(ones == all);
    CHECK(zeros == all);
}

}  // namespace operation_tests
