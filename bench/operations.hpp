// What the benchmark measures: one row for each operation, with the operands that every contender
// gets.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace bench {

/// An operand as text. A full one is followed by digits up to the precision in use.
struct Operand {
    std::string_view head;
    bool full = true;
};

/// How a member of the number classes is called.
enum class Shape {
    OneNumber,      ///< a method of one number, or a shared one of one argument
    TwoNumbers,     ///< a method of one number with another, or a shared one of two arguments
    RoundedPair,    ///< a method of one number with another and a switch for rounding
    NumberAndInt,   ///< a method of one number with an Integer
    Comparison,     ///< two numbers to an Integer
    TextOut,        ///< a number to text
    TextIn,         ///< text to a number, by a constructor
    Constant,       ///< a shared method without arguments
    BooleanGetter,  ///< a property that is read
    DoubleGetter,   ///< a property that is read
    DoubleSetter,   ///< a property that is written
};

enum class Group {
    Basic,
    Function,
    Text,
    Call,  ///< next to no arithmetic: what the call itself costs
};

/// A row of the benchmark. The declaration is the member's in the class table, where '$' stands for
/// the name of the class.
struct Operation {
    std::string_view name;
    Group group;
    Shape shape;
    std::string_view declaration;
    Operand x;
    Operand y = {};
};

inline constexpr Operand AboveOne{"1."};
inline constexpr Operand BelowOne{"0.4"};
inline constexpr Operand Third{"3."};
inline constexpr Operand Long{"8765.4"};

inline constexpr std::array Operations{
    Operation{"add", Group::Basic, Shape::RoundedPair,
              "Add(other as $, round as boolean = true) as $", Long, BelowOne},
    Operation{"subtract", Group::Basic, Shape::RoundedPair,
              "Subtract(other as $, round as boolean = true) as $", Long, BelowOne},
    Operation{"multiply", Group::Basic, Shape::RoundedPair,
              "Multiply(other as $, round as boolean = true) as $", Long, BelowOne},
    Operation{"multiply by integer", Group::Basic, Shape::NumberAndInt,
              "Multiply(value as Integer) as $", Long},
    Operation{"divide", Group::Basic, Shape::RoundedPair,
              "Divide(other as $, round as boolean = true) as $", Long, BelowOne},
    Operation{"divide by 7",
              Group::Basic,
              Shape::RoundedPair,
              "Divide(other as $, round as boolean = true) as $",
              Long,
              {"7", false}},
    Operation{"remainder", Group::Basic, Shape::TwoNumbers, "Modulate(other as $) as $", Long,
              Third},
    Operation{"compare", Group::Basic, Shape::Comparison, "Operator_Compare(other as $) as Integer",
              Long, Third},
    Operation{"round", Group::Basic, Shape::OneNumber, "Round as $", Long},
    Operation{"sqrt", Group::Function, Shape::OneNumber, "Sqrt as $", Third},
    Operation{"root",
              Group::Function,
              Shape::TwoNumbers,
              "Root(value as $, index as $) as $",
              Third,
              {"5", false}},
    Operation{"pow", Group::Function, Shape::TwoNumbers, "Pow(other as $) as $", Third, AboveOne},
    Operation{"pow, integer",
              Group::Function,
              Shape::TwoNumbers,
              "Pow(other as $) as $",
              Third,
              {"100", false}},
    Operation{"exp", Group::Function, Shape::OneNumber, "Exp(value as $) as $", AboveOne},
    Operation{"ln", Group::Function, Shape::OneNumber, "Ln(value as $) as $", Third},
    Operation{"log",
              Group::Function,
              Shape::TwoNumbers,
              "Log(value as $, base as $) as $",
              Third,
              {"10", false}},
    Operation{"sin", Group::Function, Shape::OneNumber, "Sin(value as $) as $", AboveOne},
    Operation{"cos", Group::Function, Shape::OneNumber, "Cos(value as $) as $", AboveOne},
    Operation{"tan", Group::Function, Shape::OneNumber, "Tan(value as $) as $", AboveOne},
    Operation{"cot", Group::Function, Shape::OneNumber, "Cot(value as $) as $", AboveOne},
    Operation{"asin", Group::Function, Shape::OneNumber, "ASin(value as $) as $", BelowOne},
    Operation{"acos", Group::Function, Shape::OneNumber, "ACos(value as $) as $", BelowOne},
    Operation{"atan", Group::Function, Shape::OneNumber, "ATan(value as $) as $", BelowOne},
    Operation{"acot", Group::Function, Shape::OneNumber, "ACot(value as $) as $", BelowOne},
    Operation{"sinh", Group::Function, Shape::OneNumber, "Sinh(value as $) as $", AboveOne},
    Operation{"cosh", Group::Function, Shape::OneNumber, "Cosh(value as $) as $", AboveOne},
    Operation{"tanh", Group::Function, Shape::OneNumber, "Tanh(value as $) as $", AboveOne},
    Operation{"coth", Group::Function, Shape::OneNumber, "Coth(value as $) as $", AboveOne},
    Operation{"asinh", Group::Function, Shape::OneNumber, "ASinh(value as $) as $", AboveOne},
    Operation{"acosh", Group::Function, Shape::OneNumber, "ACosh(value as $) as $", AboveOne},
    Operation{"atanh", Group::Function, Shape::OneNumber, "ATanh(value as $) as $", BelowOne},
    Operation{"acoth", Group::Function, Shape::OneNumber, "ACoth(value as $) as $", AboveOne},
    Operation{"to text", Group::Text, Shape::TextOut, "Operator_Convert as String", AboveOne},
    Operation{"from text", Group::Text, Shape::TextIn, "Constructor(value as String)", AboveOne},
    Operation{"zero", Group::Call, Shape::Constant, "Zero as $", AboveOne},
    Operation{"abs", Group::Call, Shape::OneNumber, "Abs as $", AboveOne},
    Operation{"is zero", Group::Call, Shape::BooleanGetter, "IsZero", AboveOne},
    Operation{"to double", Group::Call, Shape::DoubleGetter, "DoubleValue", AboveOne},
    Operation{"from double", Group::Call, Shape::DoubleSetter, "DoubleValue", AboveOne},
};

/// The row of that name; an unknown name does not compile where it is used as a constant.
constexpr const Operation& FindOperation(std::string_view name) {
    for (const Operation& operation : Operations) {
        if (operation.name == name) {
            return operation;
        }
    }
    throw "there is no such operation";
}

/// The operand's text for a precision in bits: as many decimal digits as the mantissa holds. The
/// digits come from a linear congruential generator (Knuth's MMIX constants) and never change.
inline std::string OperandText(const Operand& operand, unsigned bits) {
    constexpr double DigitsPerBit = 0.30103;
    std::string text(operand.head);
    if (operand.full) {
        unsigned long long state = bits;
        for (auto missing = static_cast<std::size_t>(bits * DigitsPerBit); missing > 0; --missing) {
            state = state * 6364136223846793005ULL + 1442695040888963407ULL;
            text.push_back(static_cast<char>('0' + (state >> 33) % 10));
        }
    }
    return text;
}

}  // namespace bench
