// Calls at 64 bits, by the convention of the platform: arguments are dealt out to registers and the
// stack here, and a few lines of assembly for each convention load them.
#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "standin/runtime/call.hpp"

namespace standin {
namespace {

/// Where a convention puts arguments.
struct Convention {
    std::size_t integerRegisters;
    std::size_t realRegisters;
    /// Whether an argument takes the place of its number in both kinds of registers.
    bool sharesPlaces;
    /// Words of the stack in front of the arguments there, which belong to the routine.
    std::size_t shadowWords;
};

#if defined(_WIN32)
constexpr Convention Here{4, 4, true, 4};
#elif defined(__x86_64__)
constexpr Convention Here{6, 8, false, 0};
#elif defined(__aarch64__)
constexpr Convention Here{8, 8, false, 0};
#else
#error "no calls for this processor"
#endif

constexpr std::size_t RegisterWords = 8;
constexpr std::size_t StackWords = MostArguments + 4;
/// Room for the registers that any of the conventions preserves.
constexpr std::size_t PreservedWords = 18;
constexpr std::size_t PreservedVectorWords = 20;

/// What the assembly below reads and writes, at the offsets asserted here.
struct CallFrame {
    Routine routine;
    const std::uint64_t* stack;
    std::uint64_t stackCount;
    /// What the registers of integers hold at the call, and behind them scratch registers.
    std::array<std::uint64_t, RegisterWords> integers;
    std::array<std::uint64_t, RegisterWords> reals;
    std::uint64_t integerResult;
    std::uint64_t realResult;
    std::uint64_t stackMoved;
    /// What the registers that a routine preserves are to hold at the call, and then held after it.
    std::array<std::uint64_t, PreservedWords> preserved;
    /// Windows: what the vector registers that a routine preserves held before and after the call.
    std::array<std::uint64_t, PreservedVectorWords> vectorsBefore;
    std::array<std::uint64_t, PreservedVectorWords> vectorsAfter;
};
static_assert(offsetof(CallFrame, routine) == 0 && offsetof(CallFrame, stack) == 8);
static_assert(offsetof(CallFrame, stackCount) == 16 && offsetof(CallFrame, integers) == 24);
static_assert(offsetof(CallFrame, reals) == 88 && offsetof(CallFrame, integerResult) == 152);
static_assert(offsetof(CallFrame, realResult) == 160 && offsetof(CallFrame, stackMoved) == 168);
static_assert(offsetof(CallFrame, preserved) == 176);
static_assert(offsetof(CallFrame, vectorsBefore) == 320);
static_assert(offsetof(CallFrame, vectorsAfter) == 480);

/// What fills everything that holds no argument.
constexpr std::uint64_t Noise = 0xA5A5A5A5A5A5A5A5U;

extern "C" void StandinCallTrampoline(CallFrame* frame) asm("standin_call_trampoline");

}  // namespace
}  // namespace standin

#if defined(_WIN32)

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

#elif defined(__x86_64__)

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

#else

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

#endif

namespace standin {
namespace {

/// The argument as it fills a register or a word of the stack: its own bits, and noise above them.
std::uint64_t InFullWord(const CallArgument& argument) {
    std::uint64_t own = std::numeric_limits<std::uint64_t>::max();
    if (argument.passing == Passing::Boolean) {
        own = 0xFF;
    } else if (argument.passing == Passing::Narrow || argument.passing == Passing::Single) {
        own = 0xFFFFFFFF;
    }
    return (argument.bits & own) | (Noise & ~own);
}

/// Deals the arguments of one call out to registers and the stack.
class Dealer {
public:
    Dealer(CallFrame& frame, std::array<std::uint64_t, StackWords>& stack)
        : frame_(frame), stack_(stack), onStack_(Here.shadowWords) {
        frame_.integers.fill(Noise);
        frame_.reals.fill(Noise);
        stack_.fill(Noise);
    }

    void Deal(const CallArgument& argument) {
        const bool isReal =
            argument.passing == Passing::Single || argument.passing == Passing::Double;
        std::size_t& place = isReal && !Here.sharesPlaces ? reals_ : integers_;
        const std::size_t count = isReal ? Here.realRegisters : Here.integerRegisters;
        auto& registers = isReal ? frame_.reals : frame_.integers;
        std::uint64_t& target = place < count ? registers[place++] : stack_[onStack_++];
        target = InFullWord(argument);
    }

    std::size_t onStack() const { return onStack_; }

private:
    CallFrame& frame_;
    std::array<std::uint64_t, StackWords>& stack_;
    std::size_t integers_ = 0;
    std::size_t reals_ = 0;
    std::size_t onStack_;
};

}  // namespace

CallResult CallRoutine(Routine routine, std::span<const CallArgument> arguments, ReturnKind kind,
                       CallConditions /*conditions*/) {
    CallFrame frame{};
    std::array<std::uint64_t, StackWords> stack;
    Dealer dealer(frame, stack);
    for (const CallArgument& argument : arguments) {
        dealer.Deal(argument);
    }
    frame.routine = routine;
    frame.stack = stack.data();
    frame.stackCount = dealer.onStack();
    std::array<std::uint64_t, PreservedWords> marks;
    for (std::size_t k = 0; k < marks.size(); ++k) {
        marks[k] = 0x5EED0B0B5EED0D00U + k;
    }
    frame.preserved = marks;
    StandinCallTrampoline(&frame);

    CallResult result;
    result.value.low = static_cast<std::uint32_t>(frame.integerResult);
    result.value.high = static_cast<std::uint32_t>(frame.integerResult >> 32U);
    result.value.real = kind == ReturnKind::Single
                            ? static_cast<double>(std::bit_cast<float>(
                                  static_cast<std::uint32_t>(frame.realResult)))
                            : std::bit_cast<double>(frame.realResult);
    result.faults.stackMoved = frame.stackMoved != 0;
    result.faults.registersChanged =
        frame.preserved != marks || frame.vectorsBefore != frame.vectorsAfter;
    return result;
}

}  // namespace standin
