// The functions that the stand-in host offers to a plug-in by name.
#pragma once

#include <string_view>

namespace standin {

/// The address of a host function; null when there is none of that name. Case counts.
void* FindHostFunction(std::string_view name);

/// The address of a global method of the host; null for a declaration that it does not know.
void* FindGlobalMethod(std::string_view declaration);

/// The function that a host without a version does not offer.
inline constexpr std::string_view VersionFunctionName = "REALGetRBVersion";

}  // namespace standin
