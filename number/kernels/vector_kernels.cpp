// The kernels that work on vectors. This file is compiled once for each instruction set, which
// determines `Lanes` and the namespace.
#include "number/kernels/vector_kernels.hpp"

#include BIGNUMBER_LANES
#include "number/kernels/instruction_set.hpp"
#include "number/kernels/limb_division.hpp"
#include "number/kernels/limb_multiplication.hpp"
#include "number/kernels/series_tail_steps.hpp"
#include "number/kernels/vector_traits.hpp"

namespace vqz::kernels {
inline namespace BIGNUMBER_INSTRUCTION_SET {
namespace {

static_assert(VectorLanes<Lanes>, "vector_traits.hpp says what it lacks");

template <int W>
[[maybe_unused]] void Multiply(const Word* leftEnd, int leftCount, const Word* rightEnd,
                               int rightCount, int columns, Word* productEnd) {
    MultiplyLimbs<Lanes, W>({leftEnd, leftCount}, {rightEnd, rightCount}, columns, productEnd);
}

template <int W>
[[maybe_unused]] Word Divide(const Word* dividend, const Word* divisor, int divisorCount,
                             Word* quotientEnd) {
    return LimbDivision<Lanes, W>::Divide(dividend, divisor, divisorCount, quotientEnd);
}

template <int W>
Word AddTail(Word* sum, const TailStart& start) {
    SeriesTail<W, Lanes> tail(start);
    const Word last = tail.Run();
    if (last != 0) {
        tail.AddTo(sum);
    }
    return last;
}

template <int W>
constexpr SizedVectorKernels MakeKernels() {
    SizedVectorKernels kernels{.multiply = nullptr, .divide = nullptr, .addTail = AddTail<W>};
    if constexpr (!AreFactorsWide) {
        kernels.divide = Divide<W>;
        if constexpr (W * W > MaxRowProducts) {
            kernels.multiply = Multiply<W>;
        }
    }
    return kernels;
}

}  // namespace

#define BIGNUMBER_KERNELS_OF_SIZE(W) MakeKernels<W>(),
extern const VectorKernels Kernels;
constexpr VectorKernels Kernels{{BIGNUMBER_MANTISSA_SIZES(BIGNUMBER_KERNELS_OF_SIZE)}};

}  // namespace BIGNUMBER_INSTRUCTION_SET
}  // namespace vqz::kernels
