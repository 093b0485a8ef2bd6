#include <string>

#include <process.h>
#include <stdlib.h>

#include "tests/unit/support/child_process.hpp"

namespace tests {

int RunAlone(const char* testCase) {
    // The words become one line, in which quotes keep a word together.
    const std::string filter = std::string("\"--test-case=") + testCase + "\"";
    const char* const words[] = {"alone", "--no-skip", filter.c_str(), nullptr};
    return static_cast<int>(_spawnv(_P_WAIT, _pgmptr, words));
}

}  // namespace tests
