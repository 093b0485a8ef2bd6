#include "standin/language/code_expressions.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

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

std::vector<Value> EvaluateAll(const std::vector<Argument>& arguments, Frame& frame) {
    std::vector<Value> values;
    values.reserve(arguments.size());
    for (const auto& argument : arguments) {
        values.push_back(argument.value->Evaluate(frame));
    }
    return values;
}

}  // namespace

Value ClassTest::Evaluate(Frame& frame) const {
    return Value::Of(IsObjectOf(value_->Evaluate(frame), info_, frame.machine));
}

Value ClassCast::Evaluate(Frame& frame) const {
    auto value = value_->Evaluate(frame);
    RequireObjectOf(value, info_, frame.machine, hint_);
    return value;
}

Value BuiltInCall::Evaluate(Frame& frame) const {
    return function_(EvaluateAll(arguments_, frame), frame.machine);
}

Value HostMemberCall::Evaluate(Frame& frame) const {
    const auto values = EvaluateAll(arguments_, frame);
    frame.machine.RequireObject(values.front(), arguments_.front().value->written());
    return function_(values, frame.machine);
}

Value NewHostObject::Evaluate(Frame& frame) const {
    auto values = EvaluateAll(arguments_, frame);
    auto object = frame.machine.MakeObject(info_);
    values.insert(values.begin(), object);
    constructor_(values, frame.machine);
    return object;
}

Value RoutineCall::Evaluate(Frame& frame) const {
    References references;
    std::vector<Value> values;
    AppendValues(values, arguments_, frame, references);
    if (isMethod_) {
        frame.machine.RequireObject(values.front(), arguments_.front().value->written());
    }
    return CallRoutine(routine_, std::move(values), frame);
}

void AppendValues(std::vector<Value>& values, const std::vector<Argument>& arguments, Frame& frame,
                  References& references) {
    values.reserve(values.size() + arguments.size());
    for (const auto& argument : arguments) {
        values.push_back(argument.byRef
                             ? Value::ReferenceTo(*argument.value->Place(frame, references))
                             : argument.value->Evaluate(frame));
    }
}

Value CallRoutine(const Routine& routine, std::vector<Value> arguments, Frame& caller) {
    Frame callee(caller.machine, routine.slotCount, &caller.main);
    std::ranges::move(arguments, callee.slots.begin());
    callee.result = Value::DefaultOf(routine.result);
    const DepthGuard guard(caller.machine);
    routine.body.Execute(callee);
    return std::move(callee.result);
}

}  // namespace standin::language::code
