#include "tests/unit/threads/thread_host.hpp"

#include <chrono>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <memory>
#include <thread>

namespace host_interface {

/// A text as this host keeps it.
struct StringRecord {
    std::atomic<int> references;
    std::uint32_t encoding;
    std::string bytes;
};

/// An object of any kind as this host keeps it.
struct ObjectRecord {
    std::atomic<int> references;
    /// Of a class of the plug-in; null for what the host makes itself.
    const ClassDefinition* type;
    /// Of a Variant.
    VariantTypeCode variantType;
    std::int64_t number;
    /// Of a Variant or memory block.
    std::string bytes;
    /// The instance data.
    void* data[2];
};

}  // namespace host_interface

namespace thread_tests {
namespace {

namespace functions = host_interface::functions;
using host_interface::BooleanWord;
using host_interface::ClassDefinition;
using host_interface::ClassReference;
using host_interface::HostTextEncoding;
using host_interface::Integer;
using host_interface::ObjectRecord;
using host_interface::StringData;
using host_interface::StringRecord;
using host_interface::VariantTypeCode;

std::vector<ClassDefinition*> classes;
std::atomic<std::int64_t> alive = 0;
std::atomic<std::int64_t> raised = 0;

void Count(std::atomic<std::int64_t>& counter, int difference) {
    counter.fetch_add(difference, std::memory_order_relaxed);
}

String NewText(std::string_view bytes, std::uint32_t encoding) {
    Count(alive, 1);
    return new StringRecord{{1}, encoding, std::string(bytes)};
}

Object NewObject(VariantTypeCode type, std::int64_t number, std::string_view bytes) {
    Count(alive, 1);
    return new ObjectRecord{{1}, nullptr, type, number, std::string(bytes), {}};
}

template <typename T>
T ReadNumber(Object variant) {
    return static_cast<T>(variant->number);
}

void Lend(String text, std::uint32_t encoding, StringData* out) {
    Count(alive, 1);
    *out = {.data = text->bytes.c_str(),
            .length = text->bytes.size(),
            .encoding = encoding,
            .hostPointer = nullptr,
            .hostWord = 0};
}

/// How many threads meet at a lookup; 0 for none.
std::atomic<int> meetingSize = 0;

/// Where threads that look up one name meet. It orders nothing for ThreadSanitizer: all is relaxed.
class Meeting {
public:
    void Join() {
        const int size = meetingSize.load(std::memory_order_relaxed);
        if (size == 0) {
            return;
        }
        arrived_.fetch_add(1, std::memory_order_relaxed);
        // Far longer than a busy machine takes.
        const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(5);
        while (arrived_.load(std::memory_order_relaxed) < size) {
            if (std::chrono::steady_clock::now() > end) {
                wasMissed_.store(true, std::memory_order_relaxed);
                return;
            }
            std::this_thread::yield();
        }
        wasComplete_.store(true, std::memory_order_relaxed);
    }

    bool wasComplete() const { return wasComplete_.load(std::memory_order_relaxed); }
    bool wasMissed() const { return wasMissed_.load(std::memory_order_relaxed); }

private:
    std::atomic<int> arrived_ = 0;
    std::atomic<bool> wasComplete_ = false;
    std::atomic<bool> wasMissed_ = false;
};

struct NamedFunction {
    const char* name;
    void* address;
};

/// What is looked up by other names than those of functions, and then kept.
constexpr const char* VarTypeDeclaration = "VarType(value As Variant) As Integer";
constexpr const char* KeptNames[] = {VarTypeDeclaration, "_VariantUInt32", "_VariantUInt64"};

Meeting meetingsAtNames[std::size(KeptNames)];

/// Meets other threads that look up this name, if it is one of `KeptNames`.
void MeetAt(const char* name) {
    for (std::size_t index = 0; index < std::size(KeptNames); ++index) {
        if (std::strcmp(KeptNames[index], name) == 0) {
            meetingsAtNames[index].Join();
        }
    }
}

/// A function of the host by the type that the plug-in calls it with.
template <typename Type>
NamedFunction Offer(const char* name, Type* function) {
    return {name, reinterpret_cast<void*>(function)};
}

const NamedFunction Offered[] = {
    Offer<functions::REALGetRBVersion>("REALGetRBVersion", [] { return 2023.04; }),
    Offer<functions::RegisterPluginVersion>("RegisterPluginVersion", [](std::int32_t) {}),
    Offer<functions::PluginRegisterClass>("PluginRegisterClass",
                                          [](ClassDefinition* definition) {
                                              definition->instanceDataOffset =
                                                  offsetof(ObjectRecord, data);
                                              classes.push_back(definition);
                                          }),
    Offer<functions::REALinRuntime>("REALinRuntime", [] { return BooleanWord{1}; }),
    Offer<functions::REALBuildStringWithEncoding>(
        "REALBuildStringWithEncoding",
        [](const char* bytes, std::int32_t count, std::uint32_t encoding) {
            return NewText({bytes, static_cast<std::size_t>(count)}, encoding);
        }),
    Offer<functions::RuntimeAddString>("RuntimeAddString",
                                       [](String left, String right) {
                                           return NewText(
                                               Contents(left) + Contents(right),
                                               static_cast<std::uint32_t>(HostTextEncoding::Utf8));
                                       }),
    Offer<functions::REALConvertString>(
        "REALConvertString",
        [](String text, std::uint32_t encoding) { return NewText(Contents(text), encoding); }),
    Offer<functions::PluginGetStringData>("PluginGetStringData",
                                          [](String text, std::uint32_t encoding, StringData* out) {
                                              Lend(text, encoding, out);
                                              return BooleanWord{1};
                                          }),
    Offer<functions::PluginDisposeStringData>("PluginDisposeStringData",
                                              [](StringData*) { Count(alive, -1); }),
    Offer<functions::REALGetStringEncoding>("REALGetStringEncoding",
                                            [](String text) { return text->encoding; }),
    Offer<functions::REALLockString>(
        "REALLockString",
        [](String text) { text->references.fetch_add(1, std::memory_order_relaxed); }),
    Offer<functions::REALUnlockString>("REALUnlockString", [](String text) { Drop(text); }),
    Offer<functions::REALLockObject>(
        "REALLockObject",
        [](Object object) { object->references.fetch_add(1, std::memory_order_relaxed); }),
    Offer<functions::REALUnlockObject>("REALUnlockObject", [](Object object) { Drop(object); }),
    Offer<functions::pluginObjectType>("pluginObjectType",
                                       [](const char* className) -> ClassReference {
                                           MeetAt(className);
                                           for (ClassDefinition* definition : classes) {
                                               if (std::strcmp(definition->name, className) == 0) {
                                                   return reinterpret_cast<ClassReference>(
                                                       definition);
                                               }
                                           }
                                           return nullptr;
                                       }),
    Offer<functions::RuntimeObjectIsa>(
        "RuntimeObjectIsa",
        [](Object object, ClassReference reference) {
            return BooleanWord{reinterpret_cast<ClassReference>(
                                   const_cast<ClassDefinition*>(object->type)) == reference};
        }),
    Offer<functions::PluginNewInstance>("PluginNewInstance", &MakeInstance),
    Offer<functions::RuntimeRaiseException>("RuntimeRaiseException",
                                            [](Object) { Count(raised, 1); }),
    Offer<functions::memoryBlockGetPtr>("memoryBlockGetPtr",
                                        [](Object block) -> void* { return block->bytes.data(); }),
    Offer<functions::memoryBlockGetSize>(
        "memoryBlockGetSize",
        [](Object block) { return static_cast<Integer>(block->bytes.size()); }),
    Offer<functions::newMemoryBlock>("newMemoryBlock",
                                     [](std::int32_t size) {
                                         return MakeBlock(
                                             std::string(static_cast<std::size_t>(size), '\0'));
                                     }),
    Offer<functions::Int32ToVariant>(
        "Int32ToVariant",
        [](std::int32_t value) { return MakeVariant(VariantTypeCode::Int32, value); }),
    Offer<functions::Int64ToVariant>(
        "Int64ToVariant",
        [](std::int64_t value) { return MakeVariant(VariantTypeCode::Int64, value); }),
    Offer<functions::StringToVariant>("StringToVariant",
                                      [](String text) { return MakeTextVariant(Contents(text)); }),
    Offer<functions::VariantToDouble>("VariantToDouble", &ReadNumber<double>),
    Offer<functions::VariantToSingle>("VariantToSingle", &ReadNumber<float>),
    Offer<functions::VariantToInt32>("VariantToInt32", &ReadNumber<std::int32_t>),
    Offer<functions::VariantToInt64>("VariantToInt64", &ReadNumber<std::int64_t>),
    Offer<functions::VariantToUInt32>("VariantToUInt32", &ReadNumber<std::uint32_t>),
    Offer<functions::VariantToUInt64>("VariantToUInt64", &ReadNumber<std::uint64_t>),
    Offer<functions::VariantToString>("VariantToString",
                                      [](Object variant) { return MakeText(variant->bytes); }),
    Offer<functions::REALSetPropValueString>(
        "REALSetPropValueString", [](Object, const char*, String) { return BooleanWord{1}; }),
    Offer<functions::REALSetPropValueInteger>(
        "REALSetPropValueInteger", [](Object, const char*, Integer) { return BooleanWord{1}; }),
    Offer<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod",
                                           [](const char*, const char* declaration) -> void* {
                                               MeetAt(declaration);
                                               functions::VarType* const varType =
                                                   [](Object variant) {
                                                       return static_cast<Integer>(
                                                           variant == nullptr
                                                               ? VariantTypeCode::Nil
                                                               : variant->variantType);
                                                   };
                                               return reinterpret_cast<void*>(varType);
                                           }),
};

Meeting meetingsAtFunctions[std::size(Offered)];

/// Drops a reference; true when it was the last one.
template <typename Record>
bool DropsLast(Record* record) {
    return record != nullptr && record->references.fetch_sub(1, std::memory_order_acq_rel) == 1;
}

}  // namespace

void* Resolve(const char* name) {
    for (std::size_t index = 0; index < std::size(Offered); ++index) {
        if (std::strcmp(Offered[index].name, name) == 0) {
            meetingsAtFunctions[index].Join();
            return Offered[index].address;
        }
    }
    return nullptr;
}

void MeetAtLookups(int threadCount) {
    meetingSize.store(threadCount, std::memory_order_relaxed);
}

Meetings MeetingsAtLookups() {
    Meetings all;
    const auto add = [&](const char* name, const Meeting& meeting) {
        if (meeting.wasComplete()) {
            all.complete.emplace_back(name);
        }
        if (meeting.wasMissed()) {
            all.missed.emplace_back(name);
        }
    };
    for (std::size_t index = 0; index < std::size(Offered); ++index) {
        add(Offered[index].name, meetingsAtFunctions[index]);
    }
    for (std::size_t index = 0; index < std::size(KeptNames); ++index) {
        add(KeptNames[index], meetingsAtNames[index]);
    }
    return all;
}

const std::vector<ClassDefinition*>& Classes() {
    return classes;
}

String MakeText(std::string_view bytes) {
    return NewText(bytes, static_cast<std::uint32_t>(HostTextEncoding::Utf8));
}

Object MakeInstance(const char* className) {
    const Object object = NewObject(VariantTypeCode::Object, 0, "");
    for (ClassDefinition* definition : classes) {
        if (std::strcmp(definition->name, className) == 0) {
            object->type = definition;
        }
    }
    return object;
}

Object MakeVariant(VariantTypeCode type, std::int64_t value) {
    return NewObject(type, value, "");
}

Object MakeTextVariant(std::string_view bytes) {
    return NewObject(VariantTypeCode::String, 0, bytes);
}

Object MakeBlock(std::string_view bytes) {
    return NewObject(VariantTypeCode::Object, 0, bytes);
}

void Drop(String text) {
    if (DropsLast(text)) {
        Count(alive, -1);
        delete text;
    }
}

void Drop(Object object) {
    if (DropsLast(object)) {
        if (object->type != nullptr && object->type->destructor != nullptr) {
            reinterpret_cast<void (*)(Object)>(object->type->destructor)(object);
        }
        Count(alive, -1);
        delete object;
    }
}

std::string Contents(String text) {
    return text == nullptr ? std::string() : text->bytes;
}

std::string Contents(Object object) {
    return object == nullptr ? "Nil" : std::to_string(object->number) + object->bytes;
}

const void* ValueOf(Object number) {
    return number->data[0];
}

Counts CountNow() {
    return {alive.load(std::memory_order_relaxed), raised.load(std::memory_order_relaxed)};
}

}  // namespace thread_tests
