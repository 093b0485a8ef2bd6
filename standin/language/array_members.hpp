// What every array of the language can do, whatever it holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language {

/// Elements that an array may have.
inline constexpr std::int64_t MaximumArraySize = std::int64_t{16} * 1024 * 1024;

/// A method of arrays: its declaration, in which "Element" stands for the type of the elements, and
/// a function that gets the array first, then the arguments.
struct ArrayMember {
    std::string_view declaration;
    BuiltInFunction function;
};

/// All methods of arrays.
std::span<const ArrayMember> ArrayMembers();

/// The array in a value. Raises NilObjectException for a variable whose declaration has not run.
Array& RequireArray(const Value& value, const Machine& machine);
/// The element with these indices, one for each dimension; null where there is none.
Value* FindElement(Array& array, const std::vector<std::int64_t>& indices);
/// The element with that index. Raises OutOfBoundsException where there is none.
Value& RequireElement(Array& array, std::int64_t index, const Machine& machine);
/// The same of an array of several dimensions.
Value& RequireElement(Array& array, const std::vector<std::int64_t>& indices,
                      const Machine& machine);
/// Cuts an array, or fills it up with the default of its type. The last index is -1 for an empty
/// one. Raises OutOfBoundsException below that, OutOfMemoryException beyond the largest size.
void Resize(Array& array, std::int64_t lastIndex, const Machine& machine);
/// The same in each of several dimensions. Elements keep their indices.
void Resize(Array& array, const std::vector<std::int64_t>& lastIndices, const Machine& machine);

}  // namespace standin::language
