#include "standin/language/listing.hpp"

#include <string_view>

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

template <typename Members>
void AppendMembers(std::string& text, std::string_view what, const Members& members) {
    for (const auto& member : members) {
        text += "  " + std::string(what) + " " + DeclarationOf(member) + MarksOf(member) + "\n";
    }
}

}  // namespace

std::string ListClasses(const Host& host, const TypeTable& types) {
    std::string text;
    for (const auto* info : host.RegisteredClasses()) {
        const auto& model = *types.FindClass(info->name);
        text += "Class " + model.name();
        text += info->superName.empty() ? "\n" : ", inherits " + info->superName + "\n";
        AppendMembers(text, "Property", model.properties);
        AppendMembers(text, "Method", model.methods);
        AppendMembers(text, "Shared Property", model.sharedProperties);
        AppendMembers(text, "Shared Method", model.sharedMethods);
    }
    return text;
}

}  // namespace standin::language
