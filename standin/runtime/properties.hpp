// Properties of objects by name, as "REALGetPropValue…" and "REALSetPropValue…" reach them: those
// that the host itself keeps, and those that a plug-in registered.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "standin/runtime/state.hpp"

namespace standin {

/// A value of a property; the alternative is its type. Currency is a 64-bit integer, and so are
/// Integer and UInteger at 64 bits.
using PropertyValue =
    std::variant<std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, float, double, String>;

/// The value of the property of that name, letter case ignored; a string has a reference for the
/// caller. No value when the object is null or has no readable property of that name.
std::optional<PropertyValue> ReadProperty(Host& host, Object object, std::string_view name,
                                          const char* user);

/// Sets the property; false when there is none of that name and type that can be set.
bool WriteProperty(Host& host, Object object, std::string_view name, const PropertyValue& value,
                   const char* user);

}  // namespace standin
