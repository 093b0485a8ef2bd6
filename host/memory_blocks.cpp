#include "host/memory_blocks.hpp"

#include <cstdio>
#include <cstring>
#include <new>

#include "host/debug_log.hpp"
#include "host/exceptions.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {
namespace {

void RaiseOutOfMemory(std::int64_t size) {
    char message[200] = {};
    std::snprintf(message, sizeof message,
                  "Failed to allocate a memoryblock with %lld bytes in size.",
                  static_cast<long long>(size));
    RaiseHostException("OutOfMemoryException", message);
}

}  // namespace

ObjectReference NewMemoryBlock64(std::int64_t size) {
    if (size < 0 || size >= INT32_MAX) {
        return {};
    }
    return ObjectReference(host::newMemoryBlock(static_cast<std::int32_t>(size)));
}

ObjectReference REALBuildMemoryblock(const void* data, std::int64_t size) {
    if (data == nullptr || size <= 0) {
        return {};
    }
    try {
        ObjectReference block = NewMemoryBlock64(size);
        void* bytes = block ? host::memoryBlockGetPtr(block.Get()) : nullptr;
        if (bytes != nullptr) {
            std::memcpy(bytes, data, static_cast<std::size_t>(size));
            return block;
        }
        block.Reset();
        if (DebugEnabled) {
            LogInt64("Error: Failed to allocate memoryblock", size);
        }
        RaiseOutOfMemory(size);
    } catch (const std::bad_alloc& exception) {
        if (DebugEnabled) {
            LogText("Got C++ exception in REALBuildMemoryblock: ", exception.what());
        }
        RaiseOutOfMemory(size);
    }
    return {};
}

}  // namespace vqz
