// Reads the bytes of a host string or MemoryBlock.
#pragma once

#include <algorithm>
#include <cstdint>

#include "host/references.hpp"
#include "interface/host_interface.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {

/// The bytes of a host string or of a MemoryBlock. Holds a reference to it, so that the bytes stay
/// valid. An empty view has null data and length 0.
class ByteView {
public:
    /// All bytes of a string as the host stores them; a null string gives an empty view.
    explicit ByteView(host_interface::String text) : string_(StringReference::Share(text)) {
        if (text != nullptr) {
            data_ = text->storage + 1;
            length_ = text->length;
        }
    }

    /// `length` bytes of a MemoryBlock from `offset` on; a length of 0 means the size of the whole
    /// block. Bounds are not checked. A null block, or one without data, gives an empty view.
    explicit ByteView(host_interface::Object block, std::int32_t offset = 0,
                      std::int32_t length = 0)
        : block_(ObjectReference::Share(block)) {
        if (block == nullptr) {
            return;
        }
        const std::int32_t wanted =
            length == 0 ? std::max<std::int32_t>(host::memoryBlockGetSize(block), 0) : length;
        if (const void* first = host::memoryBlockGetPtr(block)) {
            data_ = static_cast<const char*>(first) + offset;
            length_ = wanted;
        }
    }

    const char* data() const noexcept { return data_; }
    std::int32_t length() const noexcept { return length_; }

private:
    StringReference string_;
    ObjectReference block_;
    const char* data_ = nullptr;
    std::int32_t length_ = 0;
};

}  // namespace vqz
