// This test program once more, in a process of its own, for what a process may not survive.
#pragma once

namespace tests {

/// Runs the one test case of that name, which is skipped otherwise, and waits for its end. Returns
/// the status that the process ended with, or -1 when it was ended by a signal. It has the
/// environment of this process.
int RunAlone(const char* testCase);

}  // namespace tests
