#include <vector>

#include <doctest/doctest.h>
#include <windows.h>

#include "tests/unit/support/threads.hpp"

namespace tests {
namespace {

DWORD WINAPI Run(void* action) {
    (*static_cast<const std::function<void()>*>(action))();
    return 0;
}

}  // namespace

void RunTogether(std::span<const std::function<void()>> actions) {
    std::vector<HANDLE> threads;
    for (const auto& action : actions) {
        void* const argument = const_cast<std::function<void()>*>(&action);
        threads.push_back(CreateThread(nullptr, 0, Run, argument, 0, nullptr));
        REQUIRE(threads.back() != nullptr);
    }
    for (const HANDLE thread : threads) {
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
}

void YieldThread() {
    Sleep(0);
}

}  // namespace tests
