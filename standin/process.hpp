// What the command needs of the system it runs on.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin::process {

/// The words of the command line without the program's own, in UTF-8.
std::vector<std::string> Arguments(int argc, char** argv);

/// The bytes of a file, its name in UTF-8; none when it cannot be read.
std::optional<std::string> ReadFile(const std::string& name);
/// All of standard input, byte for byte.
std::string ReadStandardInput();

/// Writes bytes as they are. Standard output is kept back until `FlushOutput`; standard error is
/// written at once, after everything that was kept back.
void WriteOutput(std::string_view bytes);
void WriteError(std::string_view bytes);
void FlushOutput();
/// Writes bytes to standard output at once, after everything that was kept back.
void WriteAtOnce(std::string_view bytes);

/// From now on Ctrl-C calls `action` instead of ending the process; it may do no more than a signal
/// handler. A read of standard input that waits fails then where the system lets it.
void OnInterrupt(void (*action)());

/// From now on a crash of the process (a wrong memory access, an illegal instruction, an abort)
/// writes what was kept back, then a message with what `currentCall` returns (it may be null), and
/// ends the process with `status`. `currentCall` may do nothing but read memory.
void ReportCrashes(const char* (*currentCall)(), int status);

}  // namespace standin::process
