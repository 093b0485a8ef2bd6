#include "host/host_string_log.hpp"

#include "host/debug_log.hpp"
#include "host/terminated_text.hpp"

namespace vqz {

void LogHostString(const char* label, host_interface::String text) {
    const TerminatedText terminated(text);
    LogLine("%s%s %p: %s", DebugPrefix, label, static_cast<const void*>(text), terminated.begin());
}

}  // namespace vqz
