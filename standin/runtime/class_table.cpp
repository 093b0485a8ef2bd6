#include "standin/runtime/class_table.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>
#include <utility>

#include "standin/runtime/record_layout.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin {
namespace {

using layout::Record;

/// The part of an object that belongs to the host alone.
constexpr std::size_t ObjectHeader = 5 * sizeof(void*);
/// Instance data begins at a multiple of this and of nothing larger, as far as a plug-in may know.
constexpr std::size_t DataAlignment = sizeof(void*);
/// Interface versions up to this one read the short table entries.
constexpr std::int32_t LastShortVersion = 9;
constexpr std::size_t DataSizeUnit = 16;

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

    /// The entries of a table, in the long or the short form of the layout `Entry`.
    template <typename Entry, typename ReadEntry>
    auto Table(layout::Table table, std::size_t count, const std::string& tableName,
               ReadEntry readEntry) {
        std::vector<decltype(readEntry(Record(table), tableName))> infos;
        if ((table == nullptr) != (count == 0)) {
            Complain("the " + tableName + " table and its count disagree");
        }
        if (table == nullptr) {
            return infos;
        }
        const layout::Bytes size = shortEntries_ ? Entry::ShortSize : Entry::Size;
        for (std::size_t k = 0; k < count; ++k) {
            infos.push_back(
                readEntry(Record(table).Next(k, size), tableName + " " + std::to_string(k + 1)));
        }
        return infos;
    }

    /// Only the long forms have attributes.
    template <typename Entry>
    Attributes ReadAttributes(const Record& entry, const std::string& place) {
        Attributes attributes;
        if (shortEntries_) {
            return attributes;
        }
        const layout::Table table = entry.Get(Entry::Attributes);
        const std::size_t count = entry.Get(Entry::AttributeCount);
        if ((table == nullptr) != (count == 0)) {
            Complain(place + ": the attributes and their count disagree");
        }
        for (std::size_t k = 0; table != nullptr && k < count; ++k) {
            const Record attribute = Record(table).Next(k, layout::Attribute::Size);
            const char* value = attribute.Get(layout::Attribute::Value);
            attributes.emplace_back(Text(attribute.Get(layout::Attribute::Name),
                                         place + " has an attribute without name"),
                                    value == nullptr ? "" : value);
        }
        return attributes;
    }

public:
    std::vector<PropertyInfo> Properties(layout::Table table, std::size_t count,
                                         const char* tableName) {
        using Entry = layout::Property;
        return Table<Entry>(table, count, tableName,
                            [this](const Record& entry, const std::string& place) {
                                const char* group = entry.Get(Entry::Group);
                                PropertyInfo info;
                                info.name = Text(entry.Get(Entry::Name), place + " has no name");
                                info.type = Text(entry.Get(Entry::Type), place + " has no type");
                                info.flags = entry.Get(Entry::Flags);
                                info.getter = entry.Get(Entry::Getter);
                                info.setter = entry.Get(Entry::Setter);
                                info.parameter = entry.Get(Entry::Parameter);
                                info.attributes = ReadAttributes<Entry>(entry, place);
                                info.group = group == nullptr ? "" : group;
                                return info;
                            });
    }

    std::vector<MethodInfo> Methods(layout::Table table, std::size_t count, const char* tableName) {
        using Entry = layout::Method;
        return Table<Entry>(table, count, tableName,
                            [this](const Record& entry, const std::string& place) {
                                MethodInfo info;
                                info.declaration = Declaration<Entry>(entry, place);
                                info.flags = entry.Get(Entry::Flags);
                                info.function = entry.Get(Entry::Function);
                                info.setter = entry.Get(Entry::Setter);
                                info.attributes = ReadAttributes<Entry>(entry, place);
                                return info;
                            });
    }

    std::vector<DeclarationInfo> Events(layout::Table table, std::size_t count) {
        using Entry = layout::Event;
        return Table<Entry>(table, count, "event",
                            [this](const Record& entry, const std::string& place) {
                                return DeclarationInfo{Declaration<Entry>(entry, place), 0,
                                                       ReadAttributes<Entry>(entry, place)};
                            });
    }

    std::vector<DeclarationInfo> Constants(layout::Table table, std::size_t count) {
        using Entry = layout::Constant;
        return Table<Entry>(
            table, count, "constant", [this](const Record& entry, const std::string& place) {
                return DeclarationInfo{Declaration<Entry>(entry, place), entry.Get(Entry::Flags),
                                       ReadAttributes<Entry>(entry, place)};
            });
    }

private:
    template <typename Entry>
    std::string Declaration(const Record& entry, const std::string& place) {
        return Text(entry.Get(Entry::Declaration), place + " has no declaration");
    }

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
            return info == this || record == nullptr || !IsWrongAbout("exception-super-class");
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

const ClassEntry* ClassTable::Register(host_interface::ClassDefinition* definition,
                                       std::optional<std::int32_t> interfaceVersion,
                                       ViolationList& violations) {
    using Fields = layout::Class;
    const Record record(definition);
    const auto textOrEmpty = [&record](layout::Field<layout::Text> field) {
        const char* text = record.Get(field);
        return std::string(text == nullptr ? "" : text);
    };
    const std::string name = textOrEmpty(Fields::Name);
    if (name.empty()) {
        violations.Add("PluginRegisterClass: a class without a name");
        return nullptr;
    }
    const std::uint32_t recordVersion = record.Get(Fields::Version);
    const auto version = interfaceVersion.value_or(static_cast<std::int32_t>(recordVersion));
    const bool isShort = version <= LastShortVersion;
    RecordReader reader(name, isShort && layout::IsNarrow, violations);
    if (!interfaceVersion) {
        reader.Complain("registered before \"RegisterPluginVersion\" was called");
    } else if (recordVersion != static_cast<std::uint32_t>(version)) {
        reader.Complain("its version is " + std::to_string(recordVersion) +
                        ", but the plug-in registered itself as " + std::to_string(version));
    }
    if (isShort && !layout::IsNarrow) {
        reader.Complain("its version is " + std::to_string(version) +
                        ", which no 64-bit host reads");
    }
    const std::size_t dataSize = record.Get(Fields::DataSize);
    if (dataSize % DataSizeUnit != 0) {
        reader.Complain("its data size " + std::to_string(dataSize) + " is no multiple of " +
                        std::to_string(DataSizeUnit));
    }

    const ClassEntry* known = Find(name);
    if (known != nullptr && known->record == nullptr) {
        reader.Complain("the host has a class of that name");
        return nullptr;
    }
    const std::string superName = textOrEmpty(Fields::SuperName);
    const ClassEntry* super = Find(superName.empty() ? "Object" : superName);
    if (super == nullptr) {
        reader.Complain("its superclass \"" + superName + "\" is not known");
        super = Find("Object");
    }

    ClassEntry& entry = known != nullptr ? *byName_.find(name)->second : Add(name);
    if (known == nullptr) {
        registered_.push_back(&entry);
        // A different offset in every class, so that no plug-in takes it for a constant.
        const std::size_t superSize = super == nullptr ? ObjectHeader : super->objectSize;
        entry.dataOffset = superSize + DataAlignment * (1 + registered_.size());
    }
    entry.super = super;
    entry.superName = superName;
    entry.record = definition;
    entry.version = recordVersion;
    entry.flags = record.Get(Fields::Flags);
    entry.dataSize = dataSize;
    entry.payload = super == nullptr ? Payload::None : super->payload;
    entry.objectSize = entry.dataOffset + entry.dataSize;
    entry.constructor = record.Get(Fields::Constructor);
    entry.destructor = record.Get(Fields::Destructor);
    entry.properties = reader.Properties(record.Get(Fields::Properties),
                                         record.Get(Fields::PropertyCount), "property");
    entry.methods =
        reader.Methods(record.Get(Fields::Methods), record.Get(Fields::MethodCount), "method");
    entry.events = reader.Events(record.Get(Fields::Events), record.Get(Fields::EventCount));
    entry.constants =
        reader.Constants(record.Get(Fields::Constants), record.Get(Fields::ConstantCount));
    entry.sharedProperties =
        reader.Properties(record.Get(Fields::SharedProperties),
                          record.Get(Fields::SharedPropertyCount), "shared property");
    entry.sharedMethods = reader.Methods(record.Get(Fields::SharedMethods),
                                         record.Get(Fields::SharedMethodCount), "shared method");
    layout::Set(definition, Fields::InstanceDataOffset, entry.dataOffset);
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

const ClassEntry& ClassTable::ProgramClass(const std::string& name) {
    ClassEntry& entry = ofPrograms_[name];
    if (entry.name.empty()) {
        const auto* root = Find("Object");
        entry.name = name;
        entry.super = root;
        entry.objectSize = root == nullptr ? ObjectHeader : root->objectSize;
    }
    return entry;
}

}  // namespace standin
