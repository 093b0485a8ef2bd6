// The class Dictionary.
#pragma once

#include <span>
#include <string_view>

#include "standin/language/host_members.hpp"

namespace standin::language {

inline constexpr std::string_view DictionaryClass = "Dictionary";

std::span<const HostMember> DictionaryProperties();
std::span<const HostMember> DictionaryMethods();
std::span<const HostMember> DictionaryFactories();

}  // namespace standin::language
