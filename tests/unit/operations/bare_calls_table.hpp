// The calls of the bare arithmetic library, written once over its value type. Each of the two
// precisions instantiates them in a source file of its own.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <type_traits>

#include "number/kernels/specialisations.hpp"
#include "tests/unit/operations/bare_calls.hpp"

namespace operation_tests {

/// The arithmetic library's value type and the plain record of the same size.
template <std::size_t ExponentWords, std::size_t MantissaWords>
struct BareCalls {
    using Value = ttmath::Big<ExponentWords, MantissaWords>;
    using Plain = Number<ExponentWords, MantissaWords>;
    using Row = Operation<Plain>;

    static Value ToValue(const Plain& plain) {
        Value value;
        std::ranges::copy(plain.exponent, value.exponent.table);
        std::ranges::copy(plain.mantissa, value.mantissa.table);
        value.info = plain.flags;
        return value;
    }

    static Plain ToPlain(const Value& value) {
        Plain plain;
        std::ranges::copy(value.exponent.table, plain.exponent.begin());
        std::ranges::copy(value.mantissa.table, plain.mantissa.begin());
        plain.flags = value.info;
        return plain;
    }

    // Shapes of calls ------------------------------------------------------------------------

    /// Changes a number in place; a carry is a failure.
    template <typename Call>
    static Outcome<Plain> InPlace(const Arguments<Plain>& arguments) {
        Value me = ToValue(arguments.numbers[0]);
        ttmath::uint carry = 0;
        if constexpr (std::is_invocable_v<Call, Value&, const Value&, bool>) {
            carry = Call{}(me, ToValue(arguments.numbers[1]), (arguments.extra & 0xFF) != 0);
        } else if constexpr (std::is_invocable_v<Call, Value&, const Value&>) {
            carry = Call{}(me, ToValue(arguments.numbers[1]));
        } else if constexpr (std::is_invocable_v<Call, Value&, std::uint32_t>) {
            carry = Call{}(me, arguments.extra);
        } else if constexpr (std::is_void_v<std::invoke_result_t<Call, Value&>>) {
            Call{}(me);
        } else {
            carry = Call{}(me);
        }
        return {.failed = carry != 0, .number = ToPlain(me)};
    }

    /// Returns a new number and sets an error code.
    template <typename Call>
    static Outcome<Plain> WithErrorCode(const Arguments<Plain>& arguments) {
        ttmath::ErrorCode error = ttmath::err_ok;
        const auto number = [&arguments](std::size_t index) {
            return ToValue(arguments.numbers[index]);
        };
        Value result;
        if constexpr (std::is_invocable_v<Call, const Value&, ttmath::ErrorCode*>) {
            result = Call{}(number(0), &error);
        } else if constexpr (std::is_invocable_v<Call, const Value&, const Value&,
                                                 ttmath::ErrorCode*>) {
            result = Call{}(number(0), number(1), &error);
        } else {
            result = Call{}(number(0), number(1), number(2), &error);
        }
        return {.failed = error != ttmath::err_ok, .number = ToPlain(result)};
    }

    /// Returns a machine integer.
    template <typename Call>
    static Outcome<Plain> ToInteger(const Arguments<Plain>& arguments) {
        const Value me = ToValue(arguments.numbers[0]);
        Outcome<Plain> outcome;
        if constexpr (std::is_invocable_v<Call, const Value&, const Value&>) {
            outcome.integer = Call{}(me, ToValue(arguments.numbers[1]));
        } else {
            outcome.integer = Call{}(me);
        }
        return outcome;
    }

    // Shapes of rows -------------------------------------------------------------------------

    /// A member of one number that never fails.
    template <typename Call>
    static Row Plainly(const char* declaration, const char* name, Call, Family family = {}) {
        return {declaration, name, Report::None, name, 1, Extra::None, {}, family, &InPlace<Call>};
    }

    /// A method of one number that can fail.
    template <typename Call>
    static Row OneNumber(const char* declaration, const char* name, Call, Family family = {}) {
        constexpr auto call = [] {
            if constexpr (std::is_invocable_v<Call, const Value&, ttmath::ErrorCode*>) {
                return &WithErrorCode<Call>;
            } else {
                return &InPlace<Call>;
            }
        }();
        return {declaration, name, Report::OneNumber, name, 1, Extra::None, {}, family, call};
    }

    /// A shared function of one number, named alike everywhere, that is computed by a series.
    template <typename Call>
    static Row Function(const char* declaration, const char* name, Family family, Call call) {
        return OneNumber(declaration, name, call, family);
    }

    /// A method or operator of two numbers.
    template <typename Call>
    static Row TwoNumbers(const char* declaration, const char* name, Call, Family family = {},
                          Report report = Report::TwoNumbers) {
        constexpr Extra extra =
            std::is_invocable_v<Call, Value&, const Value&, bool> ? Extra::Round : Extra::None;
        return {declaration, name, report, name, 2, extra, {}, family, &InPlace<Call>};
    }

    /// A function that reports its name alone.
    template <typename Call>
    static Row ShortReport(const char* declaration, const char* logName, const char* failureName,
                           std::size_t arity, Family family, Call) {
        return {declaration, logName, Report::NameOnly, failureName,         arity,
                Extra::None, {},      family,           &WithErrorCode<Call>};
    }

    /// A product with a machine integer.
    template <typename Call>
    static Row WithFactor(const char* declaration, const char* logName, Extra extra, Call) {
        return {declaration, logName, Report::WorkingValue, "Multiply", 1, extra,
                {},          {},      &InPlace<Call>};
    }

    /// A member that returns a machine integer.
    template <typename Call>
    static Row Answering(Answer answer, const char* declaration, const char* name,
                         std::size_t arity, Call) {
        return {declaration, name, Report::None,    name, arity, Extra::None,
                answer,      {},   &ToInteger<Call>};
    }

    static std::span<const Row> AllOperations();
    static std::span<const Constant<Plain>> AllConstants();

    static std::string Text(const Plain& plain) {
        std::string text;
        ToValue(plain).ToString(text, ttmath::Conv());
        return text;
    }
};

template <std::size_t ExponentWords, std::size_t MantissaWords>
auto BareCalls<ExponentWords, MantissaWords>::AllOperations() -> std::span<const Row> {
    constexpr auto add = [](auto& me, const auto& other) { return me.Add(other, true, true); };
    constexpr auto subtract = [](auto& me, const auto& other) {
        return me.Add(other, true, false);
    };
    constexpr auto multiply = [](auto& me, const auto& other) { return me.Mul(other, true); };
    constexpr auto divide = [](auto& me, const auto& other) { return me.Div(other, true); };
    constexpr auto integerDivide = [](auto& me, const auto& other) {
        const ttmath::uint carry = me.Div(other, true);
        me.SkipFraction();
        return carry;
    };
    constexpr auto modulo = [](auto& me, const auto& other) { return me.Mod(other); };
    constexpr auto power = [](auto& me, const auto& other) { return me.Pow(other); };
    constexpr auto changeSign = [](auto& me) { me.ChangeSign(); };
    constexpr auto absolute = [](auto& me) { me.Abs(); };
    using enum Family;

    static const std::array rows = {
        // Methods.
        TwoNumbers("Add(other as $, round as boolean = true) as $", "Add",
                   [](auto& me, const auto& other, bool round) {
                       return me.Add(other, round, true);
                   }),
        TwoNumbers("Subtract(other as $, round as boolean = true) as $", "Sub",
                   [](auto& me, const auto& other, bool round) {
                       return me.Add(other, round, false);
                   }),
        TwoNumbers("Multiply(other as $, round as boolean = true) as $", "Mul",
                   [](auto& me, const auto& other, bool round) { return me.Mul(other, round); }),
        TwoNumbers("Divide(other as $, round as boolean = true) as $", "Div",
                   [](auto& me, const auto& other, bool round) { return me.Div(other, round); }),
        WithFactor("Multiply(value as UInt32) as $", "MulUInt", Extra::UInt32,
                   [](auto& me, std::uint32_t factor) { return me.MulUInt(factor); }),
        WithFactor("Multiply(value as Integer) as $", "MulInt", Extra::Integer,
                   [](auto& me, std::uint32_t factor) {
                       return me.MulInt(static_cast<ttmath::sint>(factor));
                   }),
        TwoNumbers("Modulate(other as $) as $", "Mod", modulo),
        Answering(Answer::Integer, "Modulate2 as Integer", "Mod2", 1,
                  [](const auto& me) { return static_cast<std::int32_t>(me.Mod2()); }),
        TwoNumbers("Pow(other as $) as $", "Pow", power, Powers),
        OneNumber("Sqrt as $", "Sqrt", [](auto& me) { return me.Sqrt(); }, Powers),
        OneNumber("Round as $", "Round", [](auto& me) { return me.Round(); }),
        Plainly("Abs as $", "GetAbs", absolute),
        Plainly("Frac as $", "Frac", [](auto& me) { me.RemainFraction(); }),
        Plainly("SkipFraction as $", "SkipFraction", [](auto& me) { me.SkipFraction(); }),
        OneNumber("Ceil as $", "Ceil",
                  [](const auto& me, ttmath::ErrorCode* error) { return ttmath::Ceil(me, error); }),
        OneNumber(
            "Floor as $", "Floor",
            [](const auto& me, ttmath::ErrorCode* error) { return ttmath::Floor(me, error); }),
        TwoNumbers("BitAnd(other as $) as $", "BitwiseAnd",
                   [](auto& me, const auto& other) { return me.BitAnd(other); }),
        TwoNumbers("BitOr(other as $) as $", "BitwiseOr",
                   [](auto& me, const auto& other) { return me.BitOr(other); }),
        TwoNumbers("BitXOr(other as $) as $", "BitwiseXor",
                   [](auto& me, const auto& other) { return me.BitXor(other); }),
        Plainly("Negate as $", "ChangeSign", changeSign),
        Answering(Answer::Boolean, "Equals(other as $) as Boolean", "Equals", 2,
                  [](const auto& me, const auto& other) { return me == other ? 1 : 0; }),

        // Operators.
        TwoNumbers("Operator_Add(other as $) as $", "Operator_Add", add),
        TwoNumbers("Operator_AddRight(other as $) as $", "Operator_Add", add),
        TwoNumbers("Operator_Subtract(other as $) as $", "Operator_Subtract", subtract),
        TwoNumbers("Operator_SubtractRight(other as $) as $", "Operator_Subtract", subtract),
        TwoNumbers("Operator_Multiply(other as $) as $", "Operator_Multiply", multiply),
        TwoNumbers("Operator_MultiplyRight(other as $) as $", "Operator_Multiply", multiply),
        TwoNumbers("Operator_Divide(other as $) as $", "Operator_Divide", divide),
        TwoNumbers("Operator_DivideRight(other as $) as $", "Operator_Divide", divide),
        TwoNumbers("Operator_IntegerDivide(other as $) as $", "Operator_IntegerDivide",
                   integerDivide, Arithmetic, Report::WorkingValue),
        TwoNumbers("Operator_IntegerDivideRight(other as $) as $", "Operator_IntegerDivide",
                   integerDivide, Arithmetic, Report::WorkingValue),
        TwoNumbers("Operator_Modulo(other as $) as $", "Mod", modulo),
        TwoNumbers("Operator_ModuloRight(other as $) as $", "Mod", modulo),
        TwoNumbers("Operator_Power(other as $) as $", "Pow", power, Powers),
        TwoNumbers("Operator_PowerRight(other as $) as $", "Pow", power, Powers),
        Plainly("Operator_Negate as $", "Operator_Negate", changeSign),
        Answering(Answer::Integer, "Operator_Compare(other as $) as Integer", "Operator_Compare", 2,
                  [](const auto& me, const auto& other) {
                      return me > other ? 1 : (me < other ? -1 : 0);
                  }),

        // Shared functions.
        Plainly("Abs(value as $) as $", "Abs", absolute),
        Plainly("Sgn(value as $) as $", "Sgn", [](auto& value) { value.Sgn(); }),
        Function("Sin(value as $) as $", "Sin", Trigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Sin(x, error); }),
        Function("Cos(value as $) as $", "Cos", Trigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Cos(x, error); }),
        Function("Tan(value as $) as $", "Tan", Trigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Tan(x, error); }),
        Function("Cot(value as $) as $", "Cot", Trigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Cot(x, error); }),
        Function("ASin(value as $) as $", "ASin", InverseTrigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ASin(x, error); }),
        Function("ACos(value as $) as $", "ACos", InverseTrigonometric,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ACos(x, error); }),
        Plainly(
            "ATan(value as $) as $", "ATan", [](auto& value) { value = ttmath::ATan(value); },
            InverseTrigonometric),
        Plainly(
            "ACot(value as $) as $", "ACot", [](auto& value) { value = ttmath::ACot(value); },
            InverseTrigonometric),
        Function("Sinh(value as $) as $", "Sinh", Hyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Sinh(x, error); }),
        Function("Cosh(value as $) as $", "Cosh", Hyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Cosh(x, error); }),
        Function("Tanh(value as $) as $", "Tanh", Hyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Tanh(x, error); }),
        Function("Coth(value as $) as $", "Coth", Hyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Coth(x, error); }),
        Function("ASinh(value as $) as $", "ASinh", InverseHyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ASinh(x, error); }),
        Function("ACosh(value as $) as $", "ACosh", InverseHyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ACosh(x, error); }),
        Function("ATanh(value as $) as $", "ATanh", InverseHyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ATanh(x, error); }),
        Function("ACoth(value as $) as $", "ACoth", InverseHyperbolic,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::ACoth(x, error); }),
        Function("Exp(value as $) as $", "Exp", Powers,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Exp(x, error); }),
        Function("Ln(value as $) as $", "Ln", Powers,
                 [](const auto& x, ttmath::ErrorCode* error) { return ttmath::Ln(x, error); }),
        TwoNumbers(
            "Log(value as $, base as $) as $", "Log",
            [](auto& value, const auto& base) {
                ttmath::ErrorCode error = ttmath::err_ok;
                value = ttmath::Log(value, base, &error);
                return static_cast<ttmath::uint>(error);
            },
            Powers),
        ShortReport("Root(value as $, index as $) as $", "Root", "Root", 2, Powers,
                    [](const auto& value, const auto& index, ttmath::ErrorCode* error) {
                        return ttmath::Root(value, index, error);
                    }),

        // Angles.
        OneNumber(
            "DegToRad(value as $) as $", "DegToRad",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::DegToRad(x, error); }),
        OneNumber(
            "RadToDeg(value as $) as $", "RadToDeg",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::RadToDeg(x, error); }),
        OneNumber(
            "GradToRad(value as $) as $", "GradToRad",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::GradToRad(x, error); }),
        OneNumber(
            "RadToGrad(value as $) as $", "RadToGrad",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::RadToGrad(x, error); }),
        OneNumber(
            "DegToGrad(value as $) as $", "DegToGrad",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::DegToGrad(x, error); }),
        OneNumber(
            "GradToDeg(value as $) as $", "GradToDeg",
            [](const auto& x, ttmath::ErrorCode* error) { return ttmath::GradToDeg(x, error); }),
        ShortReport("DegToDeg(d as $, m as $, s as $) as $", "DegToDeg3", "DegToDeg", 3, Arithmetic,
                    [](const auto& d, const auto& m, const auto& s, ttmath::ErrorCode* error) {
                        return ttmath::DegToDeg(d, m, s, error);
                    }),
        ShortReport("DegToRad(d as $, m as $, s as $) as $", "DegToRad3", "DegToRad", 3, Arithmetic,
                    [](const auto& d, const auto& m, const auto& s, ttmath::ErrorCode* error) {
                        return ttmath::DegToRad(d, m, s, error);
                    }),
        ShortReport("DegToGrad(d as $, m as $, s as $) as $", "DegToGrad3", "DegToGrad", 3,
                    Arithmetic,
                    [](const auto& d, const auto& m, const auto& s, ttmath::ErrorCode* error) {
                        return ttmath::DegToGrad(d, m, s, error);
                    }),
    };
    return rows;
}

template <std::size_t ExponentWords, std::size_t MantissaWords>
auto BareCalls<ExponentWords, MantissaWords>::AllConstants() -> std::span<const Constant<Plain>> {
    constexpr auto row = [](const char* declaration, auto set) {
        Value value;
        set(value);
        return Constant<Plain>{declaration, ToPlain(value)};
    };
    static const std::array rows = {
        row("Min as $", [](auto& value) { value.SetMin(); }),
        row("Max as $", [](auto& value) { value.SetMax(); }),
        row("Zero as $", [](auto& value) { value.SetZero(); }),
        row("One as $", [](auto& value) { value.SetOne(); }),
        row("Nan as $", [](auto& value) { value.SetNan(); }),
        row("Pi as $", [](auto& value) { value.SetPi(); }),
        row("HalfPi as $", [](auto& value) { value.Set05Pi(); }),
        row("TwoPi as $", [](auto& value) { value.Set2Pi(); }),
        row("E as $", [](auto& value) { value.SetE(); }),
        row("Ln2 as $", [](auto& value) { value.SetLn2(); }),
        row("Ln10 as $", [](auto& value) { value.SetLn10(); }),
    };
    return rows;
}

}  // namespace operation_tests
