// The power series of ttmath's functions: the first terms as ttmath adds them, the small ones in
// fixed point, where each costs a fraction of that. Order, rounding and end of each sum are
// ttmath's.
#include <algorithm>
#include <bit>
#include <optional>

#include "number/kernels/column_sums.hpp"
#include "number/kernels/plain_exponent.hpp"
#include "number/kernels/series_tail.hpp"
#include "number/kernels/specialisations.hpp"
#include "number/kernels/vector_kernels.hpp"

namespace vqz::kernels {
namespace {

using ttmath::Big;
using ttmath::uint;

/// When a sum ends: at the first term that does not change it; or, tested at every fourth term
/// only, at the first four that do not change it together.
enum class EndTest { EachTerm, EveryFourthTerm };

/// Whether 2^position, added to or subtracted from the mantissa, leaves its top bit the top bit.
template <uint W>
bool HasRoom(const ttmath::UInt<W>& mantissa, int position, bool adding, bool subtracting) {
    bool set = false;
    bool clear = false;
    for (int bit = WordBits * static_cast<int>(W) - 2; bit >= position && !(set && clear); --bit) {
        (mantissa.GetBit(static_cast<uint>(bit)) != 0 ? set : clear) = true;
    }
    return (set || !subtracting) && (clear || !adding);
}

/// Adds what is left of a series in fixed point: all terms from index `next` on. Returns the index
/// of the last one; 0 if that cannot be done for this series; nothing if it is too early.
template <auto Ratio, uint E, uint W>
std::optional<uint> AddTail(Big<E, W>& sum, const Big<E, W>& term, const Big<E, W>& multiplier,
                            bool subtract, bool alternate, uint next, EndTest endTest) {
    constexpr int bits = WordBits * W;
    constexpr int wanted = 40;
    const auto sumExponent = PlainExponent(sum);
    const auto termExponent = PlainExponent(term);
    const auto multiplierExponent = PlainExponent(multiplier);
    if (!sumExponent || !termExponent || !multiplierExponent) {
        return {};
    }
    const int termShift = *sumExponent - *termExponent;
    const int multiplierShift = -(*multiplierExponent + bits);
    const TermRatio nextRatio = Ratio(next);
    const int ratioShift =
        static_cast<int>(std::bit_width(nextRatio.denominator / nextRatio.numerator)) - 1;
    // The next term and with it all that follow are below 2^-shift of the sum.
    const int shift = termShift + multiplierShift + ratioShift - 1;
    if (termShift < 0 || termShift >= bits || multiplierShift < 0 || multiplierShift >= bits ||
        shift < wanted) {
        return {};
    }
    // Each term is at most half of the one before: the multiplier is below 1/2, or the ratio is 1 /
    // d with d from 2 on, and gets smaller. So all together, rounded, are below four times the
    // first one, or below 4.
    const bool halves = multiplierShift >= 1 || (nextRatio.numerator == 1 && ratioShift >= 1);
    if (!halves || !HasRoom(sum.mantissa, std::max(bits - shift + 2, 2), !subtract || alternate,
                            subtract || alternate)) {
        return {};
    }
    const TailStart start{.sum = sum.mantissa.table,
                          .term = term.mantissa.table,
                          .multiplier = multiplier.mantissa.table,
                          .termShift = termShift,
                          .multiplierShift = multiplierShift,
                          .subtract = subtract,
                          .alternate = alternate,
                          .wholeGroups = endTest == EndTest::EveryFourthTerm,
                          .next = next,
                          .ratio = [](Word index) { return PreparedRatio(Ratio(index)); }};
    return vectorKernels->Of<W>().addTail(sum.mantissa.table, start);
}

/// Adds the terms of a series to `sum` and returns the index of the last one. A series has
///
///     EndTest endTest              how the sum ends
///     bool alternating             whether terms are subtracted and added by turns
///     bool MakeTerm()              computes `term`, unless a number gets too large
///     bool Advance()               prepares for the next one, likewise
///     TermRatio Ratio(index)       how a term follows from the one before
///     const Number& multiplier()   what multiplies each term in addition to the ratio
template <typename Series, typename Number>
uint Sum(Series& series, Number& sum) {
    Number oldSum = sum;
    bool tailFailed = false;
    uint index = 1;
    for (; index <= TTMATH_ARITHMETIC_MAX_LOOP; ++index) {
        if (!series.MakeTerm()) {
            break;
        }
        const bool subtracted = Series::alternating && index % 2 != 0;
        if (subtracted) {
            sum.Sub(series.term);
        } else {
            sum.Add(series.term);
        }
        if (Series::endTest == EndTest::EachTerm || index % 4 == 0) {
            if (sum == oldSum) {
                break;
            }
            oldSum = sum;
            if (!tailFailed) {
                const Number& multiplier = series.multiplier();
                const bool alternate = Series::alternating != multiplier.IsSign();
                const bool against = (series.term.IsSign() != subtracted) != sum.IsSign();
                const auto last =
                    AddTail<Series::Ratio>(sum, series.term, multiplier, against != alternate,
                                           alternate, index + 1, Series::endTest);
                if (last && *last != 0) {
                    return *last;
                }
                tailFailed = last.has_value();
            }
        }
        if (!series.Advance()) {
            break;
        }
    }
    return index;
}

/// x + x^2 / 2! + x^3 / 3! + ...
template <typename Number>
class ExponentialSeries {
public:
    static constexpr EndTest endTest = EndTest::EveryFourthTerm;
    static constexpr bool alternating = false;

    Number term;

    explicit ExponentialSeries(const Number& x) : x_(x), power_(x) {
        one_.SetOne();
        factorial_.SetOne();
        index_.SetOne();
    }

    bool MakeTerm() {
        term = power_;
        return term.Div(factorial_) == 0;
    }

    bool Advance() {
        uint carry = index_.Add(one_);
        carry += factorial_.Mul(index_);
        carry += power_.Mul(x_);
        return carry == 0;
    }

    static TermRatio Ratio(uint index) { return {1, index}; }
    const Number& multiplier() const { return x_; }

private:
    const Number& x_;
    Number power_;
    Number factorial_;
    Number index_;
    Number one_;
};

/// y + y^3 / 3 + y^5 / 5 + ...
template <typename Number>
class LogarithmSeries {
public:
    static constexpr EndTest endTest = EndTest::EveryFourthTerm;
    static constexpr bool alternating = false;

    Number term;

    explicit LogarithmSeries(const Number& y) : power_(y), square_(y) {
        square_.Mul(y);
        denominator_.SetOne();
        two_ = 2;
    }

    bool MakeTerm() {
        term = power_;
        return term.Div(denominator_) == 0;
    }

    bool Advance() {
        uint carry = power_.Mul(square_);
        carry += denominator_.Add(two_);
        return carry == 0;
    }

    static TermRatio Ratio(uint index) { return {2 * index - 3, 2 * index - 1}; }
    const Number& multiplier() const { return square_; }

private:
    Number power_;
    Number square_;
    Number denominator_;
    Number two_;
};

/// x^3 / 3 - x^5 / 5 + x^7 / 7 - ..., which is subtracted from x
template <typename Number>
class ArcTangentSeries {
public:
    static constexpr EndTest endTest = EndTest::EachTerm;
    static constexpr bool alternating = true;

    Number term;

    explicit ArcTangentSeries(const Number& x) : power_(x), square_(x) {
        square_.Mul(x);
        denominator_.SetOne();
        two_ = 2;
    }

    bool MakeTerm() {
        carry_ += power_.Mul(square_);
        carry_ += denominator_.Add(two_);
        term = power_;
        carry_ += term.Div(denominator_);
        return carry_ == 0;
    }

    bool Advance() const { return true; }

    static TermRatio Ratio(uint index) { return {2 * index - 1, 2 * index + 1}; }
    const Number& multiplier() const { return square_; }

private:
    Number power_;
    Number square_;
    Number denominator_;
    Number two_;
    uint carry_ = 0;
};

/// x^3 / 3! - x^5 / 5! + ..., which is subtracted from x, if `First` is 2; with `First` 1 it is
/// x^2 / 2! - x^4 / 4! + ..., which is subtracted from 1.
template <typename Number, uint First>
class SineSeries {
public:
    static constexpr EndTest endTest = EndTest::EachTerm;
    static constexpr bool alternating = true;

    Number term;

    SineSeries(const Number& power, const Number& square) : power_(power), square_(square) {
        one_.SetOne();
        factorial_.SetOne();
        index_ = First;
    }

    bool MakeTerm() {
        carry_ += power_.Mul(square_);
        for (int i = 0; i < 2; ++i) {
            carry_ += factorial_.Mul(index_);
            carry_ += index_.Add(one_);
        }
        term = power_;
        carry_ += term.Div(factorial_);
        return carry_ == 0;
    }

    bool Advance() const { return true; }

    static TermRatio Ratio(uint index) {
        const uint factor = 2 * index + First - 2;
        return {1, factor * (factor + 1)};
    }
    const Number& multiplier() const { return square_; }

private:
    Number power_;
    const Number& square_;
    Number factorial_;
    Number index_;
    Number one_;
    uint carry_ = 0;
};

/// x^3 / (2 * 3) + (1 * 3) x^5 / (2 * 4 * 5) + ..., which is added to x. `Halved` is the series
/// with x in place of x^2, in which each further term is halved once more:
/// x / (2 * 3) / 2 + (1 * 3) x^2 / (2 * 4 * 5) / 4 + ...
template <typename Number, bool Halved>
class ArcSineSeries {
public:
    static constexpr EndTest endTest = EndTest::EachTerm;
    static constexpr bool alternating = false;

    Number term;

    ArcSineSeries(const Number& power, const Number& factor)
        : power_(power), factor_(factor), multiplier_(factor) {
        odds_.SetOne();
        odd_.SetOne();
        two_ = 2;
        evens_ = two_;
        even_ = two_;
        halves_ = two_;
        denominator_ = 3;
        if (Halved) {
            multiplier_.exponent.SubOne();
        }
    }

    bool MakeTerm() {
        if (!Halved) {
            carry_ += power_.Mul(factor_);
        }
        term = power_;
        carry_ += term.Mul(odds_);
        Number divisor = evens_;
        carry_ += divisor.Mul(denominator_);
        if (Halved) {
            carry_ += divisor.Mul(halves_);
        }
        carry_ += term.Div(divisor);
        return carry_ == 0;
    }

    bool Advance() {
        // The first power of the halved series is the factor itself: not 1 times it, which would
        // drop flag bits without a meaning.
        if (Halved) {
            carry_ += power_.Mul(factor_);
        }
        // None of these carries: they are integers of some thousands, and products of as many.
        odd_.Add(two_);
        even_.Add(two_);
        odds_.Mul(odd_);
        evens_.Mul(even_);
        denominator_.Add(two_);
        if (Halved) {
            halves_.Mul(two_);
        }
        return true;
    }

    static TermRatio Ratio(uint index) {
        const uint odd = 2 * index - 1;
        return {odd * odd, (odd + 1) * (odd + 2)};
    }
    const Number& multiplier() const { return multiplier_; }

private:
    Number power_;
    const Number& factor_;
    Number multiplier_;
    /// 1 * 3 * 5 * ..., and its last factor.
    Number odds_;
    Number odd_;
    /// 2 * 4 * 6 * ..., and its last factor.
    Number evens_;
    Number even_;
    Number halves_;
    Number denominator_;
    Number two_;
    uint carry_ = 0;
};

/// e^x for x between -1 and 1, as Big::ExpSurrounding0.
template <typename Number>
uint Exponential(Number& result, const Number& x) {
    ExponentialSeries<Number> series(x);
    result.SetOne();
    return Sum(series, result);
}

/// ln x for x from 1 to 2, as Big::LnSurrounding1: twice the series of (x - 1) / (x + 1).
template <typename Number>
std::optional<uint> Logarithm(Number& result, const Number& x) {
    Number one;
    one.SetOne();
    if (x == one) {
        result.SetZero();
        return {};
    }
    Number y = x;
    y.Sub(one);
    Number divisor = x;
    divisor.Add(one);
    y.Div(divisor);
    LogarithmSeries<Number> series(y);
    result.SetZero();
    const uint steps = Sum(series, result);
    result.exponent.AddOne();
    return steps;
}

/// The arc tangent of x between -1/2 and 1/2.
template <typename Number>
Number ArcTangent(const Number& x) {
    ArcTangentSeries<Number> series(x);
    Number result = x;
    Sum(series, result);
    return result;
}

/// The sine of x from 0 to pi/2; from pi/4 on it is computed as the cosine of pi/2 - x.
template <typename Number>
Number Sine(const Number& x) {
    Number quarter;
    quarter.Set05Pi();
    quarter.exponent.SubOne();
    Number result;
    Number square;
    if (x < quarter) {
        square = x;
        square.Mul(x);
        SineSeries<Number, 2> series(x, square);
        result = x;
        Sum(series, result);
        return result;
    }
    Number right;
    right.Set05Pi();
    Number distance = x;
    distance.Sub(right);
    square = distance;
    square.Mul(distance);
    result.SetOne();
    SineSeries<Number, 1> series(result, square);
    Sum(series, result);
    return result;
}

/// The arc sine of x from 0 to 1/2.
template <typename Number>
Number ArcSineToHalf(const Number& x) {
    Number square = x;
    square.Mul(x);
    ArcSineSeries<Number, false> series(x, square);
    Number result = x;
    Sum(series, result);
    return result;
}

/// The arc sine of x from 1/2 to 1: pi/2 - sqrt(2 (1 - x)) (1 + the series).
template <typename Number>
Number ArcSineFromHalf(const Number& x) {
    Number one;
    one.SetOne();
    Number distance = one;
    distance.Sub(x);
    Number sum = one;
    ArcSineSeries<Number, true> series(distance, distance);
    Sum(series, sum);
    distance.exponent.AddOne();
    Number half = one;
    half.exponent.SubOne();
    distance.Pow(half);
    sum.Mul(distance);
    Number result;
    result.Set05Pi();
    result.Sub(sum);
    return result;
}

}  // namespace
}  // namespace vqz::kernels

namespace ttmath {

#define BIGNUMBER_DEFINE_SERIES(E, W)                                       \
    BIGNUMBER_KERNEL_EXP(E, W) {                                            \
        const uint last = vqz::kernels::Exponential(*this, x);              \
        if (steps != nullptr) {                                             \
            *steps = last;                                                  \
        }                                                                   \
    }                                                                       \
    BIGNUMBER_KERNEL_LN(E, W) {                                             \
        const std::optional<uint> last = vqz::kernels::Logarithm(*this, x); \
        if (steps != nullptr && last) {                                     \
            *steps = *last;                                                 \
        }                                                                   \
    }                                                                       \
    BIGNUMBER_KERNEL_ATAN(E, W) {                                           \
        return vqz::kernels::ArcTangent(x);                                 \
    }                                                                       \
    BIGNUMBER_KERNEL_SIN(E, W) {                                            \
        return vqz::kernels::Sine(x);                                       \
    }                                                                       \
    BIGNUMBER_KERNEL_ASIN_TO_HALF(E, W) {                                   \
        return vqz::kernels::ArcSineToHalf(x);                              \
    }                                                                       \
    BIGNUMBER_KERNEL_ASIN_FROM_HALF(E, W) {                                 \
        return vqz::kernels::ArcSineFromHalf(x);                            \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_SERIES)

}  // namespace ttmath
