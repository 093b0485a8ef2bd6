// Numbers in the form that a pattern tells.
#pragma once

#include <string>
#include <string_view>

namespace standin::language {

/// The text of a number by a pattern of the host's `Format`: `#` and `0` are digits, `.` the
/// decimal point, `,` between digits asks for groups of three, `%` multiplies by 100, `+`, `-`, `(`
/// and `)` show the sign, `E+0` an exponent, `\` takes the next character as it is. Up to three
/// patterns with semicolons between them are for positive numbers, negative ones and zero.
std::string FormatNumber(double value, std::string_view pattern);

}  // namespace standin::language
