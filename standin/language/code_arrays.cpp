#include "standin/language/code_arrays.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "standin/language/array_members.hpp"
#include "standin/language/code_expressions.hpp"

namespace standin::language::code {
namespace {

std::vector<std::int64_t> EvaluateIndices(const std::vector<ExpressionPtr>& expressions,
                                          Frame& frame) {
    std::vector<std::int64_t> indices;
    indices.reserve(expressions.size());
    for (const auto& expression : expressions) {
        indices.push_back(expression->Evaluate(frame).Get<std::int64_t>());
    }
    return indices;
}

Value& RequireElementAt(const Value& array, const std::vector<ExpressionPtr>& expressions,
                        Frame& frame) {
    if (expressions.size() == 1) {
        const auto index = expressions.front()->Evaluate(frame).Get<std::int64_t>();
        return RequireElement(RequireArray(array, frame.machine), index, frame.machine);
    }
    const auto indices = EvaluateIndices(expressions, frame);
    return RequireElement(RequireArray(array, frame.machine), indices, frame.machine);
}

}  // namespace

Value NewArray::Evaluate(Frame& frame) const {
    auto array = Value::DefaultOf(array_);
    if (lastIndices_.size() == 1) {
        Resize(*array.array(), lastIndices_.front()->Evaluate(frame).Get<std::int64_t>(),
               frame.machine);
    } else if (!lastIndices_.empty()) {
        Resize(*array.array(), EvaluateIndices(lastIndices_, frame), frame.machine);
    }
    return array;
}

Value ResizeArray::Evaluate(Frame& frame) const {
    const auto array = array_->Evaluate(frame);
    const auto lastIndices = EvaluateIndices(lastIndices_, frame);
    Resize(RequireArray(array, frame.machine), lastIndices, frame.machine);
    return {};
}

/// Sorts a copy by merging: the comparison may do anything, also to the array, and be wrong.
Value SortBy::Evaluate(Frame& frame) const {
    const auto array = array_->Evaluate(frame);
    const auto& given = RequireArray(array, frame.machine).items;
    std::vector<Value> items(given.begin(), given.end());
    std::vector<Value> merged(items.size());
    Value object;
    if (object_) {
        object = object_->Evaluate(frame);
        frame.machine.RequireObject(object, object_->written());
    }
    const auto goesFirst = [&](const Value& left, const Value& right) {
        std::vector<Value> arguments;
        if (object_) {
            arguments.push_back(object);
        }
        arguments.insert(arguments.end(), {left, right});
        return CallRoutine(comparison_, std::move(arguments), frame).Get<std::int64_t>() <= 0;
    };
    for (std::size_t run = 1; run < items.size(); run *= 2) {
        for (std::size_t start = 0; start < items.size(); start += 2 * run) {
            const auto middle = std::min(start + run, items.size());
            const auto end = std::min(start + 2 * run, items.size());
            auto left = start;
            auto right = middle;
            for (auto next = start; next < end; ++next) {
                const bool takesLeft =
                    right == end || (left < middle && goesFirst(items[left], items[right]));
                merged[next] = items[takesLeft ? left++ : right++];
            }
        }
        std::swap(items, merged);
    }
    auto& sorted = RequireArray(array, frame.machine).items;
    sorted.assign(items.begin(), items.end());
    return {};
}

Value ArrayOfValues::Evaluate(Frame& frame) const {
    auto array = Value::DefaultOf(Type::ArrayOf(element_));
    for (const auto& item : items_) {
        array.array()->items.push_back(item->Evaluate(frame));
    }
    return array;
}

Value Element::Evaluate(Frame& frame) const {
    const auto value = array_->Evaluate(frame);
    return RequireElementAt(value, indices_, frame);
}

Value* Element::Place(Frame& frame, References& references) const {
    const auto value = array_->Evaluate(frame);
    auto& array = RequireArray(value, frame.machine);
    auto indices = EvaluateIndices(indices_, frame);
    if (indices.size() == 1) {
        RequireElement(array, indices.front(), frame.machine);
    } else {
        RequireElement(array, indices, frame.machine);
    }
    return &references.Borrow(value, std::move(indices));
}

Value SetElement::Evaluate(Frame& frame) const {
    const auto array = array_->Evaluate(frame);
    if (indices_.size() == 1) {
        const auto index = indices_.front()->Evaluate(frame).Get<std::int64_t>();
        auto value = value_->Evaluate(frame);
        std::swap(RequireElement(RequireArray(array, frame.machine), index, frame.machine), value);
        return {};
    }
    const auto indices = EvaluateIndices(indices_, frame);
    auto value = value_->Evaluate(frame);
    std::swap(RequireElement(RequireArray(array, frame.machine), indices, frame.machine), value);
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
