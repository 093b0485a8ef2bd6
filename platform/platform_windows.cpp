#if defined(_WIN32)

#define _CRT_RAND_S  // makes <stdlib.h> declare rand_s

#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <windows.h>

#include "platform/platform.hpp"

namespace vqz::platform {

void* AllocateZeroed(std::size_t byteCount) noexcept {
    return GlobalAlloc(GPTR, byteCount);
}

void FreeBuffer(void* buffer) noexcept {
    if (buffer != nullptr) {
        GlobalFree(buffer);
    }
}

void WriteDebuggerLine(const char* line) noexcept {
    OutputDebugStringA(line);
}

bool SystemRandom(std::uint32_t& value) noexcept {
    unsigned int drawn = 0;
    const bool succeeded = rand_s(&drawn) == 0;
    value = drawn;
    return succeeded;
}

std::uint32_t RuntimeRandom() noexcept {
    return static_cast<std::uint32_t>(rand());
}

void SeedRuntimeRandom() noexcept {
    srand(static_cast<unsigned int>(_time64(nullptr)));
}

bool EqualIgnoringCase(const char* left, const char* right) noexcept {
    return _stricmp(left, right) == 0;
}

}  // namespace vqz::platform

/// What the loader calls, with a reason: 1 when the library has been loaded. Asks not to be called
/// for threads.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(module);
    }
    return TRUE;
}

#endif
