// What the stand-in host needs of the operating system. One source file per system implements it;
// nothing else here knows on which system it runs.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "interface/host_interface.hpp"

namespace standin::platform {

/// Text in an 8-bit encoding or UTF-8 as well-formed UTF-16, as the system's converter has it.
/// Malformed bytes become U+FFFD.
std::u16string DecodeBytes(std::string_view bytes, host_interface::HostTextEncoding encoding);

/// Well-formed UTF-16 as text in an 8-bit encoding or UTF-8, as the system's converter has it. What
/// the encoding cannot express becomes '?'.
std::string EncodeBytes(std::u16string_view text, host_interface::HostTextEncoding encoding);

/// Starts to hand every line that this process writes to the debugger's output to `take`; stops
/// with an empty function. A line that is taken goes nowhere else.
void CaptureDebugOutput(std::function<void(std::string_view)> take);

/// Loads a library; throws std::runtime_error with a clear message.
void* LoadLibraryFile(const std::string& path);

/// The address of an exported function; null when the library has none of that name.
host_interface::Routine FindExport(void* library, const char* name);

void UnloadLibrary(void* library);

/// Bytes that the process has on its heap; 0 where nobody counts them.
std::size_t MemoryUsed();

}  // namespace standin::platform
