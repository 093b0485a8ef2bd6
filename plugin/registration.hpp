// Handing a class record to the host, in the form that the host's age asks for.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"

namespace vqz {

/// Fits the record to the host and registers it. On a host of interface version 9 the record is
/// replaced by its old form. A host without "PluginRegisterClass" is left alone.
void RegisterClassDefinition(host_interface::ClassDefinition& record);

/// Rewrites the flag words of the record and its tables that hosts of this age do not understand.
void FixFlags(host_interface::ClassDefinition& record);

/// A new record with the same content whose tables have the old form, or null without memory. The
/// caller frees the record with `platform::FreeBuffer`; the tables stay for good.
host_interface::ClassDefinition* FixClass(const host_interface::ClassDefinition& record);

/// The old form of a table: each entry without its attribute words. Null, with a line in the log,
/// when only one of table and count is there, and null without memory. The result stays for good.
host_interface::PropertyDefinitionVersion9* FixProperties(
    const host_interface::PropertyDefinition* table, std::uint32_t count);
host_interface::MethodDefinitionVersion9* FixMethods(const host_interface::MethodDefinition* table,
                                                     std::uint32_t count);
host_interface::ConstantDefinitionVersion9* FixConstants(
    const host_interface::ConstantDefinition* table, std::uint32_t count);
/// Also writes the address of each old entry into the entry it was made from.
host_interface::EventDefinitionVersion9* FixEvents(host_interface::EventDefinition* table,
                                                   std::uint32_t count);

}  // namespace vqz
