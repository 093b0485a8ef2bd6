// The application of a project: its events, and the code around them.
#pragma once

#include <string_view>

#include "standin/language/errors.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// The class of the host from which the application inherits.
inline constexpr std::string_view ApplicationBase = "ConsoleApplication";

/// The event with which an application starts, and the one that is told of an exception that
/// nothing caught. It returns whether it took care of it.
inline constexpr std::string_view RunEvent = "Run";
inline constexpr std::string_view UnhandledEvent = "UnhandledException";

/// Adds an error for each event of a module or class that it cannot have, or that the host declares
/// otherwise. Nothing is left in such an event.
void CheckEvents(syntax::Unit& unit, ErrorList& errors);

/// The routine of an application that is that event; null without it.
const syntax::Routine* FindEvent(const syntax::Unit& unit, std::string_view name);

}  // namespace standin::language
