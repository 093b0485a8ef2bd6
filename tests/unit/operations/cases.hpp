// The operands that every operation is tried with.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "tests/unit/operations/bare_calls.hpp"
#include "tests/unit/operations/number.hpp"

namespace operation_tests {

/// The operands of one call, in order; nothing stands for Nil.
template <typename AnyNumber>
struct OperandTuple {
    std::vector<std::optional<AnyNumber>> numbers;
    /// The machine word behind the numbers, where the operation takes one.
    std::uint32_t extra = 0;
};

/// The special and the random operands of an operation. The same in every run.
template <typename AnyNumber>
std::vector<OperandTuple<AnyNumber>> CasesOf(const Operation<AnyNumber>& operation);

}  // namespace operation_tests
