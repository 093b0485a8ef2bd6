// Threads, because the standard library does not have them on every system.
#pragma once

#include <functional>
#include <span>

namespace tests {

/// Runs each action on a thread of its own, all at the same time, and waits for all. An action must
/// not throw, and it makes no checks: those belong to the thread of the test.
void RunTogether(std::span<const std::function<void()>> actions);

/// Lets other threads run.
void YieldThread();

}  // namespace tests
