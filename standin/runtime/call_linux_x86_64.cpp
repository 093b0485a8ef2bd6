// The calling convention of 64-bit Linux on x86, that of System V.
#include "standin/runtime/call_64.hpp"

namespace standin {

constinit const Convention PlatformConvention{
    .integerRegisters = 6,
    .realRegisters = 8,
    .sharesPlaces = false,
    .shadowWords = 0,
};

}  // namespace standin

// Below the saved registers stand the frame's address and the stack pointer that is expected after
// the call. All registers that a routine has to preserve, but for RBP, get marks.
asm(R"(
    .text
    .p2align 4
    .globl standin_call_trampoline
    .type standin_call_trampoline, @function
standin_call_trampoline:
    .cfi_startproc
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    pushq %rbx
    .cfi_offset %rbx, -24
    pushq %r12
    .cfi_offset %r12, -32
    pushq %r13
    .cfi_offset %r13, -40
    pushq %r14
    .cfi_offset %r14, -48
    pushq %r15
    .cfi_offset %r15, -56
    subq $24, %rsp

    movq %rdi, %r11
    movq %r11, -48(%rbp)
    movq 16(%r11), %rcx
    leaq 0(,%rcx,8), %rax
    subq %rax, %rsp
    andq $-16, %rsp
    movq %rsp, -56(%rbp)
    movq 8(%r11), %rdx
    testq %rcx, %rcx
    jz 2f
1:  movq -8(%rdx,%rcx,8), %rax
    movq %rax, -8(%rsp,%rcx,8)
    decq %rcx
    jnz 1b
2:
    movq 88(%r11), %xmm0
    movq 96(%r11), %xmm1
    movq 104(%r11), %xmm2
    movq 112(%r11), %xmm3
    movq 120(%r11), %xmm4
    movq 128(%r11), %xmm5
    movq 136(%r11), %xmm6
    movq 144(%r11), %xmm7
    movq 176(%r11), %rbx
    movq 184(%r11), %r12
    movq 192(%r11), %r13
    movq 200(%r11), %r14
    movq 208(%r11), %r15
    movq 24(%r11), %rdi
    movq 32(%r11), %rsi
    movq 40(%r11), %rdx
    movq 48(%r11), %rcx
    movq 56(%r11), %r8
    movq 64(%r11), %r9
    movq 72(%r11), %rax
    movq 80(%r11), %r10
    callq *(%r11)

    movq -48(%rbp), %r11
    movq %rax, 152(%r11)
    movq %xmm0, 160(%r11)
    movq %rbx, 176(%r11)
    movq %r12, 184(%r11)
    movq %r13, 192(%r11)
    movq %r14, 200(%r11)
    movq %r15, 208(%r11)
    cmpq %rsp, -56(%rbp)
    je 3f
    movq $1, 168(%r11)
3:  leaq -40(%rbp), %rsp
    popq %r15
    .cfi_restore %r15
    popq %r14
    .cfi_restore %r14
    popq %r13
    .cfi_restore %r13
    popq %r12
    .cfi_restore %r12
    popq %rbx
    .cfi_restore %rbx
    popq %rbp
    .cfi_restore %rbp
    .cfi_def_cfa %rsp, 8
    ret
    .cfi_endproc
    .size standin_call_trampoline, . - standin_call_trampoline
)");
