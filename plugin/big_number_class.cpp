#include "plugin/number_class_table.hpp"

namespace vqz {

host_interface::ClassDefinition NumberClass<BigNumberValue>::Record =
    NumberRecord<BigNumberValue>();

}  // namespace vqz
