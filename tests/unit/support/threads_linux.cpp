#include <thread>
#include <vector>

#include "tests/unit/support/threads.hpp"

namespace tests {

void RunTogether(std::span<const std::function<void()>> actions) {
    std::vector<std::jthread> threads;
    for (const auto& action : actions) {
        threads.emplace_back([&action] { action(); });
    }
}

void YieldThread() {
    std::this_thread::yield();
}

}  // namespace tests
