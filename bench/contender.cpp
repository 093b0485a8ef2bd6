#include "bench/contender.hpp"

#include <chrono>
#include <iostream>
#include <sstream>

namespace bench {

void Contender::Offer(unsigned bits, std::string_view operation, Batch batch) {
    batches_.insert_or_assign({bits, std::string(operation)}, std::move(batch));
}

int Contender::Serve() const {
    for (const auto& [key, batch] : batches_) {
        std::cout << key.first << ' ' << key.second << '\n';
    }
    std::cout << std::endl;

    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::uint64_t count = 0;
        std::pair<unsigned, std::string> key;
        words >> count >> key.first >> std::ws;
        std::getline(words, key.second);
        const auto batch = batches_.find(key);
        if (batch == batches_.end()) {
            std::cerr << "not on offer: " << line << '\n';
            return 2;
        }
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        batch->second(count);
        const Clock::duration taken = Clock::now() - start;
        std::cout << std::chrono::duration_cast<std::chrono::nanoseconds>(taken).count()
                  << std::endl;
    }
    return 0;
}

}  // namespace bench
