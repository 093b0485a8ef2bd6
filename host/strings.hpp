// Host strings from bytes, with the guard: a C++ exception on the way becomes a host exception, and
// the result is null. The code that raises exceptions uses the unguarded host/string_building.hpp.
#pragma once

#include <cstdint>

#include "host/exceptions.hpp"
#include "host/string_building.hpp"

namespace vqz {

/// A host string from `byteCount` bytes in the given encoding, which need not be Unicode; null when
/// there are no bytes or the host fails.
inline StringReference REALBuildUnicodeString(const void* data, std::int64_t byteCount,
                                              HostTextEncoding encoding) {
    return MethodBoundaryGuard([&] { return BuildFromBytes(data, byteCount, encoding); });
}

/// A host string from a NUL-terminated C string; null for null and for empty text, and when the
/// host fails.
inline StringReference CString2RB(const char* text, HostTextEncoding encoding) {
    return MethodBoundaryGuard([&] { return BuildFromCString(text, encoding); });
}

}  // namespace vqz
