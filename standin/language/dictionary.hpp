// The class Dictionary.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "standin/language/host_members.hpp"

namespace standin::language {

inline constexpr std::string_view DictionaryClass = "Dictionary";
/// What a For Each over a Dictionary gives: a key with its value.
inline constexpr std::string_view DictionaryEntryClass = "DictionaryEntry";

std::span<const HostMember> DictionaryProperties();
std::span<const HostMember> DictionaryMethods();
std::span<const HostMember> DictionaryFactories();

/// The entries of the Dictionary that is the only argument: an array of Variants.
Value MakeDictionaryEntries(const std::vector<Value>& arguments, const Machine& machine);

}  // namespace standin::language
