// What a program can use: the types and classes of the host and of the plug-in, with the members
// that the plug-in's declarations tell.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/language/code.hpp"
#include "standin/language/constants.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/names.hpp"
#include "standin/language/syntax.hpp"
#include "standin/language/types.hpp"
#include "standin/runtime/host.hpp"

namespace standin::language {

/// The type that stands for an array's elements in the declarations of array members.
inline constexpr std::string_view ElementPlaceholder = "Element";

struct Parameter {
    std::string name;
    Type type;
    bool byRef = false;
    /// The literal that fills a missing argument, for an `Enum` the number of the value; null when
    /// the argument must be given.
    std::shared_ptr<const syntax::Expression> defaultValue;
    /// Whether a missing argument is the default of the type.
    bool isOptional = false;
    /// Whether all further arguments come as one array.
    bool isParamArray = false;
    /// Whether the routine is called on it.
    bool isExtended = false;
};

/// The head of anything that is called with arguments.
struct Signature {
    std::string name;
    std::vector<Parameter> parameters;
    /// Kind::None when nothing is returned.
    Type result;
    /// The declaration as written, for messages.
    std::string declaration;
    /// Why the declaration cannot be used (a type that the language does not know, a mistake in
    /// it); empty when it can.
    std::string problem;
};

/// The functions behind a member of one of the host's own classes; null in a plug-in's members.
struct HostAccess {
    BuiltInFunction function = nullptr;
    BuiltInFunction setter = nullptr;
};

/// A method of a class.
struct Method {
    Signature signature;
    Routine function = nullptr;
    Routine setter = nullptr;
    HostAccess host;
    /// Of a constructor of the host: whether it makes the object, instead of filling a new one.
    bool isFactory = false;
    /// Of a class of the program: what runs, with the object as first argument.
    const code::Routine* routine = nullptr;
    bool isPrivate = false;
};

/// A property of a class.
struct Property {
    std::string name;
    Type type;
    /// `Name As Type` as registered, for messages.
    std::string declaration;
    std::string problem;
    Routine getter = nullptr;
    Routine setter = nullptr;
    std::int32_t parameter = 0;
    HostAccess host;
    /// Of a class of the program: which of an object's fields it is.
    std::optional<std::size_t> field = {};
    bool isPrivate = false;
};

/// One class. Members are looked up from the class to its ancestors; the nearest class that has
/// the name counts.
class ClassModel {
public:
    /// What the program declares: a class of its own, or an `Enum`.
    enum class Origin : std::uint8_t { Host, Program, Enumeration };

    ClassModel(const ClassInfo& info, const ClassModel* super, Origin origin = Origin::Host)
        : info_(&info), super_(super), origin_(origin) {}

    const std::string& name() const { return info_->name; }
    const ClassInfo& info() const { return *info_; }
    const ClassModel* super() const { return super_; }
    Origin origin() const { return origin_; }
    bool IsA(const ClassModel& other) const;
    /// Whether objects of this class can be raised.
    bool IsException() const;

    std::vector<const Method*> FindMethods(std::string_view name) const;
    std::vector<const Method*> FindSharedMethods(std::string_view name) const;
    const Property* FindProperty(std::string_view name) const;
    const Property* FindSharedProperty(std::string_view name) const;
    /// The value of an `Enum` that bears a name; null when there is none.
    const syntax::Enumeration::Item* FindItem(std::string_view name) const;

    std::vector<Method> methods;
    std::vector<Method> sharedMethods;
    std::vector<Property> properties;
    std::vector<Property> sharedProperties;
    /// The values of an `Enum`.
    std::vector<syntax::Enumeration::Item> items;
    /// Whether a part of a program's class has an error, so that it may lack what it is asked for.
    bool isIncomplete = false;
    /// Of a type of the program: the module that it belongs to; empty outside of modules.
    std::string module;
    /// Of a class of the program: what gives the fields of a new object their first values.
    const code::Routine* initialiser = nullptr;

    /// The names of all members, those of the ancestors included.
    std::vector<std::string_view> MemberNames() const;

private:
    const ClassInfo* info_;
    const ClassModel* super_;
    Origin origin_;
};

/// Whether errors about values of the type may follow from an error in its class.
inline bool IsIncomplete(Type type) {
    return type.model != nullptr && type.model->isIncomplete;
}

/// Every type by its name.
class TypeTable {
public:
    /// Reads the classes of the host: its own and those that the plug-in registered.
    explicit TypeTable(const Host& host);
    /// The types of a program: its own, and behind them those of `outer`, which outlives it.
    explicit TypeTable(const TypeTable* outer) : outer_(outer) {}
    TypeTable(const TypeTable&) = delete;
    TypeTable& operator=(const TypeTable&) = delete;

    /// Adds a class of the program, or an `Enum`. Throws ProgramError when there is a type of that
    /// name.
    ClassModel& Declare(const std::string& name, ClassModel::Origin origin, Position at);
    /// The model of a type that was declared here.
    ClassModel& OwnModel(std::string_view name) { return *classes_.find(name)->second; }
    /// Forgets the types that were declared here, but for the first ones.
    void KeepFirst(std::size_t count);
    std::size_t declaredCount() const { return declared_.size(); }

    /// What the host tells of itself.
    const Constants& constants() const {
        return outer_ == nullptr ? constants_ : outer_->constants();
    }
    /// The names of all types.
    std::vector<std::string_view> Names() const;

    std::optional<Type> Find(std::string_view name) const;
    /// The same of one that belongs to a module; to any where that is empty.
    std::optional<Type> Find(std::string_view name, std::string_view module) const;
    const ClassModel* FindClass(std::string_view name) const;
    /// The type of a written name; throws ProgramError when there is none.
    Type Require(const syntax::TypeName& name) const;
    /// The same in a program with errors: throws FollowingError where one of them may be the
    /// reason.
    Type Require(const syntax::TypeName& name, const ErrorList& errors) const;
    /// Fills a signature from its syntax. An unknown type throws ProgramError. Where `element` is
    /// given, it takes the place of the type "Element".
    Signature Resolve(syntax::Signature syntax, std::string declaration,
                      std::optional<Type> element = std::nullopt) const;
    /// The same for a routine of a program with errors.
    Signature Resolve(syntax::Signature syntax, std::string declaration,
                      const ErrorList& errors) const;

private:
    /// Fills a signature, `resolve` giving the types.
    template <typename ResolveType>
    static Signature ResolveWith(syntax::Signature syntax, std::string declaration,
                                 ResolveType resolve);
    [[noreturn]] void FailWithoutType(const syntax::TypeName& name) const;
    ClassModel& AddClass(const ClassInfo& info);
    void AddMembers(ClassModel& model) const;
    void AddHostMembers(ClassModel& model) const;
    /// The signature that a declaration tells; what is wrong with it becomes its problem.
    Signature ReadDeclaration(std::string_view declaration) const;
    Property ReadProperty(const PropertyInfo& info) const;

    const TypeTable* outer_ = nullptr;
    /// The names of the types that were declared here, in their order.
    std::vector<std::string> declared_;
    Constants constants_;
    /// What stands for the host's record of an `Enum`, of which there are no objects.
    std::vector<std::unique_ptr<ClassInfo>> ownInfos_;
    std::map<std::string, std::unique_ptr<ClassModel>, NameLess> classes_;
};

}  // namespace standin::language
