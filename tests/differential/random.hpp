// A small seeded generator: the same numbers on every machine and with every compiler.
#pragma once

#include <cstdint>

namespace differential {

/// Steele, Lea and Flood's SplitMix64.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    std::uint32_t Word() { return static_cast<std::uint32_t>(Next() >> 32); }

    /// From 0 to limit - 1.
    std::uint32_t Below(std::uint32_t limit) {
        return static_cast<std::uint32_t>((std::uint64_t{Word()} * limit) >> 32);
    }

    /// True once in `n` times.
    bool OneIn(std::uint32_t n) { return Below(n) == 0; }

private:
    std::uint64_t state_;
};

}  // namespace differential
