#include "plugin/class_tables.hpp"

#include "host/exceptions.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/members/properties.hpp"
#include "plugin/table_building.hpp"

namespace vqz {

std::array<host_interface::PropertyDefinition, 1> SharedProperties =
    Table(NumberSharedProperties<HelpTexts::Dropped>());

host_interface::ClassDefinition NumberErrorRecord = [] {
    host_interface::ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberErrorClass;
    record.superName = "RuntimeException";
    record.flags = host_interface::flags::AllTargets;
    return record;
}();

}  // namespace vqz
