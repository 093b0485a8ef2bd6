#include "standin/language/array_members.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "standin/language/operations.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

std::int64_t LastIndexOf(const Array& array) {
    return static_cast<std::int64_t>(array.items.size()) - 1;
}

Value Count(const Arguments& arguments, const Machine& machine) {
    return Value::Of(RequireArray(arguments[0], machine).items.size());
}

/// Dimensions count from 1.
Value LastIndex(const Arguments& arguments, const Machine& machine) {
    const auto& array = RequireArray(arguments[0], machine);
    const auto dimension = arguments[1].Get<std::int64_t>();
    const auto count = std::max<std::size_t>(array.lastIndices.size(), 1);
    if (dimension < 1 || !std::cmp_less_equal(dimension, count)) {
        machine.Raise("OutOfBoundsException", "The array has no dimension with that number.");
    }
    return Value::Of(array.lastIndices.empty()
                         ? LastIndexOf(array)
                         : array.lastIndices[static_cast<std::size_t>(dimension) - 1]);
}

Value ResizeTo(const Arguments& arguments, const Machine& machine) {
    Resize(RequireArray(arguments[0], machine), arguments[1].Get<std::int64_t>(), machine);
    return {};
}

/// Puts a value before the element with that index, or behind the last one.
void Insert(Array& array, std::int64_t index, const Value& value, const Machine& machine) {
    const auto end = LastIndexOf(array) + 1;
    if (index != end) {
        RequireElement(array, index, machine);
    }
    Resize(array, end, machine);
    array.items.back() = value;
    std::rotate(array.items.begin() + static_cast<std::ptrdiff_t>(index), array.items.end() - 1,
                array.items.end());
}

Value Append(const Arguments& arguments, const Machine& machine) {
    auto& array = RequireArray(arguments[0], machine);
    Insert(array, LastIndexOf(array) + 1, arguments[1], machine);
    return {};
}

Value AddAt(const Arguments& arguments, const Machine& machine) {
    Insert(RequireArray(arguments[0], machine), arguments[1].Get<std::int64_t>(), arguments[2],
           machine);
    return {};
}

/// Takes an element out of an array and returns it.
Value Take(Array& array, std::int64_t index, const Machine& machine) {
    auto taken = std::move(RequireElement(array, index, machine));
    array.items.erase(array.items.begin() + static_cast<std::ptrdiff_t>(index));
    return taken;
}

Value RemoveAt(const Arguments& arguments, const Machine& machine) {
    Take(RequireArray(arguments[0], machine), arguments[1].Get<std::int64_t>(), machine);
    return {};
}

Value Pop(const Arguments& arguments, const Machine& machine) {
    auto& array = RequireArray(arguments[0], machine);
    return Take(array, LastIndexOf(array), machine);
}

/// Elements may go only after the array is empty: their destructors can be anything.
Value RemoveAll(const Arguments& arguments, const Machine& machine) {
    const auto removed = std::exchange(RequireArray(arguments[0], machine).items, {});
    return {};
}

/// How an array's elements are ordered; null where they have no order.
OrderFunction OrderOf(const Array& array) {
    return FindOrder(array.element.kind, array.element.kind);
}

/// The first element that equals a value, objects being equal to themselves; -1 without one.
Value IndexOf(const Arguments& arguments, const Machine& machine) {
    const auto& array = RequireArray(arguments[0], machine);
    const auto order = OrderOf(array);
    const auto& wanted = arguments[1];
    const auto found = std::ranges::find_if(array.items, [&](const Value& item) {
        return order == nullptr ? item.object() == wanted.object() : order(item, wanted) == 0;
    });
    const auto index = found - array.items.begin();
    return Value::Of(found == array.items.end() ? std::ptrdiff_t{-1} : index);
}

/// From the least to the greatest; what is not a number comes last.
Value Sort(const Arguments& arguments, const Machine& machine) {
    auto& array = RequireArray(arguments[0], machine);
    const auto order = OrderOf(array);
    const auto isNumber = [order](const Value& item) { return order(item, item) == 0; };
    const auto numbersEnd = std::stable_partition(array.items.begin(), array.items.end(), isNumber);
    std::stable_sort(array.items.begin(), numbersEnd,
                     [order](const Value& a, const Value& b) { return order(a, b) < 0; });
    return {};
}

constexpr auto Members = std::to_array<ArrayMember>({
    {"Count() As Integer", Count},
    {"LastIndex(dimension As Integer = 1) As Integer", LastIndex},
    {"LastRowIndex(dimension As Integer = 1) As Integer", LastIndex},
    {"Ubound(dimension As Integer = 1) As Integer", LastIndex},
    {"ResizeTo(lastIndex As Int64)", ResizeTo},
    {"Append(value As Element)", Append},
    {"Add(value As Element)", Append},
    {"Insert(index As Int64, value As Element)", AddAt},
    {"AddRow(value As Element)", Append},
    {"AddRowAt(index As Int64, value As Element)", AddAt},
    {"AddAt(index As Int64, value As Element)", AddAt},
    {"Remove(index As Int64)", RemoveAt},
    {"RemoveAt(index As Int64)", RemoveAt},
    {"RemoveRowAt(index As Int64)", RemoveAt},
    {"RemoveAll()", RemoveAll},
    {"RemoveAllRows()", RemoveAll},
    {"Pop() As Element", Pop},
    {"IndexOf(value As Element) As Integer", IndexOf},
    {"Sort()", Sort},
});

}  // namespace

std::span<const ArrayMember> ArrayMembers() {
    return Members;
}

Array& RequireArray(const Value& value, const Machine& machine) {
    if (value.array() == nullptr) {
        machine.Raise("NilObjectException", "An array was used before its declaration.");
    }
    return *value.array();
}

Value* FindElement(Array& array, const std::vector<std::int64_t>& indices) {
    std::size_t offset = 0;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const auto last = array.lastIndices.empty() ? LastIndexOf(array) : array.lastIndices[i];
        if (indices[i] < 0 || indices[i] > last) {
            return nullptr;
        }
        offset = offset * static_cast<std::size_t>(last + 1) + static_cast<std::size_t>(indices[i]);
    }
    return &array.items[offset];
}

Value& RequireElement(Array& array, std::int64_t index, const Machine& machine) {
    if (index < 0 || index > LastIndexOf(array)) {
        machine.Raise("OutOfBoundsException",
                      "The index " + std::to_string(index) + " is outside the array, whose last " +
                          "index is " + std::to_string(LastIndexOf(array)) + ".");
    }
    return array.items[static_cast<std::size_t>(index)];
}

Value& RequireElement(Array& array, const std::vector<std::int64_t>& indices,
                      const Machine& machine) {
    for (std::size_t i = 0; i < indices.size(); ++i) {
        if (indices[i] < 0 || indices[i] > array.lastIndices[i]) {
            machine.Raise("OutOfBoundsException",
                          "The index " + std::to_string(indices[i]) + " of dimension " +
                              std::to_string(i + 1) +
                              " is outside the array, whose last index is " +
                              std::to_string(array.lastIndices[i]) + ".");
        }
    }
    return *FindElement(array, indices);
}

void Resize(Array& array, const std::vector<std::int64_t>& lastIndices, const Machine& machine) {
    std::int64_t count = 1;
    for (const auto last : lastIndices) {
        if (last < -1) {
            machine.Raise("OutOfBoundsException", "An array has no negative size.");
        }
        if (last >= MaximumArraySize || count * (last + 1) > MaximumArraySize) {
            machine.Raise("OutOfMemoryException", "There is no memory for so large an array.");
        }
        count *= last + 1;
    }
    Array resized{.element = array.element, .lastIndices = lastIndices};
    resized.items.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) {
        resized.items.push_back(Value::DefaultOf(array.element));
    }
    std::vector<std::int64_t> indices(lastIndices.size(), 0);
    for (std::size_t next = 0; next < array.items.size(); ++next) {
        auto rest = static_cast<std::int64_t>(next);
        bool stays = true;
        for (auto i = indices.size(); i-- > 0;) {
            indices[i] = rest % (array.lastIndices[i] + 1);
            rest /= array.lastIndices[i] + 1;
            stays = stays && indices[i] <= lastIndices[i];
        }
        if (stays) {
            std::swap(RequireElement(resized, indices, machine), array.items[next]);
        }
    }
    std::swap(array.items, resized.items);
    array.lastIndices = lastIndices;
}

void Resize(Array& array, std::int64_t lastIndex, const Machine& machine) {
    if (lastIndex < -1) {
        machine.Raise("OutOfBoundsException", "An array has no negative size.");
    }
    if (lastIndex >= MaximumArraySize) {
        machine.Raise("OutOfMemoryException", "There is no memory for so large an array.");
    }
    const auto size = static_cast<std::size_t>(lastIndex + 1);
    std::vector<Value> removed;
    while (array.items.size() > size) {
        removed.push_back(std::move(array.items.back()));
        array.items.pop_back();
    }
    array.items.resize(size, Value::DefaultOf(array.element));
}

}  // namespace standin::language
