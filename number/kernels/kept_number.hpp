// Numbers that are computed at their first use and kept for all threads, without a lock.
#pragma once

#include <atomic>
#include <memory>
#include <new>
#include <type_traits>

namespace vqz::kernels {

/// A number that is computed once. Threads that need it before it is kept compute it each for
/// itself, and the first one that is done keeps its result. Nobody waits for anybody.
template <typename Number>
class KeptNumber {
public:
    constexpr KeptNumber() : state_(State::Missing) {}

    /// The number in `result`. `compute` makes it from a new one and returns ttmath's carry, which
    /// is returned; a number with a carry is not kept.
    template <typename Compute>
    std::invoke_result_t<Compute, Number&> Get(Number& result, Compute compute) {
        if (state_.load(std::memory_order_acquire) == State::Kept) {
            result = *Place();
            return 0;
        }
        Number computed;
        const auto carry = compute(computed);
        State expected = State::Missing;
        if (carry == 0 &&
            state_.compare_exchange_strong(expected, State::BeingKept, std::memory_order_relaxed)) {
            std::construct_at(Place(), computed);
            state_.store(State::Kept, std::memory_order_release);
        }
        result = computed;
        return carry;
    }

private:
    enum class State : unsigned char { Missing, BeingKept, Kept };

    Number* Place() { return std::launder(reinterpret_cast<Number*>(bytes_)); }

    std::atomic<State> state_;
    alignas(Number) unsigned char bytes_[sizeof(Number)] = {};
};

}  // namespace vqz::kernels
