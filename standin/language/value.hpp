// Values of a running program. A value that is a string or an object owns one reference of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "standin/language/types.hpp"
#include "standin/runtime/host.hpp"
#include "standin/runtime/memory_budget.hpp"

namespace standin::language {

struct Array;

/// A value of any type. What type it is, the checker knows; the value itself knows only what it
/// owns, so that copies and destruction keep the host's reference counts.
class Value {
public:
    Value() noexcept = default;
    Value(const Value& other) noexcept : payload_(other.payload_), owns_(other.owns_) {
        if (owns_ != Owns::Nothing) {
            Lock();
        }
    }
    Value(Value&& other) noexcept
        : payload_(other.payload_), owns_(std::exchange(other.owns_, Owns::Nothing)) {}
    Value& operator=(Value other) noexcept {
        std::swap(payload_, other.payload_);
        std::swap(owns_, other.owns_);
        return *this;
    }
    ~Value() {
        if (owns_ != Owns::Nothing) {
            Unlock();
        }
    }

    /// A number or Boolean.
    template <typename T>
    static Value Of(T number) noexcept {
        Value value;
        if constexpr (std::is_floating_point_v<T>) {
            value.payload_.real = number;
        } else if constexpr (std::is_same_v<T, CurrencyAmount>) {
            value.payload_.integer = number.scaled;
        } else {
            value.payload_.integer = static_cast<std::int64_t>(number);
        }
        return value;
    }
    /// Takes over one reference; the handle may be null.
    static Value Adopt(String text) noexcept {
        Value value;
        value.payload_.text = text;
        value.owns_ = Owns::Text;
        return value;
    }
    static Value Adopt(Object object) noexcept {
        Value value;
        value.payload_.object = object;
        value.owns_ = Owns::Instance;
        return value;
    }
    static Value Adopt(Array* array) noexcept {
        Value value;
        value.payload_.array = array;
        value.owns_ = Owns::Array;
        return value;
    }
    /// Adds a reference of its own.
    static Value Share(Object object) noexcept {
        Value value = Adopt(object);
        value.Lock();
        return value;
    }
    /// Another value by reference, as a ByRef parameter holds it.
    static Value ReferenceTo(Value& target) noexcept {
        Value value;
        value.payload_.reference = &target;
        return value;
    }
    /// The value that a variable of that type has before anything is assigned.
    static Value DefaultOf(Type type);

    template <typename T>
    T Get() const noexcept {
        if constexpr (std::is_floating_point_v<T>) {
            return static_cast<T>(payload_.real);
        } else if constexpr (std::is_same_v<T, CurrencyAmount>) {
            return CurrencyAmount{payload_.integer};
        } else {
            return static_cast<T>(payload_.integer);
        }
    }
    bool IsTrue() const noexcept { return payload_.integer != 0; }
    String text() const noexcept { return payload_.text; }
    Object object() const noexcept { return payload_.object; }
    /// Null for a variable whose declaration has not run.
    Array* array() const noexcept { return payload_.array; }
    Value& Target() const noexcept { return *payload_.reference; }

    /// Hands the owned reference to the caller; the value is left without one and null.
    String ReleaseText() noexcept {
        owns_ = Owns::Nothing;
        return std::exchange(payload_.text, nullptr);
    }
    Object ReleaseObject() noexcept {
        owns_ = Owns::Nothing;
        return std::exchange(payload_.object, nullptr);
    }
    /// Drops the reference but keeps the handle: `owner` holds the same one and lives longer.
    /// Does nothing when `owner` holds another handle.
    void BorrowFrom(const Value& owner) noexcept;

private:
    enum class Owns : std::uint8_t { Nothing, Text, Instance, Array };
    union Payload {
        std::int64_t integer = 0;
        double real;
        String text;
        Object object;
        Array* array;
        Value* reference;
    };

    void Lock() const noexcept;
    void Unlock() noexcept;

    Payload payload_;
    Owns owns_ = Owns::Nothing;
};

/// An array of the language. It lives as long as a value refers to it; no array holds another, so
/// none can hold itself.
struct Array {
    Type element;
    /// The elements, those with the same first indices beside each other.
    std::vector<Value, BudgetAllocator<Value>> items = {};
    std::size_t references = 1;
    /// The last index of each dimension, of which there are several; else empty.
    std::vector<std::int64_t> lastIndices = {};
};

}  // namespace standin::language
