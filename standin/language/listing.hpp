// What a plug-in registered, as a programmer reads it.
#pragma once

#include <string>
#include <string_view>

#include "standin/language/class_model.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// Every class that the plug-in registered with its members, one a line, in the plug-in's order.
/// Members without a routine, and declarations that the language does not understand, are marked.
/// With a name only that class, or the members of that name. Throws std::runtime_error when there
/// is neither.
std::string ListClasses(const Host& host, const TypeTable& types, std::string_view wanted = {});

}  // namespace standin::language
