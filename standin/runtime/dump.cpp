#include <array>
#include <cstdio>
#include <map>
#include <string>

#include "standin/runtime/host.hpp"

namespace standin {
namespace {

std::string Hex(std::uint32_t value) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "0x%X", static_cast<unsigned>(value));
    return text.data();
}

std::string InQuotes(const std::string& text) {
    return "\"" + text + "\"";
}

/// Writes the dump and remembers at which entry each routine was seen first.
class TableDump {
public:
    std::string Write(const Host& host) {
        const auto version = host.pluginInterfaceVersion();
        Line("interface version " + (version ? std::to_string(*version) : "not registered"));
        for (const ClassInfo* info : host.RegisteredClasses()) {
            Class(*info);
        }
        return text_;
    }

private:
    void Line(const std::string& line) { text_ += line + "\n"; }

    void Class(const ClassInfo& info) {
        className_ = info.name;
        Line("");
        Line("class " + info.name);
        Line("  version " + std::to_string(info.version));
        Line("  superclass " + (info.superName.empty() ? "none" : info.superName));
        Line("  data size " + std::to_string(info.dataSize));
        Line("  flags " + Hex(info.flags));
        Line("  constructor: " + Seen(info.constructor, "constructor"));
        Line("  destructor: " + Seen(info.destructor, "destructor"));
        Properties("property", "properties", info.properties);
        Methods("method", "methods", info.methods);
        Declarations("events", info.events);
        Declarations("constants", info.constants);
        Properties("shared property", "shared properties", info.sharedProperties);
        Methods("shared method", "shared methods", info.sharedMethods);
    }

    void Properties(const std::string& kind, const std::string& heading,
                    const std::vector<PropertyInfo>& properties) {
        Heading(heading, properties.size());
        int number = 0;
        for (const PropertyInfo& property : properties) {
            const std::string place = kind + " " + std::to_string(++number);
            Entry(number, InQuotes(property.name) + " as " + InQuotes(property.type),
                  property.flags, property.attributes);
            if (!property.group.empty()) {
                Line("      group " + InQuotes(property.group));
            }
            if (property.parameter != 0) {
                Line("      parameter " + std::to_string(property.parameter));
            }
            Line("      getter: " + Seen(property.getter, "getter of " + place));
            Line("      setter: " + Seen(property.setter, "setter of " + place));
        }
    }

    void Methods(const std::string& kind, const std::string& heading,
                 const std::vector<MethodInfo>& methods) {
        Heading(heading, methods.size());
        int number = 0;
        for (const MethodInfo& method : methods) {
            const std::string place = kind + " " + std::to_string(++number);
            Entry(number, InQuotes(method.declaration), method.flags, method.attributes);
            Line("      function: " + Seen(method.function, place));
            if (method.setter != nullptr) {
                Line("      setter: " + Seen(method.setter, "setter of " + place));
            }
        }
    }

    void Declarations(const std::string& heading, const std::vector<DeclarationInfo>& entries) {
        Heading(heading, entries.size());
        int number = 0;
        for (const DeclarationInfo& entry : entries) {
            Entry(++number, InQuotes(entry.declaration), entry.flags, entry.attributes);
        }
    }

    void Heading(const std::string& heading, std::size_t count) {
        Line("  " + heading + ": " + std::to_string(count));
    }

    void Entry(int number, const std::string& what, std::uint32_t flags,
               const Attributes& attributes) {
        std::string line = "    " + std::to_string(number) + ". " + what + ", flags " + Hex(flags);
        for (const auto& [name, value] : attributes) {
            line += ", attribute " + name + " = " + InQuotes(value);
        }
        Line(line);
    }

    /// What the dump says about a routine: absent, present, or the same as in an earlier entry.
    std::string Seen(Routine routine, const std::string& place) {
        if (routine == nullptr) {
            return "none";
        }
        const auto [first, isNew] = firstSeen_.try_emplace(routine, Place{className_, place});
        if (isNew) {
            return "present";
        }
        const bool sameClass = first->second.className == className_;
        return "same routine as " + (sameClass ? "" : first->second.className + " ") +
               first->second.entry;
    }

    struct Place {
        std::string className;
        std::string entry;
    };

    std::string text_;
    std::string className_;
    std::map<Routine, Place> firstSeen_;
};

}  // namespace

std::string DumpTables(const Host& host) {
    return TableDump().Write(host);
}

}  // namespace standin
