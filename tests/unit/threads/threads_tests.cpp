// The plug-in on several threads at once. Built with ThreadSanitizer, this shows that nothing which
// threads share is written without order; built without it, that every thread gets its results.
#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <latch>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <doctest/doctest.h>

#include "plugin/entry.hpp"
#include "standin/runtime/call.hpp"
#include "tests/unit/support/signature.hpp"
#include "tests/unit/threads/thread_host.hpp"

namespace {

using namespace thread_tests;
using host_interface::ClassDefinition;
using host_interface::Integer;
using host_interface::Routine;
using host_interface::VariantTypeCode;
using standin::ReturnKind;

/// One routine of a number class, with its types in lower case; "number" is the class itself.
struct Member {
    std::string declaration;
    Routine routine;
    bool hasSelf;
    bool writesSelf;
    tests::Signature signature;
};

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from)) {
        text.replace(at, from.size(), to);
    }
    return text;
}

void AddMethods(std::vector<Member>& members, const ClassDefinition& type, bool shared) {
    const host_interface::MethodDefinition* table = shared ? type.sharedMethods : type.methods;
    const std::size_t count = shared ? type.sharedMethodCount : type.methodCount;
    for (std::size_t index = 0; index < count; ++index) {
        const std::string declaration =
            tests::Lower(Replaced(table[index].declaration, type.name, "Number"));
        const bool writes = declaration.starts_with("constructor") ||
                            declaration.starts_with("operator_convert(") ||
                            declaration.starts_with("setstringvalue");
        tests::Signature signature = tests::SignatureOf(declaration);
        if (table[index].function != nullptr) {
            members.push_back({declaration, table[index].function, !shared, writes, signature});
        }
        if (table[index].setterFunction != nullptr) {
            signature.argumentTypes.push_back(std::exchange(signature.resultType, ""));
            members.push_back(
                {declaration + " (set)", table[index].setterFunction, true, true, signature});
        }
    }
}

/// Every routine of the class, those of properties included.
std::vector<Member> MembersOf(const ClassDefinition& type) {
    std::vector<Member> members;
    for (std::size_t index = 0; index < type.propertyCount; ++index) {
        const host_interface::PropertyDefinition& property = type.properties[index];
        const std::string valueType = tests::Lower(property.type);
        const std::string name = property.name;
        if (property.getter != nullptr) {
            members.push_back({name, property.getter, true, false, {{"int32"}, valueType}});
        }
        if (property.setter != nullptr) {
            members.push_back(
                {name + " (set)", property.setter, true, true, {{"int32", valueType}, ""}});
        }
    }
    AddMethods(members, type, false);
    AddMethods(members, type, true);
    return members;
}

/// What calls are made with. A thread has its own, but for `shared`.
struct Values {
    Object shared;
    Object number;
    String text;
    Object variant;
    Object block;
    Integer integer;
    double real;
};

/// The bytes of a number's value.
std::string ValueBytes(const ClassDefinition& type, Object number) {
    if (number == nullptr || ValueOf(number) == nullptr) {
        return "Nil";
    }
    const std::size_t size = std::string_view(type.name) == "BigNumberVQZ" ? 41 : 321;
    return {static_cast<const char*>(ValueOf(number)), size};
}

Object MakeNumber(const ClassDefinition& type, const char* text) {
    const Object number = MakeInstance(type.name);
    const String value = MakeText(text);
    for (const Member& member : MembersOf(type)) {
        if (member.declaration == "constructor(value as string)") {
            standin::CallArguments arguments;
            arguments.Add(number);
            arguments.Add(value);
            standin::CallRoutine(member.routine, arguments.All(), ReturnKind::None, {});
        }
    }
    Drop(value);
    return number;
}

bool IsWide(std::string_view type) {
    return type == "int64" || type == "uint64" || type == "currency";
}

/// Calls a member and tells what came of it. Members that write work on `own`.
std::string CallMember(const ClassDefinition& type, const Member& member, const Values& values,
                       Object own) {
    standin::CallArguments arguments;
    String afterText = nullptr;
    std::uint8_t valueRead = 0;
    if (member.hasSelf) {
        arguments.Add(member.writesSelf ? own : values.shared);
    }
    for (const std::string& argument : member.signature.argumentTypes) {
        if (argument == "number") {
            arguments.Add(values.number);
        } else if (argument == "string") {
            arguments.Add(values.text);
        } else if (argument == "byref string") {
            arguments.Add(&afterText);
        } else if (argument == "byref boolean") {
            arguments.Add(&valueRead);
        } else if (argument == "variant") {
            arguments.Add(values.variant);
        } else if (argument == "memoryblock") {
            arguments.Add(values.block);
        } else if (argument == "double") {
            arguments.Add(values.real);
        } else if (argument == "single") {
            arguments.Add(static_cast<float>(values.real));
        } else if (argument == "boolean") {
            arguments.Add(true);
        } else if (argument == "integer" || argument == "uinteger") {
            arguments.Add(values.integer);
        } else if (IsWide(argument)) {
            arguments.Add(std::int64_t{values.integer});
        } else {
            arguments.Add(static_cast<std::int32_t>(values.integer));
        }
    }
    const std::string& result = member.signature.resultType;
    const ReturnKind kind = result.empty()       ? ReturnKind::None
                            : result == "double" ? ReturnKind::Double
                            : IsWide(result)     ? ReturnKind::TwoWords
                                                 : ReturnKind::Word;
    const standin::ReturnValue returned =
        standin::CallRoutine(member.routine, arguments.All(), kind, {}).value;
    std::string shown = member.declaration + ": ";
    if (result == "number") {
        const auto number = std::bit_cast<Object>(returned.Word());
        shown += ValueBytes(type, number);
        Drop(number);
    } else if (result == "string") {
        const auto text = std::bit_cast<String>(returned.Word());
        shown += Contents(text);
        Drop(text);
    } else if (result == "variant" || result == "memoryblock") {
        const auto object = std::bit_cast<Object>(returned.Word());
        shown += Contents(object);
        Drop(object);
    } else if (result == "double") {
        shown += std::to_string(returned.real);
    } else if (!result.empty()) {
        shown += std::to_string(result == "boolean" ? returned.low & 0xFFU : returned.Wide());
    }
    shown += Contents(afterText) + std::to_string(valueRead);
    Drop(afterText);
    return shown + (member.writesSelf ? ValueBytes(type, own) : "") + "\n";
}

/// Calls an operator of two numbers with numbers of the thread's own, `count` times.
void CallManyTimes(const ClassDefinition& type, Routine routine, int count) {
    const Object left = MakeNumber(type, "12.5");
    const Object right = MakeNumber(type, "-0.1");
    for (int done = 0; done < count; ++done) {
        standin::CallArguments arguments;
        arguments.Add(left);
        arguments.Add(right);
        const standin::ReturnValue result =
            standin::CallRoutine(routine, arguments.All(), ReturnKind::Word, {}).value;
        Drop(std::bit_cast<Object>(result.Word()));
    }
    Drop(left);
    Drop(right);
}

/// Work of the processor alone, which nothing can make wait.
void CountManyTimes(int count) {
    volatile std::uint32_t state = 1;  // else the compiler computes the result beforehand
    for (int done = 0; done < count; ++done) {
        state = state * 1664525 + 1013904223;
    }
}

/// Seconds in which so many threads do the work, each all of it: from the first one's begin to the
/// last one's end.
template <typename Work>
double SecondsFor(std::size_t threadCount, const Work& work) {
    using Clock = std::chrono::steady_clock;
    std::vector<Clock::time_point> begins(threadCount);
    std::vector<Clock::time_point> ends(threadCount);
    std::latch start(static_cast<std::ptrdiff_t>(threadCount));
    {
        std::vector<std::jthread> threads;
        threads.reserve(threadCount);
        for (std::size_t index = 0; index < threadCount; ++index) {
            threads.emplace_back([&, index] {
                start.arrive_and_wait();
                begins[index] = Clock::now();
                work();
                ends[index] = Clock::now();
            });
        }
    }
    const std::chrono::duration<double> passed =
        *std::ranges::max_element(ends) - *std::ranges::min_element(begins);
    return passed.count();
}

/// The shortest times of some runs with one thread and with two.
struct ShortestTimes {
    double one = std::numeric_limits<double>::infinity();
    double two = std::numeric_limits<double>::infinity();

    template <typename Work>
    void Run(const Work& work) {
        one = std::min(one, SecondsFor(1, work));
        two = std::min(two, SecondsFor(2, work));
    }
    /// How many times as much two threads do in the same time.
    double Gain() const { return 2 * one / two; }
};

/// Whether each call gives another result.
bool IsLeftOut(const Member& member) {
    return member.declaration == "rand as number";
}

/// Calls every member with several values.
std::string CallEverything(const ClassDefinition& type, Object shared) {
    struct Sample {
        const char* number;
        const char* text;
        Integer integer;
        double real;
    };
    constexpr Sample Samples[] = {{"2", "0.25", 10, 2.5},
                                  {"-7.125", "1e-40 rest", 7, -0.5},
                                  {"0.5", "-3.75", 3, 1e300},
                                  {"1e200", "no number", 17, 0.0}};
    std::string seen;
    for (const Sample& sample : Samples) {
        const std::array variants = {
            MakeVariant(VariantTypeCode::Int32, 5), MakeVariant(VariantTypeCode::Int64, 1LL << 40),
            MakeVariant(VariantTypeCode::Double, 3), MakeTextVariant(sample.text)};
        for (const Object variant : variants) {
            const Values values{
                shared,     MakeNumber(type, sample.number),    MakeText(sample.text),
                variant,    MakeBlock(std::string(32, '\x91')), sample.integer,
                sample.real};
            const Object own = MakeNumber(type, "12.5");
            for (const Member& member : MembersOf(type)) {
                const std::string shown = CallMember(type, member, values, own);
                seen += IsLeftOut(member) ? "" : shown;
            }
            Drop(own);
            Drop(values.number);
            Drop(values.text);
            Drop(values.block);
            Drop(variant);
        }
    }
    return seen;
}

}  // namespace

TEST_CASE("Eight threads call every member on objects of their own and read one object") {
    REALPluginMain(&Resolve);
    REQUIRE(Classes().size() == 3);
    const std::int64_t aliveBefore = CountNow().alive;
    for (const ClassDefinition* type : {Classes()[0], Classes()[1]}) {
        CAPTURE(std::string(type->name));
        const Object shared = MakeInstance(type->name);
        {
            // The one object is made without text, so that threads are the first to read one.
            standin::CallArguments arguments;
            arguments.Add(shared);
            arguments.Add(0.3);
            for (const Member& member : MembersOf(*type)) {
                if (member.declaration == "constructor(value as double)") {
                    standin::CallRoutine(member.routine, arguments.All(), ReturnKind::None, {});
                }
            }
        }
        const std::string sharedBefore = ValueBytes(*type, shared);
        REQUIRE(sharedBefore != "Nil");

        constexpr int ThreadCount = 8;
        std::array<std::string, ThreadCount> seen;
        std::latch start(ThreadCount);
        MeetAtLookups(ThreadCount);
        {
            std::vector<std::jthread> threads;
            threads.reserve(ThreadCount);
            for (std::string& result : seen) {
                threads.emplace_back([&] {
                    start.arrive_and_wait();
                    result = CallEverything(*type, shared);
                });
            }
        }
        MeetAtLookups(0);
        const std::string alone = CallEverything(*type, shared);
        for (const std::string& result : seen) {
            CHECK(result == alone);
        }
        CHECK(ValueBytes(*type, shared) == sharedBefore);
        CHECK(CountNow().raised > 0);
        Drop(shared);
    }
    CHECK(CountNow().alive == aliveBefore);

    // Everything that is looked up once and kept was looked up by all threads at once: without
    // that, the first one is usually done before another one asks.
    const Meetings meetings = MeetingsAtLookups();
    CHECK(meetings.missed == std::vector<std::string>{});
    for (const std::string name : {"_VariantUInt32", "_VariantUInt64", "VariantToInt64",
                                   "VariantToDouble", "VarType(value As Variant) As Integer"}) {
        CAPTURE(name);
        CHECK(std::ranges::count(meetings.complete, name) == 1);
    }
}

TEST_CASE("The debug log can be switched while other threads compute") {
    REALPluginMain(&Resolve);
    const ClassDefinition& type = *Classes()[0];
    const auto setDebugging =
        reinterpret_cast<void (*)(host_interface::BooleanWord)>(type.sharedProperties[0].setter);
    const Object shared = MakeNumber(type, "0.3");
    std::string first;
    std::string second;
    {
        std::jthread one([&] { first = CallEverything(type, shared); });
        std::jthread two([&] { second = CallEverything(type, shared); });
        for (int count = 0; count < 20; ++count) {
            setDebugging(1);
            setDebugging(0);
        }
    }
    CHECK(first == second);
    Drop(shared);
}

// ThreadSanitizer makes threads wait for each other.
#ifdef __SANITIZE_THREAD__
constexpr bool IsWatched = true;
#else
constexpr bool IsWatched = false;
#endif

TEST_CASE("Two threads that add do not wait for each other" * doctest::skip(IsWatched)) {
    REALPluginMain(&Resolve);
    const ClassDefinition& type = *Classes()[0];
    const std::vector<Member> members = MembersOf(type);
    const auto add =
        std::ranges::find(members, "operator_add(other as number) as number", &Member::declaration);
    REQUIRE(add != members.end());
    // Other programs keep processors busy, so the shortest times of many short runs count. Two
    // threads on one core share its units, so the gain is compared with that of work which nothing
    // can make wait. With a lock around every call there is none.
    constexpr int Calls = 50'000;
    constexpr int Counts = 5'000'000;
    constexpr int FewestRuns = 10;
    constexpr int MostRuns = 400;
    constexpr double LeastShare = 0.55;
    ShortestTimes calls;
    ShortestTimes counts;
    const auto isEnough = [&] { return calls.Gain() >= LeastShare * counts.Gain(); };
    for (int run = 0; run < FewestRuns || (run < MostRuns && !isEnough()); ++run) {
        calls.Run([&] { CallManyTimes(type, add->routine, Calls); });
        counts.Run([] { CountManyTimes(Counts); });
    }
    MESSAGE("two threads do " << calls.Gain() << " times as much as one; possible are "
                              << counts.Gain());
    CHECK(isEnough());
}
