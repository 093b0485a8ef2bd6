#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <numeric>
#include <stdexcept>
#include <utility>

#include <dlfcn.h>
#include <malloc.h>

#include "standin/runtime/platform.hpp"
#include "standin/runtime/sanitizer.hpp"

#if STANDIN_ADDRESS_SANITIZER
/// Of the sanitizer's own runtime, whose header GCC's packages leave out.
std::size_t BytesOfSanitizer() asm("__sanitizer_get_current_allocated_bytes");
#endif

namespace standin::platform {
namespace {

using host_interface::HostTextEncoding;

constexpr char16_t Replacement = 0xFFFD;

/// What the codes from 0x80 on stand for; below, every encoding is ASCII.
using UpperHalf = std::array<char16_t, 128>;

// clang-format off
constexpr UpperHalf MacRoman = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2,
    0x00E4, 0x00E3, 0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC,
    0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9,
    0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6, 0x00DF,
    0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1,
    0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248,
    0x0394, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153,
    0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178,
    0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E,
    0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC,
    0x00D3, 0x00D4, 0xE01E, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7};

/// The five codes that the code page leaves unused are read as Windows does, as C1 controls.
constexpr UpperHalf WindowsAnsi = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
    0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C,
    0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D,
    0x017E, 0x0178, 0x00A0, 0x00A1, 0x00A2, 0x00A3, 0x00A4, 0x00A5, 0x00A6, 0x00A7,
    0x00A8, 0x00A9, 0x00AA, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x00AF, 0x00B0, 0x00B1,
    0x00B2, 0x00B3, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x00B9, 0x00BA, 0x00BB,
    0x00BC, 0x00BD, 0x00BE, 0x00BF, 0x00C0, 0x00C1, 0x00C2, 0x00C3, 0x00C4, 0x00C5,
    0x00C6, 0x00C7, 0x00C8, 0x00C9, 0x00CA, 0x00CB, 0x00CC, 0x00CD, 0x00CE, 0x00CF,
    0x00D0, 0x00D1, 0x00D2, 0x00D3, 0x00D4, 0x00D5, 0x00D6, 0x00D7, 0x00D8, 0x00D9,
    0x00DA, 0x00DB, 0x00DC, 0x00DD, 0x00DE, 0x00DF, 0x00E0, 0x00E1, 0x00E2, 0x00E3,
    0x00E4, 0x00E5, 0x00E6, 0x00E7, 0x00E8, 0x00E9, 0x00EA, 0x00EB, 0x00EC, 0x00ED,
    0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x00F2, 0x00F3, 0x00F4, 0x00F5, 0x00F6, 0x00F7,
    0x00F8, 0x00F9, 0x00FA, 0x00FB, 0x00FC, 0x00FD, 0x00FE, 0x00FF};
// clang-format on

constexpr UpperHalf Latin1 = [] {
    UpperHalf units{};
    std::iota(units.begin(), units.end(), char16_t{0x80});
    return units;
}();

const UpperHalf& UpperHalfOf(HostTextEncoding encoding) {
    switch (encoding) {
        case HostTextEncoding::MacRoman:
            return MacRoman;
        case HostTextEncoding::Latin1:
            return Latin1;
        case HostTextEncoding::WindowsAnsi:
            return WindowsAnsi;
        default:
            throw std::logic_error("no converter for this encoding");
    }
}

struct ByteRange {
    unsigned char first;
    unsigned char last;
};

/// What may follow the first byte of a longer UTF-8 sequence.
ByteRange SecondByteRange(unsigned char lead) {
    switch (lead) {
        case 0xE0:
            return {0xA0, 0xBF};
        case 0xED:
            return {0x80, 0x9F};
        case 0xF0:
            return {0x90, 0xBF};
        case 0xF4:
            return {0x80, 0x8F};
        default:
            return {0x80, 0xBF};
    }
}

/// How many bytes at the start are, or could have become, a sequence of that length; at least one.
std::size_t SoundLength(std::string_view bytes, std::size_t sequence) {
    ByteRange range = SecondByteRange(static_cast<unsigned char>(bytes.front()));
    std::size_t length = 1;
    while (length < sequence && length < bytes.size()) {
        const auto byte = static_cast<unsigned char>(bytes[length]);
        if (byte < range.first || byte > range.last) {
            break;
        }
        range = {0x80, 0xBF};
        ++length;
    }
    return length;
}

void AppendCodePoint(std::u16string& text, char32_t code) {
    constexpr char32_t FirstSupplementary = 0x10000;
    if (code < FirstSupplementary) {
        text += static_cast<char16_t>(code);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((code - FirstSupplementary) >> 10U));
    text += static_cast<char16_t>(0xDC00 + ((code - FirstSupplementary) & 0x3FFU));
}

void AppendUtf8(std::string& bytes, char32_t code) {
    const auto append = [&](char32_t byte) { bytes += static_cast<char>(byte); };
    if (code < 0x80) {
        return append(code);
    }
    if (code < 0x800) {
        append(0xC0 | code >> 6U);
    } else {
        if (code < 0x10000) {
            append(0xE0 | code >> 12U);
        } else {
            append(0xF0 | code >> 18U);
            append(0x80 | (code >> 12U & 0x3FU));
        }
        append(0x80 | (code >> 6U & 0x3FU));
    }
    append(0x80 | (code & 0x3FU));
}

/// The length that the first byte of a UTF-8 sequence tells; 0 for one that is no first byte.
std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead < 0xC2 || lead > 0xF4) {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

std::u16string DecodeUtf8(std::string_view bytes) {
    std::u16string text;
    while (!bytes.empty()) {
        const auto lead = static_cast<unsigned char>(bytes.front());
        const std::size_t sequence = SequenceLength(lead);
        const std::size_t sound = SoundLength(bytes, sequence);
        if (sequence == 0 || sound < sequence) {
            text += Replacement;
            bytes.remove_prefix(sound);
            continue;
        }
        char32_t code = sequence == 1 ? lead : lead & (0x7FU >> sequence);
        for (std::size_t k = 1; k < sequence; ++k) {
            code = code << 6U | (static_cast<unsigned char>(bytes[k]) & 0x3FU);
        }
        AppendCodePoint(text, code);
        bytes.remove_prefix(sequence);
    }
    return text;
}

std::string EncodeUtf8(std::u16string_view text) {
    std::string bytes;
    for (std::size_t k = 0; k < text.size(); ++k) {
        char32_t code = text[k];
        if (code >= 0xD800 && code < 0xDC00 && k + 1 < text.size()) {
            code = 0x10000 + ((code - 0xD800) << 10U) + (text[++k] - char32_t{0xDC00});
        }
        AppendUtf8(bytes, code);
    }
    return bytes;
}

/// The byte for a unit in an 8-bit encoding.
char EncodeUnit(char16_t unit, const UpperHalf& upper) {
    if (unit < 0x80) {
        return static_cast<char>(unit);
    }
    const auto* found = std::ranges::find(upper, unit);
    return found == upper.end() ? '?' : static_cast<char>(0x80 + (found - upper.begin()));
}

std::function<void(std::string_view)>& DebugOutput() {
    static std::function<void(std::string_view)> take;
    return take;
}

}  // namespace

std::u16string DecodeBytes(std::string_view bytes, HostTextEncoding encoding) {
    if (encoding == HostTextEncoding::Utf8) {
        return DecodeUtf8(bytes);
    }
    const UpperHalf& upper = UpperHalfOf(encoding);
    std::u16string text;
    for (const char character : bytes) {
        const auto code = static_cast<unsigned char>(character);
        text += code < 0x80 ? char16_t{code} : upper[code - 0x80U];
    }
    return text;
}

std::string EncodeBytes(std::u16string_view text, HostTextEncoding encoding) {
    if (encoding == HostTextEncoding::Utf8) {
        return EncodeUtf8(text);
    }
    const UpperHalf& upper = UpperHalfOf(encoding);
    std::string bytes;
    // A pair becomes two question marks, as on Windows.
    for (const char16_t unit : text) {
        bytes += EncodeUnit(unit, upper);
    }
    return bytes;
}

void CaptureDebugOutput(std::function<void(std::string_view)> take) {
    DebugOutput() = std::move(take);
}

void* LoadLibraryFile(const std::string& path) {
    // A name without a slash would be searched for in the system's folders only.
    const std::string file = path.find('/') == std::string::npos ? "./" + path : path;
    int mode = RTLD_NOW | RTLD_LOCAL;
#if defined(__SANITIZE_ADDRESS__)
    // What the library keeps for the life of the process stays reachable, and reports keep names.
    mode |= RTLD_NODELETE;
#endif
    if (void* library = dlopen(file.c_str(), mode)) {
        return library;
    }
    const char* reason = dlerror();
    throw std::runtime_error("cannot load the plug-in library \"" + path +
                             "\": " + (reason == nullptr ? "no reason given" : reason) +
                             ". Build it first, for the same processor as this program.");
}

host_interface::Routine FindExport(void* library, const char* name) {
    return reinterpret_cast<host_interface::Routine>(dlsym(library, name));
}

void UnloadLibrary(void* library) {
    dlclose(library);
}

std::size_t MemoryUsed() {
#if STANDIN_ADDRESS_SANITIZER
    // Its own allocator is in the place of the C library's.
    return BytesOfSanitizer();
#else
    return mallinfo2().uordblks;
#endif
}

}  // namespace standin::platform

/// The debugger's output, where the system has none of its own: a library that finds this function
/// in the program writes its lines here.
extern "C" __attribute__((visibility("default"))) void OutputDebugStringA(const char* text);

void OutputDebugStringA(const char* text) {
    const auto& take = standin::platform::DebugOutput();
    const char* line = text == nullptr ? "" : text;
    if (take) {
        take(line);
    } else {
        std::fputs(line, stderr);
    }
}
