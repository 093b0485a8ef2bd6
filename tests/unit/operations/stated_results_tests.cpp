// Results and failures that users can rely on, as texts: what the operations are for, the edges of
// their domains, and missing numbers in every place.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/unit/operations/number_class.hpp"

namespace operation_tests {
namespace {

/// A call and what comes of it. Numbers are texts; "nil" is a missing number, "nan" is none, and
/// "max", "min" and "pi/2" are the constants.
struct StatedCall {
    const char* declaration;
    std::vector<std::string_view> operands;
    /// The result's text or, of a failure, its message.
    std::string outcome;
};

template <typename AnyNumber>
class StatedTest {
public:
    void Succeeds(const StatedCall& stated) {
        INFO(std::string(stated.declaration));
        const std::uintptr_t answer = Call(stated);
        CHECK(tests::TakeRaised(host()) == "");
        const tests::HeldObject result(reinterpret_cast<Object>(answer));
        CHECK(TextOf(result.Get()) == stated.outcome);
    }

    void Answers(const StatedCall& stated) {
        INFO(std::string(stated.declaration));
        const auto answer = static_cast<std::intptr_t>(Call(stated));
        CHECK(tests::TakeRaised(host()) == "");
        CHECK(std::to_string(answer) == stated.outcome);
    }

    void Fails(const StatedCall& stated) {
        INFO(std::string(stated.declaration));
        CHECK(Call(stated) == 0);
        CHECK(tests::TakeRaised(host()) == "BigNumberErrorExceptionVQZ: " + stated.outcome);
    }

    /// The text by which messages show a number: "overflow" where base 10 has none for its
    /// exponent.
    std::string ReportedText(std::string_view number) {
        const tests::HeldObject object = Make(number);
        const std::string text = TextOf(object.Get());
        return tests::TakeRaised(host()).empty() ? text : "overflow";
    }

    ~StatedTest() { tests::CheckLedger(host()); }

private:
    standin::Host& host() { return loaded_.host(); }

    std::uintptr_t Call(const StatedCall& stated) {
        std::vector<tests::HeldObject> objects;
        std::vector<std::uintptr_t> words;
        for (const std::string_view text : stated.operands) {
            if (stated.declaration == std::string_view("Multiply(value as Integer) as $") &&
                !objects.empty()) {
                words.push_back(static_cast<std::uintptr_t>(std::stoi(std::string(text))));
                continue;
            }
            objects.push_back(Make(text));
            words.push_back(class_.Word(objects.back().Get()));
        }
        return class_.Call(class_.RoutineOf(stated.declaration), words, standin::ReturnKind::Word);
    }

    tests::HeldObject Make(std::string_view text) {
        if (text == "nil") {
            return {};
        }
        struct Named {
            std::string_view text;
            const char* declaration;
        };
        static constexpr Named Constants[] = {
            {"max", "Max as $"}, {"min", "Min as $"}, {"nan", "Nan as $"}, {"pi/2", "HalfPi as $"}};
        for (const Named& constant : Constants) {
            if (text == constant.text) {
                return tests::HeldObject(reinterpret_cast<Object>(class_.Call(
                    class_.RoutineOf(constant.declaration), {}, standin::ReturnKind::Word)));
            }
        }
        tests::HeldObject object(host().MakeObject(class_.type()));
        const tests::HeldString hostText(
            host().MakeString(text, host_interface::HostTextEncoding::Utf8));
        class_.Call(class_.RoutineOf("Constructor(value as String)"),
                    {class_.Word(object.Get()), reinterpret_cast<std::uintptr_t>(hostText.Get())},
                    standin::ReturnKind::None);
        CHECK(tests::TakeRaised(host()) == "");
        return object;
    }

    std::string TextOf(Object number) {
        if (number == nullptr) {
            return "nil";
        }
        const tests::HeldString text(reinterpret_cast<host_interface::String>(
            class_.Call(class_.RoutineOf("Operator_Convert as String"), {class_.Word(number)},
                        standin::ReturnKind::Word)));
        return host().Utf8(text.Get());
    }

    LoadedHost loaded_;
    NumberClass<AnyNumber> class_{loaded_};
};

}  // namespace

TEST_CASE_TEMPLATE("operations give what their names promise", AnyNumber, Number256, Number2048) {
    StatedTest<AnyNumber> test;
    test.Succeeds({"Operator_Add(other as $) as $", {"12.5", "-2"}, "10.5"});
    test.Succeeds({"Operator_AddRight(other as $) as $", {"12.5", "-2"}, "10.5"});
    test.Succeeds({"Operator_Subtract(other as $) as $", {"7", "10"}, "-3"});
    test.Succeeds({"Operator_SubtractRight(other as $) as $", {"7", "10"}, "-3"});
    test.Succeeds({"Operator_Multiply(other as $) as $", {"-1.5", "4"}, "-6"});
    test.Succeeds({"Operator_Divide(other as $) as $", {"1", "8"}, "0.125"});
    test.Succeeds({"Operator_DivideRight(other as $) as $", {"1", "8"}, "0.125"});
    test.Succeeds({"Operator_IntegerDivide(other as $) as $", {"-7", "2"}, "-3"});
    test.Succeeds({"Operator_IntegerDivideRight(other as $) as $", {"2", "-7"}, "0"});
    test.Succeeds({"Operator_Modulo(other as $) as $", {"-7", "2"}, "-1"});
    test.Succeeds({"Operator_ModuloRight(other as $) as $", {"2", "7"}, "2"});
    test.Succeeds({"Modulate(other as $) as $", {"12.5", "3"}, "0.5"});
    test.Succeeds(
        {"Operator_Power(other as $) as $", {"2", "100"}, "1.267650600228229401496703205376e+30"});
    test.Succeeds({"Operator_PowerRight(other as $) as $", {"2", "-3"}, "0.125"});
    test.Succeeds({"Operator_Negate as $", {"0"}, "0"});
    test.Succeeds({"Operator_Negate as $", {"5"}, "-5"});
    test.Succeeds({"Negate as $", {"-5"}, "5"});
    test.Succeeds({"Multiply(value as Integer) as $", {"2.5", "-3"}, "-7.5"});
    test.Succeeds({"Multiply(value as Integer) as $", {"-1", "-2147483648"}, "2147483648"});
    test.Succeeds({"Sqrt as $", {"49"}, "7"});
    test.Succeeds({"Sqrt as $", {"0"}, "0"});
    test.Succeeds({"Round as $", {"2.5"}, "3"});
    test.Succeeds({"Round as $", {"-2.5"}, "-3"});
    test.Succeeds({"Ceil as $", {"-2.5"}, "-2"});
    test.Succeeds({"Floor as $", {"-2.5"}, "-3"});
    test.Succeeds({"SkipFraction as $", {"-2.5"}, "-2"});
    test.Succeeds({"Frac as $", {"-2.5"}, "-0.5"});
    test.Succeeds({"Frac as $", {"7"}, "0"});
    test.Succeeds({"Abs as $", {"-2.5"}, "2.5"});
    test.Succeeds({"BitAnd(other as $) as $", {"12", "10"}, "8"});
    test.Succeeds({"BitOr(other as $) as $", {"12", "10"}, "14"});
    test.Succeeds({"BitXOr(other as $) as $", {"12", "10"}, "6"});
    // Fractions have bits too, and bits too far apart have none in common.
    test.Succeeds({"BitAnd(other as $) as $", {"1.5", "1"}, "1"});
    test.Succeeds({"BitOr(other as $) as $", {"1", "1.5"}, "1.5"});
    test.Succeeds({"BitXOr(other as $) as $", {"1.5", "1"}, "0.5"});
    test.Succeeds({"BitAnd(other as $) as $", {"max", "1"}, "0"});
    test.Succeeds({"Abs(value as $) as $", {"-3"}, "3"});
    test.Succeeds({"Sgn(value as $) as $", {"-3"}, "-1"});
    test.Succeeds({"Sgn(value as $) as $", {"0"}, "0"});
    test.Succeeds({"Sgn(value as $) as $", {"0.5"}, "1"});
    test.Succeeds({"Exp(value as $) as $", {"0"}, "1"});
    test.Succeeds({"Ln(value as $) as $", {"1"}, "0"});
    test.Succeeds({"Cos(value as $) as $", {"0"}, "1"});
    test.Succeeds({"Root(value as $, index as $) as $", {"-27", "3"}, "-3"});
    test.Succeeds({"Root(value as $, index as $) as $", {"5", "0"}, "1"});
    test.Succeeds({"DegToDeg(d as $, m as $, s as $) as $", {"10", "30", "0"}, "10.5"});
    test.Succeeds({"DegToDeg(d as $, m as $, s as $) as $", {"-10", "30", "0"}, "-10.5"});
    // Minutes and seconds may be 60 and more.
    test.Succeeds({"DegToDeg(d as $, m as $, s as $) as $", {"1", "90", "900"}, "2.75"});
    test.Succeeds({"DegToGrad(d as $, m as $, s as $) as $", {"45", "0", "0"}, "50"});
    test.Succeeds({"GradToDeg(value as $) as $", {"50"}, "45"});
}

TEST_CASE_TEMPLATE("comparisons and remainders answer an Integer", AnyNumber, Number256,
                   Number2048) {
    constexpr auto compare = "Operator_Compare(other as $) as Integer";
    StatedTest<AnyNumber> test;
    test.Answers({compare, {"5", "6"}, "-1"});
    test.Answers({compare, {"-5", "-6"}, "1"});
    test.Answers({compare, {"-5", "6"}, "-1"});
    test.Answers({compare, {"6", "-5"}, "1"});
    test.Answers({compare, {"5", "5"}, "0"});
    test.Answers({compare, {"min", "max"}, "-1"});
    // NaN and Nil compare as 0.
    test.Answers({compare, {"5", "nil"}, "1"});
    test.Answers({compare, {"0", "nil"}, "0"});
    test.Answers({compare, {"nil", "5"}, "-1"});
    test.Answers({compare, {"-5", "nil"}, "-1"});
    test.Answers({compare, {"nan", "0"}, "0"});
    test.Answers({compare, {"nan", "nil"}, "0"});
    test.Answers({"Modulate2 as Integer", {"7"}, "1"});
    test.Answers({"Modulate2 as Integer", {"-7.5"}, "1"});
    test.Answers({"Modulate2 as Integer", {"8"}, "0"});
    test.Answers({"Modulate2 as Integer", {"nil"}, "0"});
}

TEST_CASE_TEMPLATE("arithmetic failures name the operation and its numbers", AnyNumber, Number256,
                   Number2048) {
    StatedTest<AnyNumber> test;
    test.Fails({"Operator_Divide(other as $) as $",
                {"12.5", "0"},
                "Operator_Divide operation failed with numbers 12.5 and 0."});
    test.Fails({"Operator_DivideRight(other as $) as $",
                {"12.5", "0"},
                "Operator_Divide operation failed with numbers 12.5 and 0."});
    test.Fails({"Operator_IntegerDivide(other as $) as $",
                {"-7", "0"},
                "Operator_IntegerDivide operation failed with numbers NaN and 0."});
    test.Fails(
        {"Modulate(other as $) as $", {"7", "0"}, "Mod operation failed with numbers 7 and 0."});
    test.Fails({"Operator_Modulo(other as $) as $",
                {"7", "0"},
                "Mod operation failed with numbers 7 and 0."});
    test.Fails(
        {"Pow(other as $) as $", {"-2", "0.5"}, "Pow operation failed with numbers -2 and 0.5."});
    test.Fails({"Pow(other as $) as $", {"0", "0"}, "Pow operation failed with numbers 0 and 0."});
    test.Fails({"Operator_Power(other as $) as $",
                {"0", "-1"},
                "Pow operation failed with numbers 0 and -1."});
    test.Fails({"Sqrt as $", {"-4"}, "Sqrt operation failed with number -4."});
    test.Fails({"BitAnd(other as $) as $",
                {"-1", "1"},
                "BitwiseAnd operation failed with numbers -1 and 1."});
    test.Fails({"BitOr(other as $) as $",
                {"1", "-2"},
                "BitwiseOr operation failed with numbers 1 and -2."});
    test.Fails({"BitXOr(other as $) as $",
                {"1", "-0.5"},
                "BitwiseXor operation failed with numbers 1 and -0.5."});
    test.Fails({"Multiply(value as Integer) as $",
                {"max", "-2"},
                "Multiply operation failed with numbers NaN and -2."});
    test.Fails({"Multiply(value as Integer) as $",
                {"max", "-2147483648"},
                "Multiply operation failed with numbers NaN and -2147483648."});
    test.Fails({"Multiply(value as Integer) as $",
                {"nil", "3"},
                "Multiply operation failed with numbers NaN and 3."});
}

TEST_CASE_TEMPLATE("results beyond the largest number are failures", AnyNumber, Number256,
                   Number2048) {
    StatedTest<AnyNumber> test;
    const std::string max = test.ReportedText("max");
    const auto fails = [&](const char* declaration, const char* name, const char* other) {
        test.Fails({declaration,
                    {"max", other},
                    std::string(name) + " operation failed with numbers " + max + " and " +
                        test.ReportedText(other) + "."});
    };
    fails("Add(other as $, round as boolean = true) as $", "Add", "max");
    fails("Subtract(other as $, round as boolean = true) as $", "Sub", "min");
    fails("Multiply(other as $, round as boolean = true) as $", "Mul", "max");
    fails("Operator_Add(other as $) as $", "Operator_Add", "max");
    fails("Operator_Subtract(other as $) as $", "Operator_Subtract", "min");
    fails("Operator_SubtractRight(other as $) as $", "Operator_Subtract", "min");
    fails("Operator_Multiply(other as $) as $", "Operator_Multiply", "max");
    for (const auto* name :
         {"Sin", "Cos", "Tan", "Sinh", "Cosh", "Tanh", "ASinh", "Exp", "RadToDeg"}) {
        const std::string declaration = std::string(name) + "(value as $) as $";
        test.Fails({declaration.c_str(),
                    {"max"},
                    std::string(name) + " operation failed with number " + max + "."});
    }
}

TEST_CASE_TEMPLATE("functions fail outside their domain", AnyNumber, Number256, Number2048) {
    StatedTest<AnyNumber> test;
    test.Fails({"Ln(value as $) as $", {"0"}, "Ln operation failed with number 0."});
    test.Fails({"Ln(value as $) as $", {"-2.5"}, "Ln operation failed with number -2.5."});
    test.Fails({"Log(value as $, base as $) as $",
                {"-1", "10"},
                "Log operation failed with numbers -1 and 10."});
    test.Fails({"Log(value as $, base as $) as $",
                {"10", "1"},
                "Log operation failed with numbers 10 and 1."});
    test.Fails({"Log(value as $, base as $) as $",
                {"10", "0"},
                "Log operation failed with numbers 10 and 0."});
    test.Fails({"ASin(value as $) as $", {"1.1"}, "ASin operation failed with number 1.1."});
    test.Fails({"ASin(value as $) as $", {"-1.1"}, "ASin operation failed with number -1.1."});
    test.Fails({"ACos(value as $) as $", {"1.1"}, "ACos operation failed with number 1.1."});
    test.Fails({"Cot(value as $) as $", {"0"}, "Cot operation failed with number 0."});
    test.Fails({"Coth(value as $) as $", {"0"}, "Coth operation failed with number 0."});
    test.Fails({"ATanh(value as $) as $", {"1"}, "ATanh operation failed with number 1."});
    test.Fails({"ATanh(value as $) as $", {"-1"}, "ATanh operation failed with number -1."});
    test.Fails({"ACoth(value as $) as $", {"1"}, "ACoth operation failed with number 1."});
    test.Fails({"ACoth(value as $) as $", {"0.5"}, "ACoth operation failed with number 0.5."});
    test.Fails({"ACosh(value as $) as $", {"0.5"}, "ACosh operation failed with number 0.5."});
    for (const std::string_view index : {"-1", "0.5", "2.5", "nan", "nil"}) {
        test.Fails({"Root(value as $, index as $) as $", {"10", index}, "Root operation failed."});
    }
    test.Fails({"Root(value as $, index as $) as $", {"0", "0"}, "Root operation failed."});
    test.Fails({"Root(value as $, index as $) as $", {"-4", "2"}, "Root operation failed."});
    test.Fails(
        {"DegToDeg(d as $, m as $, s as $) as $", {"1", "-1", "0"}, "DegToDeg operation failed."});
    test.Fails(
        {"DegToRad(d as $, m as $, s as $) as $", {"1", "0", "-1"}, "DegToRad operation failed."});
    test.Fails({"DegToGrad(d as $, m as $, s as $) as $",
                {"1", "nil", "1"},
                "DegToGrad operation failed."});
}

TEST_CASE_TEMPLATE("a missing number is reported as nil, NaN as NaN", AnyNumber, Number256,
                   Number2048) {
    StatedTest<AnyNumber> test;
    test.Fails({"Cos(value as $) as $", {"nil"}, "Cos operation failed with number nil."});
    test.Fails({"Cos(value as $) as $", {"nan"}, "Cos operation failed with number NaN."});
    test.Fails({"Round as $", {"nil"}, "Round operation failed with number nil."});
    test.Fails({"Operator_Add(other as $) as $",
                {"5", "nil"},
                "Operator_Add operation failed with numbers 5 and nil."});
    test.Fails({"Operator_Add(other as $) as $",
                {"nil", "5"},
                "Operator_Add operation failed with numbers nil and 5."});
    test.Fails({"Operator_Add(other as $) as $",
                {"nil", "nan"},
                "Operator_Add operation failed with numbers nil and NaN."});
    test.Fails({"Operator_IntegerDivide(other as $) as $",
                {"nil", "2"},
                "Operator_IntegerDivide operation failed with numbers NaN and 2."});
    for (const auto* name :
         {"Sin",      "Cos",      "Tan",       "Cot",       "ASin",      "ACos",     "Sinh", "Cosh",
          "Tanh",     "Coth",     "ASinh",     "ACosh",     "ATanh",     "ACoth",    "Exp",  "Ln",
          "DegToRad", "RadToDeg", "DegToGrad", "GradToDeg", "RadToGrad", "GradToRad"}) {
        const std::string declaration = std::string(name) + "(value as $) as $";
        for (const auto& [operand, shown] : {std::pair("nan", "NaN"), std::pair("nil", "nil")}) {
            test.Fails({declaration.c_str(),
                        {operand},
                        std::string(name) + " operation failed with number " + shown + "."});
        }
    }
    test.Fails({"Log(value as $, base as $) as $",
                {"nan", "2"},
                "Log operation failed with numbers NaN and 2."});
    test.Fails({"Log(value as $, base as $) as $",
                {"2", "nan"},
                "Log operation failed with numbers 2 and NaN."});
    // Members that cannot fail return the NaN.
    for (const auto* declaration :
         {"Abs as $", "Frac as $", "SkipFraction as $", "Operator_Negate as $", "Negate as $",
          "Abs(value as $) as $", "Sgn(value as $) as $", "ATan(value as $) as $",
          "ACot(value as $) as $"}) {
        test.Succeeds({declaration, {"nil"}, "NaN"});
        test.Succeeds({declaration, {"nan"}, "NaN"});
    }
}

}  // namespace operation_tests
