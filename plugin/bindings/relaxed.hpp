// State that several threads may read and write at the same time.
#pragma once

#include <atomic>

namespace vqz {

/// A value that any thread may read or write at any time, without a lock and without an order
/// between it and other memory: for a switch, or for an address that is the same whoever stores it.
/// Costs as much as a plain variable.
template <typename T>
class Relaxed {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): it is made and used like the value
    constexpr explicit(false) Relaxed(T value) noexcept : value_(value) {}
    Relaxed(const Relaxed& other) noexcept : value_(T(other)) {}
    Relaxed& operator=(const Relaxed& other) noexcept {
        *this = T(other);
        return *this;
    }

    // NOLINTNEXTLINE(google-explicit-constructor)
    explicit(false) operator T() const noexcept { return value_.load(std::memory_order_relaxed); }
    Relaxed& operator=(T value) noexcept {
        value_.store(value, std::memory_order_relaxed);
        return *this;
    }

private:
    static_assert(std::atomic<T>::is_always_lock_free);
    std::atomic<T> value_;
};

}  // namespace vqz
