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

#define BIGNUMBER_DECLARE_OPERATIONS(E, W)          \
    template <>                                     \
    uint Big<E, W>::Add(Big<E, W>, bool, bool);     \
    template <>                                     \
    uint Big<E, W>::MulRef(const Big<E, W>&, bool); \
    template <>                                     \
    uint Big<E, W>::MulUInt(uint);                  \
    template <>                                     \
    uint Big<E, W>::DivRef(const Big<E, W>&, bool);

#define BIGNUMBER_DECLARE_POWER(E, W) \
    template <>                       \
    uint Big<E, W>::PowUInt(Big<E, W>);

#define BIGNUMBER_DECLARE_SERIES(E, W)                        \
    template <>                                               \
    void Big<E, W>::ExpSurrounding0(const Big<E, W>&, uint*); \
    template <>                                               \
    void Big<E, W>::LnSurrounding1(const Big<E, W>&, uint*);  \
    template <>                                               \
    Big<E, W> auxiliaryfunctions::ATan0(const Big<E, W>&);    \
    template <>                                               \
    Big<E, W> auxiliaryfunctions::Sin0pi05(const Big<E, W>&); \
    template <>                                               \
    Big<E, W> auxiliaryfunctions::ASin_0(const Big<E, W>&);   \
    template <>                                               \
    Big<E, W> auxiliaryfunctions::ASin_1(const Big<E, W>&);

#define BIGNUMBER_DECLARE_READING(E, W)                                               \
    template <>                                                                       \
    template <>                                                                       \
    uint Big<E, W>::FromString_ReadPartBeforeComma(const char*&, const Conv&, bool&); \
    template <>                                                                       \
    template <>                                                                       \
    uint Big<E, W>::FromString_ReadPartAfterComma(const char*&, const Conv&, bool&);

#define BIGNUMBER_DECLARE_LOGARITHM(E, W) \
    template <>                           \
    uint Big<E, W>::ToString_Log(const Big<E, W>&, uint);

#define BIGNUMBER_DECLARE_WRITING(W) \
    template <>                      \
    template <>                      \
    void UInt<W>::ToStringBase(std::string&, uint, bool) const;

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_OPERATIONS)
BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_POWER)
BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_SERIES)
BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_READING)
BIGNUMBER_DECLARE_LOGARITHM(3, 8)
BIGNUMBER_DECLARE_LOGARITHM(17, 64)
BIGNUMBER_DECLARE_WRITING(8)
BIGNUMBER_DECLARE_WRITING(64)

#undef BIGNUMBER_DECLARE_OPERATIONS
#undef BIGNUMBER_DECLARE_POWER
#undef BIGNUMBER_DECLARE_SERIES
#undef BIGNUMBER_DECLARE_READING
#undef BIGNUMBER_DECLARE_LOGARITHM
#undef BIGNUMBER_DECLARE_WRITING

}  // namespace ttmath

#endif
