// What somebody may write in place of what does not fit: the ends of messages. They follow from
// what the classes declare, and are empty where nothing does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standin/language/builtins.hpp"
#include "standin/language/class_model.hpp"
#include "standin/language/conversions.hpp"

namespace standin::language {

/// How a value that does not convert by itself can become one of the type.
std::string ConversionHint(const Checked& value, Type to);

/// What there is in place of a member that a class has not: an operator of that name, or a property
/// of the type that the language's functions of that name return.
std::string MemberHint(const ClassModel& model, std::string_view name,
                       const std::vector<const BuiltIn*>& functions);

/// What an object has in place of a function that does not take it: a method of that name, or a
/// property of the type that the function returns.
std::string FunctionHint(const ClassModel& model, const Signature& function);

/// Which method of a class has a parameter that is named like another of its methods, such as for
/// `Round(2)`.
std::string ParameterHint(const ClassModel& model, std::string_view method);

}  // namespace standin::language
