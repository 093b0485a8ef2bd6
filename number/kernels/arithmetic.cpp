// The members of ttmath's numbers for the four basic operations.
#include "number/kernels/add.hpp"
#include "number/kernels/divide.hpp"
#include "number/kernels/multiply.hpp"

namespace ttmath {

#define BIGNUMBER_DEFINE_KERNELS(E, W)                            \
    template <>                                                   \
    uint Big<E, W>::Add(Big<E, W> ss2, bool round, bool adding) { \
        return vqz::kernels::Add(*this, ss2, round, adding);      \
    }                                                             \
    template <>                                                   \
    uint Big<E, W>::MulRef(const Big<E, W>& ss2, bool round) {    \
        return vqz::kernels::Multiply(*this, ss2, round);         \
    }                                                             \
    template <>                                                   \
    uint Big<E, W>::MulUInt(uint ss2) {                           \
        return vqz::kernels::MultiplyByWord(*this, ss2);          \
    }                                                             \
    template <>                                                   \
    uint Big<E, W>::DivRef(const Big<E, W>& ss2, bool round) {    \
        return vqz::kernels::Divide(*this, ss2, round);           \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_KERNELS)

}  // namespace ttmath
