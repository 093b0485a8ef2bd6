#include "tests/unit/operations/cases.hpp"

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "tests/unit/operations/number_building.hpp"

namespace operation_tests {
namespace {

#if defined(THOROUGH_OPERATION_TESTS)
constexpr int RandomTuples = 200;
constexpr bool Thorough = true;
#else
constexpr int RandomTuples = 20;
constexpr bool Thorough = false;
#endif

template <typename AnyNumber>
using Numbers = std::vector<std::optional<AnyNumber>>;

template <typename AnyNumber>
using Tuples = std::vector<OperandTuple<AnyNumber>>;

/// Whether a call takes so long that not every combination can be tried.
template <typename AnyNumber>
bool IsSlow(const Operation<AnyNumber>& operation) {
    return AnyNumber::MantissaBits > 256 && (operation.family != Family::Arithmetic || !Thorough);
}

template <typename AnyNumber>
AnyNumber ConstantOf(std::string_view declaration) {
    const auto constants = Constants<AnyNumber>();
    return std::ranges::find(constants, declaration, &Constant<AnyNumber>::declaration)->value;
}

// Special operands ------------------------------------------------------------------------------

/// The few that show most; for operations that are slow or take three numbers.
template <typename AnyNumber>
Numbers<AnyNumber> FewSpecials() {
    const auto one = Whole<AnyNumber>(1);
    return {std::nullopt,
            Nan<AnyNumber>(),
            Whole<AnyNumber>(0),
            one,
            Whole<AnyNumber>(-1),
            Whole<AnyNumber>(2),
            Whole<AnyNumber>(-3),
            Scaled<AnyNumber>(1, -1),
            Scaled<AnyNumber>(5, -1),
            OneUnitOutward(one),
            Largest<AnyNumber>(),
            Smallest<AnyNumber>()};
}

/// What only raw access and Rand can make: numbers that no computation leaves behind.
template <typename AnyNumber>
void AddForeign(Numbers<AnyNumber>& numbers) {
    namespace flags = number_flags;
    const auto addWithFlags = [&numbers](AnyNumber number, int value) {
        number.flags = static_cast<std::uint8_t>(value);
        numbers.emplace_back(number);
    };
    const auto three = Whole<AnyNumber>(3);
    // A zero below zero, NaN with words, NaN without its zero flag, bits that mean nothing.
    addWithFlags({}, flags::Zero | flags::Negative);
    addWithFlags(three, flags::Zero);
    addWithFlags(three, flags::NotANumber);
    addWithFlags(three, flags::NotANumber | flags::Zero | flags::Negative);
    addWithFlags(three, 0x1F);
    // The leading bits of the mantissa are clear, or all of them.
    AnyNumber number;
    number.mantissa[0] = 5;
    numbers.emplace_back(number);
    number.mantissa.back() = 1;
    numbers.emplace_back(number);
    number.mantissa.fill(0);
    numbers.emplace_back(number);
}

template <typename AnyNumber>
Numbers<AnyNumber> AllSpecials() {
    Numbers<AnyNumber> numbers = FewSpecials<AnyNumber>();
    const auto add = [&numbers](const AnyNumber& number) { numbers.emplace_back(number); };

    // Beside one, also with the opposite sign: what is left of a difference is one unit.
    const auto one = Whole<AnyNumber>(1);
    add(OneUnitInward(one));
    add(Negated(OneUnitOutward(one)));
    add(Negated(OneUnitInward(one)));

    // The ends of the range, and the exponents beside them.
    add(Negated(Largest<AnyNumber>()));
    add(Negated(Smallest<AnyNumber>()));
    add(OneUnitInward(Largest<AnyNumber>()));
    auto powerBelowLargest = Whole<AnyNumber>(1);
    SetExtremeExponent(powerBelowLargest, false);
    Decrement(powerBelowLargest.exponent);
    add(powerBelowLargest);
    auto aboveSmallest = OneUnitOutward(Smallest<AnyNumber>());
    Increment(aboveSmallest.exponent);
    add(aboveSmallest);

    // Integers up to those that fill the mantissa, and the first one behind.
    add(Whole<AnyNumber>(7));
    add(Whole<AnyNumber>(60));
    add(Scaled<AnyNumber>(0xFFFFFFFF));
    add(Scaled<AnyNumber>(1, AnyNumber::MantissaBits));
    add(OneUnitInward(Scaled<AnyNumber>(1, AnyNumber::MantissaBits)));

    // Halves and fractions of either sign.
    add(Negated(Scaled<AnyNumber>(1, -1)));
    add(Negated(Scaled<AnyNumber>(7, -1)));
    add(OneUnitInward(Scaled<AnyNumber>(1, -1)));
    add(Scaled<AnyNumber>(0xAAAAAAAAAAAAAAAB, -65));
    return numbers;
}

/// A number, its neighbours and their opposites.
template <typename AnyNumber>
void AddEdge(Numbers<AnyNumber>& numbers, const AnyNumber& edge) {
    for (const AnyNumber& number : {edge, OneUnitInward(edge), OneUnitOutward(edge)}) {
        numbers.emplace_back(number);
        numbers.emplace_back(Negated(number));
    }
}

/// Where the largest number would be exceeded: the logarithms of the ends of the range.
template <typename AnyNumber>
void AddExponentialEdges(Numbers<AnyNumber>& numbers) {
    const auto operations = Operations<AnyNumber>();
    const auto ln =
        std::ranges::find(operations, std::string_view("Ln"), &Operation<AnyNumber>::failureName);
    AddEdge(numbers, ln->call({{Largest<AnyNumber>()}, 0}).number);
    if (AnyNumber::MantissaBits == 256) {
        AddEdge(numbers, ln->call({{Smallest<AnyNumber>()}, 0}).number);
    }
}

/// Arguments at the edges of a function's domain, just inside and just outside.
template <typename AnyNumber>
Numbers<AnyNumber> DomainEdges(std::string_view name, Family family) {
    Numbers<AnyNumber> numbers;
    const auto add = [&numbers](std::string_view constant) {
        AddEdge(numbers, ConstantOf<AnyNumber>(constant));
    };
    switch (family) {
        case Family::Trigonometric:
            add("HalfPi as $");
            add("Pi as $");
            add("TwoPi as $");
            // From here on the period can no longer be taken off.
            AddEdge(numbers, Scaled<AnyNumber>(1, AnyNumber::MantissaBits + 2));
            break;
        case Family::Hyperbolic:
            AddExponentialEdges(numbers);
            break;
        case Family::Powers:
            if (name == "Exp") {
                AddExponentialEdges(numbers);
            }
            break;
        case Family::InverseTrigonometric:
            add("One as $");
            AddEdge(numbers, Scaled<AnyNumber>(1, -1));
            numbers.emplace_back(Scaled<AnyNumber>(11, -3));
            break;
        case Family::InverseHyperbolic:
            add("One as $");
            break;
        case Family::Arithmetic:
            break;
    }
    return numbers;
}

/// The machine words that an operation is tried with.
std::vector<std::uint32_t> ExtraWords(Extra extra) {
    switch (extra) {
        case Extra::Round:
            // Only the low byte of a Boolean counts.
            return {1, 0, 0xABCDEF00, 0x00000080};
        case Extra::Integer:
        case Extra::UInt32:
            return {0, 1, 2, 10, 0xFFFFFFFF, 0xFFFFFFF9, 0x7FFFFFFF, 0x80000000, 0x80000001};
        case Extra::None:
            break;
    }
    return {0};
}

/// Every combination of these numbers in `count` places.
template <typename AnyNumber>
void AddCombinations(Tuples<AnyNumber>& tuples, const Numbers<AnyNumber>& numbers,
                     std::size_t count, std::uint32_t extra) {
    Tuples<AnyNumber> combinations = {{.numbers = {}, .extra = extra}};
    for (std::size_t place = 0; place < count; ++place) {
        Tuples<AnyNumber> longer;
        for (const auto& combination : combinations) {
            for (const auto& number : numbers) {
                longer.push_back(combination);
                longer.back().numbers.push_back(number);
            }
        }
        combinations = std::move(longer);
    }
    tuples.insert(tuples.end(), combinations.begin(), combinations.end());
}

// Random operands -------------------------------------------------------------------------------

/// Where in the range a random number lies.
enum class Region {
    /// Between 2^-8 and 2^8, with all bits of the mantissa.
    Near,
    /// A few leading bits: halves, quarters, small integers.
    Short,
    /// An integer of up to as many bits as the mantissa has.
    Integer,
    /// A scale of up to twice the mantissa's bits.
    Wide,
    /// Below 2^-(bits / 8): series end soon.
    Tiny,
    /// A power of two times a number close to 1: logarithms end soon.
    NearPowerOfTwo,
    /// Any exponent.
    Extreme,
};

struct Share {
    Region region;
    int percent;
};

constexpr Share ArithmeticShares[] = {{Region::Near, 25},          {Region::Short, 15},
                                      {Region::Integer, 30},       {Region::Wide, 20},
                                      {Region::NearPowerOfTwo, 5}, {Region::Extreme, 5}};
/// At 2048 bits a series over an arbitrary argument takes a thousand times as long as a sum.
constexpr Share SlowShares[] = {
    {Region::Near, 5},   {Region::Short, 3},           {Region::Integer, 2},
    {Region::Wide, 2},   {Region::NearPowerOfTwo, 30}, {Region::Tiny, 57},
    {Region::Extreme, 1}};

/// Random numbers of one seed; the same on every platform.
template <typename AnyNumber>
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint64_t seed) : engine_(seed) {}

    /// A number from 0 to below `end`.
    std::uint64_t Below(std::uint64_t end) { return engine_() % end; }

    AnyNumber Next(std::span<const Share> shares) {
        auto left = static_cast<int>(Below(100));
        for (const Share& share : shares) {
            left -= share.percent;
            if (left < 0) {
                return In(share.region);
            }
        }
        return In(Region::Near);
    }

    /// A number that cancels with `other` or is close to it.
    AnyNumber Beside(AnyNumber other) {
        if (other.IsZero()) {
            return other;
        }
        other.mantissa[0] ^= static_cast<std::uint32_t>(Below(16));
        return RandomlySigned(other);
    }

private:
    static constexpr int Bits = AnyNumber::MantissaBits;

    AnyNumber RandomlySigned(AnyNumber number) { return Below(2) == 0 ? Negated(number) : number; }

    /// A number of full mantissa from 2^scale to below 2^(scale + 1).
    AnyNumber Full(std::int64_t scale) {
        AnyNumber number;
        for (auto& word : number.mantissa) {
            word = static_cast<std::uint32_t>(engine_());
        }
        number.mantissa.back() |= 0x80000000;
        SetExponent(number, scale - (Bits - 1));
        return number;
    }

    std::int64_t Between(std::int64_t first, std::int64_t last) {
        return first +
               static_cast<std::int64_t>(Below(static_cast<std::uint64_t>(last - first) + 1));
    }

    /// An integer that fits the mantissa.
    AnyNumber Integer() {
        const std::int64_t topBit = Between(0, Bits - 1);
        AnyNumber number = Full(topBit);
        // The bits below the point are the lowest ones of the mantissa.
        std::int64_t fractionBits = Bits - 1 - topBit;
        for (auto& word : number.mantissa) {
            const auto cut = std::min<std::int64_t>(fractionBits, 32);
            word &= cut == 32 ? 0 : 0xFFFFFFFF << cut;
            fractionBits -= cut;
        }
        return number;
    }

    AnyNumber NearPowerOfTwo() {
        AnyNumber number = Full(Between(-64, 64));
        // Only a tail of the bits behind the leading one stays.
        auto zeroBits = static_cast<std::size_t>(Between(Bits / 8, Bits - 2));
        number.mantissa.back() = 0x80000000;
        for (auto word = number.mantissa.rbegin() + 1;
             zeroBits >= 32 && word != number.mantissa.rend(); ++word, zeroBits -= 32) {
            *word = 0;
        }
        return number;
    }

    AnyNumber In(Region region) {
        switch (region) {
            case Region::Near:
                return RandomlySigned(Full(Between(-8, 8)));
            case Region::Short:
                return RandomlySigned(Scaled<AnyNumber>(Below(1000) + 1, Between(-4, 2)));
            case Region::Integer:
                return Below(4) == 0 ? Negated(Integer()) : Integer();
            case Region::Wide:
                return RandomlySigned(Full(Between(-2 * Bits, 2 * Bits)));
            case Region::Tiny:
                return RandomlySigned(Full(Between(-Bits, -Bits / 8)));
            case Region::NearPowerOfTwo:
                return NearPowerOfTwo();
            case Region::Extreme: {
                AnyNumber number = RandomlySigned(Full(0));
                for (auto& word : number.exponent) {
                    word = static_cast<std::uint32_t>(engine_());
                }
                return number;
            }
        }
        return {};
    }

    std::mt19937_64 engine_;
};

/// A number that depends on the text alone.
std::uint64_t SeedOf(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3;
    }
    return hash;
}

template <typename AnyNumber>
void AddRandom(Tuples<AnyNumber>& tuples, const Operation<AnyNumber>& operation) {
    RandomNumbers<AnyNumber> random(SeedOf(operation.logName) + AnyNumber::MantissaBits);
    const bool series = operation.family != Family::Arithmetic;
    const std::span<const Share> shares = series && AnyNumber::MantissaBits > 256
                                              ? std::span<const Share>(SlowShares)
                                              : std::span<const Share>(ArithmeticShares);
    const auto extras = ExtraWords(operation.extra);
    for (int count = 0; count < RandomTuples; ++count) {
        OperandTuple<AnyNumber>& tuple = tuples.emplace_back();
        while (tuple.numbers.size() < operation.arity) {
            const bool besideLast = !tuple.numbers.empty() && random.Below(6) == 0;
            tuple.numbers.push_back(besideLast ? random.Beside(*tuple.numbers.back())
                                               : random.Next(shares));
        }
        const bool word = operation.extra == Extra::Integer || operation.extra == Extra::UInt32;
        tuple.extra = word ? static_cast<std::uint32_t>(random.Below(std::uint64_t{1} << 32))
                           : extras[static_cast<std::size_t>(random.Below(extras.size()))];
    }
}

}  // namespace

template <typename AnyNumber>
std::vector<OperandTuple<AnyNumber>> CasesOf(const Operation<AnyNumber>& operation) {
    const bool few = operation.arity > 2 || (operation.arity == 2 && IsSlow(operation));
    Numbers<AnyNumber> specials = few ? FewSpecials<AnyNumber>() : AllSpecials<AnyNumber>();
    // Series over numbers of this kind end late: one operand is enough for them.
    if (!few && (operation.arity == 1 || operation.family == Family::Arithmetic)) {
        AddForeign(specials);
    }
    if (operation.arity == 1) {
        const auto edges = DomainEdges<AnyNumber>(operation.failureName, operation.family);
        specials.insert(specials.end(), edges.begin(), edges.end());
    }
    Tuples<AnyNumber> tuples;
    for (const std::uint32_t extra : ExtraWords(operation.extra)) {
        AddCombinations(tuples, specials, operation.arity, extra);
    }
    AddRandom(tuples, operation);
    return tuples;
}

template std::vector<OperandTuple<Number256>> CasesOf(const Operation<Number256>&);
template std::vector<OperandTuple<Number2048>> CasesOf(const Operation<Number2048>&);

}  // namespace operation_tests
