// The way from the host into the plug-in: every routine in a class table is made here.
//
// A member states its computation only: a lambda without captures that takes what the host passes
// and returns what the host gets. `MakeRoutine` makes a C function of it and adds what all routines
// have in common: the guard that keeps native exceptions from the host, the line in the debug log,
// and the neutral result after an exception. `MakeUnguardedRoutine` leaves the guard out and takes
// the reason.
#pragma once

#include <cstdint>

#include "host/debug_log.hpp"
#include "host/exceptions.hpp"
#include "host/fixed_string.hpp"
#include "host/host_string_log.hpp"
#include "interface/host_interface.hpp"
#include "plugin/bindings/startup_globals.hpp"

namespace vqz {

using host_interface::BooleanWord;
using host_interface::Integer;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;
using host_interface::UInteger;

/// A Boolean as the host passes it: only the low byte counts.
constexpr bool IsTrue(BooleanWord word) {
    return (word & 0xFF) != 0;
}

/// A Boolean as the host gets it: 0 or 1 in the whole word.
constexpr BooleanWord AsBooleanWord(bool value) {
    return value ? 1 : 0;
}

/// What the exception of a failed call says. `Name` has the operation's name only; `OneNumber` and
/// `TwoNumbers` also show the numbers it failed with. `Other` is an exception of another class, or
/// one that is raised by a routine to which this one delegates.
enum class Failure { None, Name, OneNumber, TwoNumbers, Other };

/// A routine for a class table, and what the help says of it. A name that it does not have is null.
struct NamedRoutine {
    Routine function = nullptr;
    const char* logName = nullptr;
    Failure failure = Failure::None;
    const char* failureName = nullptr;
};

/// The name of a routine that writes no line of its own to the debug log.
inline constexpr FixedString NotLogged = "";

/// Whether a routine does without the guard, and why.
enum class Unguarded {
    /// It carries the guard.
    No,
    /// It has nothing to catch: it reads or writes a value in place, and what it calls for anything
    /// else catches its own exceptions.
    NothingThrows,
    /// All that it does is to call a guarded routine.
    GuardedInside,
    /// It makes a number object. When memory is missing for the object's value or for the copy of a
    /// text, std::bad_alloc leaves the routine, and the host gets neither a result nor a host
    /// exception. Nothing leaks when a caller catches it. The host does not: the process then ends,
    /// as with any C++ exception that nobody catches.
    OutOfMemoryEscapes
};

/// What a routine writes to the debug log when it is entered.
enum class EntryLine {
    Name,     ///< its name
    NameText  ///< its name, and the address and text of its only argument, a host string
};

/// Runs `computation` as the routine called `LogName`. Every call from the host goes through here.
/// A routine that delegates to another one also calls it through here, to get that one's log line
/// and guard.
template <FixedString LogName, Unguarded Why = Unguarded::No, EntryLine Line = EntryLine::Name,
          typename Computation, typename... Arguments>
auto Run(Computation computation, Arguments... arguments) {
    const auto run = [&] {
        if constexpr (!LogName.View().empty()) {
            if (DebugEnabled) {
                if constexpr (Line == EntryLine::NameText) {
                    LogHostString(LogName.text, arguments...);
                } else {
                    LogMessage(LogName.text);
                }
            }
        }
        return computation(arguments...);
    };
    if constexpr (Why == Unguarded::No) {
        return MethodBoundaryGuard(run);
    } else {
        return run();
    }
}

/// The C function that runs a computation of this signature.
template <FixedString LogName, Unguarded Why, EntryLine Line, typename Computation, typename Result,
          typename... Arguments>
Routine HostCallable(Result (Computation::*)(Arguments...) const) {
    return reinterpret_cast<Routine>(+[](Arguments... arguments) -> Result {
        return Run<LogName, Why, Line>(Computation{}, arguments...);
    });
}

/// What `MakeRoutine` and `MakeUnguardedRoutine` have in common.
template <Unguarded Why, FixedString LogName, Failure Report, FixedString FailureName,
          EntryLine Line, typename Computation>
NamedRoutine NameRoutine(Computation) {
    return {.function = HostCallable<LogName, Why, Line>(&Computation::operator()),
            .logName = LogName.View().empty() ? nullptr : LogName.text,
            .failure = Report,
            .failureName =
                Report == Failure::None || FailureName.View().empty() ? nullptr : FailureName.text};
}

/// A routine that the debug log shows as `LogName` and whose failures are reported as
/// `FailureName`. It carries the guard: a native exception becomes a host exception, and the result
/// is null, 0 or nothing.
template <FixedString LogName, Failure Report = Failure::None, FixedString FailureName = LogName,
          typename Computation>
NamedRoutine MakeRoutine(Computation computation) {
    return NameRoutine<Unguarded::No, LogName, Report, FailureName, EntryLine::Name>(computation);
}

/// The same without the guard, for the reason `Why`.
template <Unguarded Why, FixedString LogName, Failure Report = Failure::None,
          FixedString FailureName = LogName, EntryLine Line = EntryLine::Name, typename Computation>
NamedRoutine MakeUnguardedRoutine(Computation computation) {
    static_assert(Why != Unguarded::No);
    return NameRoutine<Why, LogName, Report, FailureName, Line>(computation);
}

}  // namespace vqz
