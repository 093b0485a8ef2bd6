// What the ByRef arguments of a call refer to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

#include "standin/language/value.hpp"

namespace standin::language {

/// Keeps the places that one call gets by reference for as long as it lives. Fields stay where they
/// are; elements, which a call may move, are copies that go back into their arrays at the end.
class References {
public:
    References() = default;
    ~References();
    References(const References&) = delete;
    References& operator=(const References&) = delete;

    /// Keeps the owner of a place.
    void Keep(Value owner) { owners_.push_back(std::move(owner)); }
    /// A copy of the element at these indices, which must be there. It is dropped at the end where
    /// the array has become too short for it. The same element has one copy.
    Value& Borrow(const Value& array, std::vector<std::int64_t> indices);

private:
    struct Element {
        Value array;
        std::vector<std::int64_t> indices;
        Value copy;
    };

    std::vector<Value> owners_;
    std::deque<Element> elements_;
};

}  // namespace standin::language
