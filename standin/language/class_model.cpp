#include "standin/language/class_model.hpp"

#include <algorithm>
#include <utility>

#include "standin/language/dictionary.hpp"
#include "standin/language/host_members.hpp"
#include "standin/language/parser.hpp"
#include "standin/language/suggestions.hpp"
#include "standin/language/unsupported.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ExceptionRoot = "RuntimeException";

/// Classes of the host's own that a program can name.
constexpr std::string_view HostClassNames[] = {
    "Object",
    ExceptionRoot,
    "OutOfBoundsException",
    "OutOfMemoryException",
    "IllegalCastException",
    "InvalidArgumentException",
    "KeyNotFoundException",
    "NilObjectException",
    "UnsupportedOperationException",
    "StackOverflowException",
    "TypeMismatchException",
    "Variant",
    "MemoryBlock",
    "Date",
    "DateTime",
};

std::vector<const Method*> Named(const std::vector<Method>& methods, std::string_view name) {
    std::vector<const Method*> found;
    for (const auto& method : methods) {
        if (SameName(method.signature.name, name)) {
            found.push_back(&method);
        }
    }
    return found;
}

const Property* Named(const std::vector<Property>& properties, std::string_view name) {
    const auto found = std::ranges::find_if(
        properties, [name](const Property& property) { return SameName(property.name, name); });
    return found == properties.end() ? nullptr : &*found;
}

/// The first class, from `model` to its ancestors, for which `find` returns something.
template <typename Find>
auto FirstAnswer(const ClassModel* model, Find find) -> decltype(find(*model)) {
    for (; model != nullptr; model = model->super()) {
        auto found = find(*model);
        if (found != decltype(find(*model)){}) {
            return found;
        }
    }
    return {};
}

bool HasArray(const Signature& signature) {
    return signature.result.kind == Kind::Array ||
           std::ranges::any_of(signature.parameters, [](const Parameter& parameter) {
               return parameter.type.kind == Kind::Array;
           });
}

/// Reads the entries of a table that programs can name: hidden ones, too, unless the host is wrong
/// there.
template <typename Info, typename Member, typename Read>
void AppendKnown(const std::vector<Info>& infos, std::vector<Member>& members, const Read& read) {
    for (const auto& info : infos) {
        const bool isHidden = std::ranges::any_of(info.attributes, [](const auto& attribute) {
            return SameName(attribute.first, "Hidden");
        });
        if (!(isHidden && IsWrongAbout("compiles-hidden-members"))) {
            members.push_back(read(info));
        }
    }
}

/// The name that a declaration begins with, for one that does not parse.
std::string LeadingName(std::string_view declaration) {
    return std::string(declaration.substr(0, declaration.find_first_of(" (\t")));
}

}  // namespace

bool ClassModel::IsA(const ClassModel& other) const {
    return FirstAnswer(this, [&other](const ClassModel& model) { return &model == &other; });
}

bool ClassModel::IsException() const {
    return FirstAnswer(
        this, [](const ClassModel& model) { return SameName(model.name(), ExceptionRoot); });
}

std::vector<const Method*> ClassModel::FindMethods(std::string_view name) const {
    return FirstAnswer(this,
                       [name](const ClassModel& model) { return Named(model.methods, name); });
}

std::vector<const Method*> ClassModel::FindSharedMethods(std::string_view name) const {
    return FirstAnswer(
        this, [name](const ClassModel& model) { return Named(model.sharedMethods, name); });
}

const Property* ClassModel::FindProperty(std::string_view name) const {
    return FirstAnswer(this,
                       [name](const ClassModel& model) { return Named(model.properties, name); });
}

std::vector<std::string_view> ClassModel::MemberNames() const {
    std::vector<std::string_view> names;
    for (const auto* model = this; model != nullptr; model = model->super()) {
        for (const auto* list : {&model->methods, &model->sharedMethods}) {
            for (const auto& method : *list) {
                names.push_back(method.signature.name);
            }
        }
        for (const auto* list : {&model->properties, &model->sharedProperties}) {
            for (const auto& property : *list) {
                names.push_back(property.name);
            }
        }
        for (const auto& item : model->items) {
            names.push_back(item.name);
        }
    }
    return names;
}

const Property* ClassModel::FindSharedProperty(std::string_view name) const {
    return FirstAnswer(
        this, [name](const ClassModel& model) { return Named(model.sharedProperties, name); });
}

const syntax::Enumeration::Item* ClassModel::FindItem(std::string_view name) const {
    const auto found =
        std::ranges::find_if(items, [name](const auto& item) { return SameName(item.name, name); });
    return found == items.end() ? nullptr : &*found;
}

TypeTable::TypeTable(const Host& host) : constants_(HostConstants(host)) {
    for (const auto name : HostClassNames) {
        if (const auto* info = host.FindClass(name)) {
            AddClass(*info);
        }
    }
    for (const auto name : {PairClass, DictionaryClass, DictionaryEntryClass}) {
        AddClass(Host::Current().ProgramClass(std::string(name)));
    }
    for (const auto* info : host.RegisteredClasses()) {
        AddClass(*info);
    }
    for (auto& [name, model] : classes_) {
        AddMembers(*model);
    }
}

ClassModel& TypeTable::AddClass(const ClassInfo& info) {
    if (const auto found = classes_.find(info.name); found != classes_.end()) {
        return *found->second;
    }
    const ClassModel* super = info.super == nullptr ? nullptr : &AddClass(*info.super);
    return *classes_.emplace(info.name, std::make_unique<ClassModel>(info, super)).first->second;
}

void TypeTable::AddMembers(ClassModel& model) const {
    const auto& info = model.info();
    const auto readMethod = [this](const MethodInfo& method) -> Method {
        auto signature = ReadDeclaration(method.declaration);
        if (HasArray(signature)) {
            signature.problem = "arrays cannot be handed to a plug-in";
        }
        return {.signature = std::move(signature),
                .function = method.function,
                .setter = method.setter,
                .host = {}};
    };
    const auto readProperty = [this](const PropertyInfo& property) {
        return ReadProperty(property);
    };
    AppendKnown(info.methods, model.methods, readMethod);
    AppendKnown(info.sharedMethods, model.sharedMethods, readMethod);
    AppendKnown(info.properties, model.properties, readProperty);
    AppendKnown(info.sharedProperties, model.sharedProperties, readProperty);
    AddHostMembers(model);
}

void TypeTable::AddHostMembers(ClassModel& model) const {
    for (const auto& member : HostPropertiesOf(model.name())) {
        auto signature = ReadDeclaration(member.declaration);
        model.properties.push_back({.name = std::move(signature.name),
                                    .type = signature.result,
                                    .declaration = std::move(signature.declaration),
                                    .problem = std::move(signature.problem),
                                    .host = {member.function, member.setter}});
    }
    const auto addMethods = [&](const std::vector<HostMember>& members, bool areFactories) {
        for (const auto& member : members) {
            model.methods.push_back({.signature = ReadDeclaration(member.declaration),
                                     .host = {member.function, member.setter},
                                     .isFactory = areFactories});
        }
    };
    addMethods(HostMethodsOf(model.name()), false);
    addMethods(HostConstructorsOf(model.name()), false);
    addMethods(HostFactoriesOf(model.name()), true);
}

Signature TypeTable::ReadDeclaration(std::string_view declaration) const {
    try {
        return Resolve(ParseDeclaration(declaration), std::string(declaration));
    } catch (const ProgramError& error) {
        Signature unusable;
        unusable.name = LeadingName(declaration);
        unusable.declaration = declaration;
        unusable.problem = error.what();
        return unusable;
    }
}

Property TypeTable::ReadProperty(const PropertyInfo& info) const {
    Property property{.name = info.name,
                      .type = {},
                      .declaration = info.name + " as " + info.type,
                      .problem = {},
                      .getter = info.getter,
                      .setter = info.setter,
                      .parameter = info.parameter,
                      .host = {}};
    try {
        property.type = Require(ParseTypeName(info.type));
    } catch (const ProgramError& error) {
        property.problem = error.what();
    }
    return property;
}

template <typename ResolveType>
Signature TypeTable::ResolveWith(syntax::Signature syntax, std::string declaration,
                                 ResolveType resolve) {
    Signature signature;
    signature.name = std::move(syntax.name);
    signature.declaration = std::move(declaration);
    for (auto& parameter : syntax.parameters) {
        signature.parameters.push_back({std::move(parameter.name), resolve(parameter.type),
                                        parameter.byRef, std::move(parameter.defaultValue),
                                        parameter.isOptional, parameter.isParamArray,
                                        parameter.isExtended});
    }
    if (syntax.result) {
        signature.result = resolve(*syntax.result);
    }
    return signature;
}

Signature TypeTable::Resolve(syntax::Signature syntax, std::string declaration,
                             std::optional<Type> element) const {
    return ResolveWith(
        std::move(syntax), std::move(declaration), [this, element](const syntax::TypeName& name) {
            if (element && name.name == ElementPlaceholder) {
                return name.dimensions == 0 ? *element : Type::ArrayOf(*element, name.dimensions);
            }
            return Require(name);
        });
}

Signature TypeTable::Resolve(syntax::Signature syntax, std::string declaration,
                             const ErrorList& errors) const {
    return ResolveWith(
        std::move(syntax), std::move(declaration),
        [this, &errors](const syntax::TypeName& name) { return Require(name, errors); });
}

std::optional<Type> TypeTable::Find(std::string_view name) const {
    if (const auto kind = FindKind(name)) {
        return Type{*kind};
    }
    const auto* model = FindClass(name);
    if (model == nullptr) {
        return std::nullopt;
    }
    const bool isEnumeration = model->origin() == ClassModel::Origin::Enumeration;
    return Type{isEnumeration ? Kind::Enumeration : Kind::Instance, model};
}

const ClassModel* TypeTable::FindClass(std::string_view name) const {
    const auto found = classes_.find(name);
    if (found != classes_.end()) {
        return found->second.get();
    }
    return outer_ == nullptr ? nullptr : outer_->FindClass(name);
}

ClassModel& TypeTable::Declare(const std::string& name, ClassModel::Origin origin, Position at) {
    if (Find(name)) {
        throw ProgramError(at, Quoted(name) + " is declared already");
    }
    declared_.push_back(name);
    const ClassInfo* info = nullptr;
    if (origin == ClassModel::Origin::Enumeration) {
        ownInfos_.push_back(std::make_unique<ClassInfo>());
        ownInfos_.back()->name = name;
        info = ownInfos_.back().get();
    } else {
        info = &Host::Current().ProgramClass(name);
    }
    const auto* super = origin == ClassModel::Origin::Enumeration ? nullptr : FindClass("Object");
    return *classes_.emplace(name, std::make_unique<ClassModel>(*info, super, origin))
                .first->second;
}

void TypeTable::KeepFirst(std::size_t count) {
    while (declared_.size() > count) {
        classes_.erase(declared_.back());
        declared_.pop_back();
    }
}

std::vector<std::string_view> TypeTable::Names() const {
    auto names = outer_ == nullptr ? KindNames() : outer_->Names();
    for (const auto& [name, model] : classes_) {
        names.push_back(name);
    }
    return names;
}

std::optional<Type> TypeTable::Find(std::string_view name, std::string_view module) const {
    const auto type = Find(name);
    const bool isThere =
        type &&
        (module.empty() || (type->model != nullptr && SameName(type->model->module, module)));
    return isThere ? type : std::nullopt;
}

void TypeTable::FailWithoutType(const syntax::TypeName& name) const {
    const auto written = name.module.empty() ? name.name : name.module + "." + name.name;
    if (IsUnsupported(std::string_view(written).substr(0, written.find('.')))) {
        throw ProgramError(name.at, "the type " + Quoted(written) + " is not supported here");
    }
    const auto elsewhere = Find(name.name);
    std::string suggestion;
    if (!elsewhere) {
        suggestion = SuggestionFor(name.name, Names());
    } else {
        const bool isInModule = elsewhere->model != nullptr && !elsewhere->model->module.empty();
        suggestion =
            "; there is " +
            Quoted(isInModule ? elsewhere->model->module + "." + NameOf(*elsewhere) : name.name);
    }
    throw ProgramError(name.at, "there is no type " + Quoted(written) + suggestion);
}

Type TypeTable::Require(const syntax::TypeName& name, const ErrorList& errors) const {
    const bool isDoubtful = errors.IsDoubtful(name.name) || errors.IsDoubtful(name.module);
    if (isDoubtful && !Find(name.name, name.module)) {
        throw FollowingError(name.at, "the declaration of the type has an error");
    }
    return Require(name);
}

Type TypeTable::Require(const syntax::TypeName& name) const {
    const auto type = Find(name.name, name.module);
    if (!type) {
        FailWithoutType(name);
    }
    return name.dimensions == 0 ? *type : Type::ArrayOf(*type, name.dimensions);
}

}  // namespace standin::language
