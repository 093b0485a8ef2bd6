// Nodes of the resolved program for objects of its own classes, and for variables that last.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/plugin_call.hpp"

namespace standin::language::code {

/// A field of an object, which must not be Nil.
class Field final : public Expression {
public:
    Field(ExpressionPtr object, std::size_t index) : object_(std::move(object)), index_(index) {}
    Value Evaluate(Frame& frame) const override;
    Value* Place(Frame& frame, References& references) const override;

private:
    ExpressionPtr object_;
    std::size_t index_;
};

/// A value into a field of an object.
class SetField final : public Expression {
public:
    SetField(ExpressionPtr object, std::size_t index, ExpressionPtr value)
        : object_(std::move(object)), index_(index), value_(std::move(value)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr object_;
    std::size_t index_;
    ExpressionPtr value_;
};

/// A new object of a class of the program.
class NewProgramObject final : public Expression {
public:
    /// Either routine may be null.
    NewProgramObject(const ClassInfo& info, std::vector<Type> fields, const Routine* initialiser,
                     const Routine* constructor, std::vector<Argument> arguments)
        : info_(info),
          fields_(std::move(fields)),
          initialiser_(initialiser),
          constructor_(constructor),
          arguments_(std::move(arguments)) {}
    Value Evaluate(Frame& frame) const override;

private:
    const ClassInfo& info_;
    std::vector<Type> fields_;
    const Routine* initialiser_;
    const Routine* constructor_;
    std::vector<Argument> arguments_;
};

/// The statements of an application. An exception that leaves them goes to a routine, which returns
/// whether it took care of it.
class GuardedApplication final : public Statement {
public:
    GuardedApplication(Position at, Block body, const Routine& handler)
        : Statement(at), body_(std::move(body)), handler_(handler) {}
    Flow Execute(Frame& frame) const override;

private:
    Block body_;
    const Routine& handler_;
};

/// Gives a static variable its first value, once.
class InitialiseOnce final : public Statement {
public:
    /// The slots are those of the variable and of a flag, both global.
    InitialiseOnce(Position at, std::size_t slot, std::size_t flagSlot, ExpressionPtr value)
        : Statement(at), slot_(slot), flagSlot_(flagSlot), value_(std::move(value)) {}
    Flow Execute(Frame& frame) const override;

private:
    std::size_t slot_;
    std::size_t flagSlot_;
    ExpressionPtr value_;
};

}  // namespace standin::language::code
