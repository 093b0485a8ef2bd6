// Static types of the language.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "interface/host_interface.hpp"

namespace standin::language {

using host_interface::Integer;

class ClassModel;

/// What a value is made of.
enum class Kind : std::uint8_t {
    /// Of a routine that returns nothing.
    None,
    /// Of the literal Nil, before it meets a type.
    Nil,
    Boolean,
    Int8,
    UInt8,
    Int16,
    UInt16,
    Int32,
    UInt32,
    Int64,
    UInt64,
    Single,
    Double,
    Currency,
    /// The type String.
    Text,
    /// A text encoding, as `Encodings` hands them out.
    TextEncoding,
    /// One of the named values of an `Enum`, held as its whole number.
    Enumeration,
    /// An object of a class.
    Instance,
    /// A value of any type in an object of the host; an object is a Variant of itself.
    Variant,
    /// A row of values of one type. Who has the array has the same one.
    Array,
};

/// Integer and UInteger are as wide as the host's pointers.
inline constexpr Kind IntegerKind =
    sizeof(host_interface::Integer) == 4 ? Kind::Int32 : Kind::Int64;
inline constexpr Kind UIntegerKind =
    sizeof(host_interface::UInteger) == 4 ? Kind::UInt32 : Kind::UInt64;

/// A kind; for objects and named values, and arrays of them, their class.
struct Type {
    Kind kind = Kind::None;
    const ClassModel* model = nullptr;
    /// What an array holds; None for every other kind.
    Kind element = Kind::None;
    /// Of an array; 0 for every other kind.
    std::size_t dimensions = 0;

    /// The array of a type that is no array itself.
    static Type ArrayOf(Type element, std::size_t dimensions = 1) {
        return {Kind::Array, element.model, element.kind, dimensions};
    }
    /// What an array holds.
    Type ElementType() const { return {element, model}; }

    friend bool operator==(const Type&, const Type&) = default;
};

/// An amount of money: the number times 10,000.
struct CurrencyAmount {
    std::int64_t scaled;
};
inline constexpr int CurrencyScale = 10'000;

/// The type's name as messages show it.
std::string NameOf(Type type);
/// The built-in type of that name, letter case ignored.
std::optional<Kind> FindKind(std::string_view name);

/// The names of the built-in types.
std::vector<std::string_view> KindNames();

bool IsInteger(Kind kind);
bool IsReal(Kind kind);
/// Whether the kind counts: integers, real numbers and Currency.
bool IsNumber(Kind kind);
bool IsSigned(Kind integer);
/// Whether values of the kind are handles of objects.
bool IsHandle(Kind kind);

/// Whether every value of `from` is a value of the other number kind `to` as well.
bool Widens(Kind from, Kind to);
/// The kind in which two numbers meet for arithmetic: the narrowest that holds both, the
/// larger one where none does (Double, UInt64).
Kind CommonKind(Kind left, Kind right);

/// Calls `action` with `std::type_identity` of the C++ type that holds a number kind.
template <typename Action>
decltype(auto) WithNumberType(Kind kind, Action&& action) {
    switch (kind) {
        case Kind::Int8:
            return std::forward<Action>(action)(std::type_identity<std::int8_t>{});
        case Kind::UInt8:
            return std::forward<Action>(action)(std::type_identity<std::uint8_t>{});
        case Kind::Int16:
            return std::forward<Action>(action)(std::type_identity<std::int16_t>{});
        case Kind::UInt16:
            return std::forward<Action>(action)(std::type_identity<std::uint16_t>{});
        case Kind::Int32:
            return std::forward<Action>(action)(std::type_identity<std::int32_t>{});
        case Kind::UInt32:
            return std::forward<Action>(action)(std::type_identity<std::uint32_t>{});
        case Kind::Int64:
            return std::forward<Action>(action)(std::type_identity<std::int64_t>{});
        case Kind::UInt64:
            return std::forward<Action>(action)(std::type_identity<std::uint64_t>{});
        case Kind::Single:
            return std::forward<Action>(action)(std::type_identity<float>{});
        case Kind::Double:
            return std::forward<Action>(action)(std::type_identity<double>{});
        case Kind::Currency:
            return std::forward<Action>(action)(std::type_identity<CurrencyAmount>{});
        default:
            throw std::logic_error("not a number kind");
    }
}

}  // namespace standin::language
