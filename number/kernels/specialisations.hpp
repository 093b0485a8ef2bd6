// ttmath, with the members that are computed by kernels declared before anything uses them. Whoever
// needs ttmath includes this file instead of ttmath's own: a source file that does not see these
// declarations would compile the plain members, and the linker may take either.
#pragma once

#include <ttmath/ttmath.h>

#ifdef BIGNUMBER_KERNELS

// The sizes of number, in words of exponent and of mantissa: those of the two classes, and those
// that ttmath's ToString computes in.
#define BIGNUMBER_KERNEL_SIZES(ROW) ROW(2, 8) ROW(3, 8) ROW(16, 64) ROW(17, 64)

namespace ttmath {

#define BIGNUMBER_DECLARE_KERNELS(E, W)             \
    template <>                                     \
    uint Big<E, W>::Add(Big<E, W>, bool, bool);     \
    template <>                                     \
    uint Big<E, W>::MulRef(const Big<E, W>&, bool); \
    template <>                                     \
    uint Big<E, W>::DivRef(const Big<E, W>&, bool);

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_KERNELS)

#undef BIGNUMBER_DECLARE_KERNELS

}  // namespace ttmath

#endif
