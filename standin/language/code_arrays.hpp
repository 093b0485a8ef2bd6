// Nodes of the resolved program that make arrays and use their elements.
#pragma once

#include <utility>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language::code {

/// A new array whose elements have the default of their type.
class NewArray final : public Expression {
public:
    /// `lastIndex` is null for an empty array.
    NewArray(Type element, ExpressionPtr lastIndex)
        : element_(element), lastIndex_(std::move(lastIndex)) {}
    Value Evaluate(Frame& frame) const override;

private:
    Type element_;
    ExpressionPtr lastIndex_;
};

/// A new array of values.
class ArrayOfValues final : public Expression {
public:
    ArrayOfValues(Type element, std::vector<ExpressionPtr> items)
        : element_(element), items_(std::move(items)) {}
    Value Evaluate(Frame& frame) const override;

private:
    Type element_;
    std::vector<ExpressionPtr> items_;
};

/// One element of an array.
class Element final : public Expression {
public:
    Element(ExpressionPtr array, ExpressionPtr index)
        : array_(std::move(array)), index_(std::move(index)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr array_;
    ExpressionPtr index_;
};

/// A value into an element of an array.
class SetElement final : public Expression {
public:
    SetElement(ExpressionPtr array, ExpressionPtr index, ExpressionPtr value)
        : array_(std::move(array)), index_(std::move(index)), value_(std::move(value)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr array_;
    ExpressionPtr index_;
    ExpressionPtr value_;
};

/// What a loop over an array is made of.
struct ForEachParts {
    ExpressionPtr array;
    /// A hidden variable, which gets each element as it is.
    ExpressionPtr element;
    /// The loop's variable, and the element as one of its type.
    ExpressionPtr variable;
    ExpressionPtr converted;
    Block body;
};

/// A loop over the elements that an array has at each round.
class ForEachLoop final : public Statement {
public:
    ForEachLoop(Position at, ForEachParts parts) : Statement(at), parts_(std::move(parts)) {}
    Flow Execute(Frame& frame) const override;

private:
    ForEachParts parts_;
};

}  // namespace standin::language::code
