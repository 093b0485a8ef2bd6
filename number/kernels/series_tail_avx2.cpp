#include "number/kernels/lanes_avx2.hpp"
#include "number/kernels/series_tail_steps.hpp"

namespace vqz::kernels {

template <std::size_t W>
Word AddTailAvx2(Word* sum, const TailStart& start) {
    return AddTailInSteps<W, Avx2Lanes>(sum, start);
}

template Word AddTailAvx2<8>(Word*, const TailStart&);
template Word AddTailAvx2<64>(Word*, const TailStart&);

}  // namespace vqz::kernels
