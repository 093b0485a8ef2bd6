// The bare arithmetic library at 2048 bits.
#include "tests/unit/operations/bare_calls_table.hpp"

namespace operation_tests {

using Bare = BareCalls<16, 64>;

template <>
std::span<const Operation<Number2048>> Operations() {
    return Bare::AllOperations();
}

template <>
std::span<const Constant<Number2048>> Constants() {
    return Bare::AllConstants();
}

template <>
std::string TextOf(const Number2048& number) {
    return Bare::Text(number);
}

}  // namespace operation_tests
