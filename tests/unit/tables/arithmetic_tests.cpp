// The four basic operations with their operators, comparison, and the report of a failure.
#include <array>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace {

using host_interface::Integer;
using tests::HeldObject;
using tests::HeldString;
using tests::LoadedPlugin;
using tests::LogLines;
using tests::NumberClass;
using tests::Object;
using tests::TakeRaised;

/// An operation of two numbers in its three forms: as a method with a `round` argument and as an
/// operator on either side. Each has the name that the log and the failure report show.
struct Operation {
    const char* method;
    const char* methodName;
    const char* left;
    const char* right;
    const char* operatorName;
};

constexpr Operation Add = {"Add(other as $, round as boolean = true) as $", "Add",
                           "Operator_Add(other as $) as $", "Operator_AddRight(other as $) as $",
                           "Operator_Add"};
constexpr Operation Subtract = {"Subtract(other as $, round as boolean = true) as $", "Sub",
                                "Operator_Subtract(other as $) as $",
                                "Operator_SubtractRight(other as $) as $", "Operator_Subtract"};
constexpr Operation Multiply = {"Multiply(other as $, round as boolean = true) as $", "Mul",
                                "Operator_Multiply(other as $) as $",
                                "Operator_MultiplyRight(other as $) as $", "Operator_Multiply"};
constexpr Operation Divide = {"Divide(other as $, round as boolean = true) as $", "Div",
                              "Operator_Divide(other as $) as $",
                              "Operator_DivideRight(other as $) as $", "Operator_Divide"};

constexpr const Operation* Operations[] = {&Add, &Subtract, &Multiply, &Divide};

/// One form of an operation, with its name.
struct Form {
    const char* declaration;
    const char* name;
    bool hasRound;
};

std::array<Form, 3> FormsOf(const Operation& operation) {
    return {{{operation.method, operation.methodName, true},
             {operation.left, operation.operatorName, false},
             {operation.right, operation.operatorName, false}}};
}

HeldObject Compute(NumberClass& number, const Form& form, Object self, Object other,
                   bool round = true) {
    return form.hasRound ? number.Call<HeldObject>(form.declaration, self, other, round)
                         : number.Call<HeldObject>(form.declaration, self, other);
}

/// An empty text makes Nil, "NaN" a NaN.
HeldObject Made(NumberClass& number, std::string_view text) {
    if (text.empty()) {
        return {};
    }
    return text == "NaN" ? number.MakeNan() : number.Make(text);
}

/// The message of a failed operation of two numbers.
std::string Failure(std::string_view name, std::string_view first, std::string_view second) {
    return std::string("BigNumberErrorExceptionVQZ: ")
        .append(name)
        .append(" operation failed with numbers ")
        .append(first)
        .append(" and ")
        .append(second)
        .append(".");
}

}  // namespace

TEST_CASE("Sums, differences, products and quotients come out in all three forms") {
    LoadedPlugin plugin;
    struct Row {
        const Operation& operation;
        const char* left;
        const char* right;
        const char* result;
    };
    constexpr Row Rows[] = {
        {Add, "2", "3", "5"},
        {Add, "-2", "3", "1"},
        {Add, "0.1", "0.2", "0.3"},
        {Add, "0", "7", "7"},
        {Add, "5", "-5", "0"},
        {Add, "123456789012345", "1", "123456789012346"},
        {Subtract, "2", "3", "-1"},
        {Subtract, "3", "2", "1"},
        {Subtract, "3", "3", "0"},
        {Subtract, "-3", "-5", "2"},
        {Multiply, "12", "-12", "-144"},
        {Multiply, "0", "5", "0"},
        {Multiply, "0.5", "0.25", "0.125"},
        {Multiply, "111111111", "111111111", "1.2345678987654321e+16"},
        {Divide, "1", "8", "0.125"},
        {Divide, "-7", "2", "-3.5"},
        {Divide, "0", "5", "0"},
        {Divide, "12.5", "2.5", "5"},
    };
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        for (const Row& row : Rows) {
            const HeldObject left = number.Make(row.left);
            const HeldObject right = number.Make(row.right);
            const std::string leftBytes = number.ValueBytes(left.Get());
            const std::string rightBytes = number.ValueBytes(right.Get());
            for (const Form& form : FormsOf(row.operation)) {
                CAPTURE(form.declaration);
                CAPTURE(row.left);
                CAPTURE(row.right);
                const HeldObject result = Compute(number, form, left.Get(), right.Get());
                REQUIRE(result);
                CHECK(number.Text(result.Get()) == row.result);
                CHECK(plugin.host().ClassOf(result.Get()).name == number.name());
                CHECK(plugin.host().References(result.Get()) == 1);
                CHECK(number.ValueBytes(left.Get()) == leftBytes);
                CHECK(number.ValueBytes(right.Get()) == rightBytes);
            }
        }
        CHECK(TakeRaised(plugin.host()) == "");
    }
}

TEST_CASE("One object may be both operands") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject six = number.Make("6");
        const std::string bytes = number.ValueBytes(six.Get());
        constexpr const char* Results[] = {"12", "0", "36", "1"};
        for (std::size_t index = 0; index < std::size(Operations); ++index) {
            for (const Form& form : FormsOf(*Operations[index])) {
                CAPTURE(form.declaration);
                const HeldObject result = Compute(number, form, six.Get(), six.Get());
                REQUIRE(result);
                CHECK(number.Text(result.Get()) == Results[index]);
                CHECK(number.ValueBytes(six.Get()) == bytes);
            }
        }
    }
}

TEST_CASE("The argument round decides whether the last bit of a result is rounded up") {
    LoadedPlugin plugin;
    struct Fraction {
        const char* numerator;
        const char* denominator;
    };
    struct Row {
        const Operation& operation;
        Fraction left;
        Fraction right;
    };
    // Operands whose exact result lies above the middle between two values of either class.
    constexpr Row Rows[] = {
        {Add, {"1", "3"}, {"12", "7"}},
        {Subtract, {"1", "3"}, {"12", "7"}},
        {Multiply, {"1", "3"}, {"5", "7"}},
        {Divide, {"3", "1"}, {"5", "1"}},
    };
    for (NumberClass& number : plugin.classes()) {
        const auto made = [&](const Fraction& fraction) {
            const HeldObject numerator = number.Make(fraction.numerator);
            const HeldObject denominator = number.Make(fraction.denominator);
            return number.Call<HeldObject>(Divide.left, numerator.Get(), denominator.Get());
        };
        for (const Row& row : Rows) {
            CAPTURE(number.name());
            CAPTURE(row.operation.method);
            const HeldObject left = made(row.left);
            const HeldObject right = made(row.right);
            const auto [method, leftOperator, rightOperator] = FormsOf(row.operation);
            const auto bytes = [&](const Form& form, bool round) {
                const HeldObject result = Compute(number, form, left.Get(), right.Get(), round);
                return number.ValueBytes(result.Get());
            };
            CHECK(bytes(method, true) != bytes(method, false));
            CHECK(bytes(leftOperator, true) == bytes(method, true));
            CHECK(bytes(rightOperator, true) == bytes(method, true));
        }
    }
}

TEST_CASE("Every method with a round argument takes any Boolean word") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject two = number.Make("2");
        const HeldObject three = number.Make("3");
        for (const Operation* operation : Operations) {
            const auto result = [&](std::uintptr_t round) {
                const auto object =
                    number.Call<HeldObject>(operation->method, two.Get(), three.Get(), round);
                REQUIRE(object);
                return number.ValueBytes(object.Get());
            };
            CAPTURE(operation->method);
            CHECK(result(0) == result(0xFFFFFF00));
            CHECK(result(1) == result(0xFFFFFF02));
        }
    }
}

TEST_CASE("A failed operation raises its report, answers Nil and leaves the operands alone") {
    LoadedPlugin plugin;
    struct Row {
        const Operation& operation;
        const char* left;
        const char* right;
        const char* shownLeft;
        const char* shownRight;
    };
    constexpr Row Rows[] = {
        {Divide, "12.5", "0", "12.5", "0"},
        {Divide, "-4", "0", "-4", "0"},
        {Divide, "0", "0", "0", "0"},
        {Divide, "12.5", "", "12.5", "nil"},
        {Divide, "", "12.5", "nil", "12.5"},
        {Divide, "", "", "nil", "nil"},
        {Divide, "NaN", "1", "NaN", "1"},
        {Add, "5", "", "5", "nil"},
        {Add, "", "5", "nil", "5"},
        {Add, "0.1", "NaN", "0.1", "NaN"},
        {Subtract, "5", "", "5", "nil"},
        {Subtract, "", "", "nil", "nil"},
        {Subtract, "NaN", "NaN", "NaN", "NaN"},
        {Multiply, "1e20", "", "1e+20", "nil"},
        {Multiply, "", "-0.5", "nil", "-0.5"},
    };
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        for (const Row& row : Rows) {
            const HeldObject left = Made(number, row.left);
            const HeldObject right = Made(number, row.right);
            const auto bytesOf = [&](const HeldObject& object) {
                return object ? number.ValueBytes(object.Get()) : std::string();
            };
            const std::string leftBytes = bytesOf(left);
            const std::string rightBytes = bytesOf(right);
            for (const Form& form : FormsOf(row.operation)) {
                CAPTURE(form.declaration);
                const HeldObject result =
                    Compute(plugin.bigNumber().name() == number.name() ? plugin.bigNumber()
                                                                       : plugin.biggerNumber(),
                            form, left.Get(), right.Get());
                CHECK_FALSE(result);
                CHECK(TakeRaised(plugin.host()) ==
                      Failure(form.name, row.shownLeft, row.shownRight));
                CHECK(bytesOf(left) == leftBytes);
                CHECK(bytesOf(right) == rightBytes);
            }
        }
    }
}

TEST_CASE("A result that is too large for the smaller class fails there and not in the larger") {
    LoadedPlugin plugin;
    const std::string huge = "1e2000000000000000000";
    for (NumberClass& number : plugin.classes()) {
        const HeldObject left = number.Make(huge);
        REQUIRE(TakeRaised(plugin.host()) == "");
        const HeldObject product = Compute(number, FormsOf(Multiply)[1], left.Get(), left.Get());
        const bool isSmaller = number.name() == "BigNumberVQZ";
        CHECK(static_cast<bool>(product) != isSmaller);
        const std::string raised = TakeRaised(plugin.host());
        CHECK(raised.starts_with(isSmaller ? "BigNumberErrorExceptionVQZ: Operator_Multiply "
                                             "operation failed with numbers "
                                           : ""));
        CHECK(raised.empty() != isSmaller);
    }
}

TEST_CASE("The message of a failure is text in ASCII") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        const HeldObject left = number.Make("1");
        number.Call<HeldObject>(Divide.method, left.Get(), nullptr, true);
        const HeldObject exception(plugin.host().TakeException());
        REQUIRE(exception);
        using Reader = host_interface::functions::REALGetPropValueString;
        auto* read = reinterpret_cast<Reader*>(standin::Host::Resolve("REALGetPropValueString"));
        host_interface::String message = nullptr;
        REQUIRE(read(exception.Get(), "Message", &message) != 0);
        const HeldString held(message);
        CHECK(plugin.host().Encoding(message) == host_interface::HostTextEncoding::Ascii);
        CHECK(plugin.host().Bytes(message) == "Div operation failed with numbers 1 and nil.");
    }
}

TEST_CASE("Each operation logs its name, and twice more when it fails") {
    LoadedPlugin plugin;
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        const HeldObject left = number.Make("1");
        const HeldObject right = number.Make("2");
        for (const Operation* operation : Operations) {
            for (const Form& form : FormsOf(*operation)) {
                CAPTURE(form.declaration);
                CHECK(plugin.LogOf([&] { Compute(number, form, left.Get(), right.Get()); }) ==
                      LogLines({form.name, "Destructor"}));
                CHECK(plugin.LogOf([&] { Compute(number, form, left.Get(), nullptr); }) ==
                      LogLines({form.name, "RaiseOverflowException", "RaiseOverflowException"}));
                CHECK(TakeRaised(plugin.host()) == Failure(form.name, "1", "nil"));
            }
        }
    }
}

TEST_CASE("Comparing answers -1, 0 or 1, with NaN and Nil as zero") {
    LoadedPlugin plugin;
    struct Row {
        const char* left;
        const char* right;
        Integer expected;
    };
    constexpr Row Rows[] = {
        {"1", "2", -1},         {"2", "1", 1},     {"2", "2", 0},         {"-1", "1", -1},
        {"1", "-1", 1},         {"-1", "-2", 1},   {"-2", "-1", -1},      {"-2", "-2", 0},
        {"0", "0", 0},          {"0", "-0", 0},    {"0", "1", -1},        {"1", "0", 1},
        {"0", "-1", 1},         {"-1", "0", -1},   {"0.5", "0.25", 1},    {"1e30", "1e31", -1},
        {"-1e30", "1e-30", -1}, {"1e-30", "0", 1}, {"1e-30", "1e-31", 1}, {"5", "", 1},
        {"0", "", 0},           {"-5", "", -1},    {"", "5", -1},         {"", "0", 0},
        {"", "-5", 1},          {"", "", 0},       {"NaN", "0", 0},       {"NaN", "5", -1},
        {"NaN", "-5", 1},       {"5", "NaN", 1},   {"NaN", "NaN", 0},     {"NaN", "", 0},
    };
    for (NumberClass& number : plugin.classes()) {
        CAPTURE(number.name());
        for (const Row& row : Rows) {
            CAPTURE(row.left);
            CAPTURE(row.right);
            const HeldObject left = Made(number, row.left);
            const HeldObject right = Made(number, row.right);
            CHECK(number.Call<Integer>("Operator_Compare(other as $) as Integer", left.Get(),
                                       right.Get()) == row.expected);
        }
    }
    CHECK(TakeRaised(plugin.host()) == "");
}

TEST_CASE("The larger class keeps digits that the smaller one loses") {
    LoadedPlugin plugin;
    const auto difference = [&](NumberClass& number) {
        const HeldObject big = number.Make("1e100");
        const HeldObject one = number.Make("1");
        const auto sum = number.Call<HeldObject>(Add.left, big.Get(), one.Get());
        const auto rest = number.Call<HeldObject>(Subtract.left, sum.Get(), big.Get());
        return number.Text(rest.Get());
    };
    CHECK(difference(plugin.bigNumber()) == "0");
    CHECK(difference(plugin.biggerNumber()) == "1");
}
