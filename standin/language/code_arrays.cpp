#include "standin/language/code_arrays.hpp"

#include <cstddef>
#include <cstdint>

#include "standin/language/array_members.hpp"

namespace standin::language::code {

Value NewArray::Evaluate(Frame& frame) const {
    auto array = Value::DefaultOf(Type::ArrayOf(element_));
    if (lastIndex_) {
        Resize(*array.array(), lastIndex_->Evaluate(frame).Get<std::int64_t>(), frame.machine);
    }
    return array;
}

Value ArrayOfValues::Evaluate(Frame& frame) const {
    auto array = Value::DefaultOf(Type::ArrayOf(element_));
    for (const auto& item : items_) {
        array.array()->items.push_back(item->Evaluate(frame));
    }
    return array;
}

Value Element::Evaluate(Frame& frame) const {
    const auto array = array_->Evaluate(frame);
    const auto index = index_->Evaluate(frame).Get<std::int64_t>();
    return RequireElement(RequireArray(array, frame.machine), index, frame.machine);
}

Value SetElement::Evaluate(Frame& frame) const {
    const auto array = array_->Evaluate(frame);
    const auto index = index_->Evaluate(frame).Get<std::int64_t>();
    auto value = value_->Evaluate(frame);
    std::swap(RequireElement(RequireArray(array, frame.machine), index, frame.machine), value);
    return {};
}

Flow ForEachLoop::Execute(Frame& frame) const {
    const auto value = parts_.array->Evaluate(frame);
    const auto& array = RequireArray(value, frame.machine);
    // The body may make the array longer or shorter.
    for (std::size_t next = 0; next < array.items.size();) {
        *parts_.element->Storage(frame) = array.items[next++];
        frame.machine.position = at();
        auto converted = parts_.converted->Evaluate(frame);
        *parts_.variable->Storage(frame) = std::move(converted);
        if (const auto end = EndOfLoop(parts_.body.Execute(frame), frame)) {
            return *end;
        }
    }
    return Flow::Next;
}

}  // namespace standin::language::code
