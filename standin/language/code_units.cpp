#include "standin/language/code_units.hpp"

#include <memory>
#include <optional>

#include "standin/language/code_expressions.hpp"
#include "standin/language/native_data.hpp"

namespace standin::language::code {
namespace {

/// The place of a field in an object, which the checker knows to have it.
Value& FieldOf(const Value& object, const Written& written, std::size_t index,
               const Machine& machine) {
    machine.RequireObject(object, written);
    return static_cast<Fields*>(machine.host().Held(object.object()))->values[index];
}

}  // namespace

Value Field::Evaluate(Frame& frame) const {
    const auto object = object_->Evaluate(frame);
    return FieldOf(object, object_->written(), index_, frame.machine);
}

Value* Field::Place(Frame& frame, References& references) const {
    auto object = object_->Evaluate(frame);
    auto& place = FieldOf(object, object_->written(), index_, frame.machine);
    references.Keep(std::move(object));
    return &place;
}

Value SetField::Evaluate(Frame& frame) const {
    const auto object = object_->Evaluate(frame);
    auto value = value_->Evaluate(frame);
    std::swap(FieldOf(object, object_->written(), index_, frame.machine), value);
    return {};
}

Value NewProgramObject::Evaluate(Frame& frame) const {
    References references;
    std::vector<Value> arguments(1);
    AppendValues(arguments, arguments_, frame, references);
    Fields::Values values;
    values.reserve(fields_.size());
    for (const auto& field : fields_) {
        values.push_back(Value::DefaultOf(field));
    }
    auto object = Value::Adopt(
        frame.machine.host().MakeObject(info_, std::make_unique<Fields>(std::move(values))));
    if (object.object() == nullptr) {
        frame.machine.Raise("OutOfMemoryException",
                            "There is no memory for a new " + info_.name + ".");
    }
    if (initialiser_ != nullptr) {
        CallRoutine(*initialiser_, {object}, frame);
    }
    if (constructor_ != nullptr) {
        arguments.front() = object;
        CallRoutine(*constructor_, std::move(arguments), frame);
    }
    return object;
}

Flow GuardedApplication::Execute(Frame& frame) const {
    std::optional<Thrown> unhandled;
    try {
        return body_.Execute(frame);
    } catch (const Thrown& thrown) {
        unhandled = thrown;
    }
    if (!CallRoutine(handler_, {unhandled->exception()}, frame).IsTrue()) {
        throw Thrown(*unhandled);
    }
    return Flow::Return;
}

Flow InitialiseOnce::Execute(Frame& frame) const {
    if (!frame.machine.globals[flagSlot_].IsTrue()) {
        auto value = value_->Evaluate(frame);
        frame.machine.globals[slot_] = std::move(value);
        frame.machine.globals[flagSlot_] = Value::Of(true);
    }
    return Flow::Next;
}

}  // namespace standin::language::code
