// Debug-log lines that show a host string.
#pragma once

#include "interface/host_interface.hpp"

namespace vqz {

/// Writes a label, the string's address and its UTF-8 text. When the text has to be converted, the
/// lines that `rbText` writes about that come before and after. May throw std::bad_alloc.
void LogHostString(const char* label, host_interface::String text);

}  // namespace vqz
