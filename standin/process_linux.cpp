#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>

#include <sys/stat.h>
#include <unistd.h>

#include "standin/process.hpp"
#include "standin/process_output.hpp"

namespace standin::process {
namespace {

const char* (*currentCallFunction)() = nullptr;
int crashStatus = 0;

struct SignalName {
    int signal;
    const char* name;
};

constexpr auto FatalSignals = std::to_array<SignalName>({
    {SIGSEGV, "segmentation fault"},
    {SIGBUS, "bus error"},
    {SIGFPE, "arithmetic error"},
    {SIGILL, "illegal instruction"},
    {SIGABRT, "abort"},
});

void OnCrash(int signal) {
    const char* name = "unknown signal";
    for (const auto& row : FatalSignals) {
        if (row.signal == signal) {
            name = row.name;
        }
    }
    WriteCrash(name, currentCallFunction());
    _exit(crashStatus);
}

}  // namespace

void WriteBytes(Stream stream, std::string_view bytes) {
    const int descriptor = stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
    while (!bytes.empty()) {
        const auto written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

std::vector<std::string> Arguments(int argc, char** argv) {
    return argc > 0 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>{};
}

std::optional<std::string> ReadFile(const std::string& name) {
    // A folder can be opened, but not read.
    struct stat status {};
    std::ifstream file(name, std::ios::binary);
    if (!file || stat(name.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string ReadStandardInput() {
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

void OnInterrupt(void (*action)()) {
    static void (*wanted)() = nullptr;
    wanted = action;
    struct sigaction handler {};
    handler.sa_handler = [](int) { wanted(); };
    sigaction(SIGINT, &handler, nullptr);
}

void ReportCrashes(const char* (*currentCall)(), int status) {
    currentCallFunction = currentCall;
    crashStatus = status;
    // A stack of its own, because the crash may be the end of the other one.
    static std::array<char, 65536> stack;
    stack_t alternative{};
    alternative.ss_sp = stack.data();
    alternative.ss_size = stack.size();
    sigaltstack(&alternative, nullptr);
    for (const auto& row : FatalSignals) {
        struct sigaction action {};
        action.sa_handler = OnCrash;
        action.sa_flags = SA_ONSTACK | static_cast<int>(SA_RESETHAND);
        sigaction(row.signal, &action, nullptr);
    }
}

}  // namespace standin::process
