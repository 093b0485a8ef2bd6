#include <string>

#include <doctest/doctest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/unit/support/child_process.hpp"

namespace tests {

int RunAlone(const char* testCase) {
    std::string program = "/proc/self/exe";
    std::string noSkip = "--no-skip";
    std::string filter = std::string("--test-case=") + testCase;
    char* const words[] = {program.data(), noSkip.data(), filter.data(), nullptr};
    pid_t child = 0;
    REQUIRE(posix_spawn(&child, program.c_str(), nullptr, nullptr, words, environ) == 0);
    int status = 0;
    REQUIRE(waitpid(child, &status, 0) == child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace tests
