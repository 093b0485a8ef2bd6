// The syntax tree: a program as it was written, names and types not yet looked up.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "standin/language/source.hpp"

namespace standin::language::syntax {

struct Expression;
struct Statement;
using ExpressionPtr = std::unique_ptr<Expression>;
using StatementPtr = std::unique_ptr<Statement>;
using Expressions = std::vector<ExpressionPtr>;
using Block = std::vector<StatementPtr>;

/// The name of a type where one is written.
struct TypeName {
    std::string name;
    Position at = 0;
    /// Whether an array of the type is meant.
    bool isArray = false;
};

// Expressions ------------------------------------------------------------------------------------

enum class UnaryOperator : std::uint8_t { Plus, Minus, Not };

enum class BinaryOperator : std::uint8_t {
    Power,
    Multiply,
    Divide,
    IntegerDivide,
    Modulo,
    Add,
    Subtract,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Is,
    And,
    Or,
    Xor,
};

struct IntegerLiteral {
    std::uint64_t value;
};
struct RealLiteral {
    double value;
    /// As written: a Currency takes more of them than a Double holds.
    std::string digits;
};
struct TextLiteral {
    std::string value;
};
struct BooleanLiteral {
    bool value;
};
struct NilLiteral {};
struct Name {
    std::string name;
};
struct Member {
    ExpressionPtr object;
    std::string name;
};
/// A name or member with arguments in parentheses.
struct Call {
    ExpressionPtr callee;
    Expressions arguments;
};
struct New {
    TypeName type;
    Expressions arguments;
};
/// `CType(value, Type)`.
struct Cast {
    ExpressionPtr value;
    TypeName type;
};
/// `value IsA Class`.
struct ClassTest {
    ExpressionPtr value;
    TypeName type;
};
/// `If(condition, value, otherwise)`.
struct Conditional {
    ExpressionPtr condition;
    ExpressionPtr value;
    ExpressionPtr otherwise;
};
struct Unary {
    UnaryOperator operation;
    ExpressionPtr operand;
};
struct Binary {
    BinaryOperator operation;
    ExpressionPtr left;
    ExpressionPtr right;
};

struct Expression {
    using Node = std::variant<IntegerLiteral, RealLiteral, TextLiteral, BooleanLiteral, NilLiteral,
                              Name, Member, Call, New, Cast, ClassTest, Conditional, Unary, Binary>;
    /// Where messages about the expression point: an operator, a member's name, the first token.
    Position at;
    /// Levels of expressions below this one, itself included.
    std::size_t height;
    Node node;
};

// Routines ---------------------------------------------------------------------------------------

struct Parameter {
    std::string name;
    Position at = 0;
    TypeName type;
    bool byRef = false;
    /// A literal, or null when the argument must be given.
    ExpressionPtr defaultValue;
};

/// The head of a routine: of the program's own and, as a declaration, of a plug-in's.
struct Signature {
    std::string name;
    Position at = 0;
    std::vector<Parameter> parameters;
    /// Missing for a routine that returns nothing.
    std::optional<TypeName> result;
};

struct Routine {
    Signature signature;
    Block body;
};

// Statements -------------------------------------------------------------------------------------

struct Declarator {
    std::string name;
    Position at = 0;
    TypeName type;
    /// The value, `New Class(...)` of an `As New` included; null for the type's default.
    ExpressionPtr initialiser;
    /// The index of an array's last element; null for an empty one.
    ExpressionPtr lastIndex = nullptr;
};
struct Dim {
    std::vector<Declarator> declarators;
};
struct Const {
    std::string name;
    /// Missing when the value tells the type.
    std::optional<TypeName> type;
    ExpressionPtr value;
};
struct Assignment {
    ExpressionPtr target;
    ExpressionPtr value;
};
struct CallStatement {
    ExpressionPtr call;
};
struct Print {
    /// Null prints an empty line.
    ExpressionPtr value;
};
struct If {
    struct Branch {
        ExpressionPtr condition;
        Block body;
    };
    std::vector<Branch> branches;
    Block otherwise;
};
struct Select {
    /// `value`, `value To last` or `Is comparison value`.
    struct Test {
        BinaryOperator comparison;
        ExpressionPtr value;
        ExpressionPtr last;
    };
    struct Branch {
        std::vector<Test> tests;
        Block body;
    };
    ExpressionPtr subject;
    std::vector<Branch> branches;
    Block otherwise;
};
struct For {
    std::string variable;
    Position variableAt;
    /// Present when the loop declares its variable.
    std::optional<TypeName> type;
    ExpressionPtr first;
    ExpressionPtr last;
    /// Null for 1.
    ExpressionPtr step;
    bool isDownward;
    Block body;
};
struct ForEach {
    std::string variable;
    Position variableAt;
    /// Present when the loop declares its variable.
    std::optional<TypeName> type;
    ExpressionPtr array;
    Block body;
};
struct While {
    ExpressionPtr condition;
    Block body;
};
struct Do {
    /// `While condition` or `Until condition`, at the head or at the foot.
    struct Test {
        /// Null where there is none.
        ExpressionPtr condition;
        /// What the condition must be for the loop to go on.
        bool wanted = false;
    };
    Test before;
    Test after;
    Block body;
};

enum class LoopKind : std::uint8_t { Any, For, While, Do };

struct Exit {
    LoopKind loop;
};
struct Continue {
    LoopKind loop;
};
struct Try {
    struct Catch {
        /// Empty when the exception is not named.
        std::string name;
        Position at;
        /// Missing to catch every exception.
        std::optional<TypeName> type;
        Block body;
    };
    Block body;
    std::vector<Catch> catches;
    Block finally;
};
struct Raise {
    ExpressionPtr exception;
};
struct Return {
    ExpressionPtr value;
};

struct Statement {
    using Node = std::variant<Dim, Const, Assignment, CallStatement, Print, If, Select, For,
                              ForEach, While, Do, Exit, Continue, Try, Raise, Return>;
    Position at;
    Node node;
};

struct Program {
    Block main;
    std::vector<Routine> routines;
};

}  // namespace standin::language::syntax
