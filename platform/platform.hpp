// What the plug-in asks of the operating system and the language runtime, and nothing else.
// platform_windows.cpp and platform_linux.cpp are the only files that know the difference.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vqz::platform {

/// A zero-filled buffer of `byteCount` bytes, or null. Freed with `FreeBuffer`.
void* AllocateZeroed(std::size_t byteCount) noexcept;

/// Frees a buffer of `AllocateZeroed`; null is allowed.
void FreeBuffer(void* buffer) noexcept;

/// Hands one line to the debugger, without a line end. Without a debugger facility the line goes to
/// standard error, with one.
void WriteDebuggerLine(const char* line) noexcept;

/// The system's random source. False when it reports a failure; `value` is then unspecified.
bool SystemRandom(std::uint32_t& value) noexcept;

/// The next number of the language runtime's pseudo-random generator.
std::uint32_t RuntimeRandom() noexcept;

/// Seeds the language runtime's pseudo-random generator with the calendar time in seconds.
void SeedRuntimeRandom() noexcept;

/// Whether two texts are equal without regard to ASCII letter case.
bool EqualIgnoringCase(const char* left, const char* right) noexcept;

}  // namespace vqz::platform
