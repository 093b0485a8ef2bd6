// The part that all programs of the comparison share: options, and hashes of blocks of results.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/differential/operations.hpp"

namespace differential {

struct Options {
    std::map<Group, std::uint32_t> counts;
    std::uint32_t bits = 0;
    std::string only;
    std::uint64_t seed = 1;
    long show = -1;
    /// Whether operations are compared as the plug-in's members do them: one that fails has no
    /// result.
    bool members = false;
};

/// Fowler, Noll and Vo's FNV-1a, of 64 bits and by words instead of bytes.
class Hash {
public:
    void Add(std::uint32_t word) { value_ = (value_ ^ word) * 0x100000001B3; }

    void Add(const std::string& text) {
        Add(static_cast<std::uint32_t>(text.size()));
        for (const char c : text) {
            Add(static_cast<unsigned char>(c));
        }
    }

    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

template <ttmath::uint E, ttmath::uint W>
class Comparison {
public:
    using Number = ttmath::Big<E, W>;

    Comparison(const Options& options, std::vector<Operation<Number>> operations)
        : options_(options), operations_(std::move(operations)) {}

    void Run() const {
        if (options_.bits != 0 && options_.bits != W * 32) {
            return;
        }
        for (const Operation<Number>& operation : operations_) {
            const auto count = options_.counts.find(operation.group);
            if (count != options_.counts.end() && (operation.isMember || !options_.members) &&
                (options_.only.empty() || options_.only == operation.name)) {
                RunOperation(operation, count->second);
            }
        }
    }

private:
    const Options& options_;
    std::vector<Operation<Number>> operations_;

    /// A hundred blocks, or fewer when there are few calls. Each has a seed of its own, so that one
    /// can be repeated alone.
    void RunOperation(const Operation<Number>& operation, std::uint32_t count) const {
        const std::uint32_t size = (count + 99) / 100;
        for (std::uint32_t block = 0; block * size < count; ++block) {
            if (options_.show < 0 || block == static_cast<std::uint32_t>(options_.show)) {
                RunBlock(operation, block, size);
            }
        }
    }

    void RunBlock(const Operation<Number>& operation, std::uint32_t block,
                  std::uint32_t size) const {
        Operands<E, W> operands(options_.seed + (std::uint64_t{block} << 32));
        Hash hash;
        for (std::uint32_t i = 0; i < size; ++i) {
            typename Operands<E, W>::Pair pair;
            if (operation.group == Group::Basic) {
                pair = operands.NextPair();
            } else if (operands.random().OneIn(16)) {
                pair = operands.NextPair();
                Operands<E, W>::MakeBearable(pair.first);
                Operands<E, W>::MakeBearable(pair.second);
            } else {
                pair = {operands.NextArgument(), operands.NextArgument()};
            }
            if (operation.prepare != nullptr) {
                operation.prepare(pair.first, pair.second);
            }
            if (operation.group != Group::Basic) {
                for (Number* argument : {&pair.first, &pair.second}) {
                    if (operands.Contradict(*argument)) {
                        Operands<E, W>::MakeBearable(*argument);
                    }
                }
            }
            if (options_.show >= 0) {
                Print("first ", pair.first);
                Print("second", pair.second);
            }
            std::string text;
            ttmath::uint carry = operation.call(pair.first, pair.second, text);
            if (options_.members && carry != 0) {
                carry = 1;
                pair.first.SetZero();
            }
            hash.Add(carry);
            hash.Add(text);
            hash.Add(pair.first.info);
            for (const ttmath::uint word : pair.first.exponent.table) {
                hash.Add(word);
            }
            for (const ttmath::uint word : pair.first.mantissa.table) {
                hash.Add(word);
            }
            if (options_.show >= 0) {
                Print("result", pair.first);
                std::printf("carry  %u text \"%s\"\n", carry, text.c_str());
            }
        }
        if (options_.show < 0) {
            std::printf("%s %u %u %016llX\n", operation.name.data(), W * 32, block,
                        static_cast<unsigned long long>(hash.value()));
        }
    }

    static void Print(const char* name, const Number& number) {
        std::printf("%s %02X ", name, number.info);
        for (std::size_t i = E; i > 0; --i) {
            std::printf("%08X", number.exponent.table[i - 1]);
        }
        std::printf(" ");
        for (std::size_t i = W; i > 0; --i) {
            std::printf("%08X", number.mantissa.table[i - 1]);
        }
        std::printf("\n");
    }
};

inline Options ReadOptions(int count, char** words) {
    const std::map<std::string, Group> groups{{"--basic", Group::Basic},
                                              {"--function", Group::Function},
                                              {"--composed", Group::Composed},
                                              {"--text", Group::Text}};
    Options options;
    for (int i = 1; i < count; i += 2) {
        const std::string name = words[i];
        if (name == "--members") {
            options.members = true;
            --i;
            continue;
        }
        if (i + 1 == count) {
            throw std::invalid_argument(name + " lacks its value");
        }
        const std::string value = words[i + 1];
        if (const auto group = groups.find(name); group != groups.end()) {
            options.counts[group->second] = static_cast<std::uint32_t>(std::stoul(value));
        } else if (name == "--bits") {
            options.bits = static_cast<std::uint32_t>(std::stoul(value));
        } else if (name == "--only") {
            options.only = value;
        } else if (name == "--seed") {
            options.seed = std::stoull(value);
        } else if (name == "--show") {
            options.show = std::stol(value);
        } else {
            throw std::invalid_argument("unknown option " + name);
        }
    }
    return options;
}

/// The main routine of a program that has the operations of both sizes.
template <typename MakeSmall, typename MakeLarge>
int Main(int count, char** words, MakeSmall makeSmall, MakeLarge makeLarge) {
    try {
        const Options options = ReadOptions(count, words);
        Comparison<2, 8>(options, makeSmall()).Run();
        Comparison<16, 64>(options, makeLarge()).Run();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "differential: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

}  // namespace differential
