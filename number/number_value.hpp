// The two number values and the values that stand for nothing.
#pragma once

#include "interface/host_interface.hpp"
#include "number/fixed_string.hpp"
#include "number/kernels/specialisations.hpp"

namespace vqz {

/// 64 bits of exponent, 256 bits of mantissa.
using BigNumberValue = ttmath::Big<TTMATH_BITS(64), TTMATH_BITS(256)>;
/// 512 bits of exponent, 2048 bits of mantissa.
using BiggerNumberValue = ttmath::Big<TTMATH_BITS(512), TTMATH_BITS(2048)>;

/// What the class of each number value is called, and the record that the host knows it by. The
/// records stand with the class tables.
template <typename Value>
struct NumberClass;

template <>
struct NumberClass<BigNumberValue> {
    static constexpr FixedString Name = "BigNumberVQZ";
    static host_interface::ClassDefinition Record;
};

template <>
struct NumberClass<BiggerNumberValue> {
    static constexpr FixedString Name = "BiggerNumberVQZ";
    static host_interface::ClassDefinition Record;
};

/// A value of 0 with the NaN flag: what computations start from. (The build has ttmath clear its
/// new numbers too, so that raw access never shows a byte that nobody wrote.)
template <typename Value>
Value NanValue() {
    Value value;
    value.SetZeroNan();
    return value;
}

template <typename Value>
Value ZeroValue() {
    Value value;
    value.SetZero();
    return value;
}

/// What a missing number reads as: a NaN.
template <typename Value>
inline const Value NilNumberValue = NanValue<Value>();

}  // namespace vqz
