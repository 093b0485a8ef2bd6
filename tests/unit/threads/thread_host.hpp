// A host that runs code on several threads at once. It takes no locks and shares nothing between
// objects, so that it puts nothing that threads of the plug-in do into an order: not even where
// they wait for each other.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "interface/host_interface.hpp"

namespace thread_tests {

using host_interface::Object;
using host_interface::String;

/// What `REALPluginMain` gets.
void* Resolve(const char* name);

/// Lets threads meet at each lookup whose result the plug-in keeps, of a function, a global method
/// or a class: the lookup returns once that many threads ask for the same name. So each of them
/// finds the result not yet kept, and keeps it itself. 0 ends that.
void MeetAtLookups(int threadCount);

/// The names that so many threads asked for at once, and those that some waited for in vain.
struct Meetings {
    std::vector<std::string> complete;
    std::vector<std::string> missed;
};
Meetings MeetingsAtLookups();

/// The records of the classes that the plug-in registered, in their order.
const std::vector<host_interface::ClassDefinition*>& Classes();

/// New values, with one reference each.
String MakeText(std::string_view bytes);
Object MakeInstance(const char* className);
Object MakeVariant(host_interface::VariantTypeCode type, std::int64_t value);
Object MakeTextVariant(std::string_view bytes);
Object MakeBlock(std::string_view bytes);

/// Drops one reference; null is allowed.
void Drop(String text);
void Drop(Object object);

/// What the handle holds, for comparing: bytes of a text or block, the number and text of a
/// Variant, nothing for other objects.
std::string Contents(String text);
std::string Contents(Object object);

/// The value that a number object owns.
const void* ValueOf(Object number);

/// How many texts, objects and loans there are now, and how many exceptions were raised so far.
struct Counts {
    std::int64_t alive;
    std::int64_t raised;
};
Counts CountNow();

}  // namespace thread_tests
