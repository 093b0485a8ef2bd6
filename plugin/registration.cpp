#include "plugin/registration.hpp"

#include <cstddef>
#include <cstring>
#include <span>

#include "host/debug_log.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/startup_globals.hpp"

namespace vqz {
namespace {

using namespace host_interface;

#if HOST_INTERFACE_32_BIT
/// The first interface version whose hosts read the long table entries.
constexpr std::uint32_t FirstVersionWithAttributes = 10;
#endif
/// Instance data comes in multiples of this many bytes.
constexpr std::size_t DataSizeUnit = 16;

constexpr std::size_t RoundedUp(std::size_t size) {
    return (size + DataSizeUnit - 1) / DataSizeUnit * DataSizeUnit;
}

std::uint32_t FixedFlags(std::uint32_t word) {
    constexpr std::uint32_t DesktopFamily = flags::Desktop | flags::Web | flags::Console;
    constexpr std::uint32_t DesktopFamilyAndIos = DesktopFamily | flags::Ios;
    constexpr std::uint32_t Unclassified = 0x40000;

    if (HostVersion < 2020.02 && (word & DesktopFamilyAndIos) == DesktopFamily) {
        word = (word & ~DesktopFamily) | flags::AllTargets;
    }
    if ((word & Unclassified) != 0) {
        word &= ~Unclassified;
        if (HostVersion >= 2010.029) {
            word |= flags::AllTargets;
        }
    }
    return word;
}

template <typename Entry>
void FixFlagsOf(Entry* table, std::size_t count) {
    if (table == nullptr || static_cast<std::ptrdiff_t>(count) < 1) {
        return;
    }
    for (Entry& entry : std::span(table, count)) {
        entry.flags = FixedFlags(entry.flags);
    }
}

#if HOST_INTERFACE_32_BIT
/// Copies the first part of each entry: the old form is the long one without its last members.
template <typename ShortEntry, typename Entry>
ShortEntry* Shortened(const char* name, const Entry* table, std::uint32_t count) {
    static_assert(sizeof(ShortEntry) < sizeof(Entry));
    if ((table == nullptr) != (count == 0)) {
        LogLine("Error: %s called with wrong parameters: %p %d", name,
                static_cast<const void*>(table), static_cast<int>(count));
        return nullptr;
    }
    if (table == nullptr) {
        return nullptr;
    }
    auto* shortTable =
        static_cast<ShortEntry*>(platform::AllocateZeroed(count * sizeof(ShortEntry)));
    if (shortTable != nullptr) {
        for (std::size_t index = 0; index < count; ++index) {
            std::memcpy(&shortTable[index], &table[index], sizeof(ShortEntry));
        }
    }
    return shortTable;
}
#endif

}  // namespace

void FixFlags(ClassDefinition& record) {
    record.flags = FixedFlags(record.flags);
    FixFlagsOf(record.methods, record.methodCount);
    FixFlagsOf(record.sharedMethods, record.sharedMethodCount);
    FixFlagsOf(record.properties, record.propertyCount);
    FixFlagsOf(record.sharedProperties, record.sharedPropertyCount);
}

#if HOST_INTERFACE_32_BIT
PropertyDefinitionVersion9* FixProperties(const PropertyDefinition* table, std::uint32_t count) {
    return Shortened<PropertyDefinitionVersion9>("FixProperties", table, count);
}

MethodDefinitionVersion9* FixMethods(const MethodDefinition* table, std::uint32_t count) {
    return Shortened<MethodDefinitionVersion9>("FixMethods", table, count);
}

ConstantDefinitionVersion9* FixConstants(const ConstantDefinition* table, std::uint32_t count) {
    return Shortened<ConstantDefinitionVersion9>("FixConstants", table, count);
}

EventDefinitionVersion9* FixEvents(EventDefinition* table, std::uint32_t count) {
    auto* shortTable = Shortened<EventDefinitionVersion9>("FixEvents", table, count);
    if (shortTable != nullptr) {
        for (std::size_t index = 0; index < count; ++index) {
            table[index].reference = &shortTable[index];
        }
    }
    return shortTable;
}

ClassDefinition* FixClass(const ClassDefinition& record) {
    auto* old = static_cast<ClassDefinition*>(platform::AllocateZeroed(sizeof(ClassDefinition)));
    if (old == nullptr) {
        return nullptr;
    }
    *old = record;
    old->version = PluginInterfaceVersion;
    old->reservedTable2 = nullptr;
    old->reservedCount2 = 0;
    // A host that gets this record reads old entries through these pointers.
    old->properties = reinterpret_cast<PropertyDefinition*>(
        FixProperties(record.properties, record.propertyCount));
    old->methods =
        reinterpret_cast<MethodDefinition*>(FixMethods(record.methods, record.methodCount));
    old->events = reinterpret_cast<EventDefinition*>(FixEvents(record.events, record.eventCount));
    old->constants =
        reinterpret_cast<ConstantDefinition*>(FixConstants(record.constants, record.constantCount));
    old->sharedMethods = reinterpret_cast<MethodDefinition*>(
        FixMethods(record.sharedMethods, record.sharedMethodCount));
    old->sharedProperties = reinterpret_cast<PropertyDefinition*>(
        FixProperties(record.sharedProperties, record.sharedPropertyCount));
    return old;
}
#endif

void RegisterClassDefinition(ClassDefinition& record) {
    FixFlags(record);
    record.dataSize = RoundedUp(record.dataSize);
#if HOST_INTERFACE_32_BIT
    if (PluginInterfaceVersion < FirstVersionWithAttributes) {
        ClassDefinition* old = FixClass(record);
        if (old == nullptr) {
            // The host would misread long entries, so the class is left out.
            return;
        }
        record = *old;
        host::PluginRegisterClass(&record);
        platform::FreeBuffer(old);
        return;
    }
#endif
    record.version = PluginInterfaceVersion;
    host::PluginRegisterClass(&record);
}

}  // namespace vqz
