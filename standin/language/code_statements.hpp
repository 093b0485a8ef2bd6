// Statement nodes of the resolved program.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language::code {

/// A value into a variable.
class Assign final : public Statement {
public:
    Assign(Position at, ExpressionPtr variable, ExpressionPtr value)
        : Statement(at), variable_(std::move(variable)), value_(std::move(value)) {}
    Flow Execute(Frame& frame) const override;

private:
    ExpressionPtr variable_;
    ExpressionPtr value_;
};

/// An expression for what it does; its value is dropped.
class Perform final : public Statement {
public:
    Perform(Position at, ExpressionPtr expression)
        : Statement(at), expression_(std::move(expression)) {}
    Flow Execute(Frame& frame) const override;

private:
    ExpressionPtr expression_;
};

class Print final : public Statement {
public:
    Print(Position at, ExpressionPtr text) : Statement(at), text_(std::move(text)) {}
    Flow Execute(Frame& frame) const override;

private:
    ExpressionPtr text_;
};

/// The first branch whose condition holds; a branch without condition always does.
class Branches final : public Statement {
public:
    struct Branch {
        ExpressionPtr condition;
        Block body;
    };
    Branches(Position at, std::vector<Branch> branches)
        : Statement(at), branches_(std::move(branches)) {}
    Flow Execute(Frame& frame) const override;

private:
    std::vector<Branch> branches_;
};

/// A block as a statement: what a Select Case or a For keeps its hidden variable in.
class Compound final : public Statement {
public:
    Compound(Position at, Block block) : Statement(at), block_(std::move(block)) {}
    Flow Execute(Frame& frame) const override { return block_.Execute(frame); }

private:
    Block block_;
};

/// What decides whether a loop goes on: a condition that must be as wanted; null always is.
struct LoopTest {
    ExpressionPtr condition;
    bool wanted = true;
};

/// A loop with a test before each round and one after it.
class ConditionalLoop final : public Statement {
public:
    ConditionalLoop(Position at, LoopTest before, Block body, LoopTest after)
        : Statement(at),
          before_(std::move(before)),
          body_(std::move(body)),
          after_(std::move(after)) {}
    Flow Execute(Frame& frame) const override;

private:
    LoopTest before_;
    Block body_;
    LoopTest after_;
};

/// What a counting loop is made of; the expressions have the type of the variable.
struct ForParts {
    ExpressionPtr variable;
    ExpressionPtr first;
    ExpressionPtr last;
    ExpressionPtr step;
    bool isDownward = false;
    Block body;
};

/// A counting loop over a variable of the C++ type T. The last value and the step are evaluated
/// anew before each round. A step that leads out of the type's range ends the loop.
template <typename T>
class ForLoop final : public Statement {
public:
    ForLoop(Position at, ForParts parts) : Statement(at), parts_(std::move(parts)) {}
    Flow Execute(Frame& frame) const override;

private:
    ForParts parts_;
};

/// Makes the loop for a variable of an integer or real kind.
StatementPtr MakeForLoop(Position at, Kind kind, ForParts parts);

/// Exit and Continue: past `outerLoops` loops inside the one that is meant.
class LeaveLoop final : public Statement {
public:
    LeaveLoop(Position at, Flow flow, int outerLoops)
        : Statement(at), flow_(flow), outerLoops_(outerLoops) {}
    Flow Execute(Frame& frame) const override {
        frame.outerLoops = outerLoops_;
        return flow_;
    }

private:
    Flow flow_;
    int outerLoops_;
};

class Return final : public Statement {
public:
    /// `value` is null in a Sub and in the main program.
    Return(Position at, ExpressionPtr value) : Statement(at), value_(std::move(value)) {}
    Flow Execute(Frame& frame) const override;

private:
    ExpressionPtr value_;
};

class Raise final : public Statement {
public:
    Raise(Position at, ExpressionPtr exception) : Statement(at), exception_(std::move(exception)) {}
    Flow Execute(Frame& frame) const override;

private:
    ExpressionPtr exception_;
};

class Try final : public Statement {
public:
    struct Catch {
        /// The slot for the exception; none when it is not named.
        std::optional<std::size_t> slot;
        const ClassInfo* info;
        Block body;
    };
    Try(Position at, Block body, std::vector<Catch> catches, Block finally)
        : Statement(at),
          body_(std::move(body)),
          catches_(std::move(catches)),
          finally_(std::move(finally)) {}
    Flow Execute(Frame& frame) const override;

private:
    Flow ExecuteGuarded(Frame& frame) const;
    const Catch* FindCatch(const Thrown& thrown) const;

    Block body_;
    std::vector<Catch> catches_;
    Block finally_;
};

}  // namespace standin::language::code
