// Where random numbers come from. The library finds the functions of the C library in the program
// that loads it first: here they are the test's own.
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <optional>
#include <vector>

#include <sys/random.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "tests/unit/operations/number_class.hpp"
#include "tests/unit/operations/random_draws.hpp"

namespace {

/// What the functions below are to do and what was asked of them.
struct RandomSources {
    /// What the system's source gives next, counting up; without a value, what the system has.
    std::optional<std::uint32_t> systemNumber = {};
    bool systemFails = false;
    int systemCalls = 0;
    /// What the runtime library's generator gives next, counting up.
    int runtimeNumber = 0;
    std::vector<unsigned> seeds = {};
};

RandomSources sources;

}  // namespace

extern "C" __attribute__((visibility("default"))) ssize_t getrandom(void* buffer,
                                                                    std::size_t length,
                                                                    unsigned flags) {
    ++sources.systemCalls;
    if (sources.systemFails) {
        return -1;
    }
    if (sources.systemNumber && length == sizeof(std::uint32_t)) {
        const std::uint32_t number = (*sources.systemNumber)++;
        std::memcpy(buffer, &number, length);
        return static_cast<ssize_t>(length);
    }
    return static_cast<ssize_t>(syscall(SYS_getrandom, buffer, length, flags));
}

extern "C" __attribute__((visibility("default"))) int rand() noexcept {
    return sources.runtimeNumber++;
}

extern "C" __attribute__((visibility("default"))) void srand(unsigned seed) noexcept {
    sources.seeds.push_back(seed);
}

namespace operation_tests {
namespace {

/// The number whose bytes, from the lowest of the mantissa to the highest of the exponent, count up
/// from `first`.
template <typename AnyNumber>
AnyNumber CountingUp(std::uint8_t first) {
    AnyNumber number;
    const auto fill = [&first](auto& words) {
        for (auto& word : words) {
            for (int shift = 0; shift < 32; shift += 8) {
                word |= std::uint32_t{first++} << shift;
            }
        }
    };
    fill(number.mantissa);
    fill(number.exponent);
    return number;
}

template <typename AnyNumber>
constexpr int ByteCount = (AnyNumber::MantissaBits + AnyNumber::ExponentBits) / 8;

}  // namespace

TEST_CASE_TEMPLATE("a random byte is the low one of one number of the system", AnyNumber, Number256,
                   Number2048) {
    sources = {.systemNumber = 0xABCDEF07};
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    const int callsBefore = sources.systemCalls;
    CHECK(Draw(numberClass) == CountingUp<AnyNumber>(0x07));
    CHECK(sources.systemCalls - callsBefore == ByteCount<AnyNumber>);
    CHECK(sources.runtimeNumber == 0);
    sources = {};
}

TEST_CASE_TEMPLATE("when the system fails the runtime library's generator is used", AnyNumber,
                   Number256, Number2048) {
    sources = {.systemFails = true, .runtimeNumber = 0x1203};
    LoadedHost loaded;
    NumberClass<AnyNumber> numberClass(loaded);
    CHECK(Draw(numberClass) == CountingUp<AnyNumber>(0x03));
    CHECK(sources.runtimeNumber == 0x1203 + ByteCount<AnyNumber>);
    sources = {};
}

TEST_CASE("the runtime library's generator is seeded in a built application only") {
    sources = {};
    {
        const LoadedHost loaded(standin::HostOptions{.builtApplication = false});
        CHECK(sources.seeds.empty());
    }
    const auto before = static_cast<unsigned>(std::time(nullptr));
    const LoadedHost loaded(standin::HostOptions{.builtApplication = true});
    const auto after = static_cast<unsigned>(std::time(nullptr));
    REQUIRE(sources.seeds.size() == 1);
    CHECK(sources.seeds.front() >= before);
    CHECK(sources.seeds.front() <= after);
    sources = {};
}

}  // namespace operation_tests
