// Every member while memory runs out: each single allocation of the library and of the host fails,
// once and from then on, and the member raises or answers what is stated, loses nothing, changes
// nothing and works again afterwards.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

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

/// What "VariantValue" answers for a text that could not be made.
constexpr std::string_view VariantOfNoText = "8 null";

/// Where the allocations that fail are made.
enum class Source { Language, Buffers, Strings, Objects };
constexpr std::array AllSources = {Source::Language, Source::Buffers, Source::Strings,
                                   Source::Objects};
constexpr std::array<std::string_view, AllSources.size()> SourceNames = {
    "the library's own", "its buffers", "the host's strings", "the host's objects and blocks"};

/// How often allocations were made to fail: once, and from then on.
using PointCounts = std::array<std::array<int, 2>, AllSources.size()>;

/// Members without a guard: what is thrown inside leaves them.
bool IsUnguarded(const Member& member) {
    constexpr std::array<std::string_view, 11> Names = {
        ".IsZero",       ".IsNegative",        ".IsNan",     ".IsInteger",
        ".Equals(",      ".Operator_Compare(", ".Modulate2", ".DataMantissa",
        ".DataExponent", ".DataFlags",         ".LibTypeStr"};
    return std::ranges::any_of(Names,
                               [&](std::string_view name) {
                                   return member.name().find(name) != std::string::npos;
                               }) ||
           member.name().find(".NumberWith") != std::string::npos;
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
    /// How many allocations failed.
    int failed = 0;

    bool operator==(const Outcome& other) const {
        return answer.shown == other.answer.shown && raised == other.raised && after == other.after;
    }
};

std::string_view ClassOf(std::string_view raised) {
    return raised.substr(0, raised.find(':'));
}

/// Whether nothing was answered.
bool IsNeutral(const Answer& answer) {
    return !answer.given;
}

/// What lives in the host and in the library.
std::array<std::uint64_t, 4> Living(const standin::Host& host) {
    const standin::LedgerCounts counts = host.Counts();
    return {counts.stringsAlive, counts.objectsAlive, counts.stringDataHeld,
            LibraryMemory::Living()};
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
        : plugin_(options), memory_(plugin_.library().entry()) {}

    /// Fails all allocations that any member by any recipe leads to.
    void Run() {
        for (NumberClass& number : plugin_.classes()) {
            for (const Member& member : MembersOf(number)) {
                CAPTURE(member.name());
                for (const Recipe& recipe : Recipes()) {
                    if (recipe.Concerns(member)) {
                        CAPTURE(recipe.name);
                        FailEach(number, member, recipe);
                    }
                }
            }
        }
    }

    LoadedPlugin& plugin() { return plugin_; }
    const PointCounts& points() const { return points_; }

private:
    /// Fails the n-th allocation of a source for n = 1, 2, 3 … until none is left to fail.
    void FailEach(NumberClass& number, const Member& member, const Recipe& recipe) {
        const Outcome usual = Call(number, member, recipe, {});
        const Outcome unread = Call(number, member, WithoutText(recipe), {});
        for (const Source source : AllSources) {
            if (source == Source::Language && IsUnguarded(member)) {
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
        const auto livingBefore = Living(plugin_.host());
        Outcome outcome;
        {
            const OwnedSamples owned(plugin_, number, recipe);
            const Samples samples = owned.Get();
            const std::string argument =
                samples.number == nullptr ? "" : number.ValueBytes(samples.number);
            outcome.before = number.ValueBytes(samples.self);
            for (const Point& point : points) {
                Arm(plugin_.host(), point);
            }
            outcome.answer = member.CallForAnswer(samples);
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
                // A text that cannot be made is missing in the message, or it was the answer.
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

    /// The object that could not be made was the answer, or it was the exception.
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
    const standin::HostOptions hosts[] = {{}, {.version = 2011.99, .unterminatedStrings = true}};
    PointCounts points = {};
    for (const standin::HostOptions& options : hosts) {
        Sweep sweep(options);
        sweep.Run();
        for (std::size_t source = 0; source < points.size(); ++source) {
            for (const std::size_t mode : {0, 1}) {
                points.at(source).at(mode) += sweep.points().at(source).at(mode);
            }
        }
    }
    std::string line = "failed allocations, once and from then on:";
    for (std::size_t source = 0; source < points.size(); ++source) {
        CHECK(points.at(source)[0] > 0);
        line += std::string(source == 0 ? " " : ", ") + std::string(SourceNames.at(source)) + " " +
                std::to_string(points.at(source)[0]) + " + " + std::to_string(points.at(source)[1]);
    }
    MESSAGE(line);
}
