// The two types of number values, and their initial values.
#pragma once

#include <concepts>

#include "host/fixed_string.hpp"
#include "interface/host_interface.hpp"
#include "number/kernels/specialisations.hpp"

namespace vqz {

/// 64 bits of exponent, 256 bits of mantissa.
using BigNumberValue = ttmath::Big<TTMATH_BITS(64), TTMATH_BITS(256)>;
/// 512 bits of exponent, 2048 bits of mantissa.
using BiggerNumberValue = ttmath::Big<TTMATH_BITS(512), TTMATH_BITS(2048)>;

/// The class of each type of value: its name, and its record, which is filled in with the class
/// tables.
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

#if !defined(TTMATH_BIG_DEFAULT_CLEAR)
#error Without this setting raw access would show uninitialised bytes of new numbers.
#endif

/// A NaN with all other bits 0, the value that computations start from. The build makes all new
/// numbers so.
template <typename Value>
Value NanValue() {
    return {};
}

/// The number 0.
template <typename Value>
Value ZeroValue() {
    Value value;
    value.SetZero();
    return value;
}

/// The exact number of an integer. The magnitude is converted, so that the most negative value of
/// each type is exact too.
template <typename Value, std::integral Host>
Value NumberFrom(Host value) {
    const bool negative = value < 0;
    const auto bits = static_cast<ttmath::ulint>(value);
    Value number = NanValue<Value>();
    number.FromUInt(negative ? 0 - bits : bits);
    if (negative) {
        number.SetSign();
    }
    return number;
}

/// The value that a missing object is read as: a NaN.
template <typename Value>
inline const Value NilNumberValue = NanValue<Value>();

}  // namespace vqz
