// Every member of the number classes: its declaration as the host parses it, what it does, and
// the routine behind it with its debug-log name, the name of its failure report and the call of
// ttmath. One description serves both classes; '$' stands for the class's name.
//
// The order of the rows is the order of the tables that the host gets.
#pragma once

#include <array>
#include <cstdint>

#include "interface/host_interface.hpp"
#include "number/conversions.hpp"
#include "number/lifecycle.hpp"
#include "number/number_value.hpp"
#include "number/ops/arithmetic.hpp"
#include "number/ops/functions.hpp"
#include "number/raw_access.hpp"
#include "number/routine.hpp"
#include "number/text.hpp"

namespace vqz {

/// A property: name and type as the host reads them. Without a setter it is read-only.
struct PropertyDescription {
    const char* name;
    const char* type;
    const char* documentation;
    Routine getter;
    Routine setter = nullptr;
    std::uint32_t flags = host_interface::flags::RunTimeOnly;
    bool hidden = false;
};

/// A method. A setter makes it assignable. The host does not show a hidden one.
struct MethodDescription {
    const char* declaration;
    const char* documentation;
    Routine function;
    Routine setter = nullptr;
    bool hidden = false;
};

/// A declaration with the class's name put in.
template <typename Value, FixedString Pattern>
inline constexpr const char* Declaration = Substituted<Pattern, NumberClass<Value>::Name>::Text;

template <typename Value>
auto NumberProperties() {
    return std::array{
        PropertyDescription{
            "IsZero", "Boolean", "Whether the number is zero; also true of NaN and Nil.",
            TestValue<Value, "IsZero">([](const auto& value) { return value.IsZero(); })},
        PropertyDescription{
            "IsNegative", "Boolean", "Whether the number is below zero.",
            TestValue<Value, "IsSign">([](const auto& value) { return value.IsSign(); })},
        PropertyDescription{
            "IsNan", "Boolean", "Whether this is not a number; also true of Nil.",
            TestValue<Value, "IsNan">([](const auto& value) { return value.IsNan(); })},
        PropertyDescription{
            "IsInteger", "Boolean", "Whether the number has no fraction.",
            TestValue<Value, "IsInteger">([](const auto& value) { return value.IsInteger(); })},
        PropertyDescription{"IntegerValue", "Integer", "The number as an Integer, fraction cut.",
                            GetProperty<Value, "GetIntegerValue", "IntegerValue", std::int32_t>(),
                            SetProperty<Value, "SetIntegerValue", std::int32_t>()},
        PropertyDescription{"Int64Value", "Int64", "The number as an Int64, fraction cut.",
                            GetProperty<Value, "GetInt64Value", "Int64Value", std::int64_t>(),
                            SetProperty<Value, "SetInt64Value", std::int64_t>()},
        PropertyDescription{"UInt64Value", "UInt64", "The number as a UInt64, fraction cut.",
                            GetProperty<Value, "GetUInt64Value", "UInt64Value", std::uint64_t>(),
                            SetProperty<Value, "SetUInt64Value", std::uint64_t>()},
        PropertyDescription{"DoubleValue", "Double",
                            "The number as a Double, cut to its precision.",
                            GetProperty<Value, "GetDoubleValue", "DoubleValue", double>(),
                            SetProperty<Value, "SetDoubleValue", double>()},
        PropertyDescription{"StringValue", "String",
                            "The number as text in base 10, with all its digits.",
                            GetText<Value, "GetStringValue", "StringValue">(),
                            SetText<Value, "SetStringValue", "StringValue">()},
        PropertyDescription{"CurrencyValue", "Currency",
                            "The number as a Currency, rounded to four decimal places.",
                            GetCurrency<Value, "GetCurrencyValue", "CurrencyValue">(),
                            SetProperty<Value, "SetCurrencyValue", CurrencyAmount>()},
        PropertyDescription{
            "VariantValue", "Variant",
            "The number as a Variant: an Integer or Int64 when it is one, else text.",
            GetVariant<Value, "GetVariantValue">(), SetVariant<Value, "SetVariantValue">()},
        PropertyDescription{
            "DataMantissa", "MemoryBlock", "The bytes of the mantissa, least significant first.",
            GetPart<Value, &Value::mantissa>(), SetPart<Value, &Value::mantissa, "DataMantissa">()},
        PropertyDescription{"DataExponent", "MemoryBlock",
                            "The bytes of the signed exponent, least significant first.",
                            GetPart<Value, &Value::exponent>(),
                            SetPart<Value, &Value::exponent, "DataMantissa">()},
        PropertyDescription{"DataFlags", "Integer",
                            "The flags: 128 negative, 64 not a number, 32 zero.", GetFlags<Value>(),
                            SetFlags<Value>()},
    };
}

/// The one shared property of both classes.
inline auto NumberSharedProperties() {
    namespace flags = host_interface::flags;
    return std::array{PropertyDescription{
        .name = "Debugging",
        .type = "Boolean",
        .documentation = "Whether the plug-in writes its debug log.",
        .getter = AsRoutine([]() -> BooleanWord { return AsBooleanWord(DebugEnabled); }),
        .setter = AsRoutine([](BooleanWord value) { DebugEnabled = IsTrue(value); }),
        .flags = flags::RunTimeOnly | flags::AllTargets | flags::PublicScope,
        .hidden = true}};
}

template <typename Value>
auto NumberMethods() {
    const Routine constructFromText =
        ConstructFromText<Value, "ConstructorString", "Constructor">();
    // Operators on the right have the routine of their left form: the receiver stays the left
    // operand.
    const Routine operatorAdd = TwoNumbers<Value, "Operator_Add">(
        [](auto& me, const auto& other) { return me.Add(other, true, true); });
    const Routine operatorSubtract = TwoNumbers<Value, "Operator_Subtract">(
        [](auto& me, const auto& other) { return me.Add(other, true, false); });
    const Routine operatorMultiply = TwoNumbers<Value, "Operator_Multiply">(
        [](auto& me, const auto& other) { return me.Mul(other, true); });
    const Routine operatorDivide = TwoNumbers<Value, "Operator_Divide">(
        [](auto& me, const auto& other) { return me.Div(other, true); });

    const Routine operatorIntegerDivide = IntegerDivide<Value, "Operator_IntegerDivide">();
    const Routine remainder =
        TwoNumbers<Value, "Mod">([](auto& me, const auto& other) { return me.Mod(other); });
    const Routine power =
        TwoNumbers<Value, "Pow">([](auto& me, const auto& other) { return me.Pow(other); });

    return std::array{
        MethodDescription{Declaration<Value, "Ceil as $">, "The next integer at or above.",
                          FunctionOfOne<Value, "Ceil">(
                              [](const auto& me, auto* error) { return ttmath::Ceil(me, error); })},
        MethodDescription{Declaration<Value, "SkipFraction as $">,
                          "The integer part, cut toward zero.",
                          OneNumber<Value, "SkipFraction">([](auto& me) { me.SkipFraction(); })},
        MethodDescription{Declaration<Value, "Frac as $">, "The fraction, with the number's sign.",
                          OneNumber<Value, "Frac">([](auto& me) { me.RemainFraction(); })},
        MethodDescription{Declaration<Value, "Floor as $">, "The next integer at or below.",
                          FunctionOfOne<Value, "Floor">([](const auto& me, auto* error) {
                              return ttmath::Floor(me, error);
                          })},
        MethodDescription{
            "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as "
            "Integer = 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = "
            "\".\") as String",
            "The number as text in a base of 2 to 16, with the options of the format.",
            GetTextFormatted<Value, "GetStringValueExt", "DoubleValue">()},
        MethodDescription{
            "SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref "
            "ValueRead as boolean)",
            "Reads the number from text in a base; tells the rest of the text and whether there "
            "were digits.",
            SetTextAndTellRest<Value, "SetStringValueExt", "SetStringValue">()},
        MethodDescription{"StringValue(Base as Integer) as String",
                          "The number as text in a base of 2 to 16; can be assigned to.",
                          GetTextInBase<Value, "GetStringValueBase", "StringValue">(),
                          SetTextInBase<Value, "SetStringValueBase", "StringValue">()},
        MethodDescription{Declaration<Value, "Round as $">,
                          "The nearest integer, halves away from zero.",
                          OneNumberOrFailure<Value, "Round">([](auto& me) { return me.Round(); })},
        MethodDescription{Declaration<Value, "Equals(other as $) as Boolean">,
                          "Whether two numbers are equal.",
                          TestTwoNumbers<Value, "Equals">(
                              [](const auto& me, const auto& other) { return me == other; })},
        MethodDescription{Declaration<Value, "Sqrt as $">, "The square root.",
                          OneNumberOrFailure<Value, "Sqrt">([](auto& me) { return me.Sqrt(); })},
        MethodDescription{Declaration<Value, "Pow(other as $) as $">,
                          "The number to the power of the other one.", power},
        MethodDescription{"Modulate2 as Integer", "The remainder of the division by 2.",
                          RemainderOfTwo<Value, "Mod2">()},
        MethodDescription{Declaration<Value, "Modulate(other as $) as $">,
                          "The remainder of the division, with the number's sign.", remainder},
        MethodDescription{Declaration<Value, "Divide(other as $, round as boolean = true) as $">,
                          "The quotient.",
                          TwoNumbers<Value, "Div">([](auto& me, const auto& other, bool round) {
                              return me.Div(other, round);
                          })},
        MethodDescription{Declaration<Value, "Multiply(other as $, round as boolean = true) as $">,
                          "The product.",
                          TwoNumbers<Value, "Mul">([](auto& me, const auto& other, bool round) {
                              return me.Mul(other, round);
                          })},
        MethodDescription{Declaration<Value, "Multiply(value as Integer) as $">,
                          "The product with an Integer.",
                          MultiplyByInteger<Value, "MulInt", "Multiply", std::int32_t>()},
        MethodDescription{Declaration<Value, "Multiply(value as UInt32) as $">,
                          "The product with a UInt32.",
                          MultiplyByInteger<Value, "MulUInt", "Multiply", std::uint32_t>()},
        MethodDescription{Declaration<Value, "BitXOr(other as $) as $">,
                          "The bitwise exclusive or of two integers that are not negative.",
                          TwoNumbers<Value, "BitwiseXor">(
                              [](auto& me, const auto& other) { return me.BitXor(other); })},
        MethodDescription{Declaration<Value, "BitOr(other as $) as $">,
                          "The bitwise or of two integers that are not negative.",
                          TwoNumbers<Value, "BitwiseOr">(
                              [](auto& me, const auto& other) { return me.BitOr(other); })},
        MethodDescription{Declaration<Value, "BitAnd(other as $) as $">,
                          "The bitwise and of two integers that are not negative.",
                          TwoNumbers<Value, "BitwiseAnd">(
                              [](auto& me, const auto& other) { return me.BitAnd(other); })},
        MethodDescription{Declaration<Value, "Subtract(other as $, round as boolean = true) as $">,
                          "The difference.",
                          TwoNumbers<Value, "Sub">([](auto& me, const auto& other, bool round) {
                              return me.Add(other, round, false);
                          })},
        MethodDescription{Declaration<Value, "Add(other as $, round as boolean = true) as $">,
                          "The sum.",
                          TwoNumbers<Value, "Add">([](auto& me, const auto& other, bool round) {
                              return me.Add(other, round, true);
                          })},
        MethodDescription{Declaration<Value, "Abs as $">, "The magnitude.",
                          OneNumber<Value, "GetAbs">([](auto& me) { me.Abs(); })},
        MethodDescription{Declaration<Value, "Negate as $">,
                          "The number with the opposite sign; zero stays zero.",
                          OneNumber<Value, "ChangeSign">([](auto& me) { me.ChangeSign(); })},
        MethodDescription{"Constructor", "Makes 0.", ConstructEmpty<Value, "ConstructorEmpty">()},
        MethodDescription{"Constructor(value as String)",
                          "Makes the number that a text in base 10 shows.", constructFromText},
        MethodDescription{"Constructor(value as Int32)", "Makes the number of an Int32.",
                          ConstructFrom<Value, "ConstructorInt32", std::int32_t>()},
        MethodDescription{"Constructor(value as Int64)", "Makes the number of an Int64.",
                          ConstructFrom<Value, "ConstructorInt64", std::int64_t>()},
        MethodDescription{"Constructor(value as UInt32)", "Makes the number of a UInt32.",
                          ConstructFrom<Value, "ConstructorUInt32", std::uint32_t>()},
        MethodDescription{"Constructor(value as UInt64)", "Makes the number of a UInt64.",
                          ConstructFrom<Value, "ConstructorUInt64", std::uint64_t>()},
        MethodDescription{"Constructor(value as Double)", "Makes the exact number of a Double.",
                          ConstructFrom<Value, "ConstructorDouble", double>()},
        MethodDescription{"Constructor(value as Single)", "Makes the exact number of a Single.",
                          ConstructFrom<Value, "ConstructorSingle", float>()},
        MethodDescription{"Constructor(value as Currency)", "Makes the number of a Currency.",
                          ConstructFrom<Value, "ConstructorCurrency", CurrencyAmount>()},
        MethodDescription{Declaration<Value, "Constructor(other as $)">,
                          "Makes a copy; Nil gives NaN.",
                          ConstructCopy<Value, "ConstructorCopy">()},
        MethodDescription{"Operator_Convert(value as String)",
                          "Makes the number that a text in base 10 shows.", constructFromText},
        MethodDescription{"Operator_Convert as String",
                          "The number as text in base 10, with all its digits.",
                          ConvertToText<Value, "GetStringValue", "StringValue">()},
        MethodDescription{Declaration<Value, "Operator_Add(other as $) as $">, "me + other.",
                          operatorAdd},
        MethodDescription{Declaration<Value, "Operator_AddRight(other as $) as $">, "me + other.",
                          operatorAdd},
        MethodDescription{Declaration<Value, "Operator_Subtract(other as $) as $">, "me - other.",
                          operatorSubtract},
        MethodDescription{Declaration<Value, "Operator_SubtractRight(other as $) as $">,
                          "me - other: the operands are not swapped.", operatorSubtract},
        MethodDescription{Declaration<Value, "Operator_Multiply(other as $) as $">, "me * other.",
                          operatorMultiply},
        MethodDescription{Declaration<Value, "Operator_MultiplyRight(other as $) as $">,
                          "me * other.", operatorMultiply},
        MethodDescription{Declaration<Value, "Operator_Divide(other as $) as $">, "me / other.",
                          operatorDivide},
        MethodDescription{Declaration<Value, "Operator_DivideRight(other as $) as $">,
                          "me / other: the operands are not swapped.", operatorDivide},
        MethodDescription{Declaration<Value, "Operator_IntegerDivide(other as $) as $">,
                          "The integer part of me / other.", operatorIntegerDivide},
        MethodDescription{Declaration<Value, "Operator_IntegerDivideRight(other as $) as $">,
                          "The integer part of me / other: the operands are not swapped.",
                          operatorIntegerDivide},
        MethodDescription{Declaration<Value, "Operator_Modulo(other as $) as $">,
                          "The remainder of me / other.", remainder},
        MethodDescription{Declaration<Value, "Operator_ModuloRight(other as $) as $">,
                          "The remainder of me / other: the operands are not swapped.", remainder},
        MethodDescription{Declaration<Value, "Operator_Negate as $">, "-me; zero stays zero.",
                          OneNumber<Value, "Operator_Negate">([](auto& me) { me.ChangeSign(); })},
        MethodDescription{Declaration<Value, "Operator_Power(other as $) as $">, "me ^ other.",
                          power},
        MethodDescription{Declaration<Value, "Operator_PowerRight(other as $) as $">,
                          "me ^ other: the operands are not swapped.", power},
        MethodDescription{Declaration<Value, "Operator_Compare(other as $) as Integer">,
                          "-1, 0 or 1 as me is less than, equal to or greater than other; NaN and "
                          "Nil compare as 0.",
                          CompareTwoNumbers<Value, "Operator_Compare">()},
    };
}

template <typename Value>
auto NumberSharedMethods() {
    return std::array{
        MethodDescription{.declaration = "LibTypeStr as String",
                          .documentation = "The name of the arithmetic library's build.",
                          .function = GetLibraryType<Value>(),
                          .hidden = true},
        MethodDescription{Declaration<Value, "NumberWithInteger(value as Integer) as $">,
                          "The number of an Integer.",
                          NumberWith<Value, "NumberWithInteger", std::int32_t>()},
        MethodDescription{Declaration<Value, "NumberWithInt64(value as Int64) as $">,
                          "The number of an Int64.",
                          NumberWith<Value, "NumberWithInt64", std::int64_t>()},
        MethodDescription{Declaration<Value, "NumberWithInt32(value as Int32) as $">,
                          "The number of an Int32.",
                          NumberWith<Value, "NumberWithInt32", std::int32_t>()},
        MethodDescription{Declaration<Value, "NumberWithUInt64(value as UInt64) as $">,
                          "The number of a UInt64.",
                          NumberWith<Value, "NumberWithUInt64", std::uint64_t>()},
        MethodDescription{Declaration<Value, "NumberWithUInt32(value as UInt32) as $">,
                          "The number of a UInt32.",
                          NumberWith<Value, "NumberWithUInt32", std::uint32_t>()},
        MethodDescription{Declaration<Value, "NumberWithVariant(value as variant) as $">,
                          "The number of what a Variant holds; a Double counts as a Single.",
                          NumberWithVariant<Value, "NumberWithVariant">()},
        MethodDescription{Declaration<Value, "NumberWithSingle(value as single) as $">,
                          "The exact number of a Single.",
                          NumberWith<Value, "NumberWithSingle", float>()},
        MethodDescription{Declaration<Value, "NumberWithDouble(value as double) as $">,
                          "The exact number of a Double.",
                          NumberWith<Value, "NumberWithDouble", double>()},
        MethodDescription{Declaration<Value, "NumberWithCurrency(value as Currency) as $">,
                          "The number of a Currency.",
                          NumberWith<Value, "NumberWithCurrency", CurrencyAmount>()},
        MethodDescription{Declaration<Value, "NumberWithString(value as String) as $">,
                          "The number that a text in base 10 shows.",
                          NumberWithText<Value, "NumberWithString", "Constructor">()},
        MethodDescription{Declaration<Value, "Abs(value as $) as $">, "The magnitude.",
                          OneNumber<Value, "Abs">([](auto& value) { value.Abs(); })},
        MethodDescription{Declaration<Value, "Sgn(value as $) as $">,
                          "-1, 0 or 1 by the sign; NaN stays NaN.",
                          OneNumber<Value, "Sgn">([](auto& value) { value.Sgn(); })},
        MethodDescription{Declaration<Value, "Root(value as $, index as $) as $">,
                          "The root of the given index.",
                          FunctionOfTwo<Value, "Root", "Root">(
                              [](const auto& value, const auto& index, auto* error) {
                                  return ttmath::Root(value, index, error);
                              })},
        MethodDescription{Declaration<Value, "DegToDeg(d as $, m as $, s as $) as $">,
                          "Degrees, minutes and seconds as decimal degrees.",
                          FunctionOfThree<Value, "DegToDeg3", "DegToDeg">(
                              [](const auto& d, const auto& m, const auto& s, auto* error) {
                                  return ttmath::DegToDeg(d, m, s, error);
                              })},
        MethodDescription{Declaration<Value, "DegToRad(d as $, m as $, s as $) as $">,
                          "Degrees, minutes and seconds as radians.",
                          FunctionOfThree<Value, "DegToRad3", "DegToRad">(
                              [](const auto& d, const auto& m, const auto& s, auto* error) {
                                  return ttmath::DegToRad(d, m, s, error);
                              })},
        MethodDescription{Declaration<Value, "DegToGrad(d as $, m as $, s as $) as $">,
                          "Degrees, minutes and seconds as grads.",
                          FunctionOfThree<Value, "DegToGrad3", "DegToGrad">(
                              [](const auto& d, const auto& m, const auto& s, auto* error) {
                                  return ttmath::DegToGrad(d, m, s, error);
                              })},
        MethodDescription{Declaration<Value, "DegToGrad(value as $) as $">, "Degrees as grads.",
                          FunctionOfOne<Value, "DegToGrad">([](const auto& value, auto* error) {
                              return ttmath::DegToGrad(value, error);
                          })},
        MethodDescription{Declaration<Value, "GradToDeg(value as $) as $">, "Grads as degrees.",
                          FunctionOfOne<Value, "GradToDeg">([](const auto& value, auto* error) {
                              return ttmath::GradToDeg(value, error);
                          })},
        MethodDescription{Declaration<Value, "GradToRad(value as $) as $">, "Grads as radians.",
                          FunctionOfOne<Value, "GradToRad">([](const auto& value, auto* error) {
                              return ttmath::GradToRad(value, error);
                          })},
        MethodDescription{Declaration<Value, "RadToGrad(value as $) as $">, "Radians as grads.",
                          FunctionOfOne<Value, "RadToGrad">([](const auto& value, auto* error) {
                              return ttmath::RadToGrad(value, error);
                          })},
        MethodDescription{Declaration<Value, "DegToRad(value as $) as $">, "Degrees as radians.",
                          FunctionOfOne<Value, "DegToRad">([](const auto& value, auto* error) {
                              return ttmath::DegToRad(value, error);
                          })},
        MethodDescription{Declaration<Value, "RadToDeg(value as $) as $">, "Radians as degrees.",
                          FunctionOfOne<Value, "RadToDeg">([](const auto& value, auto* error) {
                              return ttmath::RadToDeg(value, error);
                          })},
        MethodDescription{Declaration<Value, "ACoth(value as $) as $">,
                          "The inverse hyperbolic cotangent.",
                          FunctionOfOne<Value, "ACoth">([](const auto& value, auto* error) {
                              return ttmath::ACoth(value, error);
                          })},
        MethodDescription{Declaration<Value, "ATanh(value as $) as $">,
                          "The inverse hyperbolic tangent.",
                          FunctionOfOne<Value, "ATanh">([](const auto& value, auto* error) {
                              return ttmath::ATanh(value, error);
                          })},
        MethodDescription{Declaration<Value, "ACosh(value as $) as $">,
                          "The inverse hyperbolic cosine.",
                          FunctionOfOne<Value, "ACosh">([](const auto& value, auto* error) {
                              return ttmath::ACosh(value, error);
                          })},
        MethodDescription{Declaration<Value, "ASinh(value as $) as $">,
                          "The inverse hyperbolic sine.",
                          FunctionOfOne<Value, "ASinh">([](const auto& value, auto* error) {
                              return ttmath::ASinh(value, error);
                          })},
        MethodDescription{Declaration<Value, "Coth(value as $) as $">, "The hyperbolic cotangent.",
                          FunctionOfOne<Value, "Coth">([](const auto& value, auto* error) {
                              return ttmath::Coth(value, error);
                          })},
        MethodDescription{Declaration<Value, "Tanh(value as $) as $">, "The hyperbolic tangent.",
                          FunctionOfOne<Value, "Tanh">([](const auto& value, auto* error) {
                              return ttmath::Tanh(value, error);
                          })},
        MethodDescription{Declaration<Value, "Cosh(value as $) as $">, "The hyperbolic cosine.",
                          FunctionOfOne<Value, "Cosh">([](const auto& value, auto* error) {
                              return ttmath::Cosh(value, error);
                          })},
        MethodDescription{Declaration<Value, "Sinh(value as $) as $">, "The hyperbolic sine.",
                          FunctionOfOne<Value, "Sinh">([](const auto& value, auto* error) {
                              return ttmath::Sinh(value, error);
                          })},
        MethodDescription{
            Declaration<Value, "ACot(value as $) as $">, "The inverse cotangent, in radians.",
            OneNumber<Value, "ACot">([](auto& value) { value = ttmath::ACot(value); })},
        MethodDescription{
            Declaration<Value, "ATan(value as $) as $">, "The inverse tangent, in radians.",
            OneNumber<Value, "ATan">([](auto& value) { value = ttmath::ATan(value); })},
        MethodDescription{Declaration<Value, "ACos(value as $) as $">,
                          "The inverse cosine, in radians.",
                          FunctionOfOne<Value, "ACos">([](const auto& value, auto* error) {
                              return ttmath::ACos(value, error);
                          })},
        MethodDescription{Declaration<Value, "ASin(value as $) as $">,
                          "The inverse sine, in radians.",
                          FunctionOfOne<Value, "ASin">([](const auto& value, auto* error) {
                              return ttmath::ASin(value, error);
                          })},
        MethodDescription{Declaration<Value, "Cot(value as $) as $">,
                          "The cotangent of an angle in radians.",
                          FunctionOfOne<Value, "Cot">([](const auto& value, auto* error) {
                              return ttmath::Cot(value, error);
                          })},
        MethodDescription{Declaration<Value, "Tan(value as $) as $">,
                          "The tangent of an angle in radians.",
                          FunctionOfOne<Value, "Tan">([](const auto& value, auto* error) {
                              return ttmath::Tan(value, error);
                          })},
        MethodDescription{Declaration<Value, "Cos(value as $) as $">,
                          "The cosine of an angle in radians.",
                          FunctionOfOne<Value, "Cos">([](const auto& value, auto* error) {
                              return ttmath::Cos(value, error);
                          })},
        MethodDescription{Declaration<Value, "Sin(value as $) as $">,
                          "The sine of an angle in radians.",
                          FunctionOfOne<Value, "Sin">([](const auto& value, auto* error) {
                              return ttmath::Sin(value, error);
                          })},
        MethodDescription{Declaration<Value, "Log(value as $, base as $) as $">,
                          "The logarithm to a base.",
                          TwoNumbers<Value, "Log">([](auto& value, const auto& base) {
                              auto error = ttmath::err_ok;
                              value = ttmath::Log(value, base, &error);
                              return error;
                          })},
        MethodDescription{Declaration<Value, "Ln(value as $) as $">, "The natural logarithm.",
                          FunctionOfOne<Value, "Ln">([](const auto& value, auto* error) {
                              return ttmath::Ln(value, error);
                          })},
        MethodDescription{Declaration<Value, "Exp(value as $) as $">, "e to the power of value.",
                          FunctionOfOne<Value, "Exp">([](const auto& value, auto* error) {
                              return ttmath::Exp(value, error);
                          })},
        MethodDescription{Declaration<Value, "Min as $">, "The most negative finite number.",
                          Constant<Value>([](auto& value) { value.SetMin(); })},
        MethodDescription{Declaration<Value, "Max as $">, "The largest finite number.",
                          Constant<Value>([](auto& value) { value.SetMax(); })},
        MethodDescription{Declaration<Value, "Zero as $">, "0.",
                          Constant<Value>([](auto& value) { value.SetZero(); })},
        MethodDescription{Declaration<Value, "One as $">, "1.",
                          Constant<Value>([](auto& value) { value.SetOne(); })},
        MethodDescription{Declaration<Value, "Nan as $">, "Not a number.",
                          Constant<Value>([](auto& value) { value.SetNan(); })},
        MethodDescription{Declaration<Value, "Pi as $">, "The circle constant.",
                          Constant<Value>([](auto& value) { value.SetPi(); })},
        MethodDescription{Declaration<Value, "HalfPi as $">, "Half of the circle constant.",
                          Constant<Value>([](auto& value) { value.Set05Pi(); })},
        MethodDescription{Declaration<Value, "TwoPi as $">, "Twice the circle constant.",
                          Constant<Value>([](auto& value) { value.Set2Pi(); })},
        MethodDescription{Declaration<Value, "E as $">, "The base of the natural logarithm.",
                          Constant<Value>([](auto& value) { value.SetE(); })},
        MethodDescription{Declaration<Value, "Ln2 as $">, "The natural logarithm of 2.",
                          Constant<Value>([](auto& value) { value.SetLn2(); })},
        MethodDescription{Declaration<Value, "Ln10 as $">, "The natural logarithm of 10.",
                          Constant<Value>([](auto& value) { value.SetLn10(); })},
        MethodDescription{Declaration<Value, "Rand as $">,
                          "A positive number of random mantissa and random exponent: anywhere in "
                          "the class's range, not in [0, 1).",
                          RandomNumber<Value, "GetRand">()},
        // The last row: hosts without UInteger are told of one shared method less.
        MethodDescription{Declaration<Value, "NumberWithUInteger(value as UInteger) as $">,
                          "The number of a UInteger.",
                          NumberWith<Value, "NumberWithUInteger", std::uint32_t>()},
    };
}

}  // namespace vqz
