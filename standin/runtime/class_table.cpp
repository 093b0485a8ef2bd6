#include "standin/runtime/class_table.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <utility>

namespace standin {
namespace {

using host_interface::ClassDefinition;

/// The part of an object that belongs to the host alone.
constexpr std::size_t ObjectHeader = 5 * sizeof(void*);
/// Instance data begins at a multiple of this and of nothing larger, as far as a plug-in may know.
constexpr std::size_t DataAlignment = sizeof(void*);
/// Interface versions up to this one read the short table entries.
constexpr std::int32_t LastShortVersion = 9;
constexpr std::uint32_t DataSizeUnit = 16;

struct HostClass {
    std::string_view name;
    std::string_view super;
    Payload payload;
};

/// Every superclass stands before its subclasses.
constexpr std::array HostClasses = {
    HostClass{"Object", "", Payload::None},
    HostClass{"RuntimeException", "Object", Payload::Exception},
    HostClass{"IllegalCastException", "RuntimeException", Payload::Exception},
    HostClass{"InvalidArgumentException", "RuntimeException", Payload::Exception},
    HostClass{"KeyNotFoundException", "RuntimeException", Payload::Exception},
    HostClass{"NilObjectException", "RuntimeException", Payload::Exception},
    HostClass{"OutOfBoundsException", "RuntimeException", Payload::Exception},
    HostClass{"OutOfMemoryException", "RuntimeException", Payload::Exception},
    HostClass{"StackOverflowException", "RuntimeException", Payload::Exception},
    HostClass{"TypeMismatchException", "RuntimeException", Payload::Exception},
    HostClass{"UnsupportedOperationException", "RuntimeException", Payload::Exception},
    HostClass{"Variant", "Object", Payload::Variant},
    HostClass{"_VariantUInt32", "Variant", Payload::Variant},
    HostClass{"_VariantUInt64", "Variant", Payload::Variant},
    HostClass{"MemoryBlock", "Object", Payload::MemoryBlock},
    HostClass{"Date", "Object", Payload::Date},
    HostClass{"DateTime", "Object", Payload::DateTime},
};

unsigned char Lower(char c) {
    return static_cast<unsigned char>(std::tolower(static_cast<unsigned char>(c)));
}

bool IsNameCharacter(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// Reads one record; every text that must be there and is not becomes a violation.
class RecordReader {
public:
    RecordReader(std::string className, bool shortEntries, ViolationList& violations)
        : className_(std::move(className)), shortEntries_(shortEntries), violations_(violations) {}

    void Complain(const std::string& what) {
        violations_.Add("PluginRegisterClass: class \"" + className_ + "\": " + what);
    }

private:
    std::string Text(const char* text, const std::string& complaint) {
        if (text == nullptr || *text == '\0') {
            Complain(complaint);
            return {};
        }
        return text;
    }

    /// The entries of a table in its long or short form. The plug-in's pointer has the type of the
    /// long form in either case.
    template <typename Short, typename Long, typename ReadEntry>
    auto Table(const Long* table, std::uint32_t count, const std::string& tableName,
               ReadEntry readEntry) {
        std::vector<decltype(readEntry(*table, tableName))> infos;
        if ((table == nullptr) != (count == 0)) {
            Complain("the " + tableName + " table and its count disagree");
        }
        if (table == nullptr) {
            return infos;
        }
        for (std::uint32_t k = 0; k < count; ++k) {
            const std::string place = tableName + " " + std::to_string(k + 1);
            infos.push_back(shortEntries_
                                ? readEntry(reinterpret_cast<const Short*>(table)[k], place)
                                : readEntry(table[k], place));
        }
        return infos;
    }

    template <typename Entry>
    PropertyInfo Read(const Entry& entry, const std::string& place) {
        PropertyInfo info;
        info.name = Text(entry.name, place + " has no name");
        info.type = Text(entry.type, place + " has no type");
        info.flags = entry.flags;
        info.getter = entry.getter;
        info.setter = entry.setter;
        info.parameter = entry.parameter;
        info.attributes = ReadAttributes(entry, place);
        info.group = entry.group == nullptr ? "" : entry.group;
        return info;
    }

    /// Only the long forms have attributes.
    template <typename Entry>
    Attributes ReadAttributes([[maybe_unused]] const Entry& entry,
                              [[maybe_unused]] const std::string& place) {
        Attributes attributes;
        if constexpr (requires { entry.attributes; }) {
            if ((entry.attributes == nullptr) != (entry.attributeCount == 0)) {
                Complain(place + ": the attributes and their count disagree");
            }
            const std::uint32_t count = entry.attributes == nullptr ? 0 : entry.attributeCount;
            for (std::uint32_t k = 0; k < count; ++k) {
                const host_interface::AttributeDefinition& attribute = entry.attributes[k];
                attributes.emplace_back(
                    Text(attribute.name, place + " has an attribute without name"),
                    attribute.value == nullptr ? "" : attribute.value);
            }
        }
        return attributes;
    }

public:
    std::vector<PropertyInfo> Properties(const host_interface::PropertyDefinition* table,
                                         std::uint32_t count, const char* tableName) {
        return Table<host_interface::PropertyDefinitionVersion9>(
            table, count, tableName,
            [this](const auto& entry, const std::string& place) { return Read(entry, place); });
    }

    std::vector<MethodInfo> Methods(const host_interface::MethodDefinition* table,
                                    std::uint32_t count, const char* tableName) {
        return Table<host_interface::MethodDefinitionVersion9>(
            table, count, tableName, [this](const auto& entry, const std::string& place) {
                MethodInfo info;
                info.declaration = Text(entry.declaration, place + " has no declaration");
                info.flags = entry.flags;
                info.function = entry.function;
                info.setter = entry.setterFunction;
                info.attributes = ReadAttributes(entry, place);
                return info;
            });
    }

    std::vector<DeclarationInfo> Events(const host_interface::EventDefinition* table,
                                        std::uint32_t count) {
        return Table<host_interface::EventDefinitionVersion9>(
            table, count, "event", [this](const auto& entry, const std::string& place) {
                return DeclarationInfo{Text(entry.declaration, place + " has no declaration"), 0,
                                       ReadAttributes(entry, place)};
            });
    }

    std::vector<DeclarationInfo> Constants(const host_interface::ConstantDefinition* table,
                                           std::uint32_t count) {
        return Table<host_interface::ConstantDefinitionVersion9>(
            table, count, "constant", [this](const auto& entry, const std::string& place) {
                return DeclarationInfo{Text(entry.declaration, place + " has no declaration"),
                                       entry.flags, ReadAttributes(entry, place)};
            });
    }

private:
    std::string className_;
    bool shortEntries_;
    ViolationList& violations_;
};

}  // namespace

bool SameName(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, Lower, Lower);
}

bool NameLess::operator()(std::string_view left, std::string_view right) const {
    return std::ranges::lexicographical_compare(left, right, {}, Lower, Lower);
}

std::string NormalDeclaration(std::string_view declaration) {
    std::string normal;
    bool blank = false;
    for (const char c : declaration) {
        if (std::isspace(static_cast<unsigned char>(c)) != 0) {
            blank = true;
            continue;
        }
        if (blank && !normal.empty() && IsNameCharacter(normal.back()) && IsNameCharacter(c)) {
            normal += ' ';
        }
        blank = false;
        normal += static_cast<char>(Lower(c));
    }
    if (const std::size_t empty = normal.find("()"); empty != std::string::npos) {
        const bool nameFollows = empty + 2 < normal.size() && IsNameCharacter(normal[empty + 2]);
        normal.replace(empty, 2, nameFollows ? " " : "");
    }
    return normal;
}

bool ClassInfo::IsA(const ClassInfo& other) const {
    for (const ClassInfo* info = this; info != nullptr; info = info->super) {
        if (info == &other) {
            return true;
        }
    }
    return false;
}

const MethodInfo& ClassInfo::Method(std::string_view pattern) const {
    std::string declaration;
    for (const char character : pattern) {
        declaration.append(character == '$' ? name : std::string(1, character));
    }
    for (const auto* list : {&methods, &sharedMethods}) {
        const auto found = std::ranges::find(*list, declaration, &MethodInfo::declaration);
        if (found != list->end()) {
            return *found;
        }
    }
    throw std::runtime_error(name + " has no method " + declaration);
}

const PropertyInfo& ClassInfo::Property(std::string_view propertyName) const {
    const auto found = std::ranges::find(properties, propertyName, &PropertyInfo::name);
    if (found == properties.end()) {
        throw std::runtime_error(name + " has no property " + std::string(propertyName));
    }
    return *found;
}

ClassTable::ClassTable(const std::set<std::string, std::less<>>& missing) {
    for (const HostClass& hostClass : HostClasses) {
        const bool lacking = std::ranges::any_of(
            missing, [&](const std::string& name) { return SameName(name, hostClass.name); });
        if (lacking) {
            continue;
        }
        ClassEntry& entry = Add(hostClass.name);
        entry.super = hostClass.super.empty() ? nullptr : Find(hostClass.super);
        entry.superName = hostClass.super;
        entry.payload = hostClass.payload;
        entry.objectSize = ObjectHeader;
    }
}

const ClassEntry* ClassTable::Register(ClassDefinition& record,
                                       std::optional<std::int32_t> interfaceVersion,
                                       ViolationList& violations) {
    if (record.name == nullptr || *record.name == '\0') {
        violations.Add("PluginRegisterClass: a class without a name");
        return nullptr;
    }
    const auto version = interfaceVersion.value_or(static_cast<std::int32_t>(record.version));
    RecordReader reader(record.name, version <= LastShortVersion, violations);
    if (!interfaceVersion) {
        reader.Complain("registered before \"RegisterPluginVersion\" was called");
    } else if (record.version != static_cast<std::uint32_t>(version)) {
        reader.Complain("its version is " + std::to_string(record.version) +
                        ", but the plug-in registered itself as " + std::to_string(version));
    }
    if (record.dataSize % DataSizeUnit != 0) {
        reader.Complain("its data size " + std::to_string(record.dataSize) + " is no multiple of " +
                        std::to_string(DataSizeUnit));
    }

    const ClassEntry* known = Find(record.name);
    if (known != nullptr && known->record == nullptr) {
        reader.Complain("the host has a class of that name");
        return nullptr;
    }
    const std::string superName = record.superName == nullptr ? "" : record.superName;
    const ClassEntry* super = Find(superName.empty() ? "Object" : superName);
    if (super == nullptr) {
        reader.Complain("its superclass \"" + superName + "\" is not known");
        super = Find("Object");
    }

    ClassEntry& entry = known != nullptr ? *byName_.find(record.name)->second : Add(record.name);
    if (known == nullptr) {
        registered_.push_back(&entry);
        // A different offset in every class, so that no plug-in takes it for a constant.
        const std::size_t superSize = super == nullptr ? ObjectHeader : super->objectSize;
        entry.dataOffset =
            static_cast<std::uint32_t>(superSize + DataAlignment * (1 + registered_.size()));
    }
    entry.super = super;
    entry.superName = superName;
    entry.record = &record;
    entry.version = record.version;
    entry.flags = record.flags;
    entry.dataSize = record.dataSize;
    entry.payload = super == nullptr ? Payload::None : super->payload;
    entry.objectSize = entry.dataOffset + entry.dataSize;
    entry.constructor = record.constructor;
    entry.destructor = record.destructor;
    entry.properties = reader.Properties(record.properties, record.propertyCount, "property");
    entry.methods = reader.Methods(record.methods, record.methodCount, "method");
    entry.events = reader.Events(record.events, record.eventCount);
    entry.constants = reader.Constants(record.constants, record.constantCount);
    entry.sharedProperties =
        reader.Properties(record.sharedProperties, record.sharedPropertyCount, "shared property");
    entry.sharedMethods =
        reader.Methods(record.sharedMethods, record.sharedMethodCount, "shared method");
    record.instanceDataOffset = entry.dataOffset;
    return &entry;
}

const ClassEntry* ClassTable::Find(std::string_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

const ClassEntry* ClassTable::FromReference(host_interface::ClassReference reference) const {
    const auto found = std::ranges::find_if(
        entries_, [&](const ClassEntry& entry) { return ReferenceOf(entry) == reference; });
    return found == entries_.end() ? nullptr : &*found;
}

host_interface::ClassReference ClassTable::ReferenceOf(const ClassEntry& entry) {
    // A reference is only ever compared, never looked into.
    return reinterpret_cast<host_interface::ClassReference>(const_cast<ClassEntry*>(&entry));
}

ClassEntry& ClassTable::Add(std::string_view name) {
    ClassEntry& entry = entries_.emplace_back();
    entry.name = name;
    byName_.emplace(entry.name, &entry);
    return entry;
}

}  // namespace standin
