// Expression nodes of the resolved program, those that call the plug-in excepted.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/operations.hpp"
#include "standin/language/plugin_call.hpp"

namespace standin::language::code {

class Constant final : public Expression {
public:
    explicit Constant(Value value) : value_(std::move(value)) {}
    Value Evaluate(Frame& /*frame*/) const override { return value_; }

private:
    Value value_;
};

/// The value of a variable of that type before anything is assigned, made anew each time.
class DefaultValue final : public Expression {
public:
    explicit DefaultValue(Type type) : type_(type) {}
    Value Evaluate(Frame& /*frame*/) const override { return Value::DefaultOf(type_); }

private:
    Type type_;
};

/// A text literal: a string of the host that is made anew each time.
class TextConstant final : public Expression {
public:
    explicit TextConstant(std::string utf8) : utf8_(std::move(utf8)) {}
    Value Evaluate(Frame& frame) const override { return frame.machine.MakeText(utf8_); }

private:
    std::string utf8_;
};

/// Where a variable lives.
enum class VariableKind : std::uint8_t { Local, Main, Reference, Global };

template <VariableKind Where>
class Variable final : public Expression {
public:
    explicit Variable(std::size_t slot) : slot_(slot) {}
    Value Evaluate(Frame& frame) const override { return *Storage(frame); }
    Value* Storage(Frame& frame) const override {
        if constexpr (Where == VariableKind::Local) {
            return &frame.slots[slot_];
        } else if constexpr (Where == VariableKind::Main) {
            return &frame.main.slots[slot_];
        } else if constexpr (Where == VariableKind::Global) {
            return &frame.machine.globals[slot_];
        } else {
            return &frame.slots[slot_].Target();
        }
    }

private:
    std::size_t slot_;
};

class UnaryOperation final : public Expression {
public:
    UnaryOperation(UnaryFunction function, ExpressionPtr operand)
        : function_(function), operand_(std::move(operand)) {}
    Value Evaluate(Frame& frame) const override {
        return function_(operand_->Evaluate(frame), frame.machine);
    }

private:
    UnaryFunction function_;
    ExpressionPtr operand_;
};

class BinaryOperation final : public Expression {
public:
    BinaryOperation(BinaryFunction function, ExpressionPtr left, ExpressionPtr right)
        : function_(function), left_(std::move(left)), right_(std::move(right)) {}
    Value Evaluate(Frame& frame) const override {
        const auto left = left_->Evaluate(frame);
        return function_(left, right_->Evaluate(frame), frame.machine);
    }

private:
    BinaryFunction function_;
    ExpressionPtr left_;
    ExpressionPtr right_;
};

/// `And` and `Or` of Booleans: the right side is not evaluated where the left one decides.
class ShortCircuit final : public Expression {
public:
    ShortCircuit(bool deciding, ExpressionPtr left, ExpressionPtr right)
        : deciding_(deciding), left_(std::move(left)), right_(std::move(right)) {}
    Value Evaluate(Frame& frame) const override {
        auto left = left_->Evaluate(frame);
        return left.IsTrue() == deciding_ ? left : right_->Evaluate(frame);
    }

private:
    bool deciding_;
    ExpressionPtr left_;
    ExpressionPtr right_;
};

/// One of two values, of which only that one is computed.
class Conditional final : public Expression {
public:
    Conditional(ExpressionPtr condition, ExpressionPtr value, ExpressionPtr otherwise)
        : condition_(std::move(condition)),
          value_(std::move(value)),
          otherwise_(std::move(otherwise)) {}
    Value Evaluate(Frame& frame) const override {
        return condition_->Evaluate(frame).IsTrue() ? value_->Evaluate(frame)
                                                    : otherwise_->Evaluate(frame);
    }

private:
    ExpressionPtr condition_;
    ExpressionPtr value_;
    ExpressionPtr otherwise_;
};

class Comparison final : public Expression {
public:
    Comparison(OrderFunction order, syntax::BinaryOperator comparison, ExpressionPtr left,
               ExpressionPtr right)
        : order_(order),
          comparison_(comparison),
          left_(std::move(left)),
          right_(std::move(right)) {}
    Value Evaluate(Frame& frame) const override {
        const auto left = left_->Evaluate(frame);
        return Value::Of(Fulfils(order_(left, right_->Evaluate(frame)), comparison_));
    }

private:
    OrderFunction order_;
    syntax::BinaryOperator comparison_;
    ExpressionPtr left_;
    ExpressionPtr right_;
};

/// A comparison that an Operator_Compare decides: its Integer is less than, equal to or greater
/// than 0 as the receiver is.
class ComparedByOperator final : public Expression {
public:
    /// `isMirrored` when the receiver is the right operand.
    ComparedByOperator(ExpressionPtr call, syntax::BinaryOperator comparison, bool isMirrored)
        : call_(std::move(call)), comparison_(comparison), isMirrored_(isMirrored) {}
    Value Evaluate(Frame& frame) const override {
        const auto result = call_->Evaluate(frame).Get<Integer>();
        return Value::Of(Fulfils(isMirrored_ ? 0 <=> result : result <=> 0, comparison_));
    }

private:
    ExpressionPtr call_;
    syntax::BinaryOperator comparison_;
    bool isMirrored_;
};

/// Whether two objects are the same one.
class Identity final : public Expression {
public:
    Identity(bool wanted, ExpressionPtr left, ExpressionPtr right)
        : wanted_(wanted), left_(std::move(left)), right_(std::move(right)) {}
    Value Evaluate(Frame& frame) const override {
        const auto left = left_->Evaluate(frame);
        return Value::Of((left.object() == right_->Evaluate(frame).object()) == wanted_);
    }

private:
    bool wanted_;
    ExpressionPtr left_;
    ExpressionPtr right_;
};

/// `value IsA Class`; Nil is of no class.
class ClassTest final : public Expression {
public:
    ClassTest(ExpressionPtr value, const ClassInfo& info) : value_(std::move(value)), info_(info) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr value_;
    const ClassInfo& info_;
};

/// An object as one of a more special class; raises IllegalCastException. Nil passes.
class ClassCast final : public Expression {
public:
    /// `hint` says what to write where the value is a Variant that holds none.
    ClassCast(ExpressionPtr value, const ClassInfo& info, std::string hint = {})
        : value_(std::move(value)), info_(info), hint_(std::move(hint)) {}
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr value_;
    const ClassInfo& info_;
    std::string hint_;
};

/// A call of a function that is part of the language.
class BuiltInCall final : public Expression {
public:
    BuiltInCall(BuiltInFunction function, std::vector<Argument> arguments)
        : function_(function), arguments_(std::move(arguments)) {}
    Value Evaluate(Frame& frame) const override;

private:
    BuiltInFunction function_;
    std::vector<Argument> arguments_;
};

/// A call of a member of one of the host's own classes; the first argument is the object, which
/// must not be Nil.
class HostMemberCall final : public Expression {
public:
    HostMemberCall(BuiltInFunction function, std::vector<Argument> arguments)
        : function_(function), arguments_(std::move(arguments)) {}
    Value Evaluate(Frame& frame) const override;

private:
    BuiltInFunction function_;
    std::vector<Argument> arguments_;
};

/// A new object that a constructor of the host fills.
class NewHostObject final : public Expression {
public:
    NewHostObject(const ClassInfo& info, BuiltInFunction constructor,
                  std::vector<Argument> arguments)
        : info_(info), constructor_(constructor), arguments_(std::move(arguments)) {}
    Value Evaluate(Frame& frame) const override;

private:
    const ClassInfo& info_;
    BuiltInFunction constructor_;
    std::vector<Argument> arguments_;
};

/// A call of one of the program's own routines, which outlives the node.
class RoutineCall final : public Expression {
public:
    /// The first argument of a method is its object, which must not be Nil.
    RoutineCall(const Routine& routine, std::vector<Argument> arguments, bool isMethod = false)
        : routine_(routine), arguments_(std::move(arguments)), isMethod_(isMethod) {}
    Value Evaluate(Frame& frame) const override;

private:
    const Routine& routine_;
    std::vector<Argument> arguments_;
    bool isMethod_;
};

/// Appends the values of the arguments of a routine, from left to right. ByRef ones refer to their
/// places for as long as `references` lives.
void AppendValues(std::vector<Value>& values, const std::vector<Argument>& arguments, Frame& frame,
                  References& references);

/// Runs a routine with values in its first slots.
Value CallRoutine(const Routine& routine, std::vector<Value> arguments, Frame& caller);

}  // namespace standin::language::code
