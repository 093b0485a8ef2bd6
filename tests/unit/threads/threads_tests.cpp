// The plug-in on several threads at once. Built with ThreadSanitizer, this shows that nothing which
// threads share is written without order; built without it, that every thread gets its results.
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <latch>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <doctest/doctest.h>
#include <sys/resource.h>

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

/// What a thread did: its calls for each second of a processor, and how often it waited for
/// something.
struct Pace {
    double callsPerSecond;
    long waits;
};

rusage UsageOfThread() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage;
}

/// The processor's time, as the thread and the system spent it for the thread.
double SecondsOf(const rusage& usage) {
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Calls an operator of two numbers with numbers of the thread's own, `count` times.
Pace CallManyTimes(const ClassDefinition& type, Routine routine, int count, std::latch& start) {
    const Object left = MakeNumber(type, "12.5");
    const Object right = MakeNumber(type, "-0.1");
    start.arrive_and_wait();
    const rusage before = UsageOfThread();
    for (int done = 0; done < count; ++done) {
        standin::CallArguments arguments;
        arguments.Add(left);
        arguments.Add(right);
        const standin::ReturnValue result =
            standin::CallRoutine(routine, arguments.All(), ReturnKind::Word, {}).value;
        Drop(std::bit_cast<Object>(result.Word()));
    }
    const rusage after = UsageOfThread();
    Drop(left);
    Drop(right);
    return {count / (SecondsOf(after) - SecondsOf(before)), after.ru_nvcsw - before.ru_nvcsw};
}

/// The slowest of so many threads that call an operator at the same time, and all their waits.
Pace PaceOf(int threadCount, const ClassDefinition& type, Routine routine, int count) {
    std::vector<Pace> paces(static_cast<std::size_t>(threadCount));
    std::latch start(threadCount);
    {
        std::vector<std::jthread> threads;
        for (Pace& pace : paces) {
            threads.emplace_back([&] { pace = CallManyTimes(type, routine, count, start); });
        }
    }
    Pace all{paces.front()};
    for (std::size_t index = 1; index < paces.size(); ++index) {
        all.callsPerSecond = std::min(all.callsPerSecond, paces[index].callsPerSecond);
        all.waits += paces[index].waits;
    }
    return all;
}

/// Whether each call gives another result, or the routine is the state of the whole process.
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

        constexpr std::size_t ThreadCount = 8;
        std::array<std::string, ThreadCount> seen;
        std::latch start(ThreadCount);
        {
            std::vector<std::jthread> threads;
            for (std::string& result : seen) {
                threads.emplace_back([&] {
                    start.arrive_and_wait();
                    result = CallEverything(*type, shared);
                });
            }
        }
        const std::string alone = CallEverything(*type, shared);
        for (const std::string& result : seen) {
            CHECK(result == alone);
        }
        CHECK(ValueBytes(*type, shared) == sharedBefore);
        CHECK(CountNow().raised > 0);
        Drop(shared);
    }
    CHECK(CountNow().alive == aliveBefore);
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

TEST_CASE("Two threads compute twice as much as one" * doctest::skip(IsWatched)) {
    REALPluginMain(&Resolve);
    const ClassDefinition& type = *Classes()[0];
    const std::vector<Member> members = MembersOf(type);
    const auto add =
        std::ranges::find(members, "operator_add(other as number) as number", &Member::declaration);
    REQUIRE(add != members.end());
    // Other programs may keep processors busy, so what counts is the processors' time, in the best
    // of some runs. A lock shows as waiting. Two threads on one core of a processor are slower for
    // another reason: they share its units.
    constexpr int Calls = 100'000;
    constexpr int Runs = 20;
    double bestRatio = 0;
    long fewestWaits = Calls;
    for (int run = 0; run < Runs && (bestRatio < 0.55 || fewestWaits > 10); ++run) {
        const Pace one = PaceOf(1, type, add->routine, Calls);
        const Pace two = PaceOf(2, type, add->routine, Calls);
        bestRatio = std::max(bestRatio, two.callsPerSecond / one.callsPerSecond);
        fewestWaits = std::min(fewestWaits, two.waits);
    }
    MESSAGE("each of two threads at " << bestRatio
                                      << " of the pace of one; waits: " << fewestWaits);
    CHECK(bestRatio >= 0.55);
    CHECK(fewestWaits <= 10);
}
