// Checked expressions, and which of them fits where.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"
#include "standin/language/plugin_call.hpp"

namespace standin::language {

/// An expression whose type is known, with the code that computes it.
struct Checked {
    code::ExpressionPtr code;
    Type type;
    Position at = 0;
    /// The value of an integer literal, sign included.
    std::optional<std::int64_t> literal;
    /// Whether it is a variable, a field or an element, and so can be passed by reference.
    bool isVariable = false;
    /// The value of a literal with a decimal point, where it is an amount of money exactly.
    std::optional<CurrencyAmount> amount = {};
};

/// How well an argument fits a parameter, the best first.
enum class Fit : std::uint8_t {
    Exact,
    /// A number kind that holds every value of the argument's; an ancestor of its class.
    Widening,
    /// Through an Operator_Convert.
    Converting,
    /// Between numbers as an assignment does it, where something may be lost.
    Narrowing,
    /// Into a Variant and out of one.
    Boxing,
    None,
};

/// How well a value fits a type.
Fit FitOf(const Checked& value, Type to);
/// How well an argument fits a parameter; by reference only a variable, field or
/// element of that very type does.
Fit FitOf(const Checked& argument, const Parameter& parameter);

/// The value as one of the other type. Throws ProgramError where there is no way, with a hint
/// where people expect one.
Checked ConvertTo(Checked value, Type to);

/// Throws ProgramError at `at` when a declaration could not be understood.
void RequireUsable(const std::string& declaration, const std::string& problem, Position at);
/// Throws ProgramError at `at` when an entry of the plug-in's tables has no routine.
void RequireRoutine(host_interface::Routine routine, const std::string& declaration, Position at);

/// Whether a value can be told as text by its Operator_Convert, or as what a Variant holds.
bool HasTextForm(Type type);

}  // namespace standin::language
