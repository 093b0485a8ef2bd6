#if !defined(_WIN32)

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <strings.h>
#include <sys/random.h>

#include "platform/platform.hpp"

/// A process that offers this function acts as the debugger; in any other it is absent.
extern "C" __attribute__((weak)) void OutputDebugStringA(const char* line);

namespace vqz::platform {

void* AllocateZeroed(std::size_t byteCount) noexcept {
    return std::calloc(1, byteCount);
}

void FreeBuffer(void* buffer) noexcept {
    std::free(buffer);
}

void WriteDebuggerLine(const char* line) noexcept {
    if (OutputDebugStringA != nullptr) {
        OutputDebugStringA(line);
    } else {
        // GCOVR_EXCL_START: the stand-in host is a debugger
        std::fprintf(stderr, "%s\n", line);
        // GCOVR_EXCL_STOP
    }
}

bool SystemRandom(std::uint32_t& value) noexcept {
    return getrandom(&value, sizeof value, 0) == static_cast<ssize_t>(sizeof value);
}

std::uint32_t RuntimeRandom() noexcept {
    return static_cast<std::uint32_t>(std::rand());
}

void SeedRuntimeRandom() noexcept {
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
}

bool EqualIgnoringCase(const char* left, const char* right) noexcept {
    return strcasecmp(left, right) == 0;
}

}  // namespace vqz::platform

#endif
