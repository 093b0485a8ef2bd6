// The shared functions of the number classes, in the order of the table.
#pragma once

#include <array>

#include "number/ops/carry_operations.hpp"
#include "number/ops/error_code_functions.hpp"
#include "number/ops/plain_operations.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The rows of the shared functions.
template <typename Value, HelpTexts Texts>
auto NumberFunctions() {
    using Row = MethodDescription<Texts>;
    return std::array{
        Row{Declaration<Value, "Abs(value as $) as $">,
            OneNumber<Value, "Abs">([](auto& value) { value.Abs(); }),
            {.section = Section::Arithmetic,
             .summary = "The magnitude.",
             .details = "NaN and Nil give NaN.",
             .range = "0 and above",
             .example = R"(
Print BigNumberVQZ.Abs("-12.5"))"}},
        Row{Declaration<Value, "Sgn(value as $) as $">,
            OneNumber<Value, "Sgn">([](auto& value) { value.Sgn(); }),
            {.section = Section::Arithmetic,
             .summary = "-1, 0 or 1 by the sign; NaN stays NaN.",
             .details = "Nil gives NaN.",
             .range = "-1, 0 or 1",
             .example = R"(
Print BigNumberVQZ.Sgn("-12.5"))"}},
        Row{Declaration<Value, "Root(value as $, index as $) as $">,
            FunctionOfTwo<Value, "Root", "Root">(
                [](const auto& value, const auto& index, auto* error) {
                    return ttmath::Root(value, index, error);
                }),
            {.section = Section::Powers,
             .summary = "The root of the given index.",
             .details = "The roots of whole powers come out exact. A root of index 0 is 1.",
             .fails = "an index that is negative or no integer, for an even root of a negative "
                      "number, for index 0 of 0, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Root("2", "3")
Print BigNumberVQZ.Root("-27", "3"))",
             .failing = R"(
Print BigNumberVQZ.Root("-16", "2"))"}},
        Row{Declaration<Value, "DegToDeg(d as $, m as $, s as $) as $">,
            FunctionOfThree<Value, "DegToDeg3", "DegToDeg">(
                [](const auto& d, const auto& m, const auto& s, auto* error) {
                    return ttmath::DegToDeg(d, m, s, error);
                }),
            {.section = Section::Angles,
             .summary = "Degrees, minutes and seconds as decimal degrees.",
             .details = "The sign of the degrees is that of the angle. Minutes and seconds may "
                        "have fractions and may exceed 60.",
             .units = "degrees, minutes and seconds to degrees",
             .fails = "negative minutes or seconds, for results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.DegToDeg("48", "51", "29.6"))",
             .failing = R"(
Print BigNumberVQZ.DegToDeg("48", "-51", "0"))"}},
        Row{Declaration<Value, "DegToRad(d as $, m as $, s as $) as $">,
            FunctionOfThree<Value, "DegToRad3", "DegToRad">(
                [](const auto& d, const auto& m, const auto& s, auto* error) {
                    return ttmath::DegToRad(d, m, s, error);
                }),
            {.section = Section::Angles,
             .summary = "Degrees, minutes and seconds as radians.",
             .details = "The sign of the degrees is that of the angle. Minutes and seconds may "
                        "have fractions and may exceed 60.",
             .units = "degrees, minutes and seconds to radians",
             .fails = "negative minutes or seconds, for results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.DegToRad("90", "30", "0"))",
             .failing = R"(
Print BigNumberVQZ.DegToRad("90", "-30", "0"))"}},
        Row{Declaration<Value, "DegToGrad(d as $, m as $, s as $) as $">,
            FunctionOfThree<Value, "DegToGrad3", "DegToGrad">(
                [](const auto& d, const auto& m, const auto& s, auto* error) {
                    return ttmath::DegToGrad(d, m, s, error);
                }),
            {.section = Section::Angles,
             .summary = "Degrees, minutes and seconds as grads.",
             .details = "The sign of the degrees is that of the angle. Minutes and seconds may "
                        "have fractions and may exceed 60.",
             .units = "degrees, minutes and seconds to grads",
             .fails = "negative minutes or seconds, for results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.DegToGrad("90", "30", "0"))",
             .failing = R"(
Print BigNumberVQZ.DegToGrad("90", "-30", "0"))"}},
        Row{Declaration<Value, "DegToGrad(value as $) as $">,
            FunctionOfOne<Value, "DegToGrad">(
                [](const auto& value, auto* error) { return ttmath::DegToGrad(value, error); }),
            {.section = Section::Angles,
             .summary = "Degrees as grads.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "degrees to grads",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.DegToGrad("45"))",
             .failing = R"(
Print BigNumberVQZ.DegToGrad(Nil))"}},
        Row{Declaration<Value, "GradToDeg(value as $) as $">,
            FunctionOfOne<Value, "GradToDeg">(
                [](const auto& value, auto* error) { return ttmath::GradToDeg(value, error); }),
            {.section = Section::Angles,
             .summary = "Grads as degrees.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "grads to degrees",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.GradToDeg("50"))",
             .failing = R"(
Print BigNumberVQZ.GradToDeg(Nil))"}},
        Row{Declaration<Value, "GradToRad(value as $) as $">,
            FunctionOfOne<Value, "GradToRad">(
                [](const auto& value, auto* error) { return ttmath::GradToRad(value, error); }),
            {.section = Section::Angles,
             .summary = "Grads as radians.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "grads to radians",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.GradToRad("200"))",
             .failing = R"(
Print BigNumberVQZ.GradToRad(Nil))"}},
        Row{Declaration<Value, "RadToGrad(value as $) as $">,
            FunctionOfOne<Value, "RadToGrad">(
                [](const auto& value, auto* error) { return ttmath::RadToGrad(value, error); }),
            {.section = Section::Angles,
             .summary = "Radians as grads.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "radians to grads",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.RadToGrad("1"))",
             .failing = R"(
Print BigNumberVQZ.RadToGrad(Nil))"}},
        Row{Declaration<Value, "DegToRad(value as $) as $">,
            FunctionOfOne<Value, "DegToRad">(
                [](const auto& value, auto* error) { return ttmath::DegToRad(value, error); }),
            {.section = Section::Angles,
             .summary = "Degrees as radians.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "degrees to radians",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.DegToRad("180"))",
             .failing = R"(
Print BigNumberVQZ.DegToRad(Nil))"}},
        Row{Declaration<Value, "RadToDeg(value as $) as $">,
            FunctionOfOne<Value, "RadToDeg">(
                [](const auto& value, auto* error) { return ttmath::RadToDeg(value, error); }),
            {.section = Section::Angles,
             .summary = "Radians as degrees.",
             .details = "A full circle is 360 degrees, 400 grads or 2 pi radians.",
             .units = "radians to degrees",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.RadToDeg("1"))",
             .failing = R"(
Print BigNumberVQZ.RadToDeg(Nil))"}},
        Row{Declaration<Value, "ACoth(value as $) as $">,
            FunctionOfOne<Value, "ACoth">(
                [](const auto& value, auto* error) { return ttmath::ACoth(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The inverse hyperbolic cotangent.",
             .fails = "numbers from -1 to 1, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ACoth("2"))",
             .failing = R"(
Print BigNumberVQZ.ACoth("1"))"}},
        Row{Declaration<Value, "ATanh(value as $) as $">,
            FunctionOfOne<Value, "ATanh">(
                [](const auto& value, auto* error) { return ttmath::ATanh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The inverse hyperbolic tangent.",
             .fails = "numbers of 1 and above or -1 and below, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ATanh("0.5"))",
             .failing = R"(
Print BigNumberVQZ.ATanh("1"))"}},
        Row{Declaration<Value, "ACosh(value as $) as $">,
            FunctionOfOne<Value, "ACosh">(
                [](const auto& value, auto* error) { return ttmath::ACosh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The inverse hyperbolic cosine.",
             .range = "0 and above",
             .fails = "numbers below 1 or whose square is beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ACosh("2"))",
             .failing = R"(
Print BigNumberVQZ.ACosh("0.5"))"}},
        Row{Declaration<Value, "ASinh(value as $) as $">,
            FunctionOfOne<Value, "ASinh">(
                [](const auto& value, auto* error) { return ttmath::ASinh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The inverse hyperbolic sine.",
             .details = "For negative numbers `-ASinh(-x)` is more accurate.",
             .fails = "some negative numbers with more bits than half of the class, for numbers "
                      "whose square is beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ASinh("0.5"))",
             .failing = R"(
Print BigNumberVQZ.ASinh(Nil))"}},
        Row{Declaration<Value, "Coth(value as $) as $">,
            FunctionOfOne<Value, "Coth">(
                [](const auto& value, auto* error) { return ttmath::Coth(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The hyperbolic cotangent.",
             .range = "below -1 or above 1",
             .fails = "0 and the numbers next to it, for numbers too far from 0 for Exp, NaN "
                      "and Nil",
             .example = R"(
Print BigNumberVQZ.Coth("0.5"))",
             .failing = R"(
Print BigNumberVQZ.Coth("0"))"}},
        Row{Declaration<Value, "Tanh(value as $) as $">,
            FunctionOfOne<Value, "Tanh">(
                [](const auto& value, auto* error) { return ttmath::Tanh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The hyperbolic tangent.",
             .range = "-1 to 1",
             .fails = "numbers too far from 0 for Exp, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Tanh("0.5"))",
             .failing = R"(
Print BigNumberVQZ.Tanh("1e30"))"}},
        Row{Declaration<Value, "Cosh(value as $) as $">,
            FunctionOfOne<Value, "Cosh">(
                [](const auto& value, auto* error) { return ttmath::Cosh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The hyperbolic cosine.",
             .range = "1 and above",
             .fails = "numbers too far from 0 for Exp, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Cosh("0.5"))",
             .failing = R"(
Print BigNumberVQZ.Cosh("1e30"))"}},
        Row{Declaration<Value, "Sinh(value as $) as $">,
            FunctionOfOne<Value, "Sinh">(
                [](const auto& value, auto* error) { return ttmath::Sinh(value, error); }),
            {.section = Section::Hyperbolic,
             .summary = "The hyperbolic sine.",
             .fails = "numbers too far from 0 for Exp, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Sinh("0.5"))",
             .failing = R"(
Print BigNumberVQZ.Sinh("1e30"))"}},
        Row{Declaration<Value, "ACot(value as $) as $">,
            OneNumber<Value, "ACot">([](auto& value) { value = ttmath::ACot(value); }),
            {.section = Section::Trigonometry,
             .summary = "The inverse cotangent, in radians.",
             .details = "NaN and Nil give NaN. For large numbers `ATan(1 / x)` is more accurate.",
             .units = "radians",
             .range = "0 to pi",
             .example = R"(
Print BigNumberVQZ.ACot("1"))"}},
        Row{Declaration<Value, "ATan(value as $) as $">,
            OneNumber<Value, "ATan">([](auto& value) { value = ttmath::ATan(value); }),
            {.section = Section::Trigonometry,
             .summary = "The inverse tangent, in radians.",
             .details = "NaN and Nil give NaN.",
             .units = "radians",
             .range = "-pi/2 to pi/2",
             .example = R"(
Print BigNumberVQZ.ATan("1"))"}},
        Row{Declaration<Value, "ACos(value as $) as $">,
            FunctionOfOne<Value, "ACos">(
                [](const auto& value, auto* error) { return ttmath::ACos(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The inverse cosine, in radians.",
             .details = "Close to 1 digits are lost.",
             .units = "radians",
             .range = "0 to pi",
             .fails = "numbers outside of -1 to 1, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ACos("0.5"))",
             .failing = R"(
Print BigNumberVQZ.ACos("1.1"))"}},
        Row{Declaration<Value, "ASin(value as $) as $">,
            FunctionOfOne<Value, "ASin">(
                [](const auto& value, auto* error) { return ttmath::ASin(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The inverse sine, in radians.",
             .units = "radians",
             .range = "-pi/2 to pi/2",
             .fails = "numbers outside of -1 to 1, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.ASin("0.5"))",
             .failing = R"(
Print BigNumberVQZ.ASin("1.1"))"}},
        Row{Declaration<Value, "Cot(value as $) as $">,
            FunctionOfOne<Value, "Cot">(
                [](const auto& value, auto* error) { return ttmath::Cot(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The cotangent of an angle in radians.",
             .details = "The larger the angle, the fewer bits are right: one near 2^k loses k of "
                        "them, and beyond the bits of the class none is left, whatever the result.",
             .units = "radians",
             .fails = "0, for angles at which the sine comes out as 0, such as Pi, for some angles "
                      "beyond the bits of the class, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Cot("1"))",
             .failing = R"(
Print BigNumberVQZ.Cot("0"))"}},
        Row{Declaration<Value, "Tan(value as $) as $">,
            FunctionOfOne<Value, "Tan">(
                [](const auto& value, auto* error) { return ttmath::Tan(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The tangent of an angle in radians.",
             .details = "The larger the angle, the fewer bits are right: one near 2^k loses k of "
                        "them, and beyond the bits of the class none is left, whatever the result.",
             .units = "radians",
             .fails = "angles at which the cosine comes out as 0, such as HalfPi, for some angles "
                      "beyond the bits of the class, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Tan("1"))",
             .failing = R"(
Print BigNumberVQZ.Tan(BigNumberVQZ.HalfPi))"}},
        Row{Declaration<Value, "Cos(value as $) as $">,
            FunctionOfOne<Value, "Cos">(
                [](const auto& value, auto* error) { return ttmath::Cos(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The cosine of an angle in radians.",
             .details = "The larger the angle, the fewer bits are right: one near 2^k loses k of "
                        "them, and beyond the bits of the class none is left, whatever the result.",
             .units = "radians",
             .range = "-1 to 1",
             .fails = "some angles beyond the bits of the class, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Cos("1"))",
             .failing = R"(
Print BigNumberVQZ.Cos(Nil))"}},
        Row{Declaration<Value, "Sin(value as $) as $">,
            FunctionOfOne<Value, "Sin">(
                [](const auto& value, auto* error) { return ttmath::Sin(value, error); }),
            {.section = Section::Trigonometry,
             .summary = "The sine of an angle in radians.",
             .details = "The larger the angle, the fewer bits are right: one near 2^k loses k of "
                        "them, and beyond the bits of the class none is left, whatever the result.",
             .units = "radians",
             .range = "-1 to 1",
             .fails = "some angles beyond the bits of the class, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Sin("1")
Print BigNumberVQZ.Sin(BigNumberVQZ.DegToRad("30")))",
             .failing = R"(
Print BigNumberVQZ.Sin(Nil))"}},
        Row{Declaration<Value, "Log(value as $, base as $) as $">,
            TwoNumbersOrCarry<Value, "Log">([](auto& value, const auto& base) {
                auto error = ttmath::err_ok;
                value = ttmath::Log(value, base, &error);
                return error;
            }),
            {.section = Section::Powers,
             .summary = "The logarithm to a base.",
             .fails = "a value of 0 or below, for a base that is 1, 0 or below, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Log("1024", "2")
Print BigNumberVQZ.Log("1000", "10"))",
             .failing = R"(
Print BigNumberVQZ.Log("8", "1"))"}},
        Row{Declaration<Value, "Ln(value as $) as $">,
            FunctionOfOne<Value, "Ln">(
                [](const auto& value, auto* error) { return ttmath::Ln(value, error); }),
            {.section = Section::Powers,
             .summary = "The natural logarithm.",
             .details = "Just below 1 digits are lost; just above 1 they are not.",
             .fails = "0, negative numbers, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Ln("10"))",
             .failing = R"(
Print BigNumberVQZ.Ln("0"))"}},
        Row{Declaration<Value, "Exp(value as $) as $">,
            FunctionOfOne<Value, "Exp">(
                [](const auto& value, auto* error) { return ttmath::Exp(value, error); }),
            {.section = Section::Powers,
             .summary = "e to the power of value.",
             .range = "above 0",
             .fails = "results beyond the range, NaN and Nil",
             .example = R"(
Print BigNumberVQZ.Exp("1"))",
             .failing = R"(
Print BigNumberVQZ.Exp("1e30"))"}},
    };
}

}  // namespace vqz
