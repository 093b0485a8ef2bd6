// The member of ttmath's numbers that raises to integer powers.
#include "number/kernels/power.hpp"

namespace ttmath {

#define BIGNUMBER_DEFINE_POWER(E, W)                     \
    BIGNUMBER_KERNEL_POW_UINT(E, W) {                    \
        return vqz::kernels::RaiseToPower(*this, power); \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_POWER)

}  // namespace ttmath
