// The objects of the stand-in host: instances of its own classes and of a plug-in's.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "standin/runtime/class_table.hpp"
#include "standin/runtime/host.hpp"
#include "standin/runtime/ledger.hpp"
#include "standin/runtime/string_store.hpp"

namespace standin {

/// What the host keeps in an exception.
struct ExceptionPayload {
    String message = nullptr;
    Integer errorNumber = 0;
};

/// What the host keeps in a Variant that is no object itself.
struct VariantPayload {
    std::int32_t typeCode = 0;
    VariantValue value;
};

/// What the host keeps in a memory block; the plug-in sees `bytes`.
struct BlockPayload {
    VisibleMemory bytes;
    bool hasData = true;
    /// Whether a program reads its numbers with the most significant byte first.
    bool isBigEndian = false;
};

/// What the host keeps in a Date (total seconds) or a DateTime (seconds from 1970).
struct DatePayload {
    double seconds = 0.0;
};

/// What an object of a program's class holds.
struct HeldPayload {
    std::unique_ptr<HeldData> data;
};

using ObjectPayload = std::variant<std::monostate, ExceptionPayload, VariantPayload, BlockPayload,
                                   DatePayload, HeldPayload>;

/// What the host knows of one object. The plug-in sees `memory`.
struct ObjectEntry {
    const ClassEntry* type = nullptr;
    VisibleMemory memory;
    ObjectPayload payload;
    std::uint32_t references = 1;
    std::uint64_t serial = 0;
};

class ObjectStore {
public:
    /// Calls a destructor routine of a plug-in.
    using CallDestructor = std::function<void(Routine destructor, Object object)>;

    ObjectStore(StringStore& strings, std::uint32_t spareReferences, ViolationList& violations,
                AllocationFailures& failures, Quarantine& quarantine, CallDestructor callDestructor)
        : strings_(strings),
          spareReferences_(spareReferences),
          violations_(violations),
          failures_(failures),
          quarantine_(quarantine),
          callDestructor_(std::move(callDestructor)) {}

    // In every routine `user` is the function that is being called, for the report of a violation.

    /// A new object, its instance data zero-filled and its payload of the kind that its class asks
    /// for. Null for a failing allocation.
    Object Make(const ClassEntry& type);
    /// The same for a class of the host's own with its payload ready.
    Object Make(const ClassEntry& type, ObjectPayload payload);

    /// What the host knows of an object; null for null and, with a violation, for a handle that is
    /// not living.
    ObjectEntry* Find(Object object, const char* user);
    void Lock(Object object, const char* user);
    /// Drops a reference; with the last one the object dies.
    void Unlock(Object object, const char* user);

    /// The payload of an object; null when it is null, dead or of another kind.
    template <typename Kind>
    Kind* PayloadOf(Object object, const char* user) {
        ObjectEntry* entry = Find(object, user);
        return entry == nullptr ? nullptr : std::get_if<Kind>(&entry->payload);
    }

    /// Adds the numbers to a report.
    void Count(LedgerCounts& counts) const;
    /// One line for each object that is still there.
    void AppendLeaks(std::vector<std::string>& lines) const;
    /// From now on, what exists now is not counted.
    void ResetLedger();

private:
    void Die(Object object, ObjectEntry& entry, const char* user);
    void ReleasePayload(ObjectPayload& payload, const char* user);
    /// How many texts are held by exceptions and Variants.
    std::int64_t TextsHeld() const;
    void CheckSurroundings(const ObjectEntry& entry, const char* user);

    StringStore& strings_;
    std::uint32_t spareReferences_;
    ViolationList& violations_;
    AllocationFailures& failures_;
    Quarantine& quarantine_;
    CallDestructor callDestructor_;
    HandleTable<ObjectEntry> objects_;
    std::uint64_t lastSerial_ = 0;
    std::uint64_t resetSerial_ = 0;
};

}  // namespace standin
