// What the operators of the language compute on numbers, Booleans and text.
#pragma once

#include <compare>
#include <string_view>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

using UnaryFunction = Value (*)(const Value&, const Machine&);
using BinaryFunction = Value (*)(const Value&, const Value&, const Machine&);
using OrderFunction = std::partial_ordering (*)(const Value&, const Value&);

/// From one number kind to another. Integers wrap at their width; a real number loses its fraction
/// and stops at the ends of 64 bits, NaN becomes 0; Currency rounds to four places.
UnaryFunction FindConversion(Kind from, Kind to);

/// A number, Boolean or text into a Variant, and a Variant as one of them. What a Variant holds is
/// converted as far as it can be, else 0, False or an empty text; an object raises
/// TypeMismatchException. Null for other kinds.
UnaryFunction FindBoxing(Kind from);
UnaryFunction FindUnboxing(Kind to);

/// The first argument, a Variant, as one of them.
template <Kind To>
Value Unboxed(const std::vector<Value>& arguments, const Machine& machine) {
    return FindUnboxing(To)(arguments.front(), machine);
}

/// Raises TypeMismatchException for a Variant that is an object; `wanted` says what it is not. Nil
/// passes.
void RequireHeldValue(const Value& variant, std::string_view wanted, const Machine& machine);

/// Whether an object is one of that class. Nil is of no class, and a Variant that holds a value is
/// no object to a program.
bool IsObjectOf(const Value& object, const ClassInfo& info, const Machine& machine);
/// Raises IllegalCastException for an object of another class, and for a Variant that holds a
/// value: that message ends with the hint. Nil passes.
void RequireObjectOf(const Value& object, const ClassInfo& info, const Machine& machine,
                     std::string_view hint = {});

/// `-value`; null where the kind has none.
UnaryFunction FindNegation(Kind kind);
/// `Not value`: logical on Booleans, bitwise on integers; null on other kinds.
UnaryFunction FindComplement(Kind kind);

/// The kind in which the language computes an operator on numbers that meet in `common`.
Kind WorkingKind(syntax::BinaryOperator operation, Kind common);

/// An operator on two values of one kind: arithmetic (integers wrap; `\` and `Mod` raise a
/// RuntimeException for a divisor of 0), `And`, `Or` and `Xor`, and `+` of text. Null where the
/// operator is not one of the kind's.
BinaryFunction FindOperation(syntax::BinaryOperator operation, Kind kind);

/// How two values are ordered: numbers by value whatever their kinds, text without regard to
/// letter case, Variants by what they hold. Null for kinds that have no order.
OrderFunction FindOrder(Kind left, Kind right);

/// Whether an order fulfils a comparison: Less for `<`, and so on. NaN fulfils `<>` only.
bool Fulfils(std::partial_ordering order, syntax::BinaryOperator comparison);

}  // namespace standin::language
