// The life of number objects: constructors, destructor, the plain tests, and what Nil reads as.
#include <cstring>
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace {

using tests::CallRoutine;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::LogLines;
using tests::NumberClass;
using tests::Object;
using tests::TakeRaised;

constexpr int Negative = 128;
constexpr int NotANumber = 64;
constexpr int Zero = 32;

/// The reference of an object to its value.
const void* ReferenceOf(standin::Host& host, Object object) {
    const void* value = nullptr;
    std::memcpy(&value, host.InstanceData(object), sizeof value);
    return value;
}

/// The four flag tests of an object, as "zero negative nan integer" where they hold.
std::string Tests(NumberClass& number, Object object) {
    std::string text;
    for (const auto& [property, word] : {std::pair{"IsZero", "zero "},
                                         {"IsNegative", "negative "},
                                         {"IsNan", "nan "},
                                         {"IsInteger", "integer "}}) {
        text += number.Get<bool>(property, object) ? word : "";
    }
    return text;
}

}  // namespace

TEST_CASE("The empty constructor makes zero, not NaN") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject object = number.Unconstructed();
        CHECK(ReferenceOf(plugin.host(), object.Get()) == nullptr);
        number.Call<void>("Constructor", object.Get());
        CHECK(number.Flags(object.Get()) == Zero);
        const std::string bytes = number.ValueBytes(object.Get());
        CHECK(bytes.substr(0, bytes.size() - 1) == std::string(bytes.size() - 1, '\0'));
        CHECK(Tests(number, object.Get()) == "zero integer ");
        CHECK(number.Text(object.Get()) == "0");
    }
}

TEST_CASE("The copy constructor makes a value of its own, and a NaN of Nil") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject original = number.Make("-12.5");
        const HeldObject copy = number.Unconstructed();
        number.Call<void>("Constructor(other as $)", copy.Get(), original.Get());
        CHECK(number.ValueBytes(copy.Get()) == number.ValueBytes(original.Get()));
        CHECK(ReferenceOf(plugin.host(), copy.Get()) != ReferenceOf(plugin.host(), original.Get()));
        CHECK(plugin.host().References(original.Get()) == 1);

        number.Call<void>("Constructor(other as $)", copy.Get(), nullptr);
        CHECK(number.Flags(copy.Get()) == Zero + NotANumber);
        CHECK(Tests(number, copy.Get()).find("zero nan") == 0);
        CHECK(number.Text(original.Get()) == "-12.5");

        // An object may be copied onto itself.
        number.Call<void>("Constructor(other as $)", original.Get(), original.Get());
        CHECK(number.Text(original.Get()) == "-12.5");
    }
}

TEST_CASE("A constructor that runs again replaces the value") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject object = number.Make("1");
        const HeldString text = plugin.MakeString("2");
        number.Call<void>("Constructor(value as String)", object.Get(), text.Get());
        CHECK(number.Text(object.Get()) == "2");
        number.Call<void>("Operator_Convert(value as String)", object.Get(), text.Get());
        CHECK(number.Text(object.Get()) == "2");
        number.Call<void>("Constructor", object.Get());
        CHECK(number.Text(object.Get()) == "0");
    }
}

TEST_CASE("The destructor drops the value, and a second one does nothing") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject object = number.Make("5");
        for (int run = 0; run < 2; ++run) {
            CallRoutine<void>(number.info().destructor, object.Get());
            CHECK(ReferenceOf(plugin.host(), object.Get()) == nullptr);
        }
        CHECK(Tests(number, object.Get()).find("zero nan") == 0);
        // A constructor brings it back to life.
        number.Call<void>("Constructor", object.Get());
        CHECK(number.Text(object.Get()) == "0");
    }
}

TEST_CASE("An object whose constructor never ran reads as Nil and dies in peace") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject unconstructed = number.Unconstructed();
        CHECK(Tests(number, unconstructed.Get()) == Tests(number, nullptr));
        CHECK(number.Text(unconstructed.Get()) == number.Text(nullptr));
        const HeldObject five = number.Make("5");
        const auto sum = number.Call<HeldObject>("Operator_Add(other as $) as $", five.Get(),
                                                 unconstructed.Get());
        CHECK_FALSE(sum);
        CHECK(TakeRaised(plugin.host()) ==
              "BigNumberErrorExceptionVQZ: Operator_Add operation failed with numbers 5 and nil.");
        CHECK(ReferenceOf(plugin.host(), unconstructed.Get()) == nullptr);
    }
}

TEST_CASE("The flag tests answer zero, sign and NaN by the flags, and integers by the value") {
    LoadedPlugin plugin;
    struct Row {
        const char* text;
        const char* expected;
    };
    constexpr Row Rows[] = {
        {"0", "zero integer "},
        {"-0", "zero integer "},
        {"5", "integer "},
        {"-5", "negative integer "},
        {"0.5", ""},
        {"-0.5", "negative "},
        {"1e30", "integer "},
        {"-1e30", "negative integer "},
        {"1e-30", ""},
        {"123456789012345678901234567890", "integer "},
        {"4294967296.5", ""},
    };
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        for (const Row& row : Rows) {
            CAPTURE(row.text);
            const HeldObject object = number.Make(row.text);
            CHECK(Tests(number, object.Get()) == row.expected);
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("Through Nil the flag tests read zero and NaN, without a sign") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CHECK(number.Get<bool>("IsZero", nullptr));
        CHECK(number.Get<bool>("IsNan", nullptr));
        CHECK_FALSE(number.Get<bool>("IsNegative", nullptr));
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("Boolean results fill the whole word") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject zero = number.Make("0");
        CHECK(number.Get<std::int32_t>("IsZero", zero.Get()) == 1);
        CHECK(number.Get<std::int32_t>("IsNan", zero.Get()) == 0);
        CHECK(number.Get<std::int32_t>("IsNegative", zero.Get()) == 0);
        CHECK(number.Get<std::int32_t>("IsInteger", zero.Get()) == 1);
        CHECK(number.Call<std::int32_t>("Equals(other as $) as Boolean", zero.Get(), zero.Get()) ==
              1);
    }
}

TEST_CASE("Both negations flip the sign of everything but zero, in a new object") {
    LoadedPlugin plugin;
    struct Row {
        const char* before;
        const char* after;
    };
    constexpr Row Rows[] = {{"5", "-5"}, {"-5", "5"},       {"0", "0"},
                            {"-0", "0"}, {"12.5", "-12.5"}, {"-1e30", "1e+30"}};
    for (NumberClass& number : plugin.classes()) {
        for (const char* negation : {"Negate as $", "Operator_Negate as $"}) {
            CAPTURE(negation);
            for (const Row& row : Rows) {
                CAPTURE(row.before);
                const HeldObject object = number.Make(row.before);
                const std::string bytesBefore = number.ValueBytes(object.Get());
                const auto result = number.Call<HeldObject>(negation, object.Get());
                REQUIRE(result);
                CHECK(result.Get() != object.Get());
                CHECK(number.Text(result.Get()) == row.after);
                CHECK(number.ValueBytes(object.Get()) == bytesBefore);
                CHECK(plugin.host().References(result.Get()) == 1);
            }
            const auto ofNil = number.Call<HeldObject>(negation, nullptr);
            REQUIRE(ofNil);
            CHECK(number.Flags(ofNil.Get()) == Zero + NotANumber);
        }
    }
    CHECK(TakeRaised(plugin.host()) == "");
}

TEST_CASE("A NaN without the zero flag changes its sign when it is negated") {
    LoadedPlugin plugin;
    NumberClass& number = plugin.bigNumber();
    const HeldObject object = number.Unconstructed();
    const HeldString text = plugin.MakeString("1e999999999999999999999999999999999999");
    number.Call<void>("Constructor(value as String)", object.Get(), text.Get());
    CHECK(TakeRaised(plugin.host()) != "");
    REQUIRE((number.Flags(object.Get()) & (NotANumber | Zero)) == NotANumber);
    const auto negated = number.Call<HeldObject>("Negate as $", object.Get());
    REQUIRE(negated);
    CHECK(number.Flags(negated.Get()) == (number.Flags(object.Get()) ^ Negative));
}

TEST_CASE("Equals compares signs, zero flags, exponents and mantissas, and no NaN flag") {
    LoadedPlugin plugin;
    struct Row {
        const char* left;
        const char* right;
        bool equal;
    };
    // An empty text stands for Nil.
    constexpr Row Rows[] = {
        {"1", "1", true},
        {"1", "-1", false},
        {"-1", "-1", true},
        {"0", "-0", true},
        {"0", "", true},
        {"", "0", true},
        {"", "", true},
        {"1", "", false},
        {"", "1", false},
        {"-1", "", false},
        {"0.5", "0.5", true},
        {"0.5", "0.25", false},
        {"1e30", "1e30", true},
        {"1e30", "1e31", false},
        {"0", "1", false},
        {"1", "0", false},
        {"3", "2.9999999999999999999999", false},
    };
    for (NumberClass& number : plugin.classes()) {
        const auto made = [&](const std::string& text) {
            return text.empty() ? HeldObject() : number.Make(text);
        };
        for (const Row& row : Rows) {
            CAPTURE(row.left);
            CAPTURE(row.right);
            const HeldObject left = made(row.left);
            const HeldObject right = made(row.right);
            CHECK(number.Call<bool>("Equals(other as $) as Boolean", left.Get(), right.Get()) ==
                  row.equal);
        }
        const HeldObject nan = number.MakeNan();
        CHECK(number.Call<bool>("Equals(other as $) as Boolean", nan.Get(), nan.Get()));
    }
    CHECK(TakeRaised(plugin.host()) == "");
}

TEST_CASE("A host that runs the empty constructor on new instances changes nothing") {
    LoadedPlugin plugin(standin::HostOptions{.newInstanceRunsConstructor = true});
    for (NumberClass& number : plugin.classes()) {
        const HeldObject two = number.Make("2");
        const HeldObject three = number.Make("3");
        const auto sum =
            number.Call<HeldObject>("Operator_Add(other as $) as $", two.Get(), three.Get());
        REQUIRE(sum);
        CHECK(number.Text(sum.Get()) == "5");
        const auto negated = number.Call<HeldObject>("Negate as $", sum.Get());
        CHECK(number.Text(negated.Get()) == "-5");
    }
}

TEST_CASE("Each constructor, test and negation logs its own name") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject self = number.Make("2");
        const HeldObject other = number.Make("3");
        const HeldString text = plugin.MakeString("4");
        const auto call = [&](const char* pattern, const auto&... arguments) {
            return plugin.LogOf([&] { number.Call<void>(pattern, self.Get(), arguments...); });
        };
        CHECK(call("Constructor") == LogLines({"ConstructorEmpty"}));
        CHECK(call("Constructor(value as String)", text.Get()) == LogLines({"ConstructorString"}));
        CHECK(call("Operator_Convert(value as String)", text.Get()) ==
              LogLines({"ConstructorString"}));
        CHECK(call("Constructor(other as $)", other.Get()) == LogLines({"ConstructorCopy"}));
        CHECK(call("Equals(other as $) as Boolean", other.Get()) == LogLines({"Equals"}));
        CHECK(call("Operator_Compare(other as $) as Integer", other.Get()) ==
              LogLines({"Operator_Compare"}));
        const auto read = [&](const char* property) {
            return plugin.LogOf([&] { number.Get<bool>(property, self.Get()); });
        };
        CHECK(read("IsZero") == LogLines({"IsZero"}));
        CHECK(read("IsNegative") == LogLines({"IsSign"}));
        CHECK(read("IsNan") == LogLines({"IsNan"}));
        CHECK(read("IsInteger") == LogLines({"IsInteger"}));
        CHECK(plugin.LogOf([&] { number.Call<HeldObject>("Negate as $", self.Get()); }) ==
              LogLines({"ChangeSign", "Destructor"}));
        CHECK(plugin.LogOf([&] { number.Call<HeldObject>("Operator_Negate as $", self.Get()); }) ==
              LogLines({"Operator_Negate", "Destructor"}));
        CHECK(plugin.LogOf([&] { CallRoutine<void>(number.info().destructor, self.Get()); }) ==
              LogLines({"Destructor"}));
    }
}

TEST_CASE("With the debug log off nothing is written") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject object = number.Make("2");
        number.Call<HeldObject>("Negate as $", object.Get());
        number.Call<HeldObject>("Operator_Divide(other as $) as $", object.Get(), nullptr);
        TakeRaised(plugin.host());
        number.Text(object.Get());
    }
    CHECK(plugin.host().TakeDebugLog().empty());
}
