#include "plugin/number_class_table.hpp"

namespace vqz {

host_interface::ClassDefinition NumberClass<BiggerNumberValue>::Record =
    NumberRecord<BiggerNumberValue>();

}  // namespace vqz
