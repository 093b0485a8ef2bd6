// The class Pair: two values, written with a colon between them.
#pragma once

#include <span>

#include "standin/language/host_members.hpp"

namespace standin::language {

std::span<const HostMember> PairProperties();
std::span<const HostMember> PairFactories();

/// The sides of a Pair, which are Variants.
const Value& LeftOf(const Value& pair, const Machine& machine);
const Value& RightOf(const Value& pair, const Machine& machine);

}  // namespace standin::language
