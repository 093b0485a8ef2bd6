// Nodes of the resolved program that make arrays and use their elements.
#pragma once

#include <utility>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language::code {

/// A new array whose elements have the default of their type.
class NewArray final : public Expression {
public:
    /// `lastIndices` has one for each dimension, or none for an empty array.
    NewArray(Type array, std::vector<ExpressionPtr> lastIndices)
        : array_(array), lastIndices_(std::move(lastIndices)) {}
    Value Evaluate(Frame& frame) const override;

private:
    Type array_;
    std::vector<ExpressionPtr> lastIndices_;
};

/// An array of several dimensions in another size. What is in both sizes stays.
class ResizeArray final : public Expression {
public:
    ResizeArray(ExpressionPtr array, std::vector<ExpressionPtr> lastIndices)
        : array_(std::move(array)), lastIndices_(std::move(lastIndices)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr array_;
    std::vector<ExpressionPtr> lastIndices_;
};

/// Sorts an array by a routine that compares two elements: its result is less than, equal to or
/// greater than 0 as the first one is.
class SortBy final : public Expression {
public:
    /// The comparison is a method of `object`, unless that is null.
    SortBy(ExpressionPtr array, const Routine& comparison, ExpressionPtr object)
        : array_(std::move(array)), comparison_(comparison), object_(std::move(object)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr array_;
    const Routine& comparison_;
    ExpressionPtr object_;
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
    /// One index for each dimension.
    Element(ExpressionPtr array, std::vector<ExpressionPtr> indices)
        : array_(std::move(array)), indices_(std::move(indices)) {}
    Value Evaluate(Frame& frame) const override;
    Value* Place(Frame& frame, References& references) const override;

private:
    ExpressionPtr array_;
    std::vector<ExpressionPtr> indices_;
};

/// A value into an element of an array.
class SetElement final : public Expression {
public:
    SetElement(ExpressionPtr array, std::vector<ExpressionPtr> indices, ExpressionPtr value)
        : array_(std::move(array)), indices_(std::move(indices)), value_(std::move(value)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr array_;
    std::vector<ExpressionPtr> indices_;
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
