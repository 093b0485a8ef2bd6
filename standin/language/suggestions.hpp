// What somebody may have meant by a misspelt name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standin::language {

/// The end of a message: `; did you mean "Name"?` with the nearest of the names; empty when none is
/// near.
std::string SuggestionFor(std::string_view name, const std::vector<std::string_view>& names);

}  // namespace standin::language
