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
constexpr auto KindNames = std::to_array<KindName>({
    {"Boolean", Kind::Boolean},
    {"Integer", IntegerKind},
    {"Int32", Kind::Int32},
    {"UInteger", UIntegerKind},
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
    {Kind::Int32, Kind::Int64},
    {Kind::Int32, Kind::Currency},
    {Kind::Int32, Kind::Double},
    {Kind::UInt32, Kind::Int64},
    {Kind::UInt32, Kind::UInt64},
    {Kind::UInt32, Kind::Currency},
    {Kind::UInt32, Kind::Double},
    {Kind::Single, Kind::Double},
});

}  // namespace

std::string NameOf(Type type) {
    switch (type.kind) {
        case Kind::None:
            return "nothing";
        case Kind::Nil:
            return "Nil";
        case Kind::Instance:
            return type.model->name();
        case Kind::Array:
            return NameOf(type.ElementType()) + "()";
        default:
            return std::string(std::ranges::find(KindNames, type.kind, &KindName::kind)->name);
    }
}

std::optional<Kind> FindKind(std::string_view name) {
    const auto* found = std::ranges::find_if(
        KindNames, [name](const KindName& row) { return SameName(row.name, name); });
    return found == KindNames.end() ? std::nullopt : std::optional(found->kind);
}

bool IsInteger(Kind kind) {
    return kind >= Kind::Int32 && kind <= Kind::UInt64;
}

bool IsReal(Kind kind) {
    return kind == Kind::Single || kind == Kind::Double;
}

bool IsNumber(Kind kind) {
    return IsInteger(kind) || IsReal(kind) || kind == Kind::Currency;
}

bool IsSigned(Kind integer) {
    return integer == Kind::Int32 || integer == Kind::Int64;
}

bool IsHandle(Kind kind) {
    return kind == Kind::Nil || kind == Kind::Instance || kind == Kind::Variant;
}

bool Widens(Kind from, Kind to) {
    return std::ranges::any_of(
        Widenings, [from, to](const Widening& row) { return row.from == from && row.to == to; });
}

Kind CommonKind(Kind left, Kind right) {
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
