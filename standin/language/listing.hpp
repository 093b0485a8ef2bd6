// What a plug-in registered, as a programmer reads it.
#pragma once

#include <string>

#include "standin/language/class_model.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// Every class that the plug-in registered with its members, one a line, in the plug-in's order.
/// Members without a routine, and declarations that the language does not understand, are marked.
std::string ListClasses(const Host& host, const TypeTable& types);

}  // namespace standin::language
