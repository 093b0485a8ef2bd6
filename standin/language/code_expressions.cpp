#include "standin/language/code_expressions.hpp"

#include <cstddef>

namespace standin::language::code {
namespace {

/// Routines within one another that are accepted, and the bytes of the native stack that they may
/// take: whichever ends first. The first limit is the one a program meets; the second keeps calls
/// inside huge expressions safe.
constexpr std::size_t MaximumDepth = 1000;
constexpr std::size_t MaximumStackBytes = std::size_t{6} * 1024 * 1024;

std::size_t StackAddress() {
    return reinterpret_cast<std::size_t>(__builtin_frame_address(0));
}

/// Counts one call of a routine; raises StackOverflowException beyond the limits.
class DepthGuard {
public:
    explicit DepthGuard(Machine& machine) : machine_(machine), position_(machine.position) {
        if (machine.depth == 0) {
            machine.stackBase = StackAddress();
        }
        if (machine.depth >= MaximumDepth ||
            machine.stackBase - StackAddress() > MaximumStackBytes) {
            machine.Raise("StackOverflowException", "Routines call each other too deeply.");
        }
        ++machine.depth;
    }
    ~DepthGuard() {
        --machine_.depth;
        machine_.position = position_;
    }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    Machine& machine_;
    Position position_;
};

}  // namespace

Value ClassTest::Evaluate(Frame& frame) const {
    const auto value = value_->Evaluate(frame);
    auto* const object = value.object();
    return Value::Of(object != nullptr && frame.machine.host().ClassOf(object).IsA(info_));
}

Value ClassCast::Evaluate(Frame& frame) const {
    auto value = value_->Evaluate(frame);
    if (auto* const object = value.object()) {
        const auto& actual = frame.machine.host().ClassOf(object);
        if (!actual.IsA(info_)) {
            frame.machine.Raise("IllegalCastException",
                                "A " + actual.name + " is not a " + info_.name + ".");
        }
    }
    return value;
}

Value ReadHostProperty::Evaluate(Frame& frame) const {
    const auto object = object_->Evaluate(frame);
    frame.machine.RequireObject(object);
    Host& host = frame.machine.host();
    if (property_ == HostProperty::ErrorNumber) {
        return Value::Of(host.ErrorNumber(object.object()));
    }
    return frame.machine.MakeText(host.Message(object.object()));
}

Value WriteHostProperty::Evaluate(Frame& frame) const {
    const auto object = object_->Evaluate(frame);
    const auto value = value_->Evaluate(frame);
    frame.machine.RequireObject(object);
    Host& host = frame.machine.host();
    if (property_ == HostProperty::ErrorNumber) {
        host.SetErrorNumber(object.object(), value.Get<std::int32_t>());
    } else {
        host.SetMessage(object.object(), host.Utf8(value.text()));
    }
    return {};
}

Value NewException::Evaluate(Frame& frame) const {
    const auto message = message_->Evaluate(frame);
    const auto errorNumber = errorNumber_->Evaluate(frame);
    auto exception = frame.machine.MakeObject(info_);
    Host& host = frame.machine.host();
    host.SetMessage(exception.object(), host.Utf8(message.text()));
    host.SetErrorNumber(exception.object(), errorNumber.Get<std::int32_t>());
    return exception;
}

Value BuiltInCall::Evaluate(Frame& frame) const {
    std::vector<Value> values;
    values.reserve(arguments_.size());
    for (const auto& argument : arguments_) {
        values.push_back(argument.value->Evaluate(frame));
    }
    return function_(values, frame.machine);
}

Value RoutineCall::Evaluate(Frame& frame) const {
    Frame callee(frame.machine, routine_.slotCount, &frame.main);
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        const auto& argument = arguments_[i];
        callee.slots[i] = argument.byRef ? Value::ReferenceTo(*argument.value->Storage(frame))
                                         : argument.value->Evaluate(frame);
    }
    callee.result = Value::DefaultOf(routine_.result);
    const DepthGuard guard(frame.machine);
    routine_.body.Execute(callee);
    return std::move(callee.result);
}

}  // namespace standin::language::code
