// Integers written as text and read from it, several digits at a time.
#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include BIGNUMBER_PROCESSOR_WORD_DIVISION
#include "number/kernels/growing_integer.hpp"
#include "number/kernels/plain_exponent.hpp"
#include "number/kernels/power.hpp"
#include "number/kernels/specialisations.hpp"
#include "number/kernels/words.hpp"

namespace vqz::kernels {
namespace {

using ttmath::Big;
using ttmath::uint;
using ttmath::UInt;

/// The largest power of a base that fits into a word.
struct BasePower {
    uint power;
    int digits;
};

inline constexpr uint MinBase = 2;
inline constexpr uint MaxBase = 16;

constexpr auto LargestPowers = [] {
    std::array<BasePower, MaxBase + 1> powers{};
    for (uint base = MinBase; base <= MaxBase; ++base) {
        BasePower largest{base, 1};
        while (largest.power <= std::numeric_limits<uint>::max() / base) {
            largest.power *= base;
            ++largest.digits;
        }
        powers[base] = largest;
    }
    return powers;
}();

/// Writes the digits of a block backwards, so that they end before `end`. With `Base` 0 the base is
/// that of the argument.
template <uint Base>
void WriteBlock(char* end, uint block, uint base, int digits) {
    const uint divisor = Base != 0 ? Base : base;
    for (; digits > 0; --digits) {
        *--end = static_cast<char>(ttmath::Misc::DigitToChar(block % divisor));
        block /= divisor;
    }
}

/// Appends the digits of an integer of `words` words, of which the highest is not 0. A block of
/// digits that fits into a word is divided off at a time, the lowest first. Two divisions go over
/// the words together, the second one divides the first one's quotient: each division waits for the
/// remainder of the word before, but not for the other division.
template <uint W>
void AppendDigits(std::string& text, const UInt<W>& integer, std::size_t words, uint base) {
    // A block has at least WordBits - 4 bits: one more digit, of 4 bits at most, would not fit.
    constexpr std::size_t maxBlocks = W * WordBits / (WordBits - 4) + 2;
    std::array<uint, maxBlocks + 1> blocks;
    std::array<uint, W> left;
    std::copy_n(integer.table, words, left.begin());
    const BasePower block = LargestPowers[base];
    std::size_t count = 0;
    for (; words > 0; count += 2) {
        uint first = 0;
        uint second = 0;
        for (std::size_t i = words; i > 0; --i) {
            const uint quotient = DivideWords(first, left[i - 1], block.power, first);
            left[i - 1] = DivideWords(second, quotient, block.power, second);
        }
        blocks[count] = first;
        blocks[count + 1] = second;
        while (words > 0 && left[words - 1] == 0) {
            --words;
        }
    }
    while (blocks[count - 1] == 0) {
        --count;
    }
    int leading = 0;
    for (uint rest = blocks[count - 1]; rest != 0; rest /= base) {
        ++leading;
    }
    const std::size_t start = text.size();
    text.resize(start + static_cast<std::size_t>(leading) +
                (count - 1) * static_cast<std::size_t>(block.digits));
    const auto write = base == 10 ? WriteBlock<10> : WriteBlock<0>;
    char* end = text.data() + start + leading;
    write(end, blocks[count - 1], base, leading);
    for (std::size_t i = count - 1; i > 0; --i) {
        end += block.digits;
        write(end, blocks[i - 1], base, block.digits);
    }
}

/// Writes an integer, as UInt::ToStringBase. `digitsPerBit` is what the base needs.
template <uint W>
void WriteInteger(std::string& text, const UInt<W>& integer, uint base, bool negative,
                  double digitsPerBit) {
    text.clear();
    uint word = 0;
    uint bit = 0;
    if (base < MinBase || base > MaxBase) {
        return;
    }
    if (!integer.FindLeadingBit(word, bit)) {
        text = '0';
        return;
    }
    // The plain member reserves as much, so nothing after this allocates memory.
    const double bits = static_cast<double>(word) * WordBits + bit + 1;
    text.reserve(static_cast<std::size_t>(bits * digitsPerBit) + 3);
    if (negative) {
        text = '-';
    }
    AppendDigits(text, integer, word + 1, base);
}

/// Reads the digits of a text one by one.
class DigitReader {
public:
    DigitReader(const char* source, const ttmath::Conv& conv) : place_(source), conv_(conv) {}

    /// The digit at this place, -1 if there is none. Group characters before it are passed over.
    ttmath::sint Digit() {
        while (conv_.group != 0 && *place_ == static_cast<char>(conv_.group)) {
            ++place_;
        }
        return DigitHere();
    }

    /// Passes over digits, and stays before a group character.
    void SkipDigits() {
        while (DigitHere() != -1) {
            ++place_;
        }
    }

    void Advance() { ++place_; }
    void GoTo(const char* place) { place_ = place; }
    const char* place() const { return place_; }

private:
    const char* place_;
    const ttmath::Conv& conv_;

    ttmath::sint DigitHere() const {
        return ttmath::Misc::CharToDigit(static_cast<uint>(*place_), conv_.base);
    }
};

/// ToString needs log10(x) only to round it down or up. For x = 2^n it is enough to know between
/// which two integers the logarithm lies: this sets `number` to the half between them, or to 0 if n
/// is 0. Returns false, and leaves `number` alone, if the two integers are not certain.
template <uint E, uint W>
bool SetHalfNearDecimalLogarithm(Big<E, W>& number, const Big<E, W>& x) {
    // log10(2) * 2^32. It is off by less than 1/2, so that the product with at most 2^20 is off by
    // less than 2^19, which is 2^-13 of one.
    constexpr std::int64_t logarithm = 1292913986;
    constexpr std::int64_t one = std::int64_t{1} << 32;
    constexpr std::int64_t margin = one >> 12;
    constexpr int belowTopBit = WordBits * W - 1;
    static_assert(PlainExponentLimit + belowTopBit <= 1 << 20);
    const auto exponent = PlainExponent(x);
    if (!exponent) {
        return false;
    }
    const int n = *exponent + belowTopBit;
    const std::int64_t scaled = n * logarithm;
    const std::int64_t fraction = scaled & (one - 1);
    if (n == 0) {
        number.SetZero();
        return true;
    }
#ifdef BIGNUMBER_KERNELS_FORCE_FALLBACKS
    constexpr bool isForced = true;
#else
    constexpr bool isForced = false;
#endif
    if (isForced || fraction < margin || fraction > one - margin) {
        return false;
    }
    number = static_cast<ttmath::sint>(2 * (scaled >> 32) + 1);
    number.exponent.SubOne();
    return true;
}

/// Reads digits as long as their integer fits into a mantissa, where no step on the way would be
/// rounded. They are read by blocks that fit into a word, near the end one by one. Returns how many
/// there were.
template <uint E, uint W>
uint ReadExactly(DigitReader& reader, uint base, Big<E, W>& number) {
    GrowingInteger<W> integer;
    uint count = 0;
    for (uint limit = LargestPowers[base].power; limit != 0;) {
        const char* const start = reader.place();
        uint block = 0;
        uint power = 1;
        uint digits = 0;
        for (; power < limit; ++digits, reader.Advance()) {
            const ttmath::sint digit = reader.Digit();
            if (digit == -1) {
                break;
            }
            block = block * base + static_cast<uint>(digit);
            power *= base;
        }
        if (integer.Append(power, block)) {
            count += digits;
            limit = power < limit ? 0 : limit;
        } else {
            reader.GoTo(start);
            limit = limit > base ? base : 0;
        }
    }
    integer.StoreTo(number);
    return count;
}

/// Reads the digits before the point, as Big::FromString_ReadPartBeforeComma. `number` is 0.
template <uint E, uint W>
uint ReadIntegerPart(Big<E, W>& number, const char*& source, const ttmath::Conv& conv,
                     bool& valueRead) {
    ttmath::Misc::SkipWhiteCharacters(source);
    DigitReader reader(source, conv);
    if (ReadExactly(reader, conv.base, number) != 0) {
        valueRead = true;
    }
    const Big<E, W> base(conv.base);
    // The plain member ends at a carry, but no text is so long that there is one.
    uint carry = 0;
    for (ttmath::sint digit = 0; (digit = reader.Digit()) != -1; reader.Advance()) {
        carry += number.Mul(base);
        carry += number.Add(Big<E, W>(digit));
    }
    source = reader.place();
    return carry == 0 ? 0 : 1;
}

/// Reads the digits behind the point and adds the value of that fraction, as
/// Big::FromString_ReadPartAfterComma: digits are left out once there are more than a mantissa
/// holds.
template <uint E, uint W>
uint ReadFraction(Big<E, W>& number, const char*& source, const ttmath::Conv& conv,
                  bool& valueRead) {
    DigitReader reader(source, conv);
    Big<E, W> fraction;
    uint count = ReadExactly(reader, conv.base, fraction);
    Big<E, W> base(conv.base);
    uint carry = 0;
    // The plain member reads digits until the exponent is above 0. It is so after one digit, which
    // makes the integer longer than a mantissa.
    if (const ttmath::sint digit = reader.Digit(); digit != -1) {
        carry += fraction.Mul(base);
        carry += fraction.Add(Big<E, W>(digit));
        ++count;
    }
    reader.SkipDigits();
    source = reader.place();
    if (count != 0) {
        valueRead = true;
    }
    carry += RaiseToPower(base, count);
    carry += fraction.Div(base);
    carry += number.Add(fraction);
    return carry == 0 ? 0 : 1;
}

}  // namespace
}  // namespace vqz::kernels

namespace ttmath {

#define BIGNUMBER_DEFINE_READING(E, W)                                     \
    BIGNUMBER_KERNEL_READ_INTEGER(E, W) {                                  \
        return vqz::kernels::ReadIntegerPart(*this, source, conv, isRead); \
    }                                                                      \
    BIGNUMBER_KERNEL_READ_FRACTION(E, W) {                                 \
        return vqz::kernels::ReadFraction(*this, source, conv, isRead);    \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_READING)

#define BIGNUMBER_DEFINE_LOGARITHM(E, W)                                         \
    BIGNUMBER_KERNEL_LOGARITHM(E, W) {                                           \
        if (base == 10 && vqz::kernels::SetHalfNearDecimalLogarithm(*this, x)) { \
            return 0;                                                            \
        }                                                                        \
        Big<E, W> divisor;                                                       \
        uint c = 0;                                                              \
        if (base == 10) {                                                        \
            divisor.SetLn10();                                                   \
        } else {                                                                 \
            c += ToString_LogBase(base, divisor);                                \
        }                                                                        \
        c += Ln(x);                                                              \
        c += Div(divisor);                                                       \
        return c == 0 ? 0 : 1;                                                   \
    }

BIGNUMBER_TEXT_SIZES(BIGNUMBER_DEFINE_LOGARITHM)

#define BIGNUMBER_DEFINE_WRITING(W)                                                  \
    BIGNUMBER_KERNEL_WRITE_INTEGER(W) {                                              \
        vqz::kernels::WriteInteger(text, *this, base, negative, ToStringLog2(base)); \
    }

BIGNUMBER_MANTISSA_SIZES(BIGNUMBER_DEFINE_WRITING)

}  // namespace ttmath
