// One contender of the benchmark: a process that times what it is asked for. The driver asks
// several of them in turn, so that all are measured under the same conditions.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "bench/operations.hpp"

namespace bench {

/// Keeps the compiler from leaving out the computation of a value.
template <typename Value>
void Keep(Value& value) {
    asm volatile("" : : "r"(&value) : "memory");
}

/// The measurements that a process offers.
class Contender {
public:
    /// Runs the operation that many times.
    using Batch = std::function<void(std::uint64_t count)>;

    /// Offers an operation, a row of the benchmark, at a precision in bits.
    void Offer(unsigned bits, std::string_view operation, Batch batch);

    /// Offers an operation of which `once` is one run.
    template <typename Once>
    void OfferRepeated(unsigned bits, std::string_view operation, Once once) {
        Offer(bits, operation, [once](std::uint64_t count) {
            for (; count > 0; --count) {
                once();
            }
        });
    }

    /// Offers the computation of a new value from the operands of the operation's row.
    template <typename Value, typename Compute>
    void OfferComputation(unsigned bits, std::string_view operation, Compute compute) {
        const Operation& row = FindOperation(operation);
        const Value x(OperandText(row.x, bits));
        const Value y(OperandText(row.y, bits));
        OfferRepeated(bits, operation, [=] {
            auto result = compute(x, y);
            Keep(result);
        });
    }

    /// Serves the driver on the standard streams until the input ends. First it lists what it
    /// offers, a line "BITS OPERATION" each, and an empty line. Then a line "COUNT BITS OPERATION"
    /// is answered with the nanoseconds that COUNT runs took. Returns the status of the process: 0,
    /// or 2 for a line that it does not understand.
    int Serve() const;

private:
    std::map<std::pair<unsigned, std::string>, Batch> batches_;
};

}  // namespace bench
