#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <utility>

#include <dlfcn.h>
#include <iconv.h>
#include <malloc.h>

#include "standin/runtime/platform.hpp"

namespace standin::platform {
namespace {

using host_interface::HostTextEncoding;

constexpr const char* Utf16Name =
    std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
constexpr char16_t Replacement = 0xFFFD;

const char* ConverterName(HostTextEncoding encoding) {
    switch (encoding) {
        case HostTextEncoding::MacRoman:
            return "MACINTOSH";
        case HostTextEncoding::Latin1:
            return "ISO-8859-1";
        case HostTextEncoding::WindowsAnsi:
            return "CP1252";
        case HostTextEncoding::Utf8:
            return "UTF-8";
        default:
            throw std::logic_error("no converter for this encoding");
    }
}

/// A converter of the system. Opening one reads a file, so each is opened once and kept.
class Converter {
public:
    static Converter& Get(const char* to, const char* from) {
        static std::map<std::pair<std::string, std::string>, Converter> converters;
        return converters.try_emplace({to, from}, to, from).first->second;
    }

    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {
        if (handle_ == Invalid()) {
            throw std::runtime_error(std::string("the system cannot convert text from ") + from +
                                     " to " + to);
        }
    }
    ~Converter() { iconv_close(handle_); }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// Appends what it can convert and drops it from the input: all, or up to a place where the
    /// input is malformed, incomplete or not expressible.
    void Run(std::string_view& input, std::string& output) {
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        std::array<char, 4096> buffer{};
        for (;;) {
            // The system's function wants a pointer to changeable bytes, but changes none.
            char* in = const_cast<char*>(input.data());
            std::size_t inLeft = input.size();
            char* out = buffer.data();
            std::size_t outLeft = buffer.size();
            const std::size_t result = iconv(handle_, &in, &inLeft, &out, &outLeft);
            const bool more = result == static_cast<std::size_t>(-1) && errno == E2BIG;
            output.append(buffer.data(), buffer.size() - outLeft);
            input.remove_prefix(input.size() - inLeft);
            if (!more) {
                return;
            }
        }
    }

private:
    static iconv_t Invalid() { return std::bit_cast<iconv_t>(std::intptr_t{-1}); }

    iconv_t handle_;
};

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

/// How many bytes at the start of malformed UTF-8 count as one mistake: the longest start of a
/// sequence that could have become well-formed, or a single byte.
std::size_t MistakeLength(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes.front());
    if (lead < 0xC2 || lead > 0xF4) {
        return 1;
    }
    const std::size_t sequence = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    ByteRange range = SecondByteRange(lead);
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

std::string_view AsBytes(std::u16string_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)};
}

void AppendUnit(std::string& utf16Bytes, char16_t unit) {
    utf16Bytes.append(AsBytes({&unit, 1}));
}

std::u16string AsUnits(std::string_view utf16Bytes) {
    std::u16string text(utf16Bytes.size() / sizeof(char16_t), u'\0');
    utf16Bytes.copy(reinterpret_cast<char*>(text.data()), utf16Bytes.size());
    return text;
}

bool IsC1Control(unsigned code) {
    return code >= 0x80 && code < 0xA0;
}

std::function<void(std::string_view)>& DebugOutput() {
    static std::function<void(std::string_view)> take;
    return take;
}

}  // namespace

std::u16string DecodeBytes(std::string_view bytes, HostTextEncoding encoding) {
    Converter& converter = Converter::Get(Utf16Name, ConverterName(encoding));
    std::string result;
    for (;;) {
        converter.Run(bytes, result);
        if (bytes.empty()) {
            return AsUnits(result);
        }
        if (encoding == HostTextEncoding::Utf8) {
            AppendUnit(result, Replacement);
            bytes.remove_prefix(MistakeLength(bytes));
        } else {
            // Windows reads the five unused codes of its code page as C1 controls.
            const auto code = static_cast<unsigned char>(bytes.front());
            AppendUnit(result, IsC1Control(code) ? static_cast<char16_t>(code) : Replacement);
            bytes.remove_prefix(1);
        }
    }
}

std::string EncodeBytes(std::u16string_view text, HostTextEncoding encoding) {
    Converter& converter = Converter::Get(ConverterName(encoding), Utf16Name);
    std::string_view bytes = AsBytes(text);
    std::string result;
    for (;;) {
        converter.Run(bytes, result);
        if (bytes.empty()) {
            return result;
        }
        const char16_t unit = text[text.size() - bytes.size() / sizeof(char16_t)];
        const bool unusedCode = encoding == HostTextEncoding::WindowsAnsi && IsC1Control(unit) &&
                                DecodeBytes(std::string(1, static_cast<char>(unit)), encoding) ==
                                    std::u16string(1, unit);
        result += unusedCode ? static_cast<char>(unit) : '?';
        bytes.remove_prefix(sizeof(char16_t));
    }
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
    return mallinfo2().uordblks;
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
