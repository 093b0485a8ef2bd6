// The names that the host has and this language has not.
#pragma once

#include <string_view>

namespace standin::language {

/// Whether the host has a type, a module, a function or an object of that name that is not
/// supported here.
bool IsUnsupported(std::string_view name);

/// Whether the host has a member of that name in one of its own types, that is not supported here.
/// An array is of the type "Array".
bool IsUnsupportedMember(std::string_view type, std::string_view member);

}  // namespace standin::language
