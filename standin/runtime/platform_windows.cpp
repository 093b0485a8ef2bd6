#include <algorithm>
#include <stdexcept>
#include <utility>

#include <windows.h>

#include "standin/runtime/platform.hpp"

namespace standin::platform {
namespace {

using host_interface::HostTextEncoding;

static_assert(sizeof(wchar_t) == sizeof(char16_t));

constexpr DWORD DebugOutputException = 0x40010006;

UINT CodePage(HostTextEncoding encoding) {
    switch (encoding) {
        case HostTextEncoding::MacRoman:
            return 10000;
        case HostTextEncoding::Latin1:
            return 28591;
        case HostTextEncoding::WindowsAnsi:
            return 1252;
        case HostTextEncoding::Utf8:
            return CP_UTF8;
        default:
            throw std::logic_error("no code page for this encoding");
    }
}

/// Runs a conversion of the system twice: for the length of the result, and for the result.
template <typename Text, typename Convert>
Text Converted(Convert convert) {
    const int length = convert(nullptr, 0);
    if (length <= 0) {
        throw std::runtime_error("the system cannot convert a text: error " +
                                 std::to_string(GetLastError()));
    }
    Text result(static_cast<std::size_t>(length), typename Text::value_type{});
    convert(result.data(), length);
    return result;
}

std::function<void(std::string_view)>& DebugOutput() {
    static std::function<void(std::string_view)> take;
    return take;
}

/// A line for the debugger travels as an exception whose words are its length, the NUL counted,
/// and its address. Continuing means that a debugger has taken it.
LONG CALLBACK TakeDebugOutput(EXCEPTION_POINTERS* pointers) {
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode != DebugOutputException || record.NumberParameters < 2 ||
        !DebugOutput()) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    const auto length = static_cast<std::size_t>(record.ExceptionInformation[0]);
    const auto* text = reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    DebugOutput()({text, length == 0 ? 0 : length - 1});
    return EXCEPTION_CONTINUE_EXECUTION;
}

std::string SystemMessage(DWORD error) {
    char* buffer = nullptr;
    const DWORD length = FormatMessageA(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, 0, reinterpret_cast<char*>(&buffer), 0, nullptr);
    std::string message = length == 0 ? "error " + std::to_string(error) : buffer;
    LocalFree(buffer);
    while (!message.empty() && (message.back() <= ' ' || message.back() == '.')) {
        message.pop_back();
    }
    return message;
}

}  // namespace

std::u16string DecodeBytes(std::string_view bytes, HostTextEncoding encoding) {
    if (bytes.empty()) {
        return {};
    }
    return Converted<std::u16string>([&](char16_t* out, int size) {
        return MultiByteToWideChar(CodePage(encoding), 0, bytes.data(),
                                   static_cast<int>(bytes.size()), reinterpret_cast<wchar_t*>(out),
                                   size);
    });
}

std::string EncodeBytes(std::u16string_view text, HostTextEncoding encoding) {
    if (text.empty()) {
        return {};
    }
    // UTF-8 expresses everything and allows neither a flag nor a default character.
    const bool complete = encoding == HostTextEncoding::Utf8;
    return Converted<std::string>([&](char* out, int size) {
        return WideCharToMultiByte(CodePage(encoding), complete ? 0 : WC_NO_BEST_FIT_CHARS,
                                   reinterpret_cast<const wchar_t*>(text.data()),
                                   static_cast<int>(text.size()), out, size,
                                   complete ? nullptr : "?", nullptr);
    });
}

void CaptureDebugOutput(std::function<void(std::string_view)> take) {
    static void* handler = nullptr;
    DebugOutput() = std::move(take);
    if (DebugOutput() && handler == nullptr) {
        handler = AddVectoredExceptionHandler(1, TakeDebugOutput);
    } else if (!DebugOutput() && handler != nullptr) {
        RemoveVectoredExceptionHandler(handler);
        handler = nullptr;
    }
}

void* LoadLibraryFile(const std::string& path) {
    // The system's search takes a path as given only with backslashes and a folder in front.
    std::string file = path;
    std::ranges::replace(file, '/', '\\');
    if (file.find('\\') == std::string::npos) {
        file.insert(0, ".\\");
    }
    if (HMODULE library = LoadLibraryA(file.c_str())) {
        return library;
    }
    throw std::runtime_error("cannot load the plug-in library \"" + path +
                             "\": " + SystemMessage(GetLastError()) +
                             ". Build it first, for the same processor as this program.");
}

host_interface::Routine FindExport(void* library, const char* name) {
    return reinterpret_cast<host_interface::Routine>(
        GetProcAddress(static_cast<HMODULE>(library), name));
}

void UnloadLibrary(void* library) {
    FreeLibrary(static_cast<HMODULE>(library));
}

std::size_t MemoryUsed() {
    const HANDLE heap = GetProcessHeap();
    std::size_t used = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry) != 0) {
        used += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
    }
    HeapUnlock(heap);
    return used;
}

}  // namespace standin::platform
