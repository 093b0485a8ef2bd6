// What a Variant of the stand-in host returns when it is read as some type. A Variant is null
// (Nil), an object that is a Variant of itself, or an object of the class "Variant".
#pragma once

#include <cstdint>

#include "standin/runtime/state.hpp"

namespace standin {

/// The type code: 0 for null, that of the class for an object.
std::int32_t VariantTypeOf(Host::State& state, Object variant, const char* user);
/// As an integer: numbers are cut toward zero and held within the range, text is read from its
/// start, everything else is 0.
std::int64_t VariantInt64(Host::State& state, Object variant, const char* user);
/// The same; a number above the signed range is kept as it is.
std::uint64_t VariantUInt64(Host::State& state, Object variant, const char* user);
double VariantDouble(Host::State& state, Object variant, const char* user);
host_interface::Currency VariantCurrency(Host::State& state, Object variant, const char* user);
/// As text with a reference for the caller; null when there is none.
String VariantText(Host::State& state, Object variant, const char* user);

}  // namespace standin
