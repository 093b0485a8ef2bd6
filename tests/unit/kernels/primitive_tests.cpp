// The primitives of the processor (number/kernels/processors/), each by itself: what a new folder
// of them has to get right first.
#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include BIGNUMBER_PROCESSOR_INSTRUCTION_SETS
#include BIGNUMBER_PROCESSOR_PAIR
#include BIGNUMBER_PROCESSOR_WORD_DIVISION
#include "number/kernels/factors.hpp"
#include "number/kernels/shift_words.hpp"
#include "number/kernels/word_sums.hpp"

using namespace vqz::kernels;

namespace {

constexpr Word Ones = ~Word{0};

using Lanes = std::array<std::uint64_t, Pair::Count>;

Lanes Stored(Pair::Vector vector) {
    Lanes lanes{};
    Pair::Store(lanes.data(), vector);
    return lanes;
}

}  // namespace

TEST_CASE("a carry goes from chain to chain") {
    constexpr int words = 3 * ChainWords;
    std::array<Word, words> left;
    left.fill(Ones);
    std::array<Word, words> right{};
    right[0] = 1;
    std::array<Word, words> sum;
    CHECK(AddWords<words>(left.data(), right.data(), sum.data()));
    CHECK(std::ranges::count(sum, Word{0}) == words);
    CHECK(SubtractWords<words>(sum.data(), right.data(), sum.data()));
    CHECK(std::ranges::count(sum, Ones) == words);
    CHECK_FALSE(SubtractWords<words>(sum.data(), sum.data(), sum.data()));
    CHECK_FALSE(AddWords<words>(sum.data(), right.data(), sum.data()));
    left.fill(0);
    left[ChainWords - 1] = Ones;
    right.fill(0);
    right[ChainWords - 1] = 1;
    CHECK_FALSE(AddWords<words>(left.data(), right.data(), sum.data()));
    CHECK(sum[ChainWords - 1] == 0);
    CHECK(sum[ChainWords] == 1);
}

TEST_CASE("words are divided") {
    Word remainder = 0;
    CHECK(DivideWords(Ones - 1, Ones, Ones, remainder) == Ones);
    CHECK(remainder == Ones - 1);
    CHECK(DivideWords(0, 100, 7, remainder) == 14);
    CHECK(remainder == 2);
}

TEST_CASE("factors are multiplied and divided") {
    constexpr Factor ones = ~Factor{0};
    Factor remainder = 0;
    CHECK(DivideFactors(ones - 1, ones, ones, remainder) == ones);
    CHECK(remainder == ones - 1);
    CHECK(DivideFactors(0, 100, 7, remainder) == 14);
    CHECK(remainder == 2);
    StoredFactor target = ones;
    CHECK(AddProduct(target, ones, ones, ones) == ones);
    CHECK(Factor{target} == ones);
    target = 5;
    CHECK(AddProduct(target, 6, 7, 8) == 0);
    CHECK(Factor{target} == 55);
}

TEST_CASE("factors are divided whatever their halves are") {
    constexpr int half = FactorBits / 2;
    const std::array<Factor, 5> halves{0, 1, Factor{1} << (half - 1), (Factor{1} << half) - 2,
                                       (Factor{1} << half) - 1};
    std::vector<Factor> factors;
    for (const Factor high : halves) {
        for (const Factor low : halves) {
            factors.push_back(high << half | low);
        }
    }
    for (const Factor divisor : factors) {
        for (const Factor high : factors) {
            for (const Factor low : factors) {
                if (high >= divisor) {
                    continue;
                }
                Factor remainder = 0;
                const Factor quotient = DivideFactors(high, low, divisor, remainder);
                const bool isRight = DoubleFactor{quotient} * divisor + remainder ==
                                     (DoubleFactor{high} << FactorBits | low);
                CHECK(isRight);
                CHECK(remainder < divisor);
            }
        }
    }
}

TEST_CASE("a column sum carries into its third factor") {
    constexpr Factor ones = ~Factor{0};
    ColumnSum sum;
    for (int i = 0; i < 3; ++i) {
        sum.AddProduct(ones, ones);
    }
    // 3 (b^2 - 2 b + 1), where b is what a factor cannot hold.
    CHECK(sum.Next() == 3);
    CHECK(sum.Next() == ones - 5);
    CHECK(sum.Next() == 2);
    CHECK(sum.Next() == 0);
}

TEST_CASE("factors lie in rows of words anywhere, the lowest first") {
    constexpr int count = 3;
    Word words[1 + count * FactorWords];
    for (int offset = 0; offset < 2; ++offset) {
        Factor expected = 0;
        for (int i = FactorWords; i > 0; --i) {
            words[offset + FactorWords + i - 1] = 0x9E3779B9U * static_cast<Word>(i);
            expected = expected << (WordBits - 1) << 1 | words[offset + FactorWords + i - 1];
        }
        CHECK(Factor{FactorsOf(words + offset)[1]} == expected);
        FactorsOf(words + offset)[2] = expected;
        CHECK(words[offset + 2 * FactorWords] == words[offset + FactorWords]);
    }
    CHECK(FactorCount(FactorWords) == 1);
    CHECK(FactorCount(FactorWords + 1) == 2);
}

TEST_CASE("words are shifted by every number of bits") {
    constexpr int words = 11;
    Word source[words];
    for (int i = 0; i < words; ++i) {
        source[i] = 0x9E3779B9U * static_cast<Word>(i + 1);
    }
    for (Word bits = 0; bits < words * WordBits; ++bits) {
        Word result[words];
        ShiftRight<words>(source, bits, result);
        Word inPlace[words];
        std::ranges::copy(source, inPlace);
        ShiftRight<words>(inPlace, bits, inPlace);
        for (int i = 0; i < words; ++i) {
            Word expected = 0;
            for (int bit = 0; bit < WordBits; ++bit) {
                const int from = i * WordBits + bit + static_cast<int>(bits);
                if (from < words * WordBits) {
                    expected |= (source[from / WordBits] >> (from % WordBits) & 1) << bit;
                }
            }
            CAPTURE(bits);
            CHECK(result[i] == expected);
            CHECK(inPlace[i] == expected);
        }
    }
}

TEST_CASE("a pair of lanes") {
    alignas(16) const Lanes first{0xFFFFFFFF00000003, 0x80000000FFFFFFFF};
    alignas(16) const Lanes second{0x0000000100000005, 0x00000001FFFFFFFF};
    const auto a = Pair::Load(first.data());
    const auto b = Pair::LoadAligned(second.data());
    CHECK(Stored(a) == first);
    CHECK(Stored(Pair::Multiply(a, b)) == Lanes{15, 0xFFFFFFFE00000001});
    CHECK(Stored(Pair::Add(a, b)) == Lanes{8, 0x80000002FFFFFFFE});
    CHECK(Stored(Pair::Subtract(b, a)) == Lanes{0x0000000200000002, 0x8000000100000000});
    CHECK(Stored(Pair::And(a, b)) == Lanes{0x0000000100000001, 0x00000000FFFFFFFF});
    CHECK(Stored(Pair::Missing(a, b)) == Lanes{4, 0x0000000100000000});
    CHECK(Stored(Pair::ShiftLeft<4>(a)) == Lanes{0xFFFFFFF000000030, 0x0000000FFFFFFFF0});
    CHECK(Stored(Pair::ShiftRight<4>(a)) == Lanes{0x0FFFFFFFF0000000, 0x080000000FFFFFFF});
    CHECK(Stored(Pair::ShiftRight<0>(a)) == first);
    CHECK(Stored(Pair::ShiftLeftBy(a, 4)) == Stored(Pair::ShiftLeft<4>(a)));
    CHECK(Stored(Pair::Follow(a, b)) == Lanes{first[1], second[0]});
    CHECK(Stored(Pair::High(a)) == Lanes{first[1], first[1]});
    CHECK(Stored(Pair::JoinLow(a, b)) == Lanes{first[0], second[0]});
    CHECK(Stored(Pair::Broadcast(second.data())) == Lanes{5, 5});
    CHECK(Stored(Pair::Both(Ones)) == Lanes{Ones, Ones});
    CHECK(Stored(Pair::LowOnly(Ones)) == Lanes{Ones, 0});
    CHECK(Stored(Pair::LoadLow(first.data())) == Lanes{first[0], 0});
    alignas(16) Lanes stored{7, 7};
    Pair::StoreLow(stored.data(), a);
    CHECK(stored == Lanes{first[0], 7});
    Pair::StoreLowest(stored.data(), b);
    CHECK(stored == Lanes{0xFFFFFFFF00000005, 7});
    Pair::StoreAligned(stored.data(), b);
    CHECK(stored == second);
}

TEST_CASE("vectors are computed with AVX2 where Linux says that the processor has it") {
    std::ifstream file("/proc/cpuinfo");
    REQUIRE(file.is_open());
    const std::string processor(std::istreambuf_iterator<char>(file), {});
    const bool hasAvx2 = processor.find(" avx2") != std::string::npos;
    CHECK((&BestVectorKernels() != &BasicVectorKernels) == hasAvx2);
}
