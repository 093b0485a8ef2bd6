// The debug log: one line an event on the debugger's output, for developers.
//
// Nothing here tests the switch. A caller tests `DebugEnabled` first, so that a log site costs one
// byte test while the log is off.
#pragma once

#include <cstdint>
#include <cstdio>

namespace vqz {

/// What every line of the six entry points below starts with.
inline constexpr const char* DebugPrefix = "VQZ Debug: ";

/// When set, lines go to this stream, each ended and flushed, instead of to the debugger.
inline constinit std::FILE* DebugLogStream = nullptr;

/// Writes one line in printf form, without prefix; cut at 4095 characters.
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
