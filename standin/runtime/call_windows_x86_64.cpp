// The calling convention of 64-bit Windows on x86.
#include "standin/runtime/call_64.hpp"

namespace standin {

constinit const Convention PlatformConvention{
    .integerRegisters = 4,
    .realRegisters = 4,
    .sharesPlaces = true,
    .shadowWords = 4,
};

}  // namespace standin

// Below the saved registers stand the frame's address and the stack pointer that is expected after
// the call. All integer registers that a routine has to preserve, but for RBP, get marks; of the
// vector registers XMM6 to XMM15, what they held before and after the call is noted.
asm(R"(
    .text
    .p2align 4
    .globl standin_call_trampoline
    .def standin_call_trampoline; .scl 2; .type 32; .endef
    .seh_proc standin_call_trampoline
standin_call_trampoline:
    pushq %rbp
    .seh_pushreg %rbp
    pushq %rbx
    .seh_pushreg %rbx
    pushq %rsi
    .seh_pushreg %rsi
    pushq %rdi
    .seh_pushreg %rdi
    pushq %r12
    .seh_pushreg %r12
    pushq %r13
    .seh_pushreg %r13
    pushq %r14
    .seh_pushreg %r14
    pushq %r15
    .seh_pushreg %r15
    subq $24, %rsp
    .seh_stackalloc 24
    movq %rsp, %rbp
    .seh_setframe %rbp, 0
    .seh_endprologue

    movq %rcx, %r11
    movq %r11, (%rbp)
    movq 16(%r11), %rcx
    leaq 0(,%rcx,8), %rax
    subq %rax, %rsp
    andq $-16, %rsp
    movq %rsp, 8(%rbp)
    movq 8(%r11), %rdx
    testq %rcx, %rcx
    jz 2f
1:  movq -8(%rdx,%rcx,8), %rax
    movq %rax, -8(%rsp,%rcx,8)
    decq %rcx
    jnz 1b
2:
    movups %xmm6, 320(%r11)
    movups %xmm7, 336(%r11)
    movups %xmm8, 352(%r11)
    movups %xmm9, 368(%r11)
    movups %xmm10, 384(%r11)
    movups %xmm11, 400(%r11)
    movups %xmm12, 416(%r11)
    movups %xmm13, 432(%r11)
    movups %xmm14, 448(%r11)
    movups %xmm15, 464(%r11)
    movq 88(%r11), %xmm0
    movq 96(%r11), %xmm1
    movq 104(%r11), %xmm2
    movq 112(%r11), %xmm3
    movq 176(%r11), %rbx
    movq 184(%r11), %rsi
    movq 192(%r11), %rdi
    movq 200(%r11), %r12
    movq 208(%r11), %r13
    movq 216(%r11), %r14
    movq 224(%r11), %r15
    movq 24(%r11), %rcx
    movq 32(%r11), %rdx
    movq 40(%r11), %r8
    movq 48(%r11), %r9
    movq 56(%r11), %rax
    movq 64(%r11), %r10
    callq *(%r11)

    movq (%rbp), %r11
    movq %rax, 152(%r11)
    movq %xmm0, 160(%r11)
    movq %rbx, 176(%r11)
    movq %rsi, 184(%r11)
    movq %rdi, 192(%r11)
    movq %r12, 200(%r11)
    movq %r13, 208(%r11)
    movq %r14, 216(%r11)
    movq %r15, 224(%r11)
    movups %xmm6, 480(%r11)
    movups %xmm7, 496(%r11)
    movups %xmm8, 512(%r11)
    movups %xmm9, 528(%r11)
    movups %xmm10, 544(%r11)
    movups %xmm11, 560(%r11)
    movups %xmm12, 576(%r11)
    movups %xmm13, 592(%r11)
    movups %xmm14, 608(%r11)
    movups %xmm15, 624(%r11)
    cmpq %rsp, 8(%rbp)
    je 3f
    movq $1, 168(%r11)
3:  leaq 24(%rbp), %rsp
    popq %r15
    popq %r14
    popq %r13
    popq %r12
    popq %rdi
    popq %rsi
    popq %rbx
    popq %rbp
    ret
    .seh_endproc
)");
