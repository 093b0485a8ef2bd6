// Registers class records with the host, in the form that a host of its release reads.
//
// The plug-in's classes do not need all of this now: their tables have no events and no constants,
// and none of their flags is unclassified. It is here so that a class with these registers like any
// other.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"

namespace vqz {

/// Adapts the record to the host and registers it. On a host of interface version 9, which is
/// always a 32-bit one, the record is replaced by its old form. A host without
/// "PluginRegisterClass" gets no class; the record is adapted all the same.
void RegisterClassDefinition(host_interface::ClassDefinition& record);

/// Replaces flags of the record and its tables that the host's release does not know.
void FixFlags(host_interface::ClassDefinition& record);

#if HOST_INTERFACE_32_BIT
/// A copy of the record whose tables have the old form; null when memory is missing. The caller
/// frees the record with `platform::FreeBuffer`. The tables are never freed: the host keeps using
/// them.
host_interface::ClassDefinition* FixClass(const host_interface::ClassDefinition& record);

/// The old form of a table: a copy of each entry without its attributes. Null when memory is
/// missing; null and a line in the log when there is a table but no count, or a count but no table.
/// The result is never freed.
host_interface::PropertyDefinitionVersion9* FixProperties(
    const host_interface::PropertyDefinition* table, std::uint32_t count);
host_interface::MethodDefinitionVersion9* FixMethods(const host_interface::MethodDefinition* table,
                                                     std::uint32_t count);
host_interface::ConstantDefinitionVersion9* FixConstants(
    const host_interface::ConstantDefinition* table, std::uint32_t count);
/// Also stores the address of each old entry in the entry that it was copied from.
host_interface::EventDefinitionVersion9* FixEvents(host_interface::EventDefinition* table,
                                                   std::uint32_t count);
#endif

}  // namespace vqz
