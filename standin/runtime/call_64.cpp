// Calls at 64 bits: arguments are dealt out to registers and the stack by the rules of the
// platform's convention, whose trampoline then loads them.
#include "standin/runtime/call_64.hpp"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "standin/runtime/call.hpp"

namespace standin {
namespace {

/// The most words that a call lays onto the stack.
constexpr std::size_t StackWords = MostArguments + MostShadowWords;

/// What fills everything that holds no argument.
constexpr std::uint64_t Noise = 0xA5A5A5A5A5A5A5A5U;

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
        : frame_(frame), stack_(stack), onStack_(PlatformConvention.shadowWords) {
        frame_.integers.fill(Noise);
        frame_.reals.fill(Noise);
        stack_.fill(Noise);
    }

    void Deal(const CallArgument& argument) {
        const bool isReal =
            argument.passing == Passing::Single || argument.passing == Passing::Double;
        std::size_t& place = isReal && !PlatformConvention.sharesPlaces ? reals_ : integers_;
        const std::size_t count =
            isReal ? PlatformConvention.realRegisters : PlatformConvention.integerRegisters;
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
