#include "host/debug_log.hpp"

#include <cstdarg>

#include "platform/platform.hpp"

namespace vqz {

void LogLine(const char* format, ...) noexcept {
    char line[4096] = {};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    if (DebugLogStream == nullptr) {
        platform::WriteDebuggerLine(line);
    } else {
        std::fprintf(DebugLogStream, "%s\n", line);
        std::fflush(DebugLogStream);
    }
}

void LogMessage(const char* text) noexcept {
    LogLine("%s%s", DebugPrefix, text);
}

void LogText(const char* label, const char* text) noexcept {
    LogLine("%s%s %s", DebugPrefix, label, text);
}

void LogUInt(const char* label, std::uint32_t value) noexcept {
    LogLine("%s%s %u", DebugPrefix, label, static_cast<unsigned int>(value));
}

void LogDouble(const char* label, double value) noexcept {
    LogLine("%s%s %f", DebugPrefix, label, value);
}

void LogInt64(const char* label, std::int64_t value) noexcept {
    LogLine("%s%s %lld", DebugPrefix, label, static_cast<long long>(value));
}

}  // namespace vqz
