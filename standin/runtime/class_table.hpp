// The classes of the stand-in host: its own and those that a plug-in registered.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/runtime/host.hpp"
#include "standin/runtime/ledger.hpp"

namespace standin {

/// What the host itself keeps in the objects of a class.
enum class Payload { None, Exception, Variant, MemoryBlock, Date, DateTime };

/// A class with what only the host knows of it.
struct ClassEntry : ClassInfo {
    Payload payload = Payload::None;
    /// Bytes from an object's address to the end of the instance data of this class.
    std::size_t objectSize = 0;

    const ClassEntry* SuperEntry() const { return static_cast<const ClassEntry*>(super); }
};

/// Whether two names are the same for the host, which ignores the case of ASCII letters.
bool SameName(std::string_view left, std::string_view right);

/// Orders names without regard to the case of ASCII letters.
struct NameLess {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

/// A declaration in the form in which equal ones are the same text: lower case, single blanks, no
/// blanks beside punctuation, and no empty parentheses.
std::string NormalDeclaration(std::string_view declaration);

class ClassTable {
public:
    /// Starts with the host's own classes, without the named ones.
    explicit ClassTable(const std::set<std::string, std::less<>>& missing);

    /// Reads a plug-in's record as a host of that interface version does: the tables hold short
    /// entries up to version 9, which 32-bit hosts alone have, and long ones later. Writes the
    /// record's `instanceDataOffset`. A class that is known already is read anew. Null, with a
    /// violation, for a record without name.
    const ClassEntry* Register(host_interface::ClassDefinition* definition,
                               std::optional<std::int32_t> interfaceVersion,
                               ViolationList& violations);

    /// The class of that name; null when unknown.
    const ClassEntry* Find(std::string_view name) const;
    /// The class that a reference stands for; null for anything else.
    const ClassEntry* FromReference(host_interface::ClassReference reference) const;
    static host_interface::ClassReference ReferenceOf(const ClassEntry& entry);
    /// The class of a program, made where there is none of that name yet. `Find` does not see it.
    const ClassEntry& ProgramClass(const std::string& name);
    /// The plug-in's classes in the order of registration.
    const std::vector<const ClassInfo*>& Registered() const { return registered_; }

private:
    ClassEntry& Add(std::string_view name);

    std::deque<ClassEntry> entries_;
    std::map<std::string, ClassEntry*, NameLess> byName_;
    std::vector<const ClassInfo*> registered_;
    std::map<std::string, ClassEntry, NameLess> ofPrograms_;
};

}  // namespace standin
