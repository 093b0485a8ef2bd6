// What is compared: each operation by its name, its group and a call.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/differential/operands.hpp"

namespace differential {

/// Operations of one group are run equally often.
enum class Group { Basic, Function, Composed, Text };

/// What an operation of a number type does to `me`; text goes to `text`. Returns its carry or
/// error.
template <typename Number>
struct Operation {
    std::string_view name;
    Group group;
    std::function<ttmath::uint(Number& me, const Number& other, std::string& text)> call;
    /// Makes operands of its own out of the operands.
    void (*prepare)(Number& me, Number& other) = nullptr;
    /// Whether a member of the plug-in does the same.
    bool isMember = true;
};

/// A shared function of one number as an operation.
template <typename Number, auto Function>
ttmath::uint CallFunction(Number& me, const Number&, std::string&) {
    ttmath::ErrorCode error = ttmath::err_ok;
    me = Function(me, &error);
    return error;
}

template <typename Number, ttmath::uint Base>
ttmath::uint WriteAndRead(Number& me, const Number&, std::string& text) {
    const ttmath::uint failed = me.ToString(text, Base);
    return failed * 2 + me.FromString(text, Base);
}

/// A word times a power of 2 near which machine integers may overflow, for an integer power.
template <typename Number>
void MakeHugePower(Number& me, Number& other) {
    Random random(std::uint64_t{other.mantissa.table[0]} << 32 | me.mantissa.table[0]);
    const bool isNegative = random.OneIn(2);
    me = random.OneIn(2) ? 1 : random.Word() >> random.Below(32);
    const auto twos = ttmath::sint((1U << (18 + random.Below(4))) + random.Below(8192) - 4096);
    me.exponent.Add(random.OneIn(2) ? twos : -twos);
    if (random.OneIn(8)) {
        me.exponent.table[1] ^= 1;  // Of more than a word.
    }
    if (isNegative) {
        me.ChangeSign();
    }
    other = random.OneIn(2) ? sizeof(me.mantissa) * 8 - random.Below(64) : random.Below(2500);
}

template <typename Number>
void MakeIntegerPower(Number& me, Number& other) {
    const ttmath::uint word = other.mantissa.table[0];
    if (other.IsSign()) {
        me = ttmath::sint(word / 2500 % 40);
    }
    other = ttmath::sint(word % 2500) - 400;
}

/// Reads a text that the operands determine: digits of any base, few or more than a mantissa holds,
/// and now and then something else. How far it was read counts, too.
template <typename Number>
ttmath::uint ReadText(Number& me, const Number& other, std::string& text) {
    constexpr std::string_view digits = "0123456789aBcDeF";
    constexpr std::string_view others = "0000'''.,.e+- g";
    Random random(std::uint64_t{other.mantissa.table[0]} << 32 | me.mantissa.table[0]);
    ttmath::Conv conv;
    conv.base = random.OneIn(2) ? 10 : 2 + random.Below(15);
    conv.group = random.OneIn(2) ? '\'' : 0;
    const std::uint32_t rareness = 2 + random.Below(4000);
    const std::uint32_t limit = sizeof(me.mantissa) * (random.OneIn(2) ? 2 : 10);
    for (std::uint32_t i = random.Below(limit); i > 0; --i) {
        text += random.OneIn(rareness) ? others[random.Below(others.size())]
                                       : digits[random.Below(conv.base)];
    }
    const char* after = nullptr;
    bool read = false;
    const ttmath::uint carry = me.FromString(text, conv, &after, &read);
    text += std::to_string(after - text.c_str()) + (read ? " read" : "");
    return carry;
}

/// An integer of few or many bits.
template <typename Number>
ttmath::uint WordFactor(const Number& other) {
    return other.mantissa.table[0] >> other.mantissa.table[1] % 32;
}

/// Writes the mantissa as a signed integer; the other operand determines the base, which may be
/// invalid.
template <typename Number>
ttmath::uint WriteInteger(Number& me, const Number& other, std::string& text) {
    constexpr auto words = sizeof(me.mantissa) / sizeof(ttmath::uint);
    const ttmath::Int<words> integer(me.mantissa);
    integer.ToString(text, other.mantissa.table[0] % 20);
    return 0;
}

/// Makes the mantissa's unit nearly a power of 10, where their logarithms decide how many digits a
/// text has: 2^2136 is just above 10^643.
template <typename Number>
void MakeNearPowerOfTen(Number& me, Number& other) {
    const auto factor = ttmath::sint(other.mantissa.table[0] % 20) - 10;
    me.exponent = 2136 * factor;
}

/// All operations of a number type.
template <typename Number>
std::vector<Operation<Number>> Operations() {
    using N = Number;
    return {
        {"Add", Group::Basic, [](N& me, const N& other, auto&) { return me.Add(other); }},
        {"AddCut", Group::Basic, [](N& me, const N& other, auto&) { return me.Add(other, false); }},
        {"Sub", Group::Basic, [](N& me, const N& other, auto&) { return me.Sub(other); }},
        {"SubCut", Group::Basic, [](N& me, const N& other, auto&) { return me.Sub(other, false); }},
        {"Mul", Group::Basic, [](N& me, const N& other, auto&) { return me.Mul(other); }},
        {"MulCut", Group::Basic, [](N& me, const N& other, auto&) { return me.Mul(other, false); }},
        {"Div", Group::Basic, [](N& me, const N& other, auto&) { return me.Div(other); }},
        {"DivCut", Group::Basic, [](N& me, const N& other, auto&) { return me.Div(other, false); }},
        {"WordProduct", Group::Basic,
         [](N& me, const N& other, auto&) { return me.MulUInt(WordFactor(other)); }},
        {"AddSelf", Group::Basic, [](N& me, const N&, auto&) { return me.Add(me); }},
        {"SubSelf", Group::Basic, [](N& me, const N&, auto&) { return me.Sub(me); }},
        {"MulSelf", Group::Basic, [](N& me, const N&, auto&) { return me.Mul(me); }},
        {"DivSelf", Group::Basic, [](N& me, const N&, auto&) { return me.Div(me); }},
        {"Exp", Group::Function, CallFunction<N, ttmath::Exp<N>>},
        {"Ln", Group::Function, CallFunction<N, ttmath::Ln<N>>},
        {"Sin", Group::Function, CallFunction<N, ttmath::Sin<N>>},
        {"ATan", Group::Function,
         [](N& me, const N&, auto&) {
             me = ttmath::ATan(me);
             return ttmath::uint{0};
         }},
        {"Sqrt", Group::Composed, [](N& me, const N&, auto&) { return me.Sqrt(); }},
        {"Pow", Group::Composed, [](N& me, const N& other, auto&) { return me.Pow(other); }},
        {"PowInteger", Group::Composed, [](N& me, const N& other, auto&) { return me.Pow(other); },
         MakeIntegerPower<N>},
        {"PowUInt", Group::Composed, [](N& me, const N& other, auto&) { return me.PowUInt(other); },
         MakeIntegerPower<N>, false},
        {"PowInt", Group::Composed, [](N& me, const N& other, auto&) { return me.PowInt(other); },
         MakeIntegerPower<N>, false},
        {"PowHuge", Group::Composed, [](N& me, const N& other, auto&) { return me.Pow(other); },
         MakeHugePower<N>},
        {"Mod", Group::Composed, [](N& me, const N& other, auto&) { return me.Mod(other); }},
        {"Log", Group::Composed,
         [](N& me, const N& other, auto&) {
             ttmath::ErrorCode error = ttmath::err_ok;
             me = ttmath::Log(me, other, &error);
             return ttmath::uint{error};
         }},
        {"Root", Group::Composed,
         [](N& me, const N& other, auto&) {
             ttmath::ErrorCode error = ttmath::err_ok;
             me = ttmath::Root(me, other, &error);
             return ttmath::uint{error};
         },
         [](N&, N& other) { other = other.exponent.table[0] % 12; }},
        {"Cos", Group::Composed, CallFunction<N, ttmath::Cos<N>>},
        {"Tan", Group::Composed, CallFunction<N, ttmath::Tan<N>>},
        {"Cot", Group::Composed, CallFunction<N, ttmath::Cot<N>>},
        {"ASin", Group::Composed, CallFunction<N, ttmath::ASin<N>>},
        {"ACos", Group::Composed, CallFunction<N, ttmath::ACos<N>>},
        {"Sinh", Group::Composed, CallFunction<N, ttmath::Sinh<N>>},
        {"Cosh", Group::Composed, CallFunction<N, ttmath::Cosh<N>>},
        {"Tanh", Group::Composed, CallFunction<N, ttmath::Tanh<N>>},
        {"Coth", Group::Composed, CallFunction<N, ttmath::Coth<N>>},
        {"ASinh", Group::Composed, CallFunction<N, ttmath::ASinh<N>>},
        {"ACosh", Group::Composed, CallFunction<N, ttmath::ACosh<N>>},
        {"ATanh", Group::Composed, CallFunction<N, ttmath::ATanh<N>>},
        {"ACoth", Group::Composed, CallFunction<N, ttmath::ACoth<N>>},
        {"ReadText", Group::Text, ReadText<N>, nullptr, false},
        {"WriteInteger", Group::Text, WriteInteger<N>, nullptr, false},
        {"Text10", Group::Text, WriteAndRead<N, 10>},
        {"Text10Near", Group::Text, WriteAndRead<N, 10>, MakeNearPowerOfTen<N>, false},
        {"Text16", Group::Text, WriteAndRead<N, 16>, nullptr, false},
        {"Text3", Group::Text, WriteAndRead<N, 3>, nullptr, false},
    };
}

}  // namespace differential
