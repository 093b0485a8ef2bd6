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
    /// All bytes of a string as the host stores them; a null string gives an empty view. A 64-bit
    /// host lends them in the string's own encoding, which is `encoding`, and when it does not, or
    /// when there are more than 0x7FFFFFFF, or a length without data, the view is empty and
    /// `failed`. A 32-bit host's strings are read without a call.
    ByteView(host_interface::String text,
             [[maybe_unused]] host_interface::HostTextEncoding encoding)
        : string_(StringReference::Share(text)) {
        if (text == nullptr) {
            return;
        }
#if HOST_INTERFACE_32_BIT
        data_ = text->storage + 1;
        length_ = text->length;
#else
        isLent_ = host::PluginGetStringData(text, static_cast<std::uint32_t>(encoding), &lent_);
        failed_ =
            !isLent_ || lent_.length > INT32_MAX || (lent_.data == nullptr && lent_.length > 0);
        if (!failed_) {
            data_ = lent_.data;
            length_ = static_cast<host_interface::Integer>(lent_.length);
        }
#endif
    }
    ByteView(const ByteView&) = delete;
    ByteView& operator=(const ByteView&) = delete;
    ~ByteView() {
        if (isLent_) {
            host::PluginDisposeStringData(&lent_);
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
        const host_interface::Integer wanted =
            length == 0 ? std::max<host_interface::Integer>(host::memoryBlockGetSize(block), 0)
                        : length;
        if (const void* first = host::memoryBlockGetPtr(block)) {
            data_ = static_cast<const char*>(first) + offset;
            length_ = wanted;
        }
    }

    const char* data() const noexcept {
        return data_;
    }
    /// Whether the host did not lend the bytes of a string.
    bool failed() const noexcept {
        return failed_;
    }
    host_interface::Integer length() const noexcept {
        return length_;
    }

private:
    StringReference string_;
    ObjectReference block_;
    const char* data_ = nullptr;
    host_interface::Integer length_ = 0;
    bool failed_ = false;
    bool isLent_ = false;
    host_interface::StringData lent_ = {};
};

}  // namespace vqz
