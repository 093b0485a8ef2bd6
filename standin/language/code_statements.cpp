#include "standin/language/code_statements.hpp"

#include <cmath>
#include <concepts>
#include <limits>

namespace standin::language::code {
namespace {

/// Lets go of a block's variables, also when an exception passes through it.
class SlotGuard {
public:
    SlotGuard(Frame& frame, const Block& block) : frame_(frame), block_(block) {}
    ~SlotGuard() {
        for (auto slot = block_.firstSlot; slot < block_.endSlot; ++slot) {
            frame_.slots[slot] = Value();
        }
    }
    SlotGuard(const SlotGuard&) = delete;
    SlotGuard& operator=(const SlotGuard&) = delete;

private:
    Frame& frame_;
    const Block& block_;
};

/// The next value of a counting loop's variable; none when it would leave the type's range.
template <std::integral T>
std::optional<T> Advance(T value, T step, bool isDownward) {
    T next{};
    const bool overflows = isDownward ? __builtin_sub_overflow(value, step, &next)
                                      : __builtin_add_overflow(value, step, &next);
    return overflows ? std::nullopt : std::optional(next);
}

template <std::floating_point T>
std::optional<T> Advance(T value, T step, bool isDownward) {
    return isDownward ? value - step : value + step;
}

}  // namespace

std::optional<Flow> EndOfLoop(Flow flow, Frame& frame) {
    if (flow == Flow::Next || flow == Flow::Return) {
        return flow == Flow::Next ? std::nullopt : std::optional(flow);
    }
    if (frame.outerLoops > 0) {
        --frame.outerLoops;
        return flow;
    }
    return flow == Flow::Continue ? std::nullopt : std::optional(Flow::Next);
}

Flow Block::Execute(Frame& frame) const {
    const SlotGuard guard(frame, *this);
    frame.machine.Step();
    for (const auto& statement : statements) {
        frame.machine.position = statement->at();
        frame.machine.Step();
        const Flow flow = statement->Execute(frame);
        if (flow != Flow::Next) {
            return flow;
        }
    }
    return Flow::Next;
}

Flow Assign::Execute(Frame& frame) const {
    auto value = value_->Evaluate(frame);
    *variable_->Storage(frame) = std::move(value);
    return Flow::Next;
}

Flow Perform::Execute(Frame& frame) const {
    expression_->Evaluate(frame);
    return Flow::Next;
}

Flow Print::Execute(Frame& frame) const {
    const auto text = text_->Evaluate(frame);
    frame.machine.Print(frame.machine.host().Utf8(text.text()));
    return Flow::Next;
}

Flow Branches::Execute(Frame& frame) const {
    for (const auto& branch : branches_) {
        if (!branch.condition || branch.condition->Evaluate(frame).IsTrue()) {
            return branch.body.Execute(frame);
        }
    }
    return Flow::Next;
}

Flow ConditionalLoop::Execute(Frame& frame) const {
    const auto goesOn = [this, &frame](const LoopTest& test) {
        frame.machine.position = at();
        return !test.condition || test.condition->Evaluate(frame).IsTrue() == test.wanted;
    };
    while (goesOn(before_)) {
        if (const auto end = EndOfLoop(body_.Execute(frame), frame)) {
            return *end;
        }
        if (!goesOn(after_)) {
            break;
        }
    }
    return Flow::Next;
}

template <typename T>
Flow ForLoop<T>::Execute(Frame& frame) const {
    const auto read = [this, &frame](const ExpressionPtr& expression) {
        frame.machine.position = at();
        return expression->Evaluate(frame).template Get<T>();
    };
    auto first = parts_.first->Evaluate(frame);
    *parts_.variable->Storage(frame) = std::move(first);
    for (;;) {
        const T last = read(parts_.last);
        const T step = read(parts_.step);
        const T value = read(parts_.variable);
        const bool isFalling = parts_.isDownward != (step < T{0});
        const bool isInside = isFalling ? value >= last : value <= last;
        if (!isInside) {
            return Flow::Next;
        }
        if (const auto end = EndOfLoop(parts_.body.Execute(frame), frame)) {
            return *end;
        }
        const auto next = Advance(read(parts_.variable), step, parts_.isDownward);
        if (!next) {
            return Flow::Next;
        }
        *parts_.variable->Storage(frame) = Value::Of(*next);
    }
}

StatementPtr MakeForLoop(Position at, Kind kind, ForParts parts) {
    return WithNumberType(kind, [&]<typename T>(std::type_identity<T>) -> StatementPtr {
        if constexpr (std::integral<T> || std::floating_point<T>) {
            return std::make_unique<ForLoop<T>>(at, std::move(parts));
        } else {
            throw ProgramError(at, "a loop cannot count in Currency");
        }
    });
}

Flow Return::Execute(Frame& frame) const {
    if (value_) {
        frame.result = value_->Evaluate(frame);
    }
    return Flow::Return;
}

Flow Raise::Execute(Frame& frame) const {
    auto exception = exception_->Evaluate(frame);
    frame.machine.RequireObject(exception, exception_->written());
    frame.machine.Throw(std::move(exception));
}

Flow Try::Execute(Frame& frame) const {
    if (finally_.statements.empty()) {
        return ExecuteGuarded(frame);
    }
    Flow flow = Flow::Next;
    try {
        flow = ExecuteGuarded(frame);
    } catch (const Thrown&) {
        // A Finally that leaves by itself, with Return or Exit, drops the exception.
        if (const Flow left = finally_.Execute(frame); left != Flow::Next) {
            return left;
        }
        throw;
    }
    const int outerLoops = frame.outerLoops;
    if (const Flow left = finally_.Execute(frame); left != Flow::Next) {
        return left;
    }
    frame.outerLoops = outerLoops;
    return flow;
}

Flow Try::ExecuteGuarded(Frame& frame) const {
    std::optional<Thrown> caught;
    try {
        return body_.Execute(frame);
    } catch (const Thrown& thrown) {
        if (FindCatch(thrown) == nullptr) {
            throw;
        }
        caught = thrown;
    }
    const auto& handler = *FindCatch(*caught);
    if (handler.slot) {
        frame.slots[*handler.slot] = caught->exception();
    }
    caught.reset();
    return handler.body.Execute(frame);
}

const Try::Catch* Try::FindCatch(const Thrown& thrown) const {
    const auto& info = Host::Current().ClassOf(thrown.exception().object());
    for (const auto& handler : catches_) {
        if (info.IsA(*handler.info)) {
            return &handler;
        }
    }
    return nullptr;
}

}  // namespace standin::language::code
