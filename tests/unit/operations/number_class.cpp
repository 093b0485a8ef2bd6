#include "tests/unit/operations/number_class.hpp"

#include <algorithm>

namespace operation_tests {

void LoadedHost::SetDebugging(bool on) {
    const standin::ClassInfo& type = *host_.FindClass(ClassName<Number256>);
    const auto debugging = std::ranges::find(type.sharedProperties, std::string("Debugging"),
                                             &standin::PropertyInfo::name);
    REQUIRE((debugging != type.sharedProperties.end()));
    standin::CallArguments arguments;
    arguments.Add(on);
    host_.Call(debugging->setter, arguments, standin::ReturnKind::None);
    host_.TakeDebugLog();
}

std::string DeclarationOf(std::string_view pattern, std::string_view className) {
    std::string declaration;
    for (const char character : pattern) {
        if (character == '$') {
            declaration += className;
        } else {
            declaration += character;
        }
    }
    return declaration;
}

}  // namespace operation_tests
