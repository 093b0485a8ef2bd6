// Functions of the language on real numbers, random numbers and the clock.
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <random>

#include "standin/language/builtins.hpp"

namespace standin::language {
namespace {

using Arguments = std::vector<Value>;

template <double (*Function)(double)>
Value Of(const Arguments& arguments, const Machine& /*machine*/) {
    return Value::Of(Function(arguments[0].Get<double>()));
}

template <double (*Function)(double, double)>
Value Of(const Arguments& arguments, const Machine& /*machine*/) {
    return Value::Of(Function(arguments[0].Get<double>(), arguments[1].Get<double>()));
}

/// The smaller of two numbers; what is not a number wins.
double Smaller(double left, double right) {
    return std::isnan(left) || left < right ? left : right;
}

double Larger(double left, double right) {
    return std::isnan(left) || left > right ? left : right;
}

/// Of two numbers and all that follow.
template <double (*Function)(double, double)>
Value OfAll(const Arguments& arguments, const Machine& /*machine*/) {
    double result = Function(arguments[0].Get<double>(), arguments[1].Get<double>());
    for (const auto& more : arguments[2].array()->items) {
        result = Function(result, more.Get<double>());
    }
    return Value::Of(result);
}

Value Sign(const Arguments& arguments, const Machine& /*machine*/) {
    const auto value = arguments[0].Get<double>();
    return Value::Of((value > 0 ? 1 : 0) - (value < 0 ? 1 : 0));
}

/// From 0 up to but not 1.
Value Random(const Arguments& /*arguments*/, const Machine& /*machine*/) {
    static std::mt19937_64 source(std::random_device{}());
    constexpr int FractionBits = 53;
    return Value::Of(
        std::ldexp(static_cast<double>(source() >> (64 - FractionBits)), -FractionBits));
}

template <typename Unit>
auto TimeIn() {
    return std::chrono::duration_cast<Unit>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

Value Microseconds(const Arguments& /*arguments*/, const Machine& /*machine*/) {
    return Value::Of(static_cast<double>(TimeIn<std::chrono::microseconds>()));
}

Value Ticks(const Arguments& /*arguments*/, const Machine& /*machine*/) {
    using Sixtieths = std::chrono::duration<std::int64_t, std::ratio<1, 60>>;
    return Value::Of(static_cast<Integer>(TimeIn<Sixtieths>()));
}

constexpr auto Functions = std::to_array<BuiltInRow>({
    {"Abs(value As Double) As Double", Of<std::fabs>},
    {"Acos(value As Double) As Double", Of<std::acos>},
    {"Asin(value As Double) As Double", Of<std::asin>},
    {"Atan(value As Double) As Double", Of<std::atan>},
    {"Atan2(y As Double, x As Double) As Double", Of<std::atan2>},
    {"Ceil(value As Double) As Double", Of<std::ceil>},
    {"Ceiling(value As Double) As Double", Of<std::ceil>},
    {"Cos(value As Double) As Double", Of<std::cos>},
    {"Exp(value As Double) As Double", Of<std::exp>},
    {"Floor(value As Double) As Double", Of<std::floor>},
    {"Log(value As Double) As Double", Of<std::log>},
    {"Max(a As Double, b As Double, ParamArray more As Double) As Double", OfAll<Larger>},
    {"Min(a As Double, b As Double, ParamArray more As Double) As Double", OfAll<Smaller>},
    {"Pow(base As Double, exponent As Double) As Double", Of<std::pow>},
    {"Round(value As Double) As Double", Of<std::round>},
    {"Sign(value As Double) As Integer", Sign},
    {"Sin(value As Double) As Double", Of<std::sin>},
    {"Sqrt(value As Double) As Double", Of<std::sqrt>},
    {"Tan(value As Double) As Double", Of<std::tan>},
    {"Rnd() As Double", Random},
    {"Microseconds() As Double", Microseconds},
    {"Ticks() As Integer", Ticks},
    {"Microseconds() As Double", Microseconds, "System"},
    {"Ticks() As Integer", Ticks, "System"},
});

}  // namespace

std::span<const BuiltInRow> MathFunctions() {
    return Functions;
}

}  // namespace standin::language
