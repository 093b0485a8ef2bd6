// What somebody may write in place of what does not fit: the ends of messages. They follow from
// what the classes declare, and are empty where nothing does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/builtins.hpp"
#include "standin/language/class_model.hpp"
#include "standin/language/conversions.hpp"
#include "standin/language/overloads.hpp"

namespace standin::language {

/// Whether a literal may be offered as a text. Left of an operator whose order matters it may not:
/// the operator of the object on the right would take the object first.
enum class TextOffer : std::uint8_t { Allowed, Refused };

/// How a value that does not convert by itself can become one of the type.
std::string ConversionHint(const Checked& value, Type to, TextOffer text = TextOffer::Allowed);

/// How what a Variant holds becomes an object of the class; `variant` is how it is written, or
/// empty.
std::string VariantHint(const ClassModel& model, const std::string& variant);

/// How two objects become ones of one class. Whether a constructor keeps all of the other class is
/// not known here.
std::string ClassesHint(const Checked& left, const Checked& right);

/// What there is in place of a member that a class has not: an operator of that name, a property
/// of the type that the language's functions of that name take or return, or what is meant by a
/// name that is used elsewhere.
std::string MemberHint(const ClassModel& model, std::string_view name,
                       const std::vector<const BuiltIn*>& functions);

/// Which method does what an operator that a class has not would do: `BitAnd` for `Operator_And`.
std::string OperatorHint(const ClassModel& model, std::string_view operatorMethod);

/// What a class has under the name of a function: a method, or a shared method that takes the
/// object.
std::string FunctionHint(const ClassModel& model, std::string_view name);
/// What an object has in place of the functions of one name, none of which takes it: the same, or a
/// property of the type that the functions take or return.
std::string FunctionHint(const ClassModel& model, const Candidates& functions);

/// The call of a shared method that takes the object as its first argument, where it was called on
/// the object with `count` arguments.
std::string SharedMethodHint(const ClassModel& model, const std::vector<const Method*>& methods,
                             std::size_t count);

/// The method of a new object to which the first argument of a constructor that there is not can be
/// assigned, the others being the method's.
std::string AssignmentHint(const ClassModel& model, const std::vector<Checked>& arguments);

/// How a member of objects is written that was called on their class.
std::string ReceiverHint(const ClassModel& model, std::string_view name);

/// What helps where arguments fit several candidates equally well. `model` is the class whose
/// methods or constructors these are, if any.
std::string TieHint(const ClassModel* model, const Candidates& candidates,
                    const std::vector<Checked>& arguments);

/// Which method of a class has a parameter that is named like another of its methods, such as for
/// `Round(2)`.
std::string ParameterHint(const ClassModel& model, std::string_view method);

}  // namespace standin::language
