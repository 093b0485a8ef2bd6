#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// <windows.h> comes first: the others build on it.
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "standin/process.hpp"
#include "standin/process_output.hpp"

namespace standin::process {
namespace {

constexpr int InputDescriptor = 0;

const char* (*currentCallFunction)() = nullptr;
int crashStatus = 0;

std::string ToUtf8(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
    utf8.pop_back();
    return utf8;
}

const char* NameOf(DWORD code) {
    switch (code) {
        case EXCEPTION_ACCESS_VIOLATION:
            return "access violation";
        case EXCEPTION_STACK_OVERFLOW:
            return "stack overflow";
        case EXCEPTION_INT_DIVIDE_BY_ZERO:
            return "division by zero";
        case EXCEPTION_ILLEGAL_INSTRUCTION:
        case EXCEPTION_PRIV_INSTRUCTION:
            return "illegal instruction";
        default:
            return "exception of the system";
    }
}

[[noreturn]] void EndCrashed(const char* what) {
    WriteCrash(what, currentCallFunction());
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(crashStatus));
    std::_Exit(crashStatus);
}

LONG WINAPI OnException(EXCEPTION_POINTERS* pointers) {
    EndCrashed(NameOf(pointers->ExceptionRecord->ExceptionCode));
}

void OnAbort(int /*signal*/) {
    EndCrashed("abort");
}

/// What Ctrl-C does; null before `OnInterrupt`.
void (*whenInterrupted)() = nullptr;

BOOL WINAPI OnConsoleEvent(DWORD event) {
    if (event != CTRL_C_EVENT) {
        return FALSE;
    }
    whenInterrupted();
    return TRUE;
}

/// Without a console Wine raises the exception of a Ctrl-C instead.
LONG WINAPI OnConsoleException(EXCEPTION_POINTERS* pointers) {
    constexpr DWORD ControlC = 0xC000013A;
    constexpr DWORD DebugControlC = 0x40010005;
    const auto code = pointers->ExceptionRecord->ExceptionCode;
    if (code != ControlC && code != DebugControlC) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    whenInterrupted();
    return EXCEPTION_CONTINUE_EXECUTION;
}

}  // namespace

void WriteBytes(Stream stream, std::string_view bytes) {
    const HANDLE handle =
        GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    while (!bytes.empty()) {
        DWORD written = 0;
        if (WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ==
                0 ||
            written == 0) {
            return;
        }
        bytes.remove_prefix(written);
    }
}

std::vector<std::string> Arguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(ToUtf8(words.get()[i]));
    }
    return arguments;
}

std::optional<std::string> ReadFile(const std::string& name) {
    const std::filesystem::path path(std::u8string(name.begin(), name.end()));
    std::error_code ignored;
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path, ignored)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string ReadStandardInput() {
    _setmode(InputDescriptor, _O_BINARY);
    std::string text;
    char buffer[65536];
    for (int size = 0; (size = _read(InputDescriptor, buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(size));
    }
    return text;
}

void OnInterrupt(void (*action)()) {
    whenInterrupted = action;
    SetConsoleCtrlHandler(OnConsoleEvent, TRUE);
    AddVectoredExceptionHandler(1, OnConsoleException);
}

void ReportCrashes(const char* (*currentCall)(), int status) {
    currentCallFunction = currentCall;
    crashStatus = status;
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(OnException);
    std::signal(SIGABRT, OnAbort);
}

}  // namespace standin::process
