// This file is compiled twice: with the kernels, and with ttmath renamed and without them. The
// build says so by CALLS, the namespace, and by another name for ttmath's.
#include "tests/unit/kernels/calls.hpp"

#include <algorithm>

#include "number/kernels/specialisations.hpp"

namespace kernel_tests::CALLS {
namespace {

template <unsigned E, unsigned W>
ttmath::Big<E, W> ToBig(const Number<E, W>& number) {
    ttmath::Big<E, W> big;
    big.info = number.info;
    std::ranges::copy(number.exponent, big.exponent.table);
    std::ranges::copy(number.mantissa, big.mantissa.table);
    return big;
}

template <unsigned E, unsigned W>
Number<E, W> ToNumber(const ttmath::Big<E, W>& big) {
    Number<E, W> number;
    number.info = big.info;
    std::ranges::copy(big.exponent.table, number.exponent.begin());
    std::ranges::copy(big.mantissa.table, number.mantissa.begin());
    return number;
}

template <auto Function, typename Big>
Word CallFunction(Big& me) {
    ttmath::ErrorCode error = ttmath::err_ok;
    me = Function(me, &error);
    return error;
}

template <typename Big>
Word CallMember(Call call, Big& me, const Big& other, Word word, std::string& text) {
    switch (call) {
        case Call::Add:
            return me.Add(other);
        case Call::AddCut:
            return me.Add(other, false);
        case Call::Subtract:
            return me.Sub(other);
        case Call::SubtractCut:
            return me.Sub(other, false);
        case Call::Multiply:
            return me.Mul(other);
        case Call::MultiplyCut:
            return me.Mul(other, false);
        case Call::MultiplyByWord:
            return me.MulUInt(word);
        case Call::Divide:
            return me.Div(other);
        case Call::DivideCut:
            return me.Div(other, false);
        case Call::PowUInt:
            return me.PowUInt(other);
        case Call::PowInt:
            return me.PowInt(other);
        case Call::Pow:
            return me.Pow(other);
        case Call::Exp:
            return CallFunction<ttmath::Exp<Big>>(me);
        case Call::Ln:
            return CallFunction<ttmath::Ln<Big>>(me);
        case Call::Sin:
            return CallFunction<ttmath::Sin<Big>>(me);
        case Call::ATan:
            me = ttmath::ATan(me);
            return 0;
        case Call::ASin:
            return CallFunction<ttmath::ASin<Big>>(me);
        case Call::ASinFromHalf:
            me = ttmath::auxiliaryfunctions::ASin_1(me);
            return 0;
        case Call::ToText:
            return me.ToString(text, word);
        case Call::FromText:
            return me.FromString(text, word);
        case Call::IntegerText:
            me.mantissa.ToString(text, word);
            return 0;
    }
    return 0;
}

}  // namespace

template <unsigned E, unsigned W>
Output<E, W> Compute(Call call, const Input<E, W>& input) {
    auto me = ToBig(input.first);
    const auto other = ToBig(input.second);
    Output<E, W> output{.number = {}, .carry = 0, .text = input.text};
    output.carry = CallMember(call, me, other, input.word, output.text);
    output.number = ToNumber(me);
    return output;
}

template Output<2, 8> Compute(Call, const Input<2, 8>&);
template Output<16, 64> Compute(Call, const Input<16, 64>&);

}  // namespace kernel_tests::CALLS
