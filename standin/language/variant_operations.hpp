// What the operators of the language compute on Variants, by the values that they hold.
#pragma once

#include "standin/language/operations.hpp"

namespace standin::language {

/// An operator on two Variants, as between the values that they hold: text is joined to text, every
/// other text counts as the number that it begins with, and Nil as 0. The result is a Variant.
/// Raises TypeMismatchException for an object, and where the values have no such operator. Null
/// for comparisons.
BinaryFunction FindVariantOperation(syntax::BinaryOperator operation);

/// `-value` of a Variant, by the same rules.
Value NegateVariant(const Value& value, const Machine& machine);

/// `Not value` of a Variant that holds a Boolean or an integer; Nil counts as 0. Raises
/// TypeMismatchException for everything else.
Value ComplementVariant(const Value& value, const Machine& machine);

/// `<`, `<=`, `>` and `>=` between two Variants, as a Boolean. Raises TypeMismatchException for an
/// object. Null for every other operator.
BinaryFunction FindVariantComparison(syntax::BinaryOperator operation);

/// The kind of the value that a Variant holds: a number kind, Boolean or Text; Integer for Nil.
/// Raises TypeMismatchException for an object.
Kind HeldKind(const Value& variant, const Machine& machine);

}  // namespace standin::language
