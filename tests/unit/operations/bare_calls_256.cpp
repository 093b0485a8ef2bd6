// The bare arithmetic library at 256 bits.
#include "tests/unit/operations/bare_calls_table.hpp"

namespace operation_tests {

using Bare = BareCalls<2, 8>;

template <>
std::span<const Operation<Number256>> Operations() {
    return Bare::AllOperations();
}

template <>
std::span<const Constant<Number256>> Constants() {
    return Bare::AllConstants();
}

template <>
std::string TextOf(const Number256& number) {
    return Bare::Text(number);
}

}  // namespace operation_tests
