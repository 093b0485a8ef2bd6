// The random number.
#pragma once

#include <cstddef>
#include <span>

#include "host/debug_log.hpp"
#include "host/random.hpp"
#include "host/routine.hpp"
#include "number/value/number_object.hpp"

namespace vqz {

/// Fills a range with random bytes, from the lowest address on.
inline void FillWithRandomBytes(std::span<std::byte> bytes) {
    for (std::byte& byte : bytes) {
        byte = static_cast<std::byte>(RandomUInt32() & 0xFF);
    }
}

/// A positive number whose mantissa and exponent are random in every bit. It is not normalised:
/// the top bit of its mantissa may be clear.
template <typename Value, FixedString LogName>
NamedRoutine RandomNumber() {
    return MakeRoutine<LogName>([] {
        Value value = NanValue<Value>();
        value.SetOne();
        auto& mantissa = value.mantissa.table;
        auto& exponent = value.exponent.table;
        if (DebugEnabled) {
            LogUInt("mantissaLength", sizeof mantissa);
        }
        FillWithRandomBytes(std::as_writable_bytes(std::span(mantissa)));
        if (DebugEnabled) {
            LogUInt("exponentLength", sizeof exponent);
        }
        FillWithRandomBytes(std::as_writable_bytes(std::span(exponent)));
        return NewNumberObject(value);
    });
}

}  // namespace vqz
