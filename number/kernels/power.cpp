// The member of ttmath's numbers that raises to integer powers.
#include "number/kernels/power.hpp"

namespace ttmath {

#define BIGNUMBER_DEFINE_POWER(E, W)                   \
    template <>                                        \
    uint Big<E, W>::PowUInt(Big<E, W> pow) {           \
        return vqz::kernels::RaiseToPower(*this, pow); \
    }

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DEFINE_POWER)

}  // namespace ttmath
