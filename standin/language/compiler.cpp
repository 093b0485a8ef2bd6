#include "standin/language/compiler.hpp"

#include <algorithm>
#include <string>
#include <utility>

#include "standin/language/application.hpp"
#include "standin/language/code_statements.hpp"
#include "standin/language/code_units.hpp"
#include "standin/language/parser.hpp"

namespace standin::language {
namespace {

/// No program can write this name.
constexpr auto InitialiserName = "(fields)";

/// The head of a routine with the names of its types resolved, but not its defaults. The routine
/// keeps the names, which its body needs; only the defaults move.
Signature ResolveTypes(syntax::Signature& syntax, const TypeTable& types, const ErrorList& errors) {
    syntax::Signature head{syntax.name, syntax.at, {}, syntax.result};
    std::string declaration;
    const auto brackets = [](const syntax::TypeName& type) {
        return type.dimensions == 0 ? std::string()
                                    : "(" + std::string(type.dimensions - 1, ',') + ")";
    };
    for (auto& parameter : syntax.parameters) {
        declaration +=
            (declaration.empty() ? "" : ", ") + std::string(parameter.byRef ? "ByRef " : "") +
            (parameter.isExtended ? "Extends " : "") +
            (parameter.isParamArray ? "ParamArray " : "") + parameter.name +
            (parameter.isParamArray ? "" : brackets(parameter.type)) + " As " + parameter.type.name;
        head.parameters.push_back({parameter.name, parameter.at, parameter.type, parameter.byRef,
                                   std::move(parameter.defaultValue), parameter.isOptional,
                                   parameter.isParamArray, parameter.isExtended});
    }
    declaration = syntax.name + "(" + declaration + ")";
    if (syntax.result) {
        declaration += " As " + syntax.result->name + brackets(*syntax.result);
    }
    return types.Resolve(std::move(head), std::move(declaration), errors);
}

/// Throws where a method of a class would extend a type.
void RefuseExtension(const syntax::Signature& signature) {
    const auto& parameters = signature.parameters;
    if (!parameters.empty() && parameters.front().isExtended) {
        throw ProgramError(parameters.front().at, "\"Extends\" stands in a module, not in a class");
    }
}

bool HaveSameHead(const Signature& left, const Signature& right) {
    return SameName(left.name, right.name) &&
           std::ranges::equal(left.parameters, right.parameters, {}, &Parameter::type,
                              &Parameter::type);
}

/// Whether no program can tell which of the two a call means.
bool AreSame(const DeclaredRoutine& left, const DeclaredRoutine& right) {
    return SameName(left.unit, right.unit) && HaveSameHead(left.signature, right.signature);
}

syntax::ExpressionPtr Make(Position at, syntax::Expression::Node node) {
    return std::make_unique<syntax::Expression>(syntax::Expression{at, 1, std::move(node)});
}

/// `owner.name = value`, or `owner.name.ResizeTo(indices)`; nothing for a field without either.
void AppendFirstValue(syntax::Block& block, const std::string& owner,
                      syntax::Declarator& declarator) {
    const Position at = declarator.at;
    auto field = Make(at, syntax::Member{Make(at, syntax::Name{owner}), declarator.name});
    syntax::Statement::Node node;
    if (!declarator.lastIndices.empty()) {
        auto resize = Make(at, syntax::Member{std::move(field), "ResizeTo"});
        node = syntax::CallStatement{
            Make(at, syntax::Call{std::move(resize), std::move(declarator.lastIndices)})};
    } else if (declarator.initialiser) {
        node = syntax::Assignment{std::move(field), std::move(declarator.initialiser)};
    } else {
        return;
    }
    block.push_back(std::make_unique<syntax::Statement>(syntax::Statement{at, std::move(node)}));
}

/// `Return App.Run(Array(words))`.
syntax::StatementPtr MakeStart(const syntax::Unit& application,
                               const std::vector<std::string>& words) {
    const Position at = application.at;
    auto run =
        Make(at, syntax::Member{Make(at, syntax::Name{application.name}), std::string(RunEvent)});
    syntax::Expressions texts;
    for (const auto& word : words) {
        texts.push_back(Make(at, syntax::TextLiteral{word}));
    }
    syntax::Expressions arguments;
    arguments.push_back(Make(at, syntax::Call{Make(at, syntax::Name{"Array"}), std::move(texts)}));
    auto call = Make(at, syntax::Call{std::move(run), std::move(arguments)});
    return std::make_unique<syntax::Statement>(
        syntax::Statement{at, syntax::Return{std::move(call)}});
}

}  // namespace

Compiler::Compiler(const TypeTable& types) : types_(&types), callables_{MakeBuiltIns(types)} {}

code::Block Compiler::Compile(syntax::Program program, ErrorList& errors) {
    return CompileAll(program, errors, std::nullopt);
}

code::Block Compiler::CompileProject(syntax::Program program, const std::vector<std::string>& words,
                                     ErrorList& errors) {
    const auto application = std::ranges::find(program.units, true, &syntax::Unit::isApplication);
    for (auto& unit : program.units) {
        CheckEvents(unit, errors);
    }
    constexpr Type StatusType{IntegerKind};
    if (application == program.units.end()) {
        if (errors.empty()) {
            errors.Add(ProgramError(
                0,
                "no class of the project inherits from ConsoleApplication, so nothing can start"));
        }
        return CompileAll(program, errors, StatusType);
    }
    if (errors.empty() && FindEvent(*application, RunEvent) == nullptr) {
        errors.Add(ProgramError(
            application->at, Quoted(application->name) + " has no Function Run(args() As String)"));
    } else if (errors.empty()) {
        program.main.push_back(MakeStart(*application, words));
    }
    auto block = CompileAll(program, errors, StatusType);
    if (FindEvent(*application, UnhandledEvent) == nullptr) {
        return block;
    }
    const auto handler = std::ranges::find_if(callables_.routines, [&](const auto& routine) {
        return SameName(routine.unit, application->name) &&
               SameName(routine.signature.name, UnhandledEvent);
    });
    code::Block guarded;
    guarded.statements.push_back(std::make_unique<code::GuardedApplication>(
        application->at, std::move(block), *handler->code));
    return guarded;
}

code::Block Compiler::CompileAll(syntax::Program& program, ErrorList& errors,
                                 std::optional<Type> result) {
    pending_.clear();
    starts_.clear();
    DeclareTypes(program, errors);
    DeclareConstants(program, errors);
    for (auto& unit : program.units) {
        if (unit.isClass) {
            DeclareClass(unit, errors);
        } else {
            DeclareModule(unit, errors);
        }
    }
    std::vector<DeclaredRoutine> siblings;
    for (auto& routine : program.routines) {
        if (!errors.Try([&] { DeclareRoutine(routine, {}, siblings, errors); })) {
            errors.Doubt(routine.signature.name);
        }
    }
    code::Block block;
    for (const auto& [surroundings, statements] : starts_) {
        auto start = CompileStatements(statements, errors, std::nullopt, surroundings);
        std::ranges::move(start.statements, std::back_inserter(block.statements));
    }
    auto main = CompileStatements(program.main, errors, result, {});
    std::ranges::move(main.statements, std::back_inserter(block.statements));
    for (const auto& pending : pending_) {
        CompileBody(pending, errors);
    }
    pending_.clear();
    errors.ThrowIfAny();
    return block;
}

void Compiler::CompileBody(const Pending& pending, ErrorList& errors) {
    Scope scope(&scope_);
    auto parameters = pending.signature.parameters;
    auto places = std::vector<Position>();
    if (const auto* self = pending.surroundings.self) {
        Parameter object;
        object.name = std::string(SelfName);
        object.type = {Kind::Instance, self};
        parameters.insert(parameters.begin(), std::move(object));
        places.push_back(pending.routine->signature.at);
    }
    for (const auto& parameter : pending.routine->signature.parameters) {
        places.push_back(parameter.at);
    }
    const auto result = pending.signature.result;
    StatementChecker checker(types_, callables_, scope, globals_, errors, result,
                             pending.surroundings);
    pending.code->result = result;
    errors.Try(
        [&] { pending.code->body = checker.CheckBody(pending.routine->body, parameters, places); });
    pending.code->slotCount = scope.slotCount();
}

code::Routine& Compiler::NewRoutine() {
    return *routines_.emplace_back(std::make_unique<code::Routine>());
}

Signature Compiler::Resolve(syntax::Signature& syntax, const Surroundings& surroundings,
                            ErrorList& errors) const {
    auto signature = ResolveTypes(syntax, types_, errors);
    const Scope nothing;
    ExpressionChecker checker(types_, callables_, nothing, errors, surroundings);
    for (auto& parameter : signature.parameters) {
        auto& value = parameter.defaultValue;
        if (value && !errors.Try([&] { value = checker.ResolveDefault(value, parameter.type); })) {
            value = nullptr;
            parameter.isOptional = true;
        }
    }
    return signature;
}

void Compiler::DeclareTypes(syntax::Program& program, ErrorList& errors) {
    for (const auto& enumeration : program.enumerations) {
        errors.Try([&] {
            auto& model =
                types_.Declare(enumeration.name, ClassModel::Origin::Enumeration, enumeration.at);
            model.items = enumeration.items;
            model.module = enumeration.module;
        });
    }
    for (const auto& unit : program.units) {
        errors.Try([&] {
            if (types_.Find(unit.name) || callables_.units.contains(unit.name)) {
                throw ProgramError(unit.at, Quoted(unit.name) + " is declared already");
            }
            callables_.units.insert(unit.name);
            if (unit.isApplication) {
                callables_.application = unit.name;
            }
            if (unit.isClass) {
                types_.Declare(unit.name, ClassModel::Origin::Program, unit.at).module =
                    unit.module;
            }
        });
    }
}

void Compiler::DeclareConstants(const syntax::Program& program, ErrorList& errors) {
    for (const auto& unit : program.units) {
        for (const auto& constant : unit.constants) {
            errors.Try([&] { DeclareConstant(unit, constant); });
        }
    }
    const Scope nothing;
    const ExpressionChecker checker(types_, callables_, nothing, errors);
    const auto find = [&checker](std::string_view name) { return checker.FindConstant(name); };
    for (const auto& statement : program.main) {
        const auto* constant = std::get_if<syntax::Const>(&statement->node);
        // What is wrong with it is told where it stands.
        ErrorList ignored;
        if (constant != nullptr) {
            ignored.Try([&] {
                callables_.mainConstants.Set(constant->name, Evaluate(*constant->value, find));
            });
        }
    }
}

void Compiler::DeclareConstant(const syntax::Unit& unit, const syntax::Constant& constant) {
    const auto isSame = [&](const UnitConstant& other) {
        return SameName(other.name, constant.name) && SameName(other.unit, unit.name);
    };
    if (std::ranges::any_of(callables_.constants, isSame)) {
        throw ProgramError(constant.at, Quoted(constant.name) + " is declared already");
    }
    const bool isHidden = unit.isClass && constant.visibility == syntax::Visibility::Global;
    callables_.constants.push_back(
        {constant.name, constant.value, unit.name,
         isHidden ? syntax::Visibility::Qualified : constant.visibility});
}

void Compiler::DeclareModule(syntax::Unit& unit, ErrorList& errors) {
    // What belongs to the application is named with its name outside of it.
    const auto seen = [&unit](syntax::Visibility visibility) {
        return unit.isApplication && visibility == syntax::Visibility::Global
                   ? syntax::Visibility::Qualified
                   : visibility;
    };
    syntax::Block start;
    for (auto& field : unit.fields) {
        const auto declare = [&] {
            const auto isSame = [&](const UnitVariable& other) {
                return SameName(other.name, field.declarator.name) &&
                       SameName(other.unit, unit.name);
            };
            if (std::ranges::any_of(callables_.variables, isSame)) {
                throw ProgramError(field.declarator.at,
                                   Quoted(field.declarator.name) + " is declared already");
            }
            const auto type = types_.Require(field.declarator.type, errors);
            const Variable variable{.type = type,
                                    .slot = globals_.size(),
                                    .kind = code::VariableKind::Global,
                                    .declaredAt = field.declarator.at};
            globals_.push_back(type);
            callables_.variables.push_back(
                {field.declarator.name, variable, unit.name, seen(field.visibility)});
            AppendFirstValue(start, unit.name, field.declarator);
        };
        if (!errors.Try(declare)) {
            errors.Doubt(field.declarator.name);
        }
    }
    starts_.emplace_back(Surroundings{unit.name, nullptr}, std::move(start));
    std::vector<DeclaredRoutine> siblings;
    for (auto& routine : unit.routines) {
        routine.visibility = seen(routine.visibility);
        const bool isRight = errors.Try([&] {
            if (unit.isApplication) {
                RefuseExtension(routine.signature);
            }
            DeclareRoutine(routine, unit.name, siblings, errors);
        });
        if (!isRight) {
            errors.Doubt(routine.signature.name);
        }
    }
}

void Compiler::DeclareRoutine(syntax::Routine& routine, const std::string& unit,
                              std::vector<DeclaredRoutine>& siblings, ErrorList& errors) {
    auto& code = NewRoutine();
    const DeclaredRoutine declared{Resolve(routine.signature, {unit, nullptr}, errors), &code, unit,
                                   routine.visibility};
    const auto isSame = [&](const DeclaredRoutine& other) { return AreSame(other, declared); };
    if (std::ranges::any_of(siblings, isSame)) {
        throw ProgramError(routine.signature.at,
                           Quoted(routine.signature.name) + " is declared already");
    }
    std::erase_if(callables_.routines, isSame);
    callables_.routines.push_back(declared);
    siblings.push_back(declared);
    pending_.push_back({declared.signature, &code, &routine, {unit, nullptr}});
}

void Compiler::DeclareClass(syntax::Unit& unit, ErrorList& errors) {
    const auto found = types_.Find(unit.name);
    if (!found || found->kind != Kind::Instance ||
        found->model->origin() != ClassModel::Origin::Program) {
        return;
    }
    // The table hands out constant models; this one is its program's own.
    auto& model = types_.OwnModel(unit.name);
    model.isIncomplete = unit.isIncomplete;
    auto initialiser = std::make_unique<syntax::Routine>();
    initialiser->signature.name = InitialiserName;
    initialiser->signature.at = unit.at;
    for (auto& field : unit.fields) {
        const auto declare = [&] {
            const auto& declarator = field.declarator;
            if (model.FindProperty(declarator.name) != nullptr) {
                throw ProgramError(declarator.at, Quoted(declarator.name) + " is declared already");
            }
            const auto type = types_.Require(declarator.type, errors);
            model.properties.push_back(
                {.name = declarator.name,
                 .type = type,
                 .declaration = declarator.name + " As " + NameOf(type),
                 .problem = {},
                 .host = {},
                 .field = model.properties.size(),
                 .isPrivate = field.visibility != syntax::Visibility::Global});
            AppendFirstValue(initialiser->body, std::string(SelfName), field.declarator);
        };
        if (!errors.Try(declare)) {
            errors.Doubt(field.declarator.name);
            model.isIncomplete = true;
        }
    }
    for (auto& routine : unit.routines) {
        if (!errors.Try([&] { DeclareMethod(model, routine, errors); })) {
            model.isIncomplete = true;
        }
    }
    if (!initialiser->body.empty()) {
        auto& code = NewRoutine();
        Signature signature;
        signature.name = InitialiserName;
        pending_.push_back({signature, &code, initialiser.get(), {unit.name, &model}});
        model.initialiser = &code;
        made_.push_back(std::move(initialiser));
    }
}

void Compiler::DeclareMethod(ClassModel& model, syntax::Routine& routine, ErrorList& errors) {
    const auto& name = routine.signature.name;
    const Position at = routine.signature.at;
    constexpr std::string_view Operator = "Operator_";
    if (SameName(std::string_view(name).substr(0, Operator.size()), Operator)) {
        throw ProgramError(at, "Operators of classes are not supported here");
    }
    RefuseExtension(routine.signature);
    if (SameName(name, "Destructor")) {
        throw ProgramError(at, "Destructors are not supported here");
    }
    auto signature = Resolve(routine.signature, {model.name(), &model}, errors);
    for (const auto& method : model.methods) {
        if (HaveSameHead(method.signature, signature)) {
            throw ProgramError(at, Quoted(name) + " is declared already");
        }
    }
    if (model.FindProperty(name) != nullptr) {
        throw ProgramError(at, Quoted(name) + " is declared already");
    }
    auto& code = NewRoutine();
    pending_.push_back({signature, &code, &routine, {model.name(), &model}});
    model.methods.push_back({.signature = std::move(signature),
                             .host = {},
                             .routine = &code,
                             .isPrivate = routine.visibility != syntax::Visibility::Global});
}

code::Block Compiler::CompileStatements(const syntax::Block& statements, ErrorList& errors,
                                        std::optional<Type> result,
                                        const Surroundings& surroundings) {
    StatementChecker checker(types_, callables_, scope_, globals_, errors, result, surroundings);
    auto code = checker.CheckFragment(statements);
    scope_.ShareAll();
    return code;
}

code::Block Compiler::CompileShown(const syntax::Expression& expression) {
    ErrorList errors;
    ExpressionChecker checker(types_, callables_, scope_, errors);
    code::Block block;
    auto checked = checker.CheckCall(expression);
    if (checked.type.kind == Kind::None) {
        block.statements.push_back(
            std::make_unique<code::Perform>(expression.at, std::move(checked.code)));
    } else {
        block.statements.push_back(
            std::make_unique<code::Print>(expression.at, checker.CheckAsShown(expression)));
    }
    return block;
}

void Compiler::ForgetPlaces() {
    scope_.ForgetPlaces();
    for (auto& variable : callables_.variables) {
        variable.variable.declaredAt.reset();
    }
}

void Compiler::Restore(Declarations declarations) {
    callables_ = std::move(declarations.callables);
    scope_ = std::move(declarations.variables);
}

}  // namespace standin::language
