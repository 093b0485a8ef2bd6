// The calling convention of 64-bit Linux on ARM.
#include "standin/runtime/call_64.hpp"

namespace standin {

constinit const Convention PlatformConvention{
    .integerRegisters = 8,
    .realRegisters = 8,
    .sharesPlaces = false,
    .shadowWords = 0,
};

}  // namespace standin

// Above the saved registers stand the frame's address and the stack pointer that is expected after
// the call. All registers that a routine has to preserve, X19 to X28 and D8 to D15, get marks.
asm(R"(
    .text
    .p2align 4
    .globl standin_call_trampoline
    .type standin_call_trampoline, @function
standin_call_trampoline:
    .cfi_startproc
    hint #34
    stp x29, x30, [sp, #-192]!
    .cfi_def_cfa_offset 192
    .cfi_offset x29, -192
    .cfi_offset x30, -184
    mov x29, sp
    .cfi_def_cfa x29, 192
    stp x19, x20, [x29, #16]
    .cfi_offset x19, -176
    .cfi_offset x20, -168
    stp x21, x22, [x29, #32]
    .cfi_offset x21, -160
    .cfi_offset x22, -152
    stp x23, x24, [x29, #48]
    .cfi_offset x23, -144
    .cfi_offset x24, -136
    stp x25, x26, [x29, #64]
    .cfi_offset x25, -128
    .cfi_offset x26, -120
    stp x27, x28, [x29, #80]
    .cfi_offset x27, -112
    .cfi_offset x28, -104
    stp d8, d9, [x29, #96]
    .cfi_offset d8, -96
    .cfi_offset d9, -88
    stp d10, d11, [x29, #112]
    .cfi_offset d10, -80
    .cfi_offset d11, -72
    stp d12, d13, [x29, #128]
    .cfi_offset d12, -64
    .cfi_offset d13, -56
    stp d14, d15, [x29, #144]
    .cfi_offset d14, -48
    .cfi_offset d15, -40

    mov x9, x0
    str x9, [x29, #160]
    ldr x10, [x9, #16]
    ldr x11, [x9, #8]
    add x12, x10, #1
    and x12, x12, #-2
    sub sp, sp, x12, lsl #3
    mov x12, sp
    str x12, [x29, #168]
    cbz x10, 2f
1:  sub x10, x10, #1
    ldr x13, [x11, x10, lsl #3]
    str x13, [x12, x10, lsl #3]
    cbnz x10, 1b
2:
    ldr x16, [x9]
    add x10, x9, #176
    ldp x19, x20, [x10]
    ldp x21, x22, [x10, #16]
    ldp x23, x24, [x10, #32]
    ldp x25, x26, [x10, #48]
    ldp x27, x28, [x10, #64]
    ldp d8, d9, [x10, #80]
    ldp d10, d11, [x10, #96]
    ldp d12, d13, [x10, #112]
    ldp d14, d15, [x10, #128]
    ldp d0, d1, [x9, #88]
    ldp d2, d3, [x9, #104]
    ldp d4, d5, [x9, #120]
    ldp d6, d7, [x9, #136]
    ldp x0, x1, [x9, #24]
    ldp x2, x3, [x9, #40]
    ldp x4, x5, [x9, #56]
    ldp x6, x7, [x9, #72]
    blr x16

    ldr x9, [x29, #160]
    str x0, [x9, #152]
    str d0, [x9, #160]
    add x10, x9, #176
    stp x19, x20, [x10]
    stp x21, x22, [x10, #16]
    stp x23, x24, [x10, #32]
    stp x25, x26, [x10, #48]
    stp x27, x28, [x10, #64]
    stp d8, d9, [x10, #80]
    stp d10, d11, [x10, #96]
    stp d12, d13, [x10, #112]
    stp d14, d15, [x10, #128]
    mov x11, sp
    ldr x12, [x29, #168]
    cmp x11, x12
    b.eq 3f
    mov x11, #1
    str x11, [x9, #168]
3:  ldp x19, x20, [x29, #16]
    ldp x21, x22, [x29, #32]
    ldp x23, x24, [x29, #48]
    ldp x25, x26, [x29, #64]
    ldp x27, x28, [x29, #80]
    ldp d8, d9, [x29, #96]
    ldp d10, d11, [x29, #112]
    ldp d12, d13, [x29, #128]
    ldp d14, d15, [x29, #144]
    mov sp, x29
    ldp x29, x30, [sp], #192
    .cfi_def_cfa sp, 0
    ret
    .cfi_endproc
    .size standin_call_trampoline, . - standin_call_trampoline
)");
