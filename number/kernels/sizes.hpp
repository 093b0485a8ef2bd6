// The sizes of number that have kernels, in words.
#pragma once

/// Exponent and mantissa of the two classes, and of the numbers that ttmath's ToString computes in.
#define BIGNUMBER_KERNEL_SIZES(ROW) ROW(2, 8) BIGNUMBER_TEXT_SIZES(ROW) ROW(16, 64)
#define BIGNUMBER_TEXT_SIZES(ROW) ROW(3, 8) ROW(17, 64)
/// Their mantissas.
#define BIGNUMBER_MANTISSA_SIZES(ROW) ROW(8) ROW(64)
