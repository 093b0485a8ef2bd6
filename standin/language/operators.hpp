// The operators between two values: their signs, and the methods with which a class defines them.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "standin/language/syntax.hpp"

namespace standin::language {

inline constexpr std::string_view CompareOperator = "Operator_Compare";

struct OperatorRow {
    syntax::BinaryOperator operation;
    std::string_view sign;
    /// The operator that a class may have; comparisons share one, identity is nobody's.
    std::string_view method;
};

inline constexpr auto Operators = std::to_array<OperatorRow>({
    {syntax::BinaryOperator::Power, "^", "Operator_Power"},
    {syntax::BinaryOperator::Multiply, "*", "Operator_Multiply"},
    {syntax::BinaryOperator::Divide, "/", "Operator_Divide"},
    {syntax::BinaryOperator::IntegerDivide, "\\", "Operator_IntegerDivide"},
    {syntax::BinaryOperator::Modulo, "Mod", "Operator_Modulo"},
    {syntax::BinaryOperator::Add, "+", "Operator_Add"},
    {syntax::BinaryOperator::Subtract, "-", "Operator_Subtract"},
    {syntax::BinaryOperator::Equal, "=", CompareOperator},
    {syntax::BinaryOperator::NotEqual, "<>", CompareOperator},
    {syntax::BinaryOperator::Less, "<", CompareOperator},
    {syntax::BinaryOperator::LessEqual, "<=", CompareOperator},
    {syntax::BinaryOperator::Greater, ">", CompareOperator},
    {syntax::BinaryOperator::GreaterEqual, ">=", CompareOperator},
    {syntax::BinaryOperator::Is, "Is", {}},
    {syntax::BinaryOperator::And, "And", "Operator_And"},
    {syntax::BinaryOperator::Or, "Or", "Operator_Or"},
    {syntax::BinaryOperator::Xor, "Xor", "Operator_XOr"},
});

}  // namespace standin::language
