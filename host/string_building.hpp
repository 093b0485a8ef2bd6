// Host strings from bytes, for hosts of every release and for every text encoding. These functions
// have no guard, so that the code that raises exceptions can build its messages with them; all
// other code calls the guarded forms in host/strings.hpp.
//
// The plug-in itself builds ASCII and UTF-8 only. The other encodings are part of this interface to
// host strings, which other classes may be built on.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/references.hpp"
#include "interface/host_interface.hpp"

namespace vqz {

using host_interface::HostTextEncoding;

/// A host string from NUL-terminated text. Null for null and for empty text, and when the host
/// fails. Logs when the text does not fit the encoding, and builds it all the same.
StringReference BuildFromCString(const char* text, HostTextEncoding encoding);

/// A host string from `byteCount` bytes in an encoding. Null for null data, a count below 1 or
/// above 0x7FFFFFFF, and when the host fails. 8-bit text without a byte above 0x7F becomes ASCII;
/// native UTF-16 and UTF-32 become UTF-8.
StringReference BuildFromBytes(const void* data, std::int64_t byteCount, HostTextEncoding encoding);

/// A UTF-8 host string from native UTF-16 units. Null when the host fails.
StringReference REALBuildUnicodeStringUTF16(const void* units, std::int64_t byteCount);

/// Writes `count` native 32-bit code points, at any alignment, as UTF-16 units followed by a 0
/// unit, and returns the number of units without the 0. Surrogate code points are dropped; code
/// points above 0x10FFFF become U+FFFD. The output holds `Utf16Capacity(count)` units.
std::size_t Utf32ToUtf16(const void* codePoints, std::size_t count, char16_t* output);

/// The number of units that is enough for any `count` code points and the 0 unit.
constexpr std::size_t Utf16Capacity(std::size_t count) {
    return 2 * count + 1;
}

}  // namespace vqz
