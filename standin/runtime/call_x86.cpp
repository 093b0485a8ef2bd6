// Calls at 32 bits: cdecl, from a stack of any alignment.
#include <bit>
#include <cstddef>

#include "standin/runtime/call.hpp"

namespace standin {
namespace {

/// What the assembly below reads and writes, at the offsets asserted here.
struct CallFrame {
    Routine routine;
    const std::uintptr_t* words;
    std::uint32_t count;
    std::uint32_t stackOffset;
    /// The x87 control word for the call, or 0 to leave it alone.
    std::uint32_t controlWord;
    std::uint32_t savedControlWord;
    /// How the result leaves the x87 stack: 0 not at all, 1 as Single, 2 as Double.
    std::uint32_t realForm;
    std::uint32_t eax;
    std::uint32_t edx;
    std::uint32_t single;
    std::uint64_t real;
    std::uint32_t stackMoved;
    std::uint32_t registersChanged;
    std::uint32_t statusBefore;
    std::uint32_t statusAfter;
};
static_assert(offsetof(CallFrame, routine) == 0 && offsetof(CallFrame, words) == 4);
static_assert(offsetof(CallFrame, count) == 8 && offsetof(CallFrame, stackOffset) == 12);
static_assert(offsetof(CallFrame, controlWord) == 16);
static_assert(offsetof(CallFrame, savedControlWord) == 20);
static_assert(offsetof(CallFrame, realForm) == 24 && offsetof(CallFrame, eax) == 28);
static_assert(offsetof(CallFrame, edx) == 32 && offsetof(CallFrame, single) == 36);
static_assert(offsetof(CallFrame, real) == 40 && offsetof(CallFrame, stackMoved) == 48);
static_assert(offsetof(CallFrame, registersChanged) == 52);
static_assert(offsetof(CallFrame, statusBefore) == 56 && offsetof(CallFrame, statusAfter) == 60);

/// All exceptions masked, single precision, rounding toward zero.
constexpr std::uint32_t SinglePrecisionTowardZero = 0x0C7F;
/// The bits of the x87 status word that hold the top of its register stack.
constexpr std::uint32_t FloatStackTop = 0x3800;

extern "C" void StandinCallTrampoline(CallFrame* frame) asm("standin_call_trampoline");

}  // namespace
}  // namespace standin

// Below the saved registers stand the frame's address and, aligned to 16 bytes and then moved by
// the requested offset, the argument words. EBX and EDI hold marks that the routine has to
// preserve; the expected stack pointer is kept beside the frame's address.
asm(R"(
    .text
    .p2align 4
    .globl standin_call_trampoline
standin_call_trampoline:
    .cfi_startproc
    pushl %ebp
    .cfi_def_cfa_offset 8
    .cfi_offset %ebp, -8
    movl %esp, %ebp
    .cfi_def_cfa_register %ebp
    pushl %ebx
    .cfi_offset %ebx, -12
    pushl %esi
    .cfi_offset %esi, -16
    pushl %edi
    .cfi_offset %edi, -20
    subl $8, %esp
    movl 8(%ebp), %esi
    movl %esi, -16(%ebp)

    movl 8(%esi), %ecx
    leal 48(,%ecx,4), %eax
    subl %eax, %esp
    andl $-16, %esp
    addl 12(%esi), %esp
    movl %esp, -20(%ebp)

    movl 4(%esi), %edx
    testl %ecx, %ecx
    jz 2f
1:  movl -4(%edx,%ecx,4), %eax
    movl %eax, -4(%esp,%ecx,4)
    decl %ecx
    jnz 1b
2:
    xorl %eax, %eax
    fnstsw %ax
    movl %eax, 56(%esi)
    fnstcw 20(%esi)
    cmpl $0, 16(%esi)
    je 3f
    fldcw 16(%esi)
3:
    movl $0x5EED0B0B, %ebx
    movl $0x5EED0D0D, %edi
    call *(%esi)

    movl -16(%ebp), %esi
    movl %eax, 28(%esi)
    movl %edx, 32(%esi)
    cmpl $1, 24(%esi)
    jb 5f
    je 4f
    fstpl 40(%esi)
    jmp 5f
4:  fstps 36(%esi)
5:  xorl %eax, %eax
    fnstsw %ax
    movl %eax, 60(%esi)
    fldcw 20(%esi)
    cmpl %esp, -20(%ebp)
    je 6f
    movl $1, 48(%esi)
6:  cmpl $0x5EED0B0B, %ebx
    jne 7f
    cmpl $0x5EED0D0D, %edi
    je 8f
7:  movl $1, 52(%esi)
8:
    leal -12(%ebp), %esp
    popl %edi
    .cfi_restore %edi
    popl %esi
    .cfi_restore %esi
    popl %ebx
    .cfi_restore %ebx
    popl %ebp
    .cfi_restore %ebp
    .cfi_def_cfa %esp, 4
    ret
    .cfi_endproc
)");

namespace standin {

CallResult CallRoutine(Routine routine, std::span<const CallArgument> arguments, ReturnKind kind,
                       CallConditions conditions) {
    const ArgumentWords words(arguments);
    CallFrame frame{};
    frame.routine = routine;
    frame.words = words.All().data();
    frame.count = static_cast<std::uint32_t>(words.All().size());
    frame.stackOffset = conditions.stackOffset;
    frame.controlWord = conditions.changedControlWord ? SinglePrecisionTowardZero : 0;
    frame.realForm = kind == ReturnKind::Single ? 1 : kind == ReturnKind::Double ? 2 : 0;
    StandinCallTrampoline(&frame);

    CallResult result;
    result.value.low = frame.eax;
    result.value.high = frame.edx;
    result.value.real = kind == ReturnKind::Single
                            ? static_cast<double>(std::bit_cast<float>(frame.single))
                            : std::bit_cast<double>(frame.real);
    result.faults.stackMoved = frame.stackMoved != 0;
    result.faults.registersChanged = frame.registersChanged != 0;
    result.faults.floatStackUnbalanced =
        (frame.statusBefore & FloatStackTop) != (frame.statusAfter & FloatStackTop);
    return result;
}

}  // namespace standin
