// The output of the process: kept back in memory, written by the system's own call.
#pragma once

#include <string_view>

namespace standin::process {

enum class Stream { Output, Error };

/// Writes bytes at once. Safe while the process crashes. What cannot be written is dropped.
void WriteBytes(Stream stream, std::string_view bytes);

/// Writes what was kept back, and that the plug-in crashed: how, and in which call.
void WriteCrash(const char* what, const char* currentCall);

}  // namespace standin::process
