// Every member while memory runs out: each single allocation of the library and of the host fails,
// once and from then on, and the member raises or returns what is stated, loses nothing, changes
// nothing and works again afterwards.
#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <new>
#include <optional>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/support/child_process.hpp"
#include "tests/unit/support/environment.hpp"
#include "tests/unit/support/library_memory.hpp"
#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"
#include "tests/unit/tables/recipes.hpp"

namespace {

using standin::Allocation;
using tests::Answer;
using tests::HeldObject;
using tests::LibraryMemory;
using tests::LoadedPlugin;
using tests::Member;
using tests::MembersOf;
using tests::MemorySource;
using tests::NumberClass;
using tests::OwnedSamples;
using tests::Recipe;
using tests::Recipes;
using tests::Samples;
using tests::String;
using tests::TakeRaised;

constexpr std::string_view OutOfMemory =
    "OutOfMemoryException: Failed to allocate memory: std::bad_alloc";

/// What "VariantValue" returns for a text that could not be made.
constexpr std::string_view VariantOfNoText = "8 null";

/// Where the allocations that fail are made.
enum class Source { Language, Buffers, Strings, Objects };
constexpr std::array AllSources = {Source::Language, Source::Buffers, Source::Strings,
                                   Source::Objects};
constexpr std::array<std::string_view, AllSources.size()> SourceNames = {
    "the library's own", "its buffers", "the host's strings", "the host's objects and blocks"};

/// How often allocations were made to fail: once, and from then on.
using PointCounts = std::array<std::array<int, 2>, AllSources.size()>;

/// How a process that calls one routine ends, as its status.
enum Ending { Returned = 40, Left = 41 };
/// The environment variable that says which routine: numbers of class and member, and what fails.
constexpr const char* RoutineVariable = "HOSTILE_TESTS_ROUTINE";

/// The names in a row of the table of docs/ARCHITECTURE.md that says which routines have no guard;
/// the row is that of a reason, a value of `Unguarded`.
std::vector<std::string> NamesWithoutGuard(const std::string& reason) {
    std::ifstream document(ARCHITECTURE_DOCUMENTATION);
    std::string line;
    while (std::getline(document, line) && !line.starts_with("| `" + reason + "` |")) {
    }
    // | `Reason` | `Name`, `Name` | What can throw there |
    std::istringstream cells(line);
    std::string names;
    for (int cell = 0; cell < 3; ++cell) {
        std::getline(cells, names, '|');
    }
    std::vector<std::string> found;
    for (std::size_t at = names.find('`'); at != std::string::npos; at = names.find('`', at)) {
        const std::size_t end = names.find('`', at + 1);
        REQUIRE(end != std::string::npos);
        found.push_back(names.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    REQUIRE_MESSAGE(!found.empty(), "docs/ARCHITECTURE.md has no names for " << reason);
    return found;
}

/// Whether a member's declaration begins with the name.
bool IsCalled(const Member& member, const std::string& name) {
    const std::string& declaration = member.name();
    return declaration.compare(declaration.find('.') + 1, name.size(), name) == 0;
}

/// Whether a member may let an exception out when memory is missing.
bool LetsExceptionsOut(const Member& member) {
    static const std::vector<std::string> Names = NamesWithoutGuard("OutOfMemoryEscapes");
    return std::ranges::any_of(Names,
                               [&](const std::string& name) { return IsCalled(member, name); });
}

/// Whether a member takes its time to compute something.
bool IsSlow(const Member& member) {
    const bool isFunction = !member.hasSelf() && member.Takes("number");
    return isFunction || member.name().find(".Pow(") != std::string::npos ||
           member.name().find(".Operator_Power") != std::string::npos;
}

/// Whether a member writes more than its name to the debug log.
bool LogsNumbers(const Member& member) {
    return member.name().find("Currency") != std::string::npos || member.Takes("variant");
}

/// One failure: the n-th allocation of a source, or all from it on.
struct Point {
    Source source = Source::Language;
    int n = 1;
    bool persistent = false;
};

void Arm(standin::Host& host, const Point& point) {
    switch (point.source) {
        case Source::Language:
            LibraryMemory::Fail(MemorySource::Language, point.n, point.persistent);
            break;
        case Source::Buffers:
            LibraryMemory::Fail(MemorySource::Buffers, point.n, point.persistent);
            break;
        case Source::Strings:
            host.FailAllocation(Allocation::String, point.n, point.persistent);
            break;
        case Source::Objects:
            host.FailAllocation(Allocation::Object, point.n, point.persistent);
            break;
    }
}

/// What a call led to.
struct Outcome {
    Answer answer;
    /// "CLASS: MESSAGE", or empty.
    std::string raised;
    /// The receiver's value before and after.
    std::string before;
    std::string after;
    /// How many allocations failed, and how many the library asked its language for.
    int failed = 0;
    int asked = 0;

    bool operator==(const Outcome& other) const {
        return answer.shown == other.answer.shown && raised == other.raised && after == other.after;
    }
};

std::string_view ClassOf(std::string_view raised) {
    return raised.substr(0, raised.find(':'));
}

/// Whether nothing was returned.
bool IsNeutral(const Answer& answer) {
    return !answer.given;
}

/// What lives in the host and in the library.
std::string Living(const standin::Host& host) {
    const standin::LedgerCounts counts = host.Counts();
    return std::to_string(counts.stringsAlive) + " strings, " +
           std::to_string(counts.objectsAlive) + " objects, " +
           std::to_string(counts.stringDataHeld) + " held data, " +
           std::to_string(LibraryMemory::Living()) + " of the library";
}

HeldObject MakeVariantOfNoText(LoadedPlugin& plugin, NumberClass&) {
    return HeldObject(plugin.host().MakeVariant(
        static_cast<std::int32_t>(host_interface::VariantTypeCode::String), String{}));
}

/// The recipe with no text in it, which is what remains of a text that could not be read.
Recipe WithoutText(Recipe recipe) {
    recipe.text = "";
    recipe.variant = recipe.variant == nullptr ? nullptr : MakeVariantOfNoText;
    return recipe;
}

/// All members of a plug-in, called while allocations fail.
class Sweep {
public:
    explicit Sweep(const standin::HostOptions& options)
        : plugin_(options), memory_(plugin_.library().entry()) {
        // The language runtime keeps what it learns about the library at the first exception.
        const HeldObject object = plugin_.bigNumber().Unconstructed();
        LibraryMemory::Fail(MemorySource::Language, 1, false);
        plugin_.bigNumber().Call<void>("Constructor", object.Get());
        CHECK(TakeRaised(plugin_.host()) == OutOfMemory);
        LibraryMemory::StopFailing();
    }

    /// Fails, one after the other, the allocations of the members that `choose` selects.
    template <typename Choose>
    void Run(Choose choose) {
        for (NumberClass& number : plugin_.classes()) {
            for (const Member& member : MembersOf(number)) {
                CAPTURE(member.name());
                for (const Recipe& recipe : Recipes()) {
                    if (choose(member, recipe) && recipe.Concerns(member)) {
                        CAPTURE(recipe.name);
                        FailEach(number, member, recipe);
                    }
                }
            }
        }
    }

    /// Calls a member by the first recipe while all allocations of all sources fail.
    Outcome CallWithoutMemory(NumberClass& number, const Member& member) {
        std::array<Point, AllSources.size()> points;
        std::ranges::transform(AllSources, points.begin(), [](Source source) {
            return Point{.source = source, .n = 1, .persistent = true};
        });
        return Call(number, member, Recipes().front(), points);
    }

    /// Whether a member takes memory from the language runtime when it succeeds.
    bool TakesMemory(NumberClass& number, const Member& member) {
        return Call(number, member, Recipes().front(), {}).asked > 0;
    }

    LoadedPlugin& plugin() { return plugin_; }
    const PointCounts& points() const { return points_; }

private:
    /// Fails the n-th allocation of a source for n = 1, 2, 3 … until none is left to fail.
    void FailEach(NumberClass& number, const Member& member, const Recipe& recipe) {
        const Outcome usual = Call(number, member, recipe, {});
        const bool reads = member.Takes("string") || member.Takes("variant");
        const Outcome unread = reads ? Call(number, member, WithoutText(recipe), {}) : usual;
        for (const Source source : AllSources) {
            if (source == Source::Language && LetsExceptionsOut(member)) {
                continue;
            }
            const auto index = static_cast<std::size_t>(source);
            CAPTURE(SourceNames.at(index));
            for (const bool persistent : {false, true}) {
                CAPTURE(persistent);
                for (int n = 1;; ++n) {
                    CAPTURE(n);
                    const Point point = {source, n, persistent};
                    const Outcome outcome = Call(number, member, recipe, {&point, 1});
                    plugin_.host().TakeDebugLog();
                    if (outcome.failed == 0) {
                        CHECK(outcome == usual);
                        break;
                    }
                    ++points_.at(index).at(persistent ? 1 : 0);
                    Check(member, point, usual, unread, outcome);
                    CHECK(Call(number, member, recipe, {}) == usual);
                }
            }
        }
    }

    Outcome Call(NumberClass& number, const Member& member, const Recipe& recipe,
                 std::span<const Point> points) {
        const std::string livingBefore = Living(plugin_.host());
        Outcome outcome;
        {
            const OwnedSamples owned(plugin_, number, recipe);
            const Samples samples = owned.Get();
            const std::string argument =
                samples.number == nullptr ? "" : number.ValueBytes(samples.number);
            outcome.before = number.ValueBytes(samples.self);
            std::ranges::for_each(points, [&](const Point& point) { Arm(plugin_.host(), point); });
            const int asked = LibraryMemory::Asked(MemorySource::Language);
            outcome.answer = member.CallForAnswer(samples);
            outcome.asked = LibraryMemory::Asked(MemorySource::Language) - asked;
            outcome.failed = LibraryMemory::StopFailing() + plugin_.host().StopFailing();
            outcome.raised = TakeRaised(plugin_.host());
            if (outcome.answer.given && member.name().ends_with(".Rand as " + number.name())) {
                outcome.answer.shown = "a random number";
            }
            outcome.after = number.ValueBytes(samples.self);
            CHECK((samples.number == nullptr || number.ValueBytes(samples.number) == argument));
            CHECK((member.writesSelf() || outcome.before == outcome.after));
        }
        CHECK(Living(plugin_.host()) == livingBefore);
        return outcome;
    }

    /// That a failure had the effect that is stated for it, and no other.
    static void Check(const Member& member, const Point& point, const Outcome& usual,
                      const Outcome& unread, const Outcome& outcome) {
        CAPTURE(usual.raised);
        switch (point.source) {
            case Source::Language:
                // A text that is no number was reported before memory was missing for the number.
                CHECK((outcome.raised == OutOfMemory ||
                       (member.writesSelf() && outcome.raised == usual.raised)));
                CHECK((IsNeutral(outcome.answer) || outcome.answer.shown == VariantOfNoText));
                // This setter makes the number 0 before it looks at the Variant.
                if (!member.name().ends_with(".VariantValue (set)")) {
                    CHECK(outcome.after == outcome.before);
                }
                break;
            case Source::Buffers:
            case Source::Strings:
                if (outcome == unread) {
                    break;
                }
                if (point.source == Source::Buffers && usual.raised.starts_with("OutOfBounds")) {
                    CHECK(outcome.raised == "OutOfBoundsException: Out of Bounds");
                    break;
                }
                // A text that cannot be made is missing in the message, or it was the result.
                CHECK(ClassOf(outcome.raised) == ClassOf(usual.raised));
                CHECK(outcome.raised.size() <= usual.raised.size());
                CHECK((outcome.answer.shown == usual.answer.shown || IsNeutral(outcome.answer) ||
                       outcome.answer.shown == VariantOfNoText));
                CHECK(outcome.after == usual.after);
                break;
            case Source::Objects:
                CHECK(IsNeutral(outcome.answer));
                CHECK(outcome.after == usual.after);
                CheckRaisedWithoutObject(member, point.persistent, usual, outcome);
                break;
        }
    }

    /// The object that could not be made was the result, or it was the exception.
    static void CheckRaisedWithoutObject(const Member& member, bool persistent,
                                         const Outcome& usual, const Outcome& outcome) {
        if (!usual.raised.empty()) {
            const std::string message = usual.raised.substr(usual.raised.find(':'));
            CHECK(outcome.raised == (persistent ? "" : "RuntimeException" + message));
        } else if (member.resultType() != "memoryblock" || persistent) {
            CHECK(outcome.raised == "");
        } else {
            CHECK(outcome.raised == "OutOfMemoryException: Failed to allocate a memoryblock with " +
                                        std::to_string(usual.answer.shown.size()) +
                                        " bytes in size.");
        }
    }

    LoadedPlugin plugin_;
    LibraryMemory memory_;
    PointCounts points_ = {};
};

}  // namespace

TEST_CASE("The first exception of a process takes no memory") {
    LoadedPlugin plugin;
    const LibraryMemory memory(plugin.library().entry());
    const HeldObject object = plugin.bigNumber().Unconstructed();
    LibraryMemory::Fail(MemorySource::Language, 1, true);
    plugin.bigNumber().Call<void>("Constructor", object.Get());
    CHECK(LibraryMemory::StopFailing() >= 1);
    CHECK(TakeRaised(plugin.host()) == OutOfMemory);
}

TEST_CASE("Every member survives the failure of each single allocation") {
    PointCounts points = {};
    const auto sweep = [&](const standin::HostOptions& options, auto choose, bool logs = false) {
        Sweep one(options);
        one.plugin().SwitchDebugLog(logs);
        one.Run(choose);
        for (std::size_t source = 0; source < points.size(); ++source) {
            for (const std::size_t mode : {0U, 1U}) {
                points.at(source).at(mode) += one.points().at(source).at(mode);
            }
        }
    };
    // All slow members allocate alike: they compute once, and fail once, by the recipe of Nil.
    sweep({}, [](const Member& member, const Recipe& recipe) {
        return !IsSlow(member) || &recipe < &Recipes()[2];
    });
    // Text gets in and out in another way on old hosts, and where it has no end with buffers of the
    // library's own.
    sweep({.version = HOST_INTERFACE_32_BIT != 0 ? 2011.99 : standin::First64BitVersion,
           .unterminatedStrings = true},
          [](const Member& member, const Recipe&) { return !IsSlow(member); });
    // What cannot be formatted for the log is missing there, and nowhere else.
    sweep(
        {}, [](const Member& member, const Recipe&) { return LogsNumbers(member); }, true);
    std::string line = "failed allocations, once and from then on:";
    for (std::size_t source = 0; source < points.size(); ++source) {
        CHECK(points.at(source)[0] > 0);
        line += std::string(source == 0 ? " " : ", ") + std::string(SourceNames.at(source)) + " " +
                std::to_string(points.at(source)[0]) + " + " + std::to_string(points.at(source)[1]);
    }
    MESSAGE(line);
}

TEST_CASE("With no memory at all no member raises, answers or ends the process") {
    Sweep sweep({});
    for (NumberClass& number : sweep.plugin().classes()) {
        for (const Member& member : MembersOf(number)) {
            CAPTURE(member.name());
            if (!LetsExceptionsOut(member) || !sweep.TakesMemory(number, member)) {
                const Outcome outcome = sweep.CallWithoutMemory(number, member);
                CHECK(outcome.raised == "");
                CHECK((outcome.failed == 0 || IsNeutral(outcome.answer)));
            }
        }
    }
}

TEST_CASE("An exception leaves a routine without a guard") {
    Sweep sweep({});
    int routines = 0;
    for (std::size_t index = 0; index < sweep.plugin().classes().size(); ++index) {
        NumberClass& number = sweep.plugin().classes().at(index);
        const std::vector<Member> members = MembersOf(number);
        for (std::size_t position = 0; position < members.size(); ++position) {
            if (!LetsExceptionsOut(members[position]) ||
                !sweep.TakesMemory(number, members[position])) {
                continue;
            }
            CAPTURE(members[position].name());
            ++routines;
            for (const char* mode : {" once", " persistently"}) {
                const tests::EnvironmentVariable routine(
                    RoutineVariable, std::to_string(index) + " " + std::to_string(position) + mode);
                CHECK(tests::RunAlone("*one routine without memory") == Left);
            }
        }
    }
    // The shared constructors of both classes. They all take memory.
    CHECK(routines == 2 * 11);
}

TEST_CASE("Every routine that is documented to have no guard is a member") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const std::vector<Member> members = MembersOf(number);
        for (const char* reason : {"NothingThrows", "GuardedInside", "OutOfMemoryEscapes"}) {
            for (const std::string& name : NamesWithoutGuard(reason)) {
                CAPTURE(name);
                // The switch of the debug log is none of them, which would turn it on.
                CHECK((name == "Debugging" ||
                       std::ranges::any_of(
                           members, [&](const Member& member) { return IsCalled(member, name); })));
            }
        }
    }
}

TEST_CASE("Alone: one routine without memory" * doctest::skip()) {
    std::istringstream words(std::getenv(RoutineVariable));
    std::size_t index = 0;
    std::size_t position = 0;
    std::string mode;
    words >> index >> position >> mode;

    LoadedPlugin plugin({}, std::nullopt, true, tests::LibraryFile::Original);
    const LibraryMemory memory(plugin.library().entry());
    NumberClass& number = plugin.classes().at(index);
    const Member member = MembersOf(number).at(position);
    const OwnedSamples samples(plugin, number);
#if defined(_WIN32)
    // Library and program carry a language runtime each. What leaves the library meets no frame
    // that its runtime knows, which ends the process.
    std::signal(SIGABRT, [](int) { std::_Exit(Left); });
#endif
    // Natively the two copies of the runtime work together once this one has been used, too.
    CHECK_THROWS_AS(std::string().at(0), std::out_of_range);
    LibraryMemory::Fail(MemorySource::Language, 1, mode == "persistently");
    try {
        member.CallForAnswer(samples.Get());
    } catch (const std::bad_alloc&) {
        // No end of this block: the memory of the exception belongs to the library's runtime.
        std::_Exit(Left);
    }
    std::_Exit(Returned);
}

TEST_CASE("Start-up takes buffers for the tables of an old host only") {
    // Whether these can be made is not asked for everywhere: without them the library cannot
    // start. They are the old form of each of the three records and, of the two number classes,
    // the short tables of properties, methods, shared properties and shared methods.
    constexpr int OldRecords = 3;
    constexpr int ShortTables = 2 * 4;
    struct Row {
        double hostVersion;
        int buffers;
    };
    for (const Row& row :
         {Row{2011.99, OldRecords + ShortTables}, Row{2012.0, 0}, Row{2023.04, 0}}) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        LoadedPlugin plugin({.version = row.hostVersion}, std::nullopt, false);
        const LibraryMemory memory(plugin.library().entry());
        plugin.library().CallEntry(&standin::Host::Resolve);
        CHECK(LibraryMemory::Asked(MemorySource::Buffers) == row.buffers);
        CHECK(plugin.host().RegisteredClasses().size() == 3);
    }
}
