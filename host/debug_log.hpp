// The debug log: one line per event on the debugger's output, for developers.
//
// These functions do not test the switch. The caller tests `DebugEnabled` first, so that logging
// costs one test of a byte while the log is off.
#pragma once

#include <cstdint>
#include <cstdio>

namespace vqz {

/// What every line starts with, except those that `LogLine` writes by itself.
inline constexpr const char* DebugPrefix = "VQZ Debug: ";

/// When set, lines go to this stream, each with a line feed and flushed, and not to the debugger.
/// For a developer who runs the library without a debugger; the library itself never sets it.
inline constinit std::FILE* DebugLogStream = nullptr;

/// Formats and writes one line like printf, without the prefix; it is cut at 4095 characters.
[[gnu::format(printf, 1, 2)]] void LogLine(const char* format, ...) noexcept;

/// Writes a text.
void LogMessage(const char* text) noexcept;
/// Writes a label and a text.
void LogText(const char* label, const char* text) noexcept;
/// Writes a label and an unsigned number.
void LogUInt(const char* label, std::uint32_t value) noexcept;
/// Writes a label and a floating-point number.
void LogDouble(const char* label, double value) noexcept;
/// Writes a label and a signed number.
void LogInt64(const char* label, std::int64_t value) noexcept;

}  // namespace vqz
