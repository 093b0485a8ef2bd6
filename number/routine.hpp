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

/// The message of a failed operation, after the operation's name: `Name` has no numbers in it,
/// `OneNumber` and `TwoNumbers` show what it failed with. `Other` is an exception of another class,
/// or one that comes from where the routine delegates to.
enum class Failure { None, Name, OneNumber, TwoNumbers, Other };

/// A routine for a class table with the names by which programs meet it. A name that it does not
/// have is null.
struct NamedRoutine {
    Routine function = nullptr;
    const char* logName = nullptr;
    Failure failure = Failure::None;
    const char* failureName = nullptr;
};

/// A lambda without captures as a routine that tells the debug log `LogName` and fails as
/// `FailureName`.
template <FixedString LogName, Failure Report = Failure::None, FixedString FailureName = LogName,
          typename Lambda>
NamedRoutine Named(Lambda lambda) {
    return {.function = AsRoutine(lambda),
            .logName = LogName.text,
            .failure = Report,
            .failureName = Report == Failure::None ? nullptr : FailureName.text};
}

/// A lambda without captures as a routine that the debug log does not tell of.
template <Failure Report = Failure::None, typename Lambda>
NamedRoutine Unlogged(Lambda lambda) {
    return {.function = AsRoutine(lambda), .failure = Report};
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
