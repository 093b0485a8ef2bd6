// Gives every expression of a program its type and turns it into code.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/builtins.hpp"
#include "standin/language/class_model.hpp"
#include "standin/language/conversions.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/names.hpp"
#include "standin/language/operations.hpp"
#include "standin/language/overloads.hpp"
#include "standin/language/scope.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// A routine of the program, known before any body is checked.
struct DeclaredRoutine {
    Signature signature;
    const code::Routine* code = nullptr;
    /// The module that it belongs to; empty outside of modules.
    std::string unit = {};
    syntax::Visibility visibility = syntax::Visibility::Global;
};

/// A variable of a module.
struct UnitVariable {
    std::string name;
    Variable variable;
    std::string unit;
    syntax::Visibility visibility;
};

/// A constant of a module or class.
struct UnitConstant {
    std::string name;
    syntax::ConstantValue value;
    std::string unit;
    syntax::Visibility visibility;
};

/// What a program can name without a receiver.
struct Callables {
    std::vector<BuiltIn> builtIns;
    std::vector<DeclaredRoutine> routines = {};
    std::vector<UnitVariable> variables = {};
    std::vector<UnitConstant> constants = {};
    /// The constants of the main program. Code sees them as variables of its scope.
    Constants mainConstants = Constants();
    /// The names of the modules and classes.
    std::set<std::string, NameLess> units = {};
    /// The name of the class that is the application; empty in a script.
    std::string application = {};
};

/// Where code stands: in which module or class; in a class its methods have an object.
struct Surroundings {
    std::string unit = {};
    const ClassModel* self = nullptr;
};

/// Checks the expressions that see one scope. Every function throws ProgramError at the first
/// mistake.
class ExpressionChecker final : public DefaultSource {
public:
    ExpressionChecker(const TypeTable& types, const Callables& callables, const Scope& scope,
                      const ErrorList& errors, Surroundings surroundings = {})
        : types_(types),
          callables_(callables),
          scope_(scope),
          errors_(errors),
          surroundings_(std::move(surroundings)) {}

    /// An expression whose value is wanted.
    Checked Check(const syntax::Expression& expression);
    /// The same, converted to a type.
    code::ExpressionPtr CheckAs(const syntax::Expression& expression, Type type);
    /// An expression for what it does, which may return nothing.
    Checked CheckCall(const syntax::Expression& expression);
    /// What a For Each goes through: an array, or the entries of a Dictionary as one.
    Checked CheckElements(const syntax::Expression& expression);
    /// A value as text, as Print takes it.
    code::ExpressionPtr CheckAsText(const syntax::Expression& expression);
    /// A value of any type that has a text form, as the prompt shows it.
    code::ExpressionPtr CheckAsShown(const syntax::Expression& expression);
    /// The type of a written name. Throws ProgramError when there is none.
    Type RequireType(const syntax::TypeName& name) const;
    /// What assigns to a property or an assignable method. Variables are not handled here.
    code::ExpressionPtr CheckSetter(const syntax::Expression& target,
                                    const syntax::Expression& value);
    /// The variable that an expression names, if it is one: one of a module as well.
    std::optional<Variable> FindVariable(const syntax::Expression& expression) const;
    static Checked MakeVariable(const Variable& variable, Position at);
    /// A binary operator on operands that are checked already.
    Checked Apply(syntax::BinaryOperator operation, Checked left, Checked right, Position at);

    /// Throws ProgramError unless an expression that is right consists of literals and constants.
    void RequireConstant(const syntax::Expression& expression) const;
    /// The constant of a module, of the main program or of the host that bears a name, which may
    /// have a module's before it.
    const syntax::ConstantValue* FindConstant(std::string_view name) const;
    Checked CheckDefault(const Parameter& parameter, Position at) override;
    /// A default as it was written, as the literal that it means for a parameter of that type.
    std::shared_ptr<const syntax::Expression> ResolveDefault(
        std::shared_ptr<const syntax::Expression> written, Type type);

private:
    using Arguments = std::vector<Checked>;

    /// What stands before a dot: a value, or a class whose shared members are meant. Without a
    /// class the value is no object.
    struct Receiver {
        std::optional<Checked> value;
        const ClassModel* model;
    };

    Checked CheckNode(const syntax::IntegerLiteral& literal, Position at);
    Checked CheckNode(const syntax::RealLiteral& literal, Position at);
    Checked CheckNode(const syntax::TextLiteral& literal, Position at);
    Checked CheckNode(const syntax::BooleanLiteral& literal, Position at);
    Checked CheckNode(const syntax::NilLiteral& literal, Position at);
    Checked CheckNode(const syntax::Name& name, Position at);
    Checked CheckNode(const syntax::Member& member, Position at);
    Checked CheckNode(const syntax::Call& call, Position at);
    Checked CheckNode(const syntax::New& creation, Position at);
    Checked CheckNode(const syntax::Cast& cast, Position at);
    Checked CheckNode(const syntax::ClassTest& test, Position at);
    Checked CheckNode(const syntax::Conditional& conditional, Position at);
    Checked CheckNode(const syntax::AddressOf& address, Position at);
    Checked CheckNode(const syntax::Unary& unary, Position at);
    Checked CheckNode(const syntax::Binary& binary, Position at);

    static Checked MakeConstant(Value value, Type type, Position at);
    static Checked MakeBoolean(code::ExpressionPtr code, Position at);
    /// A whole literal is Integer; Int64 where that is too small; UInt64 where that is too small.
    static Checked MakeInteger(std::uint64_t magnitude, bool isNegative, Position at);
    static Checked MakeReal(const syntax::RealLiteral& literal, bool isNegative, Position at);
    Arguments CheckArguments(const syntax::Expressions& expressions);
    /// Throws where something is assigned to that is a routine of the program.
    void RefuseRoutine(const std::string& name, Position at) const;
    /// Throws where something is called that is a variable, but no array.
    void RequireArray(const syntax::Call& call, const Variable& variable, Position at) const;
    /// `member` is what is wanted of it.
    Receiver CheckReceiver(const syntax::Expression& expression, const std::string& member);
    Checked CheckMember(Receiver receiver, const std::string& name, Position at);
    Checked CheckMemberCall(Receiver receiver, const std::string& name, Arguments arguments,
                            Position at);
    /// A member of a value that is no object: a method of arrays, or a function of the language
    /// that takes the value first.
    Checked CheckValueMember(Checked value, const std::string& name, Arguments arguments,
                             Position at);
    /// A function of the language; nothing when none has that name.
    std::optional<Checked> TryBuiltIn(const std::string& name, Arguments& arguments, Position at);
    Checked CheckNamedCall(const std::string& name, Arguments arguments, Position at);
    Checked CastTo(Checked value, Type type, Position at);

    /// How an error during a call names the member that was called.
    static std::string LabelOf(const ClassModel& model, const std::string& declaration);
    /// The call of a plug-in's routine as code; shared members have no receiver.
    static Checked MakeCall(std::optional<Checked> receiver, code::PluginCall call,
                            code::NilReceiver nil, Type result, Position at);
    /// The call of a method's routine, of which there must be one.
    code::PluginCall MakePluginCall(const ClassModel& model, const Method& method,
                                    Arguments arguments, Position at);
    /// A call of a member of one of the host's own classes, the object first.
    static code::ExpressionPtr MakeHostCall(BuiltInFunction function, Receiver receiver,
                                            std::vector<code::Argument> arguments);
    Checked ReadProperty(Receiver receiver, const Property& property, bool isShared, Position at);
    code::ExpressionPtr WriteProperty(Receiver receiver, const Property& property, bool isShared,
                                      Checked value, Position at);
    Checked CallMethod(Receiver receiver, const std::vector<const Method*>& methods, bool isShared,
                       Arguments arguments, Position at);
    code::ExpressionPtr CallMethodSetter(Receiver receiver,
                                         const std::vector<const Method*>& methods, bool isShared,
                                         Arguments arguments, Checked value, Position at);
    Checked Construct(const ClassModel& model, Arguments arguments, Position at);
    /// The same for a class of the program.
    Checked ConstructOwn(const ClassModel& model, Arguments arguments, Position at);

    static Checked CheckElement(Checked array, Arguments indices, Position at);
    static std::vector<code::ExpressionPtr> CheckIndices(const Checked& array, Arguments indices,
                                                         Position at);
    code::ExpressionPtr CheckElementSetter(Checked array, Arguments indices,
                                           const syntax::Expression& value, Position at);
    /// `array.Sort(AddressOf Routine)`, if it is that; the array is moved from then.
    std::optional<Checked> TrySortBy(Checked& array, const std::string& name,
                                     const syntax::Expressions& arguments, Position at);
    /// A routine that orders two elements of an array.
    struct Comparison {
        const code::Routine* routine;
        /// The object that it is a method of; null where it is none.
        code::ExpressionPtr object;
    };
    /// The one that is named behind "AddressOf", which stands at `at`.
    Comparison FindComparison(const syntax::Expression& routine, Type element, Position at);
    /// A method of an array, both moved from when it is there.
    std::optional<Checked> TryArrayMember(Checked& array, const std::string& name,
                                          Arguments& arguments, Position at);
    /// Whether a call is `Array(values)`.
    bool IsArrayFunction(const syntax::Call& call) const;
    /// A new array of that type, or of the one in which the values meet.
    Checked CheckArrayCall(const syntax::Call& call, std::optional<Type> element, Position at);

    Checked ApplyToNumbers(syntax::BinaryOperator operation, Checked left, Checked right,
                           Position at);
    /// An operator on what Variants hold.
    static Checked ApplyToVariants(BinaryFunction function, Checked left, Checked right,
                                   Type result, Position at);
    Checked Compare(syntax::BinaryOperator operation, Checked left, Checked right, Position at);
    Checked CompareIdentity(syntax::BinaryOperator operation, Checked left, Checked right,
                            Position at);
    /// Operator_… of the left operand, else Operator_…Right of the right one. Nothing when neither
    /// class has an operator that takes the other operand.
    std::optional<Checked> TryOperator(syntax::BinaryOperator operation, Checked& left,
                                       Checked& right, Position at);
    std::optional<Checked> TryCompareOperator(syntax::BinaryOperator operation, Checked& left,
                                              Checked& right, Position at);
    /// Calls the operator of `receiver` that takes `argument`, both moved from when it is there.
    std::optional<Checked> TryOperatorOf(const std::string& name, Checked& receiver,
                                         Checked& argument, bool isReceiverRight, Position at);

    /// Whether code here sees something of a module; `isQualified` with the module's name before
    /// it.
    template <typename Declared>
    bool IsVisible(const Declared& declared, bool isQualified) const {
        return SameName(declared.unit, surroundings_.unit) ||
               declared.visibility == syntax::Visibility::Global ||
               (isQualified && declared.visibility == syntax::Visibility::Qualified);
    }
    /// The one of that name that is seen, one of the own module before all others. With a `unit`
    /// only what is there.
    template <typename Declared>
    const Declared* FindDeclared(const std::vector<Declared>& list, std::string_view name,
                                 std::optional<std::string_view> unit) const;
    /// The variable of that name in the routine; `Me` is the object that `Self` is.
    const Variable* FindLocal(std::string_view name) const;
    /// Whether an expression is the name of a module or class, and which: `Self` and `Me` are the
    /// application in its own code.
    const std::string* FindUnit(const syntax::Expression& expression) const;
    /// Whether the object that the code belongs to has a member of that name.
    bool IsOwnMember(const std::string& name) const;
    /// The object that the code belongs to.
    Receiver OwnReceiver(Position at) const;
    /// A variable, constant or function of a module, of the program or of the host.
    std::optional<Checked> TryUnitValue(const std::string& unit, const std::string& name,
                                        Position at);
    Checked CheckConstant(const syntax::ConstantValue& value, Position at);
    /// The number of the value of an `Enum` that a default of that type names; nothing for a
    /// literal or constant.
    std::optional<std::int64_t> FindItem(const syntax::Expression& expression, Type type);
    /// The call of a routine of the program; nothing when none of that name is seen.
    std::optional<Checked> TryRoutine(const std::string& name, std::optional<std::string> unit,
                                      Arguments& arguments, Position at);
    /// The call of a routine that extends the type of `receiver`, which is moved from then.
    std::optional<Checked> TryExtension(Checked& receiver, const std::string& name,
                                        Arguments& arguments, Position at);
    /// Whether a member is an array, of which an element is meant where arguments follow.
    bool IsArrayProperty(const Receiver& receiver, const std::string& name) const;
    void RequireAccess(bool isPrivate, const ClassModel& model, const std::string& name,
                       Position at) const;
    /// A type of the program with the name of its module before it; null for any other expression.
    const ClassModel* FindQualifiedType(const syntax::Expression& expression) const;
    [[noreturn]] void FailWithoutName(const std::string& name, Position at) const;
    /// `unit` is a module or class of the program.
    [[noreturn]] void FailWithoutUnitMember(const std::string& unit, const std::string& name,
                                            Position at) const;
    /// A member of a value that is no object.
    [[noreturn]] void FailWithoutValueMember(Type type, const std::string& name, Position at) const;
    /// The functions of the language that bear a name, or whose names begin so.
    std::vector<const BuiltIn*> BuiltInsNamed(std::string_view name) const;
    std::vector<std::string_view> BuiltInsOf(std::string_view module) const;
    [[noreturn]] void FailWithoutMember(const ClassModel& model, const std::string& name,
                                        Position at) const;

    const TypeTable& types_;
    const Callables& callables_;
    const Scope& scope_;
    const ErrorList& errors_;
    Surroundings surroundings_;
};

extern template const UnitVariable* ExpressionChecker::FindDeclared(
    const std::vector<UnitVariable>& list, std::string_view name,
    std::optional<std::string_view> unit) const;
extern template const UnitConstant* ExpressionChecker::FindDeclared(
    const std::vector<UnitConstant>& list, std::string_view name,
    std::optional<std::string_view> unit) const;

}  // namespace standin::language
