// How much memory the programs of this process may hold.
#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <new>

namespace standin {

/// The bytes of strings, objects, memory blocks and arrays that are alive, and their limit. What
/// would go beyond it fails as if the machine had no more memory.
class MemoryBudget {
public:
    /// Without a call of this there is no limit. Forgets that an earlier one was exceeded.
    static void SetLimit(std::size_t bytes) {
        limit_ = bytes;
        exceeded_ = false;
    }
    /// Whether something failed since the limit was set.
    static bool exceeded() { return exceeded_; }

    /// Throws std::bad_alloc when there is no room for so many bytes more.
    static void Require(std::size_t bytes) {
        if (bytes > limit_ || used_ > limit_ - bytes) {
            exceeded_ = true;
            throw std::bad_alloc();
        }
    }
    /// Counts bytes as used; throws std::bad_alloc when there is no room for them.
    static void Take(std::size_t bytes) {
        Require(bytes);
        used_ += bytes;
    }
    /// Counts bytes as free again.
    static void Return(std::size_t bytes) noexcept { used_ -= bytes; }

private:
    static inline std::size_t limit_ = std::numeric_limits<std::size_t>::max();
    static inline std::size_t used_ = 0;
    static inline bool exceeded_ = false;
};

/// The allocator of containers that count.
template <typename T>
struct BudgetAllocator {
    using value_type = T;  // NOLINT(readability-identifier-naming): the library's name

    BudgetAllocator() = default;
    template <typename U>
    // NOLINTNEXTLINE(google-explicit-constructor): containers convert the allocators of their parts
    explicit(false) BudgetAllocator(const BudgetAllocator<U>&) noexcept {}

    T* allocate(std::size_t count) {
        MemoryBudget::Take(count * sizeof(T));
        return std::allocator<T>().allocate(count);
    }
    void deallocate(T* items, std::size_t count) noexcept {
        MemoryBudget::Return(count * sizeof(T));
        std::allocator<T>().deallocate(items, count);
    }
    template <typename U>
    bool operator==(const BudgetAllocator<U>&) const noexcept {
        return true;
    }
};

}  // namespace standin
