// How the stand-in host calls routines, takes debug lines and loads libraries.
#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "standin_support.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
extern "C" void OutputDebugStringA(const char* text);
#endif

using namespace standin_tests;
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
    Host host(HostOptions{.misalignedStack = true, .changedControlWord = true});
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
