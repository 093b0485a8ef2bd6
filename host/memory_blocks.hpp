// Makes MemoryBlocks.
#pragma once

#include <cstdint>

#include "host/references.hpp"

namespace vqz {

/// A new MemoryBlock of `size` bytes; null for a negative size or one of 0x7FFFFFFF or more,
/// without asking the host, and when the host makes none.
ObjectReference NewMemoryBlock64(std::int64_t size);

/// A new MemoryBlock with a copy of the bytes. Null, and nothing raised, for null data or a size
/// below 1. When the host makes no block, or one without data, or when std::bad_alloc is thrown on
/// the way, it raises "OutOfMemoryException" and returns null. It needs no guard around it.
ObjectReference REALBuildMemoryblock(const void* data, std::int64_t size);

}  // namespace vqz
