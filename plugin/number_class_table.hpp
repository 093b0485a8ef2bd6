// The tables and the record of one number class, made from the rows of its members.
#pragma once

#include "interface/host_interface.hpp"
#include "number/lifecycle.hpp"
#include "number/value/number_object.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/member_descriptions.hpp"
#include "plugin/table_building.hpp"

namespace vqz {

/// The tables of a number class.
template <typename Value>
inline auto Properties = Table(NumberProperties<Value, HelpTexts::Dropped>());
template <typename Value>
inline auto Methods = Table(NumberMethods<Value, HelpTexts::Dropped>());
template <typename Value>
inline auto SharedMethods = Table(NumberSharedMethods<Value, HelpTexts::Dropped>());

/// The record of a number class with its tables.
template <typename Value>
host_interface::ClassDefinition NumberRecord() {
    host_interface::ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberClass<Value>::Name.text;
    record.dataSize = sizeof(NumberInstance<Value>);
    record.destructor = Destruct<Value, "Destructor">().function;
    record.properties = Properties<Value>.data();
    record.propertyCount = Properties<Value>.size();
    record.methods = Methods<Value>.data();
    record.methodCount = Methods<Value>.size();
    record.flags = host_interface::flags::AllTargets;
    record.sharedProperties = SharedProperties.data();
    record.sharedPropertyCount = SharedProperties.size();
    record.sharedMethods = SharedMethods<Value>.data();
    record.sharedMethodCount = SharedMethods<Value>.size();
    return record;
}

}  // namespace vqz
