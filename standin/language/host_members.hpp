// Members of the host's own classes, which no plug-in registers.
#pragma once

#include <string_view>
#include <vector>

#include "standin/language/code.hpp"

namespace standin::language {

/// A member of a host class as a table row: its declaration, and functions that get the object
/// first, then the arguments, and for the setter the value.
struct HostMember {
    std::string_view className;
    std::string_view declaration;
    BuiltInFunction function;
    BuiltInFunction setter;
};

/// The properties and methods that a class of that name has.
std::vector<HostMember> HostPropertiesOf(std::string_view className);
std::vector<HostMember> HostMethodsOf(std::string_view className);
/// Constructors that fill a new object of the class or of one that descends from it.
std::vector<HostMember> HostConstructorsOf(std::string_view className);
/// Constructors that make the object themselves: their first argument is no object.
std::vector<HostMember> HostFactoriesOf(std::string_view className);

}  // namespace standin::language
