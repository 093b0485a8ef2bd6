// Byte access to one host string for the length of a scope.
#pragma once

#include <cstdint>

#include "host/references.hpp"

namespace vqz {

/// A view of the bytes of a host string, or of a MemoryBlock, that keeps the host's value alive.
class ByteView {
public:
    /// All bytes of a string as the host stores them; a null string gives null data and length 0.
    explicit ByteView(host_interface::String text)
        : string_(StringReference::Share(text)),
          data_(text == nullptr ? nullptr : text->storage + 1),
          length_(text == nullptr ? 0 : text->length) {}

    const char* data() const noexcept { return data_; }
    std::int32_t length() const noexcept { return length_; }

private:
    StringReference string_;
    const char* data_ = nullptr;
    std::int32_t length_ = 0;
};

}  // namespace vqz
