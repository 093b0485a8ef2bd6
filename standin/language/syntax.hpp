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
    /// Of an array of the type; 0 when none is meant.
    std::size_t dimensions = 0;
    /// What stands before the name with a dot between; empty for none.
    std::string module = {};
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
/// `AddressOf Routine`, also of a module or an object: `AddressOf M.Routine`.
struct AddressOf {
    ExpressionPtr routine;
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
    using Node =
        std::variant<IntegerLiteral, RealLiteral, TextLiteral, BooleanLiteral, NilLiteral, Name,
                     Member, Call, New, Cast, ClassTest, Conditional, AddressOf, Unary, Binary>;
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
    /// A literal or a name, either of them maybe with a sign; null when there is none.
    ExpressionPtr defaultValue;
    /// Whether the argument may be left out without a default: it is then its type's own.
    bool isOptional = false;
    /// Whether it takes all further arguments as an array.
    bool isParamArray = false;
    /// Whether it is the object that the routine is called on.
    bool isExtended = false;
};

/// The head of a routine: of the program's own and, as a declaration, of a plug-in's.
struct Signature {
    std::string name;
    Position at = 0;
    std::vector<Parameter> parameters;
    /// Missing for a routine that returns nothing.
    std::optional<TypeName> result;
};

/// Who sees a member of a module or class.
enum class Visibility : std::uint8_t {
    /// Everybody, also without the module's name.
    Global,
    /// Everybody, with the name of the module or an object in front.
    Qualified,
    /// The module or class itself.
    Private,
};

/// What the tag around a routine of a project's file says that it is.
enum class RoutineTag : std::uint8_t { None, Method, Event };

struct Routine {
    Signature signature;
    Block body;
    Visibility visibility = Visibility::Global;
    RoutineTag tag = RoutineTag::None;
};

// Statements -------------------------------------------------------------------------------------

struct Declarator {
    std::string name;
    Position at = 0;
    TypeName type;
    /// The value, `New Class(...)` of an `As New` included; null for the type's default.
    ExpressionPtr initialiser;
    /// The index of an array's last element in each dimension; none for an empty one.
    Expressions lastIndices = {};
};
struct Dim {
    std::vector<Declarator> declarators;
    /// Whether the variables keep their values from one call to the next.
    bool isStatic = false;
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
    /// Whether `Call` stands before it: then a result may be dropped.
    bool dropsResult = false;
};
struct Print {
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

/// The loop that an Exit or Continue means: the innermost of a kind, or a For by its variable.
struct LoopTarget {
    LoopKind kind = LoopKind::Any;
    /// Empty where none is named.
    std::string variable;
};

struct Exit {
    LoopTarget loop;
};
struct Continue {
    LoopTarget loop;
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

// Modules and classes ----------------------------------------------------------------------------

/// The value of a constant that is known before the program runs.
using ConstantValue = std::variant<bool, std::int64_t, RealLiteral, std::string>;

struct Constant {
    std::string name;
    Position at = 0;
    ConstantValue value;
    Visibility visibility = Visibility::Global;
};

struct Enumeration {
    struct Item {
        std::string name;
        Position at = 0;
        std::int64_t value = 0;
    };
    std::string name;
    Position at = 0;
    std::vector<Item> items;
    /// The module or class that it belongs to; empty outside of those.
    std::string module = {};
};

/// A variable of a module, or a field of the objects of a class.
struct Field {
    Declarator declarator;
    Visibility visibility = Visibility::Global;
};

/// A module or a class. The class of a console application is a module: there is one object of it.
struct Unit {
    bool isClass = false;
    bool isApplication = false;
    std::string name;
    Position at = 0;
    std::vector<Field> fields;
    std::vector<Constant> constants;
    std::vector<Routine> routines;
    /// Whether a part of it has an error and was left out.
    bool isIncomplete = false;
    /// The module that a class belongs to; empty outside of modules.
    std::string module = {};
};

struct Program {
    Block main;
    std::vector<Routine> routines;
    std::vector<Unit> units;
    std::vector<Enumeration> enumerations;
};

}  // namespace standin::language::syntax
