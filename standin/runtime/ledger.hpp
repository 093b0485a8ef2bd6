// What the stand-in host notes about handles and memory: violations, handles that died, memory
// that nobody may touch any more, and allocations that are to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "standin/runtime/host.hpp"

namespace standin {

/// Memory that a plug-in gets to see. A size of zero is legal and has an address of its own.
class VisibleMemory {
public:
    VisibleMemory() = default;
    /// Zero-filled memory of that many bytes; throws std::bad_alloc.
    explicit VisibleMemory(std::size_t size);
    VisibleMemory(VisibleMemory&& other) noexcept;
    VisibleMemory& operator=(VisibleMemory&& other) noexcept;
    ~VisibleMemory();

    std::byte* data() const { return data_; }
    std::size_t size() const { return size_; }

    /// Overwrites the bytes, and makes an address sanitizer report any access to them.
    void Poison();
    /// Whether poisoned bytes were written to since. An address sanitizer reports that by itself,
    /// and then this returns false.
    bool PoisonBroken() const;

private:
    void Release();

    std::byte* data_ = nullptr;
    std::size_t size_ = 0;
    bool poisoned_ = false;
};

/// The violations so far. Repetitions beyond a limit are only counted, so that a plug-in that goes
/// wrong in a loop does not bury the first report.
class ViolationList {
public:
    void Add(std::string text);
    std::vector<std::string> Texts() const;
    void Clear();

private:
    std::vector<std::string> texts_;
    std::uint64_t dropped_ = 0;
};

/// Keeps released memory for a while, poisoned, so that its address is not used again soon, reading
/// through an old pointer does not find the old bytes, and writing through one is noticed.
class Quarantine {
public:
    /// One that does not keep memory frees it at once.
    Quarantine(ViolationList& violations, bool keeps) : violations_(violations), keeps_(keeps) {}

    bool keeps() const { return keeps_; }

    /// `what` and the serial number say in a report whose memory it was: "string", 5.
    void Add(VisibleMemory memory, const char* what, std::uint64_t serial);
    /// Reports what was written to; each memory once.
    void Check();

private:
    struct Released {
        VisibleMemory memory;
        const char* what = "";
        std::uint64_t serial = 0;
    };
    void Check(Released& released);

    ViolationList& violations_;
    bool keeps_;
    std::deque<Released> released_;
    std::size_t bytes_ = 0;
};

/// Decides which allocations fail.
class AllocationFailures {
public:
    /// From now, the n-th allocation of that kind fails (1 is the next), or all from it on.
    void Arm(Allocation kind, int n, bool persistent);
    /// Nothing fails any more; how many allocations did.
    int Disarm();
    /// Counts one allocation; whether it has to fail.
    bool FailsNow(Allocation kind);

private:
    struct Plan {
        int countdown = 0;
        bool persistent = false;
    };
    Plan& PlanOf(Allocation kind);

    Plan strings_;
    Plan objects_;
    int failed_ = 0;
};

/// Remembers what handles that are gone stood for; the oldest are forgotten first.
class DeadHandles {
public:
    /// An empty description is not worth remembering.
    void Add(const void* handle, std::string description);
    /// The address is in use again.
    void Forget(const void* handle) { descriptions_.erase(handle); }
    /// What the handle stood for; empty when it is not known.
    std::string_view Find(const void* handle) const;

private:
    struct Grave {
        std::uint64_t serial = 0;
        std::string description;
    };
    std::unordered_map<const void*, Grave> descriptions_;
    std::deque<std::pair<const void*, std::uint64_t>> order_;
    std::uint64_t nextSerial_ = 0;
};

/// The living and the dead of one kind of handle. `Entry` is what the host knows of a handle.
template <typename Entry>
class HandleTable {
public:
    /// Takes a new handle in; the entry stays where it is until `Bury`.
    Entry& Add(const void* handle, Entry entry) {
        dead_.Forget(handle);
        return living_.insert_or_assign(handle, std::move(entry)).first->second;
    }

    /// The entry of a living handle; null for any other.
    Entry* Find(const void* handle) {
        const auto found = living_.find(handle);
        return found == living_.end() ? nullptr : &found->second;
    }

    /// Takes a living handle out and remembers it as dead if there is a description.
    Entry Bury(const void* handle, std::string description) {
        auto node = living_.extract(handle);
        dead_.Add(handle, std::move(description));
        return std::move(node.mapped());
    }

    /// What a handle that is not living stood for; empty when it never was one of this kind.
    std::string_view Epitaph(const void* handle) const { return dead_.Find(handle); }

    const std::unordered_map<const void*, Entry>& Living() const { return living_; }
    std::unordered_map<const void*, Entry>& Living() { return living_; }

private:
    std::unordered_map<const void*, Entry> living_;
    DeadHandles dead_;
};

/// The start of a text for a report: printable ASCII as it is, everything else as \xNN, in quotes.
std::string Quoted(std::string_view bytes);

}  // namespace standin
