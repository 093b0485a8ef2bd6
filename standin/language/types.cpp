#include "standin/language/types.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "standin/language/class_model.hpp"
#include "standin/language/names.hpp"

namespace standin::language {
namespace {

struct KindName {
    std::string_view name;
    Kind kind;
};

/// Where a kind has several names the first is the one that messages show.
constexpr auto NamesOfKinds = std::to_array<KindName>({
    {"Boolean", Kind::Boolean},
    {"Integer", IntegerKind},
    {"UInteger", UIntegerKind},
    {"Int8", Kind::Int8},
    {"Byte", Kind::UInt8},
    {"UInt8", Kind::UInt8},
    {"Int16", Kind::Int16},
    {"UInt16", Kind::UInt16},
    {"Int32", Kind::Int32},
    {"UInt32", Kind::UInt32},
    {"Int64", Kind::Int64},
    {"UInt64", Kind::UInt64},
    {"Single", Kind::Single},
    {"Double", Kind::Double},
    {"Currency", Kind::Currency},
    {"String", Kind::Text},
    {"TextEncoding", Kind::TextEncoding},
    {"Variant", Kind::Variant},
});

struct Widening {
    Kind from;
    Kind to;
};

constexpr auto Widenings = std::to_array<Widening>({
    {Kind::Int8, Kind::Int16},
    {Kind::Int8, Kind::Int32},
    {Kind::UInt8, Kind::Int16},
    {Kind::UInt8, Kind::UInt16},
    {Kind::UInt8, Kind::Int32},
    {Kind::Int16, Kind::Int32},
    {Kind::UInt16, Kind::Int32},
    {Kind::Int32, Kind::Int64},
    {Kind::Int32, Kind::Currency},
    {Kind::Int32, Kind::Double},
    {Kind::UInt32, Kind::Int64},
    {Kind::UInt32, Kind::UInt64},
    {Kind::UInt32, Kind::Currency},
    {Kind::UInt32, Kind::Double},
    {Kind::Single, Kind::Double},
});

/// Integers of less than 32 bits are computed with as Int32.
Kind Promoted(Kind kind) {
    return kind >= Kind::Int8 && kind <= Kind::UInt16 ? Kind::Int32 : kind;
}

}  // namespace

std::string NameOf(Type type) {
    switch (type.kind) {
        case Kind::None:
            return "nothing";
        case Kind::Nil:
            return "Nil";
        case Kind::Instance:
        case Kind::Enumeration:
            return type.model->name();
        case Kind::Array:
            return NameOf(type.ElementType()) + "(" + std::string(type.dimensions - 1, ',') + ")";
        default:
            return std::string(std::ranges::find(NamesOfKinds, type.kind, &KindName::kind)->name);
    }
}

std::optional<Kind> FindKind(std::string_view name) {
    const auto* found = std::ranges::find_if(
        NamesOfKinds, [name](const KindName& row) { return SameName(row.name, name); });
    return found == NamesOfKinds.end() ? std::nullopt : std::optional(found->kind);
}

std::vector<std::string_view> KindNames() {
    std::vector<std::string_view> names;
    names.reserve(NamesOfKinds.size());
    for (const auto& row : NamesOfKinds) {
        names.push_back(row.name);
    }
    return names;
}

bool IsInteger(Kind kind) {
    return kind >= Kind::Int8 && kind <= Kind::UInt64;
}

bool IsReal(Kind kind) {
    return kind == Kind::Single || kind == Kind::Double;
}

bool IsNumber(Kind kind) {
    return IsInteger(kind) || IsReal(kind) || kind == Kind::Currency;
}

bool IsSigned(Kind integer) {
    return integer == Kind::Int8 || integer == Kind::Int16 || integer == Kind::Int32 ||
           integer == Kind::Int64;
}

bool IsHandle(Kind kind) {
    return kind == Kind::Nil || kind == Kind::Instance || kind == Kind::Variant;
}

bool Widens(Kind from, Kind to) {
    return std::ranges::any_of(
        Widenings, [from, to](const Widening& row) { return row.from == from && row.to == to; });
}

Kind CommonKind(Kind left, Kind right) {
    left = Promoted(left);
    right = Promoted(right);
    if (left == right || Widens(right, left)) {
        return left;
    }
    if (Widens(left, right)) {
        return right;
    }
    if (IsReal(left) || IsReal(right)) {
        return Kind::Double;
    }
    if (left == Kind::Currency || right == Kind::Currency) {
        return Kind::Currency;
    }
    const bool hasUInt64 = left == Kind::UInt64 || right == Kind::UInt64;
    return hasUInt64 ? Kind::UInt64 : Kind::Int64;
}

}  // namespace standin::language
