// The bytes of one fuzzed input, taken from the front.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

/// The entry of a fuzz target: runs it with one input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Hands out the bytes of an input; behind its end everything is 0.
class Input {
public:
    explicit Input(std::span<const std::uint8_t> bytes)
        : bytes_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

    /// The next bytes as a value of that type.
    template <typename T>
    requires std::is_trivially_copyable_v<T> T Take() {
        T value{};
        std::memcpy(&value, bytes_.data(), std::min(sizeof value, bytes_.size()));
        Skip(sizeof value);
        return value;
    }
    /// The next `count` bytes.
    std::string Bytes(std::size_t count) {
        std::string taken(bytes_.substr(0, count));
        taken.resize(count);
        Skip(count);
        return taken;
    }
    /// One of the items, chosen by the next byte.
    template <typename Items>
    auto& OneOf(Items& items) {
        return items[Take<std::uint8_t>() % std::size(items)];
    }
    /// All that is left.
    std::string_view Rest() const { return bytes_; }

private:
    void Skip(std::size_t count) { bytes_.remove_prefix(std::min(count, bytes_.size())); }

    std::string_view bytes_;
};

}  // namespace fuzz
