// A host that calls in ways that none should count on: with other floating-point modes, another
// locale, from several threads, with many objects, and with members in any order.
#include <array>
#include <atomic>
#include <clocale>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <doctest/doctest.h>
#include <xmmintrin.h>

#include "tests/unit/support/threads.hpp"
#include "tests/unit/tables/loaded_plugin.hpp"
#include "tests/unit/tables/members.hpp"
#include "tests/unit/tables/recipes.hpp"

namespace {

using tests::CallRoutine;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::Member;
using tests::MembersOf;
using tests::NumberClass;
using tests::Object;
using tests::OwnedSamples;
using tests::Recipes;
using tests::Samples;
using tests::TakeRaised;

/// The modes of both floating-point units for the length of a scope.
class FloatModes {
public:
    FloatModes(std::uint16_t controlWord, unsigned int mxcsr) {
        asm volatile("fldcw %0" : : "m"(controlWord));
        _mm_setcsr(mxcsr);
    }
    ~FloatModes() {
        asm volatile("fldcw %0" : : "m"(controlWordBefore_));
        _mm_setcsr(mxcsrBefore_);
    }
    FloatModes(const FloatModes&) = delete;
    FloatModes& operator=(const FloatModes&) = delete;

    static std::uint16_t ControlWord() {
        std::uint16_t word = 0;
        asm volatile("fnstcw %0" : "=m"(word));
        return word;
    }
    /// The SSE unit's modes without the flags of what happened.
    static unsigned int Mxcsr() { return _mm_getcsr() & ~0x3FU; }

private:
    std::uint16_t controlWordBefore_ = ControlWord();
    unsigned int mxcsrBefore_ = _mm_getcsr();
};

/// Calls one member by one recipe; shows what it returned and raised, and its object afterwards.
std::string ResultOf(LoadedPlugin& plugin, NumberClass& number, const Member& member,
                     const tests::Recipe& recipe) {
    const OwnedSamples owned(plugin, number, recipe);
    const Samples samples = owned.Get();
    const std::string answer = member.CallForAnswer(samples).shown;
    const bool random = member.name().ends_with(".Rand as " + number.name());
    return member.name() + ": " + (random ? "" : answer) + "; " + TakeRaised(plugin.host()) + "; " +
           number.ValueBytes(samples.self);
}

/// What every member leads to by the first recipes; `around` gets each call as an action to run.
template <typename Around>
std::vector<std::string> AllResults(LoadedPlugin& plugin, Around around) {
    constexpr std::size_t RecipeCount = 2;
    std::vector<std::string> results;
    for (NumberClass& number : plugin.classes()) {
        for (const Member& member : MembersOf(number)) {
            for (const tests::Recipe& recipe : Recipes().first(RecipeCount)) {
                around([&] { results.push_back(ResultOf(plugin, number, member, recipe)); });
            }
        }
    }
    return results;
}

std::vector<std::string> AllResults(LoadedPlugin& plugin) {
    return AllResults(plugin, [](const auto& call) { call(); });
}

void CheckEqual(const std::vector<std::string>& results, const std::vector<std::string>& expected) {
    REQUIRE(results.size() == expected.size());
    for (std::size_t index = 0; index < results.size(); ++index) {
        CHECK(results[index] == expected[index]);
    }
}

/// What one object holds, as a program may know it: no value yet, or none any more; not a number;
/// or an integer.
struct Model {
    enum class Kind { Empty, Nan, Whole };
    Kind kind = Kind::Empty;
    std::int64_t value = 0;

    static Model Of(std::int64_t value) { return {Kind::Whole, value}; }
    /// Without a value an object reads as a NaN, and so do copies of it.
    Model Read() const { return kind == Kind::Empty ? Model{Kind::Nan, 0} : *this; }
    bool IsInteger() const { return kind == Kind::Whole; }
};

/// Objects that are constructed, set, read, computed with, destructed and dropped in any order,
/// beside a model of each.
class Machine {
public:
    Machine(LoadedPlugin& plugin, NumberClass& number) : plugin_(plugin), number_(number) {
        for (Slot& slot : slots_) {
            slot.object = number_.Unconstructed();
        }
    }

    /// One call, chosen by the random numbers, and a check of all that it may have changed.
    void Step(std::mt19937& random) {
        Slot& slot = slots_.at(random() % slots_.size());
        const Slot& other = slots_.at(random() % slots_.size());
        const auto value = static_cast<std::int32_t>(random() % 2'000'001) - 1'000'000;
        const auto choice = static_cast<unsigned int>(random() % 14);
        CAPTURE(choice);
        CAPTURE(value);
        Apply(choice, slot, other, value);
        Check();
    }

private:
    struct Slot {
        HeldObject object;
        Model model;
    };

    void Apply(unsigned int choice, Slot& slot, const Slot& other, std::int32_t value) {
        const Object self = slot.object.Get();
        switch (choice) {
            case 0:
                number_.Call<void>("Constructor", self);
                slot.model = Model::Of(0);
                break;
            case 1:
                number_.Call<void>("Constructor(value as Int32)", self, value);
                slot.model = Model::Of(value);
                break;
            case 2: {
                const HeldString text = plugin_.MakeString(std::to_string(value));
                number_.Call<void>("Constructor(value as String)", self, text.Get());
                slot.model = Model::Of(value);
                break;
            }
            case 3:
                number_.Call<void>("Constructor(other as $)", self, other.object.Get());
                slot.model = other.model.Read();
                break;
            case 4:
                number_.Set("DoubleValue", self, static_cast<double>(value));
                slot.model = Model::Of(value);
                break;
            case 5:
                number_.Set("Int64Value", self, std::int64_t{value});
                slot.model = Model::Of(value);
                break;
            case 6:
                // A Variant of a number without a value is a copy of what it reads as.
                number_.Set("VariantValue", self, other.object.Get());
                slot.model = &slot == &other ? Model::Of(0) : other.model.Read();
                break;
            case 7:
            case 8:
                CallRoutine<void>(number_.info().destructor, self);
                slot.model = {};
                break;
            case 9:
                slot = {number_.Unconstructed(), {}};
                break;
            case 10:
                Compute("Operator_Add(other as $) as $", slot, other,
                        [](auto a, auto b) { return a + b; });
                break;
            case 11:
                Compute("Operator_Subtract(other as $) as $", slot, other,
                        [](auto a, auto b) { return a - b; });
                break;
            case 12:
                FlipSign(slot);
                break;
            default:
                CHECK(number_.Call<host_interface::Integer>(
                          "Operator_Compare(other as $) as Integer", self, other.object.Get()) ==
                      Order(slot.model, other.model));
        }
    }

    /// Puts the result into the slot; two that are not both numbers are reported instead.
    template <typename Operation>
    void Compute(const char* declaration, Slot& slot, const Slot& other, Operation operation) {
        auto result = number_.Call<HeldObject>(declaration, slot.object.Get(), other.object.Get());
        const bool possible = slot.model.IsInteger() && other.model.IsInteger();
        CHECK(static_cast<bool>(result) == possible);
        CHECK(TakeRaised(plugin_.host()).empty() == possible);
        if (possible) {
            // A sum that grows too large for the model starts again.
            const std::int64_t value = operation(slot.model.value, other.model.value);
            constexpr std::int64_t Limit = std::int64_t{1} << 60U;
            slot.object =
                value > -Limit && value < Limit ? std::move(result) : number_.Unconstructed();
            slot.model = value > -Limit && value < Limit ? Model::Of(value) : Model{};
        }
    }

    /// By the flags, which are written in place and refused without a value.
    void FlipSign(Slot& slot) {
        constexpr std::int32_t Sign = 128;
        const Object self = slot.object.Get();
        const auto flags = number_.Get<host_interface::Integer>("DataFlags", self);
        const std::string refused =
            slot.model.kind == Model::Kind::Empty ? "NilObjectException: Not initialized" : "";
        CHECK(TakeRaised(plugin_.host()) == refused);
        if (slot.model.IsInteger() && slot.model.value != 0) {
            number_.Set("DataFlags", self, flags ^ Sign);
            slot.model.value = -slot.model.value;
        }
    }

    /// A NaN compares like zero.
    static std::int32_t Order(const Model& left, const Model& right) {
        const std::int64_t a = left.IsInteger() ? left.value : 0;
        const std::int64_t b = right.IsInteger() ? right.value : 0;
        return a > b ? 1 : a < b ? -1 : 0;
    }

    void Check() {
        for (const Slot& slot : slots_) {
            const Object object = slot.object.Get();
            CHECK(number_.ValueBytes(object).empty() == (slot.model.kind == Model::Kind::Empty));
            CHECK(number_.Get<bool>("IsNan", object) == !slot.model.IsInteger());
            if (slot.model.IsInteger()) {
                CHECK(number_.Get<std::int64_t>("Int64Value", object) == slot.model.value);
            }
        }
        CHECK(TakeRaised(plugin_.host()) == "");
    }

    LoadedPlugin& plugin_;
    NumberClass& number_;
    std::array<Slot, 6> slots_;
};

}  // namespace

TEST_CASE("Results are the same in all floating-point modes, and the modes stay") {
    LoadedPlugin plugin(standin::HostOptions{.misalignedStack = HOST_INTERFACE_32_BIT != 0});
    const std::vector<std::string> expected = AllResults(plugin);
    // Single, double and extended precision of the x87 unit; all exceptions masked.
    constexpr std::array<std::uint16_t, 3> Precisions = {0x007F, 0x027F, 0x037F};
    constexpr unsigned int MaskedExceptions = 0x1F80;
    constexpr unsigned int TinyIsZero = 0x8040;
    for (std::uint16_t rounding = 0; rounding < 4; ++rounding) {
        const auto controlWord =
            static_cast<std::uint16_t>(Precisions.at(rounding % 3U) | (rounding << 10U));
        const unsigned int mxcsr = MaskedExceptions | (static_cast<unsigned int>(rounding) << 13U) |
                                   (rounding % 2U == 0 ? TinyIsZero : 0U);
        CAPTURE(controlWord);
        CAPTURE(mxcsr);
        int changed = 0;
        const auto results = AllResults(plugin, [&](const auto& call) {
            const FloatModes modes(controlWord, mxcsr);
            call();
            changed +=
                FloatModes::ControlWord() == controlWord && FloatModes::Mxcsr() == mxcsr ? 0 : 1;
        });
        CHECK(changed == 0);
        CheckEqual(results, expected);
    }
}

TEST_CASE("Results are the same in a locale of another decimal separator") {
    LoadedPlugin plugin;
    const std::vector<std::string> expected = AllResults(plugin);
    bool found = false;
    for (const char* name : {"German_Germany.1252", "de_DE.UTF-8", "de_DE", "fr_FR.UTF-8"}) {
        found = found || std::setlocale(LC_ALL, name) != nullptr;
    }
    if (found) {
        CHECK(std::string(std::localeconv()->decimal_point) == ",");
        CheckEqual(AllResults(plugin), expected);
    } else {
        MESSAGE("this system has no locale with a decimal comma: not looked at");
    }
    std::setlocale(LC_ALL, "C");
}

TEST_CASE("Members work on a thread that did not load the library") {
    LoadedPlugin plugin;
    const std::vector<std::string> expected = AllResults(plugin);
    std::vector<std::string> results;
    const std::array<std::function<void()>, 1> other = {[&] { results = AllResults(plugin); }};
    tests::RunTogether(other);
    CheckEqual(results, expected);
}

TEST_CASE("Two threads may call in turns") {
    LoadedPlugin plugin;
    const std::vector<std::string> expected = AllResults(plugin);
    std::atomic<int> turn = 0;
    std::array<std::vector<std::string>, 2> results;
    const auto work = [&](int me) {
        return [&, me] {
            results.at(static_cast<std::size_t>(me)) = AllResults(plugin, [&](const auto& call) {
                while (turn != me) {
                    tests::YieldThread();
                }
                call();
                turn = 1 - me;
            });
        };
    };
    const std::array<std::function<void()>, 2> both = {work(0), work(1)};
    tests::RunTogether(both);
    CheckEqual(results[0], expected);
    CheckEqual(results[1], expected);
}

TEST_CASE("Two threads may call at the same time, each with objects of its own") {
    // These members ask nothing of the host, which is used by one thread at a time.
    constexpr int Rounds = 20000;
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        std::array<HeldObject, 2> objects = {number.Unconstructed(), number.Unconstructed()};
        std::array<HeldObject, 2> copies = {number.Unconstructed(), number.Unconstructed()};
        std::array<int, 2> mistakes = {};
        // Looked up before: the threads call nothing but the routines themselves.
        const auto construct = number.Method("Constructor(value as Int64)").function;
        const auto copyFrom = number.Method("Constructor(other as $)").function;
        const auto equals = number.Method("Equals(other as $) as Boolean").function;
        const standin::PropertyInfo& real = number.Property("DoubleValue");
        const auto getInteger = number.Property("Int64Value").getter;
        const auto isNegative = number.Property("IsNegative").getter;
        const auto work = [&](std::size_t me) {
            return [&, me] {
                const Object object = objects.at(me).Get();
                const Object copy = copies.at(me).Get();
                for (std::int64_t round = 1; round <= Rounds; ++round) {
                    const std::int64_t value = (me == 0 ? round : -round) * 1'000'003;
                    CallRoutine<void>(construct, object, value);
                    CallRoutine<void>(real.setter, copy, 0, 0.5);
                    bool right = CallRoutine<double>(real.getter, copy, 0) == 0.5;
                    CallRoutine<void>(copyFrom, copy, object);
                    right = right && CallRoutine<std::int64_t>(getInteger, copy, 0) == value &&
                            CallRoutine<bool>(isNegative, copy, 0) == (me == 1) &&
                            CallRoutine<bool>(equals, object, copy);
                    mistakes.at(me) += right ? 0 : 1;
                }
            };
        };
        const std::array<std::function<void()>, 2> both = {work(0), work(1)};
        tests::RunTogether(both);
        CHECK(mistakes[0] == 0);
        CHECK(mistakes[1] == 0);
    }
}

TEST_CASE("A hundred thousand objects live at once, each with its own number") {
    constexpr std::int32_t Count = 100'000;
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        std::vector<HeldObject> objects;
        for (std::int32_t index = 0; index < Count; ++index) {
            objects.push_back(number.Unconstructed());
            number.Call<void>("Constructor(value as Int32)", objects.back().Get(), index);
        }
        CHECK(plugin.host().Counts().objectsAlive == Count);
        int mistakes = 0;
        for (std::int32_t index = 0; index < Count; ++index) {
            const Object object = objects.at(static_cast<std::size_t>(index)).Get();
            mistakes +=
                number.Get<host_interface::Integer>("IntegerValue", object) == index ? 0 : 1;
        }
        CHECK(mistakes == 0);
    }
}

TEST_CASE("Constructors, setters, getters, methods and destructors in any order") {
    constexpr int Steps = 5000;
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        for (const unsigned int seed : {1U, 2U}) {
            CAPTURE(seed);
            std::mt19937 random(seed);
            Machine machine(plugin, number);
            for (int step = 0; step < Steps; ++step) {
                CAPTURE(step);
                machine.Step(random);
            }
        }
    }
}
