#include "number/kernels/lanes_sse2.hpp"
#include "number/kernels/series_tail_steps.hpp"

namespace vqz::kernels {

template <std::size_t W>
Word AddTailSse2(Word* sum, const TailStart& start) {
    return AddTailInSteps<W, Sse2Lanes>(sum, start);
}

template Word AddTailSse2<8>(Word*, const TailStart&);
template Word AddTailSse2<64>(Word*, const TailStart&);

}  // namespace vqz::kernels
