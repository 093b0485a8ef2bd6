// ttmath, with the members that are computed by kernels declared before anything uses them. Whoever
// needs ttmath includes this file instead of ttmath's own: a source file that does not see these
// declarations would compile the plain members, and the linker may take either.
#pragma once

#include <ttmath/ttmath.h>

#include "number/kernels/kept_number.hpp"
#include "number/kernels/sizes.hpp"

#ifdef BIGNUMBER_KERNELS

#include <type_traits>

#include "number/kernels/words.hpp"

static_assert(std::is_same_v<ttmath::uint, vqz::kernels::Word>,
              "the kernels are made for ttmath with words of 32 bits: define TTMATH_PLATFORM32");

// Each member that has a kernel, as it is declared here and defined in the file named beside it.
// number/kernels/README.md lists the members of the classes that use it.

// arithmetic.cpp
#define BIGNUMBER_KERNEL_ADD(E, W) \
    template <>                    \
    uint Big<E, W>::Add(Big<E, W> other, bool round, bool adding)
#define BIGNUMBER_KERNEL_MUL_REF(E, W) \
    template <>                        \
    uint Big<E, W>::MulRef(const Big<E, W>& other, bool round)
#define BIGNUMBER_KERNEL_MUL_UINT(E, W) \
    template <>                         \
    uint Big<E, W>::MulUInt(uint factor)
#define BIGNUMBER_KERNEL_DIV_REF(E, W) \
    template <>                        \
    uint Big<E, W>::DivRef(const Big<E, W>& other, bool round)

// power.cpp
#define BIGNUMBER_KERNEL_POW_UINT(E, W) \
    template <>                         \
    uint Big<E, W>::PowUInt(Big<E, W> power)

// series.cpp
#define BIGNUMBER_KERNEL_EXP(E, W) \
    template <>                    \
    void Big<E, W>::ExpSurrounding0(const Big<E, W>& x, uint* steps)
#define BIGNUMBER_KERNEL_LN(E, W) \
    template <>                   \
    void Big<E, W>::LnSurrounding1(const Big<E, W>& x, uint* steps)
#define BIGNUMBER_KERNEL_ATAN(E, W) \
    template <>                     \
    Big<E, W> auxiliaryfunctions::ATan0(const Big<E, W>& x)
#define BIGNUMBER_KERNEL_SIN(E, W) \
    template <>                    \
    Big<E, W> auxiliaryfunctions::Sin0pi05(const Big<E, W>& x)
#define BIGNUMBER_KERNEL_ASIN_TO_HALF(E, W) \
    template <>                             \
    Big<E, W> auxiliaryfunctions::ASin_0(const Big<E, W>& x)
#define BIGNUMBER_KERNEL_ASIN_FROM_HALF(E, W) \
    template <>                               \
    Big<E, W> auxiliaryfunctions::ASin_1(const Big<E, W>& x)

// text.cpp
#define BIGNUMBER_KERNEL_READ_INTEGER(E, W)                                               \
    template <>                                                                           \
    template <>                                                                           \
    uint Big<E, W>::FromString_ReadPartBeforeComma(const char*& source, const Conv& conv, \
                                                   bool& isRead)
#define BIGNUMBER_KERNEL_READ_FRACTION(E, W)                                             \
    template <>                                                                          \
    template <>                                                                          \
    uint Big<E, W>::FromString_ReadPartAfterComma(const char*& source, const Conv& conv, \
                                                  bool& isRead)
#define BIGNUMBER_KERNEL_LOGARITHM(E, W) \
    template <>                          \
    uint Big<E, W>::ToString_Log(const Big<E, W>& x, uint base)
#define BIGNUMBER_KERNEL_WRITE_INTEGER(W) \
    template <>                           \
    template <>                           \
    void UInt<W>::ToStringBase(std::string& text, uint base, bool negative) const

namespace ttmath {

#define BIGNUMBER_DECLARE_KERNELS(E, W)    \
    BIGNUMBER_KERNEL_ADD(E, W);            \
    BIGNUMBER_KERNEL_MUL_REF(E, W);        \
    BIGNUMBER_KERNEL_MUL_UINT(E, W);       \
    BIGNUMBER_KERNEL_DIV_REF(E, W);        \
    BIGNUMBER_KERNEL_POW_UINT(E, W);       \
    BIGNUMBER_KERNEL_EXP(E, W);            \
    BIGNUMBER_KERNEL_LN(E, W);             \
    BIGNUMBER_KERNEL_ATAN(E, W);           \
    BIGNUMBER_KERNEL_SIN(E, W);            \
    BIGNUMBER_KERNEL_ASIN_TO_HALF(E, W);   \
    BIGNUMBER_KERNEL_ASIN_FROM_HALF(E, W); \
    BIGNUMBER_KERNEL_READ_INTEGER(E, W);   \
    BIGNUMBER_KERNEL_READ_FRACTION(E, W);
#define BIGNUMBER_DECLARE_LOGARITHM(E, W) BIGNUMBER_KERNEL_LOGARITHM(E, W);
#define BIGNUMBER_DECLARE_WRITING(W) BIGNUMBER_KERNEL_WRITE_INTEGER(W);

BIGNUMBER_KERNEL_SIZES(BIGNUMBER_DECLARE_KERNELS)
BIGNUMBER_TEXT_SIZES(BIGNUMBER_DECLARE_LOGARITHM)
BIGNUMBER_MANTISSA_SIZES(BIGNUMBER_DECLARE_WRITING)

#undef BIGNUMBER_DECLARE_KERNELS
#undef BIGNUMBER_DECLARE_LOGARITHM
#undef BIGNUMBER_DECLARE_WRITING

}  // namespace ttmath

#endif

namespace ttmath {

// ttmath keeps the logarithms of the bases in variables that all threads write without any order.
// Here they are kept in a way that lets threads in. This holds with and without kernels.
#define BIGNUMBER_KEEP_LOGARITHMS(E, W)                                          \
    template <>                                                                  \
    inline uint Big<E, W>::ToString_LogBase(uint base, Big<E, W>& result) {      \
        static constinit vqz::kernels::KeptNumber<Big> logarithms[15];           \
        return logarithms[base - 2].Get(                                         \
            result, [base](Big& logarithm) { return logarithm.Ln(Big(base)); }); \
    }

BIGNUMBER_TEXT_SIZES(BIGNUMBER_KEEP_LOGARITHMS)

#undef BIGNUMBER_KEEP_LOGARITHMS

}  // namespace ttmath
