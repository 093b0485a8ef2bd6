// Host strings from bytes, for every caller but the raising of exceptions. A native exception on
// the way becomes a host exception, and the result is null.
#pragma once

#include <cstdint>

#include "host/exceptions.hpp"
#include "host/string_building.hpp"

namespace vqz {

/// A host string from `byteCount` bytes; null when there is nothing to build or the host fails.
inline StringReference REALBuildUnicodeString(const void* data, std::int64_t byteCount,
                                              HostTextEncoding encoding) {
    return MethodBoundaryGuard([&] { return BuildFromBytes(data, byteCount, encoding); });
}

/// A host string from NUL-terminated text; null for null and for empty text.
inline StringReference CString2RB(const char* text, HostTextEncoding encoding) {
    return MethodBoundaryGuard([&] { return BuildFromCString(text, encoding); });
}

}  // namespace vqz
