// The members of ttmath's numbers for the four basic operations.
#include "number/kernels/add.hpp"
#include "number/kernels/divide.hpp"
#include "number/kernels/multiply.hpp"

namespace ttmath {

#define BIGNUMBER_DEFINE_KERNELS(E, W)                               \
    BIGNUMBER_KERNEL_ADD(E, W) {                                     \
        return vqz::kernels::Add<E, W>(*this, other, round, adding); \
    }                                                                \
    BIGNUMBER_KERNEL_MUL_REF(E, W) {                                 \
        return vqz::kernels::Multiply<E, W>(*this, other, round);    \
    }                                                                \
    BIGNUMBER_KERNEL_MUL_UINT(E, W) {                                \
        return vqz::kernels::MultiplyByWord<E, W>(*this, factor);    \
    }                                                                \
    BIGNUMBER_KERNEL_DIV_REF(E, W) {                                 \
        return vqz::kernels::Divide<E, W>(*this, other, round);      \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_KERNELS)

}  // namespace ttmath
