// Named hard cases of multiplication (multiply.hpp, mantissa_product.hpp, limb_multiplication.hpp).
#include <vector>

#include "number/kernels/factors.hpp"
#include "number/kernels/limbs.hpp"
#include "number/kernels/vector_kernels.hpp"
#include "tests/unit/kernels/cases.hpp"

using namespace kernel_tests;

namespace {

using vqz::kernels::vectorKernels;
using vqz::kernels::VectorKernels;

/// While it lives, multiplications of long mantissas note how many columns of the product they ask
/// for.
class NotedColumns {
public:
    NotedColumns() : saved_(vectorKernels), noting_(*saved_) {
        noted.clear();
        noting_.ofSizes[IndexOfLarge].multiply = [](const Word* leftEnd, int leftCount,
                                                    const Word* rightEnd, int rightCount,
                                                    int columns, Word* productEnd) {
            noted.push_back(columns);
            real->Of<Large::Words>().multiply(leftEnd, leftCount, rightEnd, rightCount, columns,
                                              productEnd);
        };
        real = saved_;
        vectorKernels = &noting_;
    }
    ~NotedColumns() { vectorKernels = saved_; }
    NotedColumns(const NotedColumns&) = delete;
    NotedColumns& operator=(const NotedColumns&) = delete;

    static inline std::vector<int> noted;

private:
    static constexpr auto IndexOfLarge =
        std::ranges::find(VectorKernels::Sizes, Large::Words) - VectorKernels::Sizes.begin();
    static inline const VectorKernels* real = nullptr;
    const VectorKernels* saved_;
    VectorKernels noting_;
};

}  // namespace

TEST_CASE("a product asks for no more columns than its mantissa needs") {
    if (vectorKernels->Of<Large::Words>().multiply == nullptr) {
        // Products of factors of two words go another way.
        CHECK(vqz::kernels::AreFactorsWide);
        return;
    }
    const NotedColumns columns;
    const auto full = Large::Leading({0xF00F0FF1}, 0x12345679);
    constexpr int leading = vqz::kernels::LimbCount(Large::Words + 1);
    SUBCASE("the leading ones of two long factors") {
        Large::CheckLikePlain(Call::Multiply, Large::Fraction(full), Large::Fraction(full));
        CHECK(columns.noted == std::vector{leading});
    }
    SUBCASE("all of them where these leave the rounding open") {
        const auto next = Large::Fraction(Large::Ending(Large::Leading({Top}), 1));
        Large::CheckLikePlain(Call::Multiply, next, next);
        CHECK(columns.noted.size() == 2);
        CHECK(columns.noted.front() == leading);
        CHECK(columns.noted.back() > leading);
    }
    SUBCASE("all of them at once where there are no more") {
        auto half = full;
        std::fill_n(half.begin(), Large::Words / 2, 0);
        Large::CheckLikePlain(Call::Multiply, Large::Fraction(half), Large::Fraction(half));
        CHECK(columns.noted == std::vector{2 * vqz::kernels::LimbCount(Large::Words / 2) - 1});
        CHECK(columns.noted.front() < leading);
    }
}

TEST_CASE_TEMPLATE("a product", S, Small, Large) {
    const auto allOnes = S::Leading({}, Ones);

    SUBCASE("with the largest column sums: all bits of both factors are set") {
        S::CheckLikePlain(Call::Multiply, S::Fraction(allOnes), S::Fraction(allOnes));
    }
    SUBCASE("that is rounded up to the next power of 2") {
        // (1 + u) (1 - u / 2) is just below 1 + u / 2.
        S::CheckLikePlain(Call::Multiply, S::Fraction(S::Ending(S::Leading({Top}), 1)),
                          S::Fraction(S::Ending(allOnes, Ones - 1)));
        S::CheckLikePlain(Call::Multiply, S::Fraction(S::Ending(S::Leading({Top}), 1)),
                          S::Fraction(allOnes));
    }
    SUBCASE("of which exactly half a unit is cut off") {
        // 3 * (2^(n - 1) + 1) ends with the bits 11, and has two bits too many.
        S::CheckLikePlain(Call::Multiply, S::Integer(3), S::Make(S::Ending(S::Leading({Top}), 1)));
        S::CheckLikePlain(Call::Multiply, S::Integer(3), S::Make(S::Ending(S::Leading({Top}), 3)));
    }
    SUBCASE("whose shortened computation leaves the rounding open: only its last bit is set") {
        S::CheckLikePlain(Call::Multiply, S::Fraction(S::Ending(S::Leading({Top}), 1)),
                          S::Fraction(S::Ending(S::Leading({Top}), 1)));
        S::CheckLikePlain(Call::MultiplyCut, S::Fraction(S::Ending(S::Leading({Top}), 1)),
                          S::Fraction(S::Ending(S::Leading({Top}), 1)));
    }
    SUBCASE("of factors of every length, with zero words below") {
        for (int words = 1; words <= S::Words; words += 1 + words / 12) {
            auto factor = S::Leading({}, 0xF00F0FF1);
            std::fill_n(factor.begin(), S::Words - words, 0);
            CAPTURE(words);
            S::CheckLikePlain(Call::Multiply, S::Fraction(factor), S::Fraction(allOnes));
            S::CheckLikePlain(Call::Multiply, S::Fraction(factor), S::Fraction(factor));
        }
    }
    SUBCASE("of factors of different lengths whose column sums are the largest") {
        for (int words = 1; words < S::Words; words += 1 + words / 8) {
            for (int others = 1; others < S::Words; others += 1 + others / 8) {
                auto left = allOnes;
                std::fill_n(left.begin(), S::Words - words, 0);
                auto right = allOnes;
                std::fill_n(right.begin(), S::Words - others, 0);
                CAPTURE(words);
                CAPTURE(others);
                S::CheckLikePlain(Call::Multiply, S::Fraction(left), S::Fraction(right));
            }
        }
    }
    SUBCASE("with each limb of a factor at its largest while the others are 0") {
        constexpr int limbs = S::Bits / vqz::kernels::LimbBits;
        for (int limb = 0; limb < limbs; limb += 1 + limb / 6) {
            auto factor = S::Leading({Top});
            for (int bit = 0; bit < vqz::kernels::LimbBits; ++bit) {
                constexpr auto wordBits = std::size_t{vqz::kernels::WordBits};
                const auto place =
                    static_cast<std::size_t>(S::Bits - 1 - limb * vqz::kernels::LimbBits - bit);
                factor[place / wordBits] |= Word{1} << (place % wordBits);
            }
            CAPTURE(limb);
            S::CheckLikePlain(Call::Multiply, S::Fraction(factor), S::Fraction(allOnes));
        }
    }
    SUBCASE("of a factor with leading zero bits") {
        S::CheckLikePlain(Call::Multiply, S::Fraction(S::Leading({1}, Ones)), S::Fraction(allOnes));
        S::CheckLikePlain(Call::Multiply, S::Fraction(S::Leading({0, 0, 1})),
                          S::Fraction(S::Leading({}, 0)));
    }
    SUBCASE("by a word: every width of what is carried out at the top") {
        for (int bits = 0; bits <= vqz::kernels::WordBits; ++bits) {
            const Word word = bits == 0 ? 0 : Ones >> (vqz::kernels::WordBits - bits);
            CAPTURE(word);
            S::CheckLikePlain(
                Call::MultiplyByWord,
                {.first = S::Fraction(allOnes), .second = {}, .word = word, .text = {}});
            S::CheckLikePlain(
                Call::MultiplyByWord,
                {.first = S::Fraction(S::Leading({Top})), .second = {}, .word = word, .text = {}});
        }
    }
    SUBCASE("by a word of operands whose flags contradict their mantissas") {
        for (const std::uint8_t info : {ZeroFlag, NanFlag, FlagsWithoutMeaning}) {
            CAPTURE(int{info});
            S::CheckLikePlain(
                Call::MultiplyByWord,
                {.first = S::Fraction(allOnes, 0, info), .second = {}, .word = 7, .text = {}});
            S::CheckLikePlain(Call::Multiply, S::Fraction(allOnes, 0, info), S::Fraction(allOnes));
            S::CheckLikePlain(Call::Multiply, S::Fraction(allOnes), S::Fraction(allOnes, 0, info));
        }
    }
    SUBCASE("whose exponent overflows") {
        auto greatest = S::Fraction(allOnes);
        greatest.exponent.fill(Ones);
        greatest.exponent.back() = Ones >> 1;
        CHECK(S::CheckLikePlain(Call::Multiply, greatest, greatest).carry == 1);
    }
}
