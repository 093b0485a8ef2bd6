// Debug-log lines that show a host string.
#pragma once

#include "interface/host_interface.hpp"

namespace vqz {

/// Writes a label, the string's address and its text. Lines of the reading itself, when it has
/// some, come before and after.
void LogHostString(const char* label, host_interface::String text);

}  // namespace vqz
