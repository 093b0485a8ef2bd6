#include "host/string_building.hpp"

#include <algorithm>
#include <cstring>
#include <memory>

#include "host/debug_log.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {
namespace {

/// The first host version that builds a string with its encoding in one step.
constexpr double FirstVersionBuildingWithEncoding = 2012.0;
/// The first host version that accepts UTF-32.
constexpr double FirstVersionTakingUtf32 = 2013.0;

/// Fewer code points than this are converted on the stack.
constexpr std::size_t StackCodePoints = 200;

constexpr std::uint32_t Code(HostTextEncoding encoding) {
    return static_cast<std::uint32_t>(encoding);
}

bool IsAscii(const char* bytes, std::size_t count) {
    return std::none_of(bytes, bytes + count,
                        [](char byte) { return static_cast<unsigned char>(byte) > 0x7F; });
}

/// Builds a string of the given encoding, without conversion, with what this host version offers.
StringReference BuildAsGiven(const char* bytes, std::int32_t count, HostTextEncoding encoding) {
    if (HostVersion >= FirstVersionBuildingWithEncoding) {
        return StringReference(host::REALBuildStringWithEncoding(bytes, count, Code(encoding)));
    }
    StringReference built(host::REALBuildString(bytes, count));
    if (built) {
        host::REALSetStringEncoding(built.Get(), Code(encoding));
    }
    return built;
}

StringReference ConvertedToUtf8(const StringReference& wide) {
    return StringReference(host::REALConvertString(wide.Get(), Code(HostTextEncoding::Utf8)));
}

/// Native UTF-32 for a host that does not accept it: it is converted to UTF-16 first.
StringReference BuildFromUtf32ByUtf16(const char* bytes, std::int32_t byteCount) {
    const std::size_t count = static_cast<std::size_t>(byteCount) / sizeof(std::uint32_t);

    char16_t stackUnits[Utf16Capacity(StackCodePoints - 1)];
    std::unique_ptr<void, decltype(&platform::FreeBuffer)> heapUnits(nullptr,
                                                                     &platform::FreeBuffer);
    char16_t* units = stackUnits;
    if (count >= StackCodePoints) {
        heapUnits.reset(platform::AllocateZeroed(Utf16Capacity(count) * sizeof(char16_t)));
        if (!heapUnits) {
            if (DebugEnabled) {
                LogMessage("Out of memory in REALBuildUnicodeStringUTF32.");
            }
            return {};
        }
        units = static_cast<char16_t*>(heapUnits.get());
    }

    const std::size_t written = Utf32ToUtf16(bytes, count, units);
    return REALBuildUnicodeStringUTF16(units,
                                       static_cast<std::int64_t>(written * sizeof(char16_t)));
}

StringReference BuildFromUtf32(const char* bytes, std::int32_t byteCount) {
    if (HostVersion < FirstVersionTakingUtf32) {
        return BuildFromUtf32ByUtf16(bytes, byteCount);
    }
    const StringReference wide(
        host::REALBuildStringWithEncoding(bytes, byteCount, Code(HostTextEncoding::Utf32)));
    return ConvertedToUtf8(wide);
}

void LogWhatDoesNotFit(const char* text, std::size_t length, HostTextEncoding encoding) {
    if (encoding == HostTextEncoding::Utf16) {
        LogMessage("Error: kREALTextEncodingUTF16 not useful for CString2RB!");
    } else if (encoding == HostTextEncoding::Utf32) {
        LogMessage("Error: kREALTextEncodingUTF32 not useful for CString2RB!");
    } else if (encoding == HostTextEncoding::Ascii && !IsAscii(text, length)) {
        LogText("Error: text is not ascii", text);
    }
}

}  // namespace

std::size_t Utf32ToUtf16(const void* codePoints, std::size_t count, char16_t* output) {
    constexpr std::uint32_t FirstSupplementary = 0x10000;
    constexpr std::uint32_t LastCodePoint = 0x10FFFF;
    constexpr std::uint32_t FirstSurrogate = 0xD800;
    constexpr std::uint32_t FirstLowSurrogate = 0xDC00;
    constexpr std::uint32_t LastSurrogate = 0xDFFF;
    constexpr char16_t Replacement = 0xFFFD;

    char16_t* end = output;
    for (std::size_t index = 0; index < count; ++index) {
        std::uint32_t codePoint = 0;
        std::memcpy(&codePoint, static_cast<const char*>(codePoints) + index * sizeof codePoint,
                    sizeof codePoint);
        if (codePoint > LastCodePoint) {
            *end++ = Replacement;
        } else if (codePoint >= FirstSupplementary) {
            *end++ =
                static_cast<char16_t>(((codePoint - FirstSupplementary) >> 10) + FirstSurrogate);
            *end++ = static_cast<char16_t>((codePoint & 0x3FF) + FirstLowSurrogate);
        } else if (codePoint < FirstSurrogate || codePoint > LastSurrogate) {
            *end++ = static_cast<char16_t>(codePoint);
        }
    }
    *end = 0;
    return static_cast<std::size_t>(end - output);
}

StringReference REALBuildUnicodeStringUTF16(const void* units, std::int64_t byteCount) {
    const StringReference wide =
        BuildAsGiven(static_cast<const char*>(units), static_cast<std::int32_t>(byteCount),
                     HostTextEncoding::Utf16);
    if (wide || HostVersion >= FirstVersionBuildingWithEncoding) {
        return ConvertedToUtf8(wide);
    }
    if (DebugEnabled) {
        LogMessage("Out of memory in REALBuildUnicodeStringUTF16.");
    }
    return {};
}

StringReference BuildFromBytes(const void* data, std::int64_t byteCount,
                               HostTextEncoding encoding) {
    if (data == nullptr || byteCount <= 0) {
        return {};
    }
    if (byteCount > INT32_MAX) {
        if (DebugEnabled) {
            LogMessage("Count too big for REALBuildUnicodeString.");
        }
        return {};
    }
    const char* bytes = static_cast<const char*>(data);
    const auto count = static_cast<std::int32_t>(byteCount);

    switch (encoding) {
        case HostTextEncoding::Ascii:
        case HostTextEncoding::Utf8:
            return BuildAsGiven(bytes, count, encoding);
        case HostTextEncoding::MacRoman:
        case HostTextEncoding::Latin1:
        case HostTextEncoding::WindowsAnsi:
        case HostTextEncoding::Unknown: {
            const bool ascii = IsAscii(bytes, static_cast<std::size_t>(count));
            return BuildAsGiven(bytes, count, ascii ? HostTextEncoding::Ascii : encoding);
        }
        case HostTextEncoding::Utf16:
            return REALBuildUnicodeStringUTF16(bytes, count);
        case HostTextEncoding::Utf32:
            return BuildFromUtf32(bytes, count);
        default:
            if (DebugEnabled) {
                LogUInt("Unknown encoding in REALBuildUnicodeString", Code(encoding));
            }
            return BuildAsGiven(bytes, count, encoding);
    }
}

StringReference BuildFromCString(const char* text, HostTextEncoding encoding) {
    const std::size_t length = text == nullptr ? 0 : std::strlen(text);
    if (DebugEnabled) {
        LogWhatDoesNotFit(text, length, encoding);
    }
    return BuildFromBytes(text, static_cast<std::int64_t>(length), encoding);
}

}  // namespace vqz
