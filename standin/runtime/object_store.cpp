#include "standin/runtime/object_store.hpp"

#include <algorithm>
#include <cstring>
#include <new>
#include <span>
#include <utility>

#include "standin/runtime/wrong_facts.hpp"

namespace standin {
namespace {

/// What fills the bytes of an object that are no class's instance data.
constexpr std::byte NoiseByte{0xA7};
/// Bytes of that behind the last instance data.
constexpr std::size_t TailSize = 16;

/// Calls `take` with a class and then with each of its ancestors, upwards.
template <typename Take>
void ForEachClass(const ClassEntry& first, Take take) {
    take(first);
    for (const ClassEntry* type = first.SuperEntry(); type != nullptr; type = type->SuperEntry()) {
        take(*type);
    }
}

/// Calls `take` with the instance data of the object's class and of each ancestor.
template <typename Take>
void ForEachData(const ObjectEntry& entry, Take take) {
    ForEachClass(*entry.type, [&](const ClassEntry& type) {
        take(std::span(entry.memory.data() + type.dataOffset, type.dataSize));
    });
}

/// Fills the first word of instance data with the address of memory that its owner may read and
/// give back, as if another object had lived there.
void FillWithRemains(std::span<std::byte> data) {
    constexpr std::size_t LargestValue = 4096;
    if (data.size() >= sizeof(void*)) {
        void* const remains = ::operator new(LargestValue);
        std::memset(remains, 0, LargestValue);
        std::memcpy(data.data(), &remains, sizeof remains);
    }
}

std::string Describe(const ObjectEntry& entry) {
    return "object #" + std::to_string(entry.serial) + " (" + entry.type->name + ")";
}

ObjectPayload EmptyPayload(Payload kind) {
    switch (kind) {
        case Payload::None:
            return {};
        case Payload::Exception:
            return ExceptionPayload{};
        case Payload::Variant:
            return VariantPayload{};
        case Payload::MemoryBlock:
            return BlockPayload{VisibleMemory(0), true};
        case Payload::Date:
        case Payload::DateTime:
            return DatePayload{};
    }
    return {};
}

}  // namespace

Object ObjectStore::Make(const ClassEntry& type) {
    return Make(type, EmptyPayload(type.payload));
}

Object ObjectStore::Make(const ClassEntry& type, ObjectPayload payload) {
    if (failures_.FailsNow(Allocation::Object)) {
        return nullptr;
    }
    ObjectEntry entry;
    try {
        entry.memory = VisibleMemory(type.objectSize + TailSize);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    entry.type = &type;
    entry.payload = std::move(payload);
    entry.serial = ++lastSerial_;
    entry.references += spareReferences_;
    std::fill_n(entry.memory.data(), entry.memory.size(), NoiseByte);
    ForEachData(entry, [](std::span<std::byte> data) { std::ranges::fill(data, std::byte{0}); });
    if (IsWrongAbout("instance-zero")) {
        ForEachData(entry, FillWithRemains);
    }
    auto* object = reinterpret_cast<Object>(entry.memory.data());
    objects_.Add(object, std::move(entry));
    return object;
}

ObjectEntry* ObjectStore::Find(Object object, const char* user) {
    if (object == nullptr) {
        return nullptr;
    }
    if (ObjectEntry* entry = objects_.Find(object)) {
        return entry;
    }
    const std::string_view epitaph = objects_.Epitaph(object);
    violations_.Add(epitaph.empty()
                        ? std::string(user) + ": the handle is no object of this host"
                        : std::string(user) + ": " + std::string(epitaph) + " was released before");
    return nullptr;
}

void ObjectStore::Lock(Object object, const char* user) {
    if (ObjectEntry* entry = Find(object, user)) {
        ++entry->references;
    }
}

void ObjectStore::Unlock(Object object, const char* user) {
    ObjectEntry* entry = Find(object, user);
    if (entry == nullptr) {
        return;
    }
    if (entry->references > 1) {
        --entry->references;
    } else {
        Die(object, *entry, user);
    }
}

void ObjectStore::Count(LedgerCounts& counts) const {
    counts.objectsMade = lastSerial_ - resetSerial_;
    counts.objectsAlive = static_cast<std::uint64_t>(std::ranges::count_if(
        objects_.Living(), [&](const auto& item) { return item.second.serial > resetSerial_; }));
    for (const auto& [handle, entry] : objects_.Living()) {
        counts.objectReferences += std::int64_t{entry.references} - spareReferences_;
    }
    counts.stringReferences -= TextsHeld();
}

std::int64_t ObjectStore::TextsHeld() const {
    return std::ranges::count_if(objects_.Living(), [](const auto& item) {
        const ObjectPayload& payload = item.second.payload;
        if (const auto* exception = std::get_if<ExceptionPayload>(&payload)) {
            return exception->message != nullptr;
        }
        const auto* variant = std::get_if<VariantPayload>(&payload);
        const String* text = variant == nullptr ? nullptr : std::get_if<String>(&variant->value);
        return text != nullptr && *text != nullptr;
    });
}

void ObjectStore::AppendLeaks(std::vector<std::string>& lines) const {
    std::vector<std::pair<std::uint64_t, std::string>> found;
    for (const auto& [handle, entry] : objects_.Living()) {
        if (entry.serial > resetSerial_) {
            found.emplace_back(entry.serial, "still alive: " + Describe(entry) + ", references: " +
                                                 std::to_string(entry.references));
        }
    }
    std::ranges::sort(found);
    for (auto& [serial, line] : found) {
        lines.push_back(std::move(line));
    }
}

void ObjectStore::ResetLedger() {
    resetSerial_ = lastSerial_;
}

/// The object stays living while its destructors run, so that they may use it, and the last
/// reference is dropped only then.
void ObjectStore::Die(Object object, ObjectEntry& entry, const char* user) {
    constexpr std::uint32_t Dying = 1U << 30U;
    entry.references = Dying;
    ForEachClass(*entry.type, [&](const ClassEntry& type) {
        if (type.destructor != nullptr && !IsWrongAbout("destructor-runs")) {
            callDestructor_(type.destructor, object);
        }
    });
    if (entry.references != Dying) {
        violations_.Add(std::string(user) + ": the destructor of " + Describe(entry) +
                        " changed its references");
    }
    CheckSurroundings(entry, user);
    ReleasePayload(entry.payload, user);
    ObjectEntry dead = objects_.Bury(object, quarantine_.keeps() ? Describe(entry) : "");
    if (auto* block = std::get_if<BlockPayload>(&dead.payload)) {
        quarantine_.Add(std::move(block->bytes), "memory block", dead.serial);
    }
    quarantine_.Add(std::move(dead.memory), "object", dead.serial);
}

void ObjectStore::ReleasePayload(ObjectPayload& payload, const char* user) {
    if (const auto* exception = std::get_if<ExceptionPayload>(&payload)) {
        strings_.Unlock(exception->message, user);
    } else if (const auto* variant = std::get_if<VariantPayload>(&payload)) {
        if (const String* text = std::get_if<String>(&variant->value)) {
            strings_.Unlock(*text, user);
        }
    }
}

void ObjectStore::CheckSurroundings(const ObjectEntry& entry, const char* user) {
    std::vector<bool> isData(entry.memory.size(), false);
    ForEachData(entry, [&](std::span<std::byte> data) {
        const auto first = isData.begin() + (data.data() - entry.memory.data());
        std::fill_n(first, data.size(), true);
    });
    for (std::size_t k = 0; k < isData.size(); ++k) {
        if (!isData[k] && entry.memory.data()[k] != NoiseByte) {
            violations_.Add(std::string(user) + ": the memory around the instance data of " +
                            Describe(entry) + " was overwritten");
            return;
        }
    }
}

}  // namespace standin
