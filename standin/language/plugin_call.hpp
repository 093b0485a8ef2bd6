// Calls from the program into the plug-in: arguments become words, words become values.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language {

/// Names what is being called in the plug-in for as long as it lives; calls nest.
class CallLabel {
public:
    /// The label must outlive the object.
    explicit CallLabel(const char* label);
    ~CallLabel();
    CallLabel(const CallLabel&) = delete;
    CallLabel& operator=(const CallLabel&) = delete;

    /// The innermost label that lives, or null. For the report of a crash.
    static const char* Current();

private:
    const char* outer_;
};

namespace code {

/// One argument of a call: an expression, or a variable, field or element to be passed by
/// reference.
struct Argument {
    ExpressionPtr value;
    Kind kind = Kind::None;
    bool byRef = false;
};

/// A routine of the plug-in with everything that a call of it takes.
class PluginCall {
public:
    /// `label` names the member for messages. `parameter` is the word that the accessors of
    /// instance properties get between the object and the value.
    PluginCall(std::string label, host_interface::Routine routine, std::vector<Argument> arguments,
               Kind result, std::optional<std::int32_t> parameter = std::nullopt);

    /// The argument values, evaluated from left to right.
    std::vector<Value> EvaluateArguments(Frame& frame) const;

    /// Calls with these values; `self` is null for shared members, and points at null for a Nil
    /// receiver. An exception that the plug-in raised is thrown.
    Value Invoke(Frame& frame, std::vector<Value> arguments, const Object* self) const;

private:
    Value ToValue(const ReturnValue& returned) const;
    ReturnKind HowToReturn() const;

    std::string label_;
    host_interface::Routine routine_;
    std::vector<Argument> arguments_;
    Kind result_;
    std::optional<std::int32_t> parameter_;
};

/// What happens when the receiver of a call is Nil.
enum class NilReceiver : std::uint8_t {
    /// Members that read: the plug-in gets a null handle.
    Passed,
    /// Members that write: NilObjectException.
    Refused,
};

/// A call of an object's member.
class InstanceCall final : public Expression {
public:
    /// `argumentsFirst` keeps the order from left to right when the receiver is the right operand.
    InstanceCall(ExpressionPtr receiver, PluginCall call, NilReceiver nilReceiver,
                 bool argumentsFirst = false);
    Value Evaluate(Frame& frame) const override;

private:
    ExpressionPtr receiver_;
    PluginCall call_;
    NilReceiver nilReceiver_;
    bool argumentsFirst_;
};

/// A call of a class's shared member.
class SharedCall final : public Expression {
public:
    explicit SharedCall(PluginCall call) : call_(std::move(call)) {}
    Value Evaluate(Frame& frame) const override;

private:
    PluginCall call_;
};

/// A new object, its constructor (or the Operator_Convert that makes it from a value) run.
class NewObject final : public Expression {
public:
    NewObject(const ClassInfo& info, std::optional<PluginCall> constructor)
        : info_(info), constructor_(std::move(constructor)) {}
    Value Evaluate(Frame& frame) const override;

private:
    const ClassInfo& info_;
    std::optional<PluginCall> constructor_;
};

}  // namespace code
}  // namespace standin::language
