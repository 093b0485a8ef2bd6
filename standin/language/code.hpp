// The resolved program: a tree whose nodes run themselves. The checker builds it; every name is a
// slot by then, every overload chosen, every conversion a node of its own.
#pragma once

#include <csignal>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/language/native_data.hpp"
#include "standin/language/references.hpp"
#include "standin/language/source.hpp"
#include "standin/language/value.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// An exception of the language on its way to a Catch.
class Thrown : public std::exception {
public:
    Thrown(Value exception, Position at) : exception_(std::move(exception)), at_(at) {}

    /// The exception object; never Nil.
    const Value& exception() const { return exception_; }
    /// The statement that was running when it was raised.
    Position position() const { return at_; }
    const char* what() const noexcept override { return "an exception of the program"; }

private:
    Value exception_;
    Position at_;
};

/// The program could not go on at all: not even an exception object could be made. No Catch of
/// the program sees this.
class OutOfObjects : public std::exception {
public:
    explicit OutOfObjects(Position at) : at_(at) {}
    Position position() const { return at_; }
    const char* what() const noexcept override { return "the host could not make an object"; }

private:
    Position at_;
};

/// Somebody wants the program to end; no Catch of it sees that.
class Interrupted : public std::exception {
public:
    const char* what() const noexcept override { return "interrupted"; }
};

/// The program ends itself; no Catch and no Finally of it sees that.
class Ended : public std::exception {
public:
    explicit Ended(int status) : status_(status) {}
    /// Its exit status.
    int status() const { return status_; }
    const char* what() const noexcept override { return "the program ended itself"; }

private:
    int status_;
};

/// Statements that a program may take, each turn of a loop and each branch counted as one more.
inline constexpr std::uint64_t UnlimitedSteps = std::numeric_limits<std::uint64_t>::max();

/// How a program writes an expression, for messages about its value.
struct Written {
    /// A name, or several with dots between them; empty for what is longer.
    std::string text = {};
    /// Whether the program assigns anything to it; null where it is no variable that begins as Nil.
    std::shared_ptr<bool> isAssigned = {};
};

/// Notes that something is assigned to a variable; the pointer may be null.
inline void MarkAssigned(const std::shared_ptr<bool>& isAssigned) {
    if (isAssigned != nullptr) {
        *isAssigned = true;
    }
}

/// What a running program needs around it.
class Machine {
public:
    /// Takes the program's output as it is, with the ends of its lines.
    using Output = std::function<void(std::string_view utf8)>;

    Machine(Host& host, Output print, std::uint64_t maximumSteps)
        : host_(host), print_(std::move(print)), maximumSteps_(maximumSteps) {}

    ~Machine() { NativeData::ReleaseAll(); }
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    Host& host() const { return host_; }
    void Print(std::string_view line) const { print_(std::string(line) + '\n'); }
    void Write(std::string_view utf8) const { print_(utf8); }

    /// Ends what runs, with Interrupted at its next step. A signal handler may call it.
    static void Interrupt() { interrupted_ = 1; }
    /// Whether `Interrupt` was called since the last call of this.
    static bool TakeInterrupt() {
        const bool wasInterrupted = interrupted_ != 0;
        interrupted_ = 0;
        return wasInterrupted;
    }

    /// The statement that runs now; exceptions carry it.
    Position position = 0;
    /// Routines that are being called, one in another.
    std::size_t depth = 0;
    /// Where the native stack stood at the first of them.
    std::size_t stackBase = 0;
    /// The variables of modules and those that are static.
    std::vector<Value> globals = {};

    /// Counts one step. Throws ProgramError when there were more than the program may take, or when
    /// it has needed more memory than it may: no Catch of the program sees that.
    void Step();

    /// Throws `exception`, an object that must not be Nil.
    [[noreturn]] void Throw(Value exception) const;
    /// Throws a new exception of one of the host's classes.
    [[noreturn]] void Raise(std::string_view className, std::string_view message) const;
    /// Raises NilObjectException unless there is an object; the message says what is Nil.
    void RequireObject(const Value& object, const Written& written = {}) const;

    /// A new object of a class, without a constructor run. Raises OutOfMemoryException.
    Value MakeObject(const ClassInfo& info) const;
    /// A new string. Raises OutOfMemoryException.
    Value MakeText(std::string_view bytes, HostTextEncoding encoding) const;
    Value MakeText(std::string_view utf8) const;

private:
    void CheckMemory() const;

    Host& host_;
    Output print_;
    std::uint64_t maximumSteps_;
    std::uint64_t steps_ = 0;
    static inline volatile std::sig_atomic_t interrupted_ = 0;
};

/// A function of the host or of the language itself.
using BuiltInFunction = Value (*)(const std::vector<Value>& arguments, const Machine& machine);

/// The variables of one call of a routine, or of the main program.
struct Frame {
    Frame(Machine& runningMachine, std::size_t slotCount, Frame* mainFrame = nullptr)
        : machine(runningMachine),
          slots(slotCount),
          main(mainFrame == nullptr ? *this : *mainFrame) {}
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    Machine& machine;
    std::vector<Value> slots;
    /// The main program's frame, whose variables every routine sees.
    Frame& main;
    /// What Return left.
    Value result;
    /// Loops still to be left after the innermost one, while an Exit or Continue is under way.
    int outerLoops = 0;
};

/// How a statement ended.
enum class Flow : std::uint8_t { Next, Exit, Continue, Return };

namespace code {

/// A node that computes a value.
class Expression {
public:
    Expression() = default;
    virtual ~Expression() = default;
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;

    /// The value; of a node that returns nothing, a value that nobody reads.
    virtual Value Evaluate(Frame& frame) const = 0;
    /// Where the value of a variable is kept; null for every other expression.
    virtual Value* Storage(Frame& /*frame*/) const { return nullptr; }
    /// The place of what can be passed by reference; `references` keeps it. Null for every other
    /// expression.
    virtual Value* Place(Frame& frame, References& /*references*/) const { return Storage(frame); }

    /// How the program writes it, as far as that is known.
    const Written& written() const { return written_; }
    void SetText(std::string text) { written_.text = std::move(text); }
    void SetAssigned(std::shared_ptr<bool> isAssigned) {
        written_.isAssigned = std::move(isAssigned);
    }

private:
    Written written_;
};

/// A node that does something.
class Statement {
public:
    explicit Statement(Position at) : at_(at) {}
    virtual ~Statement() = default;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Runs the statement and tells how it ended.
    virtual Flow Execute(Frame& frame) const = 0;
    /// Where the statement stands in the program.
    Position at() const { return at_; }

private:
    Position at_;
};

using ExpressionPtr = std::unique_ptr<Expression>;
using StatementPtr = std::unique_ptr<Statement>;

/// Statements in a row. The slots from `firstSlot` up to `endSlot` are its own variables, which it
/// lets go of when it ends in whatever way.
struct Block {
    std::vector<StatementPtr> statements;
    std::size_t firstSlot = 0;
    std::size_t endSlot = 0;

    /// Runs the statements until one ends in another way than going on to the next.
    Flow Execute(Frame& frame) const;
};

/// What the end of a loop's body means for the loop: nothing (it goes on), or how the loop ends.
std::optional<Flow> EndOfLoop(Flow flow, Frame& frame);

/// A routine of the program. Its parameters are the first slots.
struct Routine {
    std::size_t slotCount = 0;
    Block body;
    /// What a routine returns that ends without Return.
    Type result;
};

}  // namespace code
}  // namespace standin::language
