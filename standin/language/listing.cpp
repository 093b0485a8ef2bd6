#include "standin/language/listing.hpp"

#include <stdexcept>
#include <string_view>
#include <vector>

#include "standin/language/names.hpp"
#include "standin/language/suggestions.hpp"

namespace standin::language {
namespace {

std::string MarksOf(const Property& property) {
    if (!property.problem.empty()) {
        return "  (cannot be used: " + property.problem + ")";
    }
    if (property.getter == nullptr) {
        return "  (no routine)";
    }
    return property.setter == nullptr ? "  (read-only)" : "";
}

std::string MarksOf(const Method& method) {
    if (!method.signature.problem.empty()) {
        return "  (cannot be used: " + method.signature.problem + ")";
    }
    if (method.function == nullptr && method.setter == nullptr) {
        return "  (no routine)";
    }
    return method.setter == nullptr ? "" : "  (assignable)";
}

const std::string& DeclarationOf(const Property& property) {
    return property.declaration;
}

const std::string& DeclarationOf(const Method& method) {
    return method.signature.declaration;
}

const std::string& NameOf(const Property& property) {
    return property.name;
}

const std::string& NameOf(const Method& method) {
    return method.signature.name;
}

/// Appends the members that bear a name; all of them without one.
template <typename Members>
void AppendMembers(std::string& text, std::string_view what, const Members& members,
                   std::string_view wanted) {
    for (const auto& member : members) {
        if (!wanted.empty() && !SameName(NameOf(member), wanted)) {
            continue;
        }
        text += "  " + std::string(what) + " " + DeclarationOf(member) + MarksOf(member) + "\n";
    }
}

}  // namespace

std::string ListClasses(const Host& host, const TypeTable& types, std::string_view wanted) {
    const auto dot = wanted.rfind('.');
    const auto className =
        dot == std::string_view::npos ? std::string_view() : wanted.substr(0, dot);
    const auto memberName = dot == std::string_view::npos ? wanted : wanted.substr(dot + 1);
    std::string text;
    std::vector<std::string_view> names;
    for (const auto* info : host.RegisteredClasses()) {
        const auto& model = *types.FindClass(info->name);
        names.push_back(info->name);
        const auto members = model.MemberNames();
        names.insert(names.end(), members.begin(), members.end());
        if (!className.empty() && !SameName(className, info->name)) {
            continue;
        }
        const auto name = SameName(memberName, info->name) ? std::string_view() : memberName;
        std::string lines;
        AppendMembers(lines, "Property", model.properties, name);
        AppendMembers(lines, "Method", model.methods, name);
        AppendMembers(lines, "Shared Property", model.sharedProperties, name);
        AppendMembers(lines, "Shared Method", model.sharedMethods, name);
        if (lines.empty() && !name.empty()) {
            continue;
        }
        text += "Class " + model.name();
        text += info->superName.empty() ? "\n" : ", inherits " + info->superName + "\n";
        text += lines;
    }
    if (text.empty() && !wanted.empty()) {
        throw std::runtime_error("no class and no member is named " + Quoted(wanted) +
                                 SuggestionFor(memberName, names));
    }
    return text;
}

}  // namespace standin::language
