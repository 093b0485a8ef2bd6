// What every routine that the host calls is made of.
#pragma once

#include <cstdint>

#include "host/debug_log.hpp"
#include "interface/host_interface.hpp"
#include "number/fixed_string.hpp"
#include "plugin/startup_globals.hpp"

namespace vqz {

using host_interface::BooleanWord;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;

/// The host's Integer, 32 bits wide.
using Integer = std::int32_t;

/// A lambda without captures as the untyped routine that a class table holds.
template <typename Lambda>
Routine AsRoutine(Lambda lambda) {
    return reinterpret_cast<Routine>(+lambda);
}

/// Tells the debug log that the routine of this name was entered.
template <FixedString LogName>
void LogEntry() {
    if (DebugEnabled) {
        LogMessage(LogName.text);
    }
}

/// A Boolean as the host passes it: only the low byte counts.
constexpr bool IsTrue(BooleanWord word) {
    return (word & 0xFF) != 0;
}

/// A Boolean as the host gets it: 0 or 1 in the whole word.
constexpr BooleanWord AsBooleanWord(bool value) {
    return value ? 1 : 0;
}

}  // namespace vqz
