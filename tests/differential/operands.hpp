// Operands that are likely to show faults: every shape of mantissa, exponent and flag byte that the
// raw properties can write, and pairs whose product, quotient or sum lies where a decision is made.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "number/kernels/specialisations.hpp"
#include "tests/differential/random.hpp"

namespace differential {

/// Makes operands of one size.
template <ttmath::uint E, ttmath::uint W>
class Operands {
public:
    using Number = ttmath::Big<E, W>;

    struct Pair {
        Number first;
        Number second;
    };

    explicit Operands(std::uint64_t seed) : random_(seed) {}

    Random& random() { return random_; }

    /// Two operands of a basic operation.
    Pair NextPair() {
        Pair pair{AnyNumber(), AnyNumber()};
        switch (random_.Below(12)) {
            case 0:
                pair.second = pair.first;
                break;
            case 1:
                MakeNeighbour(pair);
                break;
            case 2:
                MakeDivisible(pair);
                break;
            case 3:
                MakeTie(pair);
                break;
            case 4:
                MakeOverlapping(pair);
                break;
            case 5:
                pair.second.mantissa = ShortMantissa(1);
                break;
            default:
                break;
        }
        return pair;
    }

    /// An operand of a function: of moderate size, sometimes near 0, near 1 or an integer.
    Number NextArgument() {
        Number number;
        number.SetOne();
        switch (random_.Below(8)) {
            case 0:
                number.FromUInt(random_.Word() >> random_.Below(32));
                break;
            case 1:
                number.mantissa = ShortMantissa(1 + random_.Below(3));
                break;
            default:
                number.mantissa = AnyMantissa();
                break;
        }
        if (number.mantissa.IsZero()) {
            number.SetZero();
            return number;
        }
        if (!random_.OneIn(8)) {
            const auto wide = random_.OneIn(4) ? W * 32 : 16;
            number.exponent.Add(ttmath::Int<E>(SignedBelow(wide)));
        }
        number.Standardizing();
        if (random_.OneIn(3)) {
            number.SetSign();
        }
        return number;
    }

    /// Sometimes makes an argument one that only raw access can write: flags that contradict the
    /// mantissa or have no meaning, a mantissa with leading zero bits, or one that is 0 without the
    /// zero flag. Returns whether it did.
    bool Contradict(Number& number) {
        if (!random_.OneIn(6)) {
            return false;
        }
        switch (random_.Below(8)) {
            case 0:
                number.info = static_cast<std::uint8_t>(random_.Word());
                break;
            case 1:
                number.info ^= static_cast<std::uint8_t>(1U << random_.Below(8));
                break;
            case 2:
                number.info |= static_cast<std::uint8_t>(random_.Word() & NoMeaning);
                break;
            case 3:
                number.mantissa.SetZero();
                break;
            case 4:
                number.mantissa = SparseMantissa();
                break;
            default:
                // As large as before, or not.
                const auto bits = random_.Below(random_.OneIn(2) ? 40 : W * WordBits);
                number.mantissa.Rcr(bits);
                if (random_.OneIn(2)) {
                    number.exponent.Add(ttmath::Int<E>(static_cast<ttmath::sint>(bits)));
                }
                break;
        }
        if (random_.OneIn(8)) {
            number.info |= TTMATH_BIG_ZERO;
        }
        return true;
    }

    /// The exponential of a number is squared as often as its exponent says, until it overflows.
    /// That of a number that is not normalised may be 1, and would be squared for years.
    static void MakeBearable(Number& number) {
        constexpr ttmath::sint squares = 100;
        if (!number.mantissa.IsTheHighestBitSet() && number.exponent > squares) {
            number.exponent = squares;
        }
    }

private:
    static constexpr std::uint32_t WordBits = TTMATH_BITS_PER_UINT;
    /// The flag bits that ttmath does not use.
    static constexpr std::uint32_t NoMeaning =
        0xFFU & ~std::uint32_t{TTMATH_BIG_SIGN | TTMATH_BIG_NAN | TTMATH_BIG_ZERO};
    using Mantissa = ttmath::UInt<W>;

    Random random_;

    ttmath::sint SignedBelow(std::uint32_t limit) {
        const auto magnitude = static_cast<ttmath::sint>(random_.Below(limit));
        return random_.OneIn(2) ? magnitude : -magnitude;
    }

    void SetTop(Mantissa& mantissa) { mantissa.table[W - 1] |= 0x80000000; }

    Mantissa RandomMantissa() {
        Mantissa mantissa;
        std::ranges::generate(mantissa.table, [this] { return random_.Word(); });
        return mantissa;
    }

    /// `words` leading words that are random, and zeros below.
    Mantissa ShortMantissa(std::uint32_t words) {
        Mantissa mantissa = RandomMantissa();
        std::fill_n(mantissa.table, W - std::min<std::uint32_t>(words, W), 0);
        SetTop(mantissa);
        return mantissa;
    }

    /// Runs of equal bits.
    Mantissa RunsMantissa() {
        Mantissa mantissa;
        mantissa.SetZero();
        bool bit = true;
        for (std::uint32_t position = 0; position < W * 32;) {
            const std::uint32_t end = position + 1 + random_.Below(1 + random_.Below(W * 32));
            for (; position < std::min<std::uint32_t>(end, W * 32); ++position) {
                if (bit) {
                    mantissa.SetBit(W * 32 - 1 - position);
                }
            }
            bit = !bit;
        }
        return mantissa;
    }

    /// Few bits set.
    Mantissa SparseMantissa() {
        Mantissa mantissa;
        mantissa.SetZero();
        for (std::uint32_t count = random_.Below(4); count > 0; --count) {
            mantissa.SetBit(random_.Below(W * 32));
        }
        return mantissa;
    }

    /// Words that are all zeros, all ones, one off these, or random.
    Mantissa EdgyMantissa() {
        Mantissa mantissa;
        std::ranges::generate(mantissa.table, [this] {
            constexpr std::array<std::uint32_t, 7> edges{
                0, 0xFFFFFFFF, 1, 0xFFFFFFFE, 0x80000000, 0x7FFFFFFF, 0xF0000000};
            const std::uint32_t choice = random_.Below(edges.size() + 1);
            return choice < edges.size() ? edges[choice] : random_.Word();
        });
        return mantissa;
    }

    Mantissa AnyMantissa() {
        Mantissa mantissa;
        switch (random_.Below(8)) {
            case 0:
                mantissa = SparseMantissa();
                break;
            case 1:
                mantissa = RunsMantissa();
                break;
            case 2:
                mantissa = EdgyMantissa();
                break;
            case 3:
                mantissa = ShortMantissa(1 + random_.Below(W));
                break;
            case 4:
                // All ones but for a few; all of them give products their largest columns.
                mantissa.SetZero();
                mantissa.Sub(random_.OneIn(4) ? Mantissa(1U) : SparseMantissa());
                break;
            default:
                mantissa = RandomMantissa();
                break;
        }
        // One in sixteen stays as it is, which is mostly not normalised; it may be 0 as well.
        if (!random_.OneIn(16)) {
            SetTop(mantissa);
        }
        return mantissa;
    }

    ttmath::Int<E> AnyExponent() {
        ttmath::Int<E> exponent;
        switch (random_.Below(8)) {
            case 0:
                exponent.SetMax();
                exponent.Sub(ttmath::Int<E>(ttmath::sint(random_.Below(W * 80))));
                break;
            case 1:
                exponent.SetMin();
                exponent.Add(ttmath::Int<E>(ttmath::sint(random_.Below(W * 80))));
                break;
            case 2:
                std::ranges::generate(exponent.table, [this] { return random_.Word(); });
                break;
            default:
                exponent = SignedBelow(W * 80);
                break;
        }
        return exponent;
    }

    std::uint8_t AnyFlags() {
        if (random_.OneIn(64)) {
            return static_cast<std::uint8_t>(random_.Word());
        }
        return random_.OneIn(2) ? TTMATH_BIG_SIGN : 0;
    }

    Number AnyNumber() {
        Number number;
        number.mantissa = AnyMantissa();
        number.exponent = AnyExponent();
        number.info = AnyFlags();
        return number;
    }

    /// The second differs from the first by a bit, or by one.
    void MakeNeighbour(Pair& pair) {
        pair.second = pair.first;
        Mantissa& mantissa = pair.second.mantissa;
        switch (random_.Below(3)) {
            case 0: {
                const std::uint32_t bit = random_.Below(W * 32);
                mantissa.table[bit / 32] ^= std::uint32_t{1} << (bit % 32);
                break;
            }
            case 1:
                mantissa.AddOne();
                break;
            default:
                mantissa.SubOne();
                break;
        }
        pair.second.exponent.Add(ttmath::Int<E>(SignedBelow(3)));
        if (random_.OneIn(2)) {
            pair.second.ChangeSign();
        }
    }

    /// The first is a multiple of the second, or one off it, and the quotient has digits at their
    /// limits.
    void MakeDivisible(Pair& pair) {
        const std::uint32_t words = random_.OneIn(2) ? W : 1 + random_.Below(W);
        pair.second.mantissa = AnyMantissa();
        SetTop(pair.second.mantissa);
        std::fill_n(pair.second.mantissa.table, W - words, 0);
        Mantissa quotient = random_.OneIn(2) ? AnyMantissa() : EdgyMantissa();
        std::fill_n(quotient.table, random_.OneIn(2) ? words : 0, 0);
        SetTop(quotient);
        ttmath::UInt<2 * W> product;
        pair.second.mantissa.MulBig(quotient, product);
        product.CompensationToLeft();
        std::copy_n(product.table + W, W, pair.first.mantissa.table);
        const std::uint32_t off = random_.Below(4);
        if (off == 0) {
            pair.first.mantissa.AddOne();
        } else if (off == 1) {
            pair.first.mantissa.SubOne();
        }
        SetTop(pair.first.mantissa);
    }

    /// The product's discarded half is a half, or one bit off it: first = a * 2^n with an odd
    /// a of n bits less, second an odd number whose product with a ends as wanted.
    void MakeTie(Pair& pair) {
        const std::uint32_t zeroWords = random_.Below(W);
        Mantissa first = AnyMantissa();
        std::fill_n(first.table, zeroWords, 0);
        first.table[zeroWords] |= 1;
        SetTop(first);
        // The inverse of the odd part modulo 2^(32 W), by Newton's iteration.
        Mantissa odd = first;
        odd.Rcr(zeroWords * 32);
        Mantissa inverse;
        inverse = 1U;
        for (std::uint32_t bits = 1; bits < W * 32; bits *= 2) {
            Mantissa error = Product(odd, inverse);
            Mantissa two;
            two = 2U;
            two.Sub(error);
            inverse = Product(inverse, two);
        }
        Mantissa ending;
        ending.SetZero();
        const std::uint32_t kept = (W - zeroWords) * 32;
        ending.SetBit(kept - 1 - random_.Below(2));
        switch (random_.Below(4)) {
            case 0:
                ending.AddOne();
                break;
            case 1:
                ending.SubOne();
                break;
            default:
                break;
        }
        Mantissa second = Product(inverse, ending);
        // Only the low `kept` bits of the second matter for the ending.
        for (std::uint32_t i = W - zeroWords; i < W; ++i) {
            second.table[i] = random_.Word();
        }
        if (zeroWords > 0) {
            SetTop(second);
        }
        pair.first.mantissa = first;
        pair.second.mantissa = second;
    }

    static Mantissa Product(Mantissa left, const Mantissa& right) {
        ttmath::UInt<2 * W> product;
        left.MulBig(right, product);
        Mantissa low;
        std::copy_n(product.table, W, low.table);
        return low;
    }

    /// Exponents whose difference moves the second's mantissa over the first's last bits.
    void MakeOverlapping(Pair& pair) {
        pair.second.exponent = pair.first.exponent;
        const std::uint32_t apart =
            random_.OneIn(2) ? random_.Below(W * 32) : W * 32 - 2 + random_.Below(5);
        pair.second.exponent.Sub(ttmath::Int<E>(ttmath::sint(apart)));
    }
};

}  // namespace differential
