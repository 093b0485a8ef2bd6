// The class Pair: two values, written with a colon between them.
#pragma once

#include <span>
#include <string_view>

#include "standin/language/host_members.hpp"

namespace standin::language {

std::span<const HostMember> PairProperties();
std::span<const HostMember> PairFactories();

/// A new object of a class of two values.
Value MakePairOf(std::string_view className, const Value& left, const Value& right,
                 const Machine& machine);
/// The sides of a Pair, or of another object of two values, which are Variants.
const Value& LeftOf(const Value& pair, const Machine& machine);
const Value& RightOf(const Value& pair, const Machine& machine);

}  // namespace standin::language
