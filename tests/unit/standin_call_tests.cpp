// How the stand-in host calls routines, takes debug lines and loads libraries.
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "standin_support.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
extern "C" void OutputDebugStringA(const char* text);
#endif

using namespace standin_tests;
using standin::CallArguments;
using standin::Host;
using standin::HostOptions;
using standin::PluginLibrary;
using standin::ReturnKind;
using standin::ReturnValue;
using standin::Routine;

namespace {

template <typename Function>
Routine AsRoutine(Function* function) {
    return reinterpret_cast<Routine>(function);
}

using Words = std::vector<std::uintptr_t>;

/// Where the build put the libraries that are loaded here.
constexpr const char* SmallLibrary = STANDIN_TESTS_SMALL_LIBRARY;
constexpr const char* LibraryWithoutEntry = STANDIN_TESTS_LIBRARY_WITHOUT_ENTRY;

std::string& Received() {
    static std::string received;
    return received;
}

// Four parameters of a kind each, and how they are shown.
#define TAKES_FOUR(k) double real##k, std::uint32_t word##k, float single##k, std::uint32_t flag##k
#define SHOWN_FOUR(k)                                                        \
    (" | " + std::to_string(real##k) + " " + std::to_string(word##k) + " " + \
     std::to_string(single##k) + " " + std::to_string(flag##k & 0xFFU))

extern "C" {
std::uint32_t WeighedSum(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d,
                         std::uint32_t e, std::uint32_t f, std::uint32_t g, std::uint32_t h,
                         std::uint32_t i) {
    return a + 2 * b + 3 * c + 4 * d + 5 * e + 6 * f + 7 * g + 8 * h + 9 * i;
}
std::uint64_t Wide() {
    return 0x1122334455667788U;
}
double Real() {
    return -0.1;
}
float SingleReal() {
    return 0.1F;
}
void Throwing() {
    throw std::runtime_error("from inside");
}
void TakeEveryKind(std::uint32_t boolean, double real, std::int32_t narrow, float single,
                   std::uint64_t wide, void* address, TAKES_FOUR(1), TAKES_FOUR(2), TAKES_FOUR(3),
                   TAKES_FOUR(4), TAKES_FOUR(5), TAKES_FOUR(6)) {
    std::array<char, 17> hexadecimal{};
    std::to_chars(hexadecimal.data(), hexadecimal.data() + 16, wide, 16);
    Received() = std::to_string(boolean & 0xFFU) + " " + std::to_string(real) + " " +
                 std::to_string(narrow) + " " + std::to_string(single) + " " + hexadecimal.data() +
                 " " + std::to_string(reinterpret_cast<std::uintptr_t>(address)) + SHOWN_FOUR(1) +
                 SHOWN_FOUR(2) + SHOWN_FOUR(3) + SHOWN_FOUR(4) + SHOWN_FOUR(5) + SHOWN_FOUR(6);
}
}

}  // namespace

TEST_CASE("the words arrive in order and the result comes back in its registers") {
    Host host;
    CHECK(
        host.Call(AsRoutine(WeighedSum), Words{1, 2, 3, 4, 5, 6, 7, 8, 9}, ReturnKind::Word).low ==
        285);
    const ReturnValue wide = host.Call(AsRoutine(Wide), {}, ReturnKind::TwoWords);
    CHECK(wide.low == 0x55667788U);
    CHECK(wide.high == 0x11223344U);
    CHECK(host.Call(AsRoutine(Real), {}, ReturnKind::Double).real == -0.1);
    CHECK(host.Call(AsRoutine(SingleReal), {}, ReturnKind::Single).real ==
          static_cast<double>(0.1F));
    CHECK(host.Violations().empty());
    CHECK_THROWS_AS(host.Call(nullptr, {}, ReturnKind::None), std::logic_error);
}

TEST_CASE("arguments of every kind arrive, in registers and on the stack") {
    Host host;
    CallArguments arguments;
    arguments.Add(true);
    arguments.Add(0.5);
    arguments.Add(std::int32_t{-3});
    arguments.Add(0.25F);
    arguments.Add(std::uint64_t{0xFEDCBA9876543210});
    arguments.Add(&host);
    for (int k = 1; k <= 6; ++k) {
        arguments.Add(k * 1.5);
        arguments.Add(std::uint32_t{0xFFFFFFF0U} + static_cast<std::uint32_t>(k));
        arguments.Add(static_cast<float>(k) / 4);
        arguments.Add(k % 2 == 0);
    }
    Received() = {};
    host.Call(AsRoutine(TakeEveryKind), arguments, ReturnKind::None);
    CHECK(Received() == "1 0.500000 -3 0.250000 fedcba9876543210 " +
                            std::to_string(reinterpret_cast<std::uintptr_t>(&host)) +
                            " | 1.500000 4294967281 0.250000 0 | 3.000000 4294967282 0.500000 1"
                            " | 4.500000 4294967283 0.750000 0 | 6.000000 4294967284 1.000000 1"
                            " | 7.500000 4294967285 1.250000 0 | 9.000000 4294967286 1.500000 1");
    CHECK(host.Violations().empty());
}

TEST_CASE("a call has an end of arguments") {
    CallArguments arguments;
    for (std::size_t k = 0; k < standin::MostArguments; ++k) {
        arguments.Add(k);
    }
    CHECK_THROWS_AS(arguments.Add(true), std::length_error);
}

TEST_CASE("a native exception passes through a call") {
    Host host;
    CHECK_THROWS_WITH_AS(host.Call(AsRoutine(Throwing), Words{1, 2, 3}, ReturnKind::None),
                         "from inside", std::runtime_error);
}

#if defined(__i386__)

extern "C" {
std::uint32_t StackPointerAtEntry() asm("test_stack_pointer_at_entry");
std::uint32_t ControlWordAtEntry() asm("test_control_word_at_entry");
void DamageRegister() asm("test_damage_register");
void LeaveFloat() asm("test_leave_float");
}

asm(R"(
    .text
test_stack_pointer_at_entry:
    movl %esp, %eax
    ret
test_control_word_at_entry:
    subl $4, %esp
    fnstcw (%esp)
    movzwl (%esp), %eax
    addl $4, %esp
    ret
test_damage_register:
    movl $1, %ebx
    ret
test_leave_float:
    fld1
    ret
)");

namespace {

/// How far the stack was off its alignment before the return address was pushed.
std::uint32_t StackOffset(Host& host, const Words& words) {
    const ReturnValue entry = host.Call(AsRoutine(StackPointerAtEntry), words, ReturnKind::Word);
    return (entry.low + 4) % 16;
}

std::uint32_t ControlWord(Host& host) {
    return host.Call(AsRoutine(ControlWordAtEntry), {}, ReturnKind::Word).low;
}

std::uint32_t OwnControlWord() {
    std::uint16_t word = 0;
    asm volatile("fnstcw %0" : "=m"(word));
    return word;
}

extern "C" __attribute__((stdcall)) std::uint32_t TakesItsArguments(std::uint32_t a,
                                                                    std::uint32_t b) {
    return a + b;
}

}  // namespace

TEST_CASE("the stack is aligned, or off by 4, 8 and 12 in turn where that is asked for") {
    {
        Host host;
        for (std::size_t count = 0; count < 9; ++count) {
            CHECK(StackOffset(host, Words(count, 7)) == 0);
        }
    }
    Host host(HostOptions{.misalignedStack = true});
    for (std::uint32_t count = 0; count < 9; ++count) {
#if defined(__SANITIZE_ADDRESS__)
        CHECK(StackOffset(host, Words(count, 7)) == 8);
#else
        CHECK(StackOffset(host, Words(count, 7)) == 4 * (1 + count % 3));
#endif
    }
    CHECK(
        host.Call(AsRoutine(WeighedSum), Words{1, 2, 3, 4, 5, 6, 7, 8, 9}, ReturnKind::Word).low ==
        285);
}

TEST_CASE("the x87 control word is changed for the call where that is asked for") {
    const std::uint32_t own = OwnControlWord();
    {
        Host host;
        CHECK(ControlWord(host) == own);
    }
    Host host(HostOptions{.changedControlWord = true});
    CHECK(ControlWord(host) == 0x0C7F);
    CHECK(OwnControlWord() == own);
    // A result in ST(0) is handed over unrounded.
    CHECK(host.Call(AsRoutine(Real), {}, ReturnKind::Double).real == -0.1);
}

TEST_CASE("breaking the calling convention is a violation") {
    Host host;
    host.Call(AsRoutine(DamageRegister), {}, ReturnKind::None);
    CHECK(Only(TakeViolations(host)) == "a routine changed a register that it has to preserve");
    CHECK(host.Call(AsRoutine(TakesItsArguments), Words{2, 3}, ReturnKind::Word).low == 5);
    CHECK(Only(TakeViolations(host)) == "a routine took its arguments off the stack");
    host.Call(AsRoutine(LeaveFloat), {}, ReturnKind::None);
    CHECK(Only(TakeViolations(host)) == "a routine left the x87 stack unbalanced");
    asm volatile("fstp %%st(0)" ::: "st");
}

#else

extern "C" {
std::uint64_t FirstRegister() asm("test_first_register");
void DamageRegister() asm("test_damage_register");
}

#if defined(__aarch64__)
asm(R"(
    .text
test_first_register:
    hint #34
    ret
test_damage_register:
    hint #34
    mov x19, #1
    ret
)");
#else
asm(R"(
    .text
test_first_register:
)"
#if defined(_WIN32)
    "movq %rcx, %rax\n"
#else
    "movq %rdi, %rax\n"
#endif
    R"(
    ret
test_damage_register:
    movq $1, %rbx
    ret
)");
#endif

TEST_CASE("what an argument leaves free of its register is noise") {
    Host host;
    const auto inRegister = [&](auto value) {
        CallArguments arguments;
        arguments.Add(value);
        return host.Call(AsRoutine(FirstRegister), arguments, ReturnKind::TwoWords).Wide();
    };
    CHECK(inRegister(true) == 0xA5A5A5A5A5A5A501U);
    CHECK(inRegister(std::int32_t{-2}) == 0xA5A5A5A5FFFFFFFEU);
    CHECK(inRegister(std::int64_t{-2}) == 0xFFFFFFFFFFFFFFFEU);
    CHECK(host.Call(AsRoutine(FirstRegister), {}, ReturnKind::TwoWords).Wide() ==
          0xA5A5A5A5A5A5A5A5U);
}

TEST_CASE("breaking the calling convention is a violation") {
    Host host;
    host.Call(AsRoutine(DamageRegister), {}, ReturnKind::None);
    CHECK(Only(TakeViolations(host)) == "a routine changed a register that it has to preserve");
}

TEST_CASE("what only 32-bit hosts are is refused") {
    const auto refusal = [](const HostOptions& options) {
        try {
            const Host host(options);
        } catch (const std::invalid_argument& error) {
            return std::string(error.what());
        }
        return std::string("accepted");
    };
    CHECK(refusal({.misalignedStack = true}) ==
          "a misaligned stack is a matter of 32-bit hosts; this is a 64-bit one");
    CHECK(refusal({.changedControlWord = true}) ==
          "a changed x87 control word is a matter of 32-bit hosts; this is a 64-bit one");
    CHECK(Contains(refusal({.version = 2015.02}), "2015.03 or a later one"));
    CHECK(Contains(refusal({.version = std::nullopt}), "2015.03 or a later one"));
    CHECK(refusal({.version = 2015.03}) == "accepted");
}

#endif

TEST_CASE("debug lines are kept, or go to a sink") {
    Host host;
    OutputDebugStringA("first line");
    OutputDebugStringA("");
    CHECK(host.TakeDebugLog() == std::vector<std::string>{"first line", ""});
    CHECK(host.TakeDebugLog().empty());

    std::vector<std::string> seen;
    host.SetDebugSink([&](std::string_view line) { seen.emplace_back(line); });
    const std::string longLine(5000, 'x');
    OutputDebugStringA(longLine.c_str());
    CHECK(seen == std::vector<std::string>{longLine});
    CHECK(host.TakeDebugLog().empty());
}

TEST_CASE("a process has one host at a time") {
    Host host;
    CHECK(&Host::Current() == &host);
    CHECK_THROWS_AS(Host{}, std::logic_error);
    CHECK(&Host::Current() == &host);
}

TEST_CASE("a library that cannot be loaded is told clearly") {
    Host host;
    const auto message = [](const std::string& path) {
        try {
            const PluginLibrary library(path);
        } catch (const std::runtime_error& error) {
            return std::string(error.what());
        }
        return std::string("loaded");
    };
    CHECK(Contains(message("no/such/library"),
                   "cannot load the plug-in library \"no/such/library\""));
    CHECK(Contains(message("no/such/library"), "Build it first"));
    CHECK(Contains(message("nolibrary"), "cannot load"));
    CHECK(Contains(message(LibraryWithoutEntry), "does not export REALPluginMain"));
}

TEST_CASE("a library's entry gets the resolver, or null where that is asked for") {
    {
        Host host;
        const PluginLibrary library(SmallLibrary, false);
        CHECK(host.TakeDebugLog() == std::vector<std::string>{"entered without a resolver"});
        CHECK(host.lookups().empty());
        CHECK(host.RegisteredClasses().empty());
    }
    constexpr bool IsNarrow = sizeof(void*) == 4;
    Host host(HostOptions{.misalignedStack = IsNarrow, .changedControlWord = IsNarrow});
    PluginLibrary library(SmallLibrary);
    CHECK(host.TakeDebugLog() == std::vector<std::string>{"entered with a resolver"});
    CHECK(host.pluginInterfaceVersion() == 13);
    REQUIRE(host.FindClass("Small") != nullptr);
    CHECK(host.FindClass("Small")->dataSize == 16);
    library.CallEntry(&Host::Resolve);
    CHECK(host.TakeDebugLog() == std::vector<std::string>{"entered with a resolver"});
    CHECK(host.RegisteredClasses().size() == 1);
    CHECK(host.lookups().at("PluginRegisterClass") == 2);
    CHECK(host.Leaks().empty());
}
