#include "standin/runtime/ledger.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

#include "standin/runtime/memory_budget.hpp"
#include "standin/runtime/sanitizer.hpp"

#if STANDIN_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace standin {
namespace {

constexpr std::size_t QuarantinedMemories = 100'000;
constexpr std::size_t QuarantinedBytes = 32U << 20U;
constexpr std::size_t RememberedHandles = 100'000;
constexpr std::size_t ReportedViolations = 100;
constexpr std::size_t QuotedBytes = 40;
constexpr int PoisonByte = 0xDD;

void ForbidAccess([[maybe_unused]] const std::byte* data, [[maybe_unused]] std::size_t size) {
#if STANDIN_ADDRESS_SANITIZER
    __asan_poison_memory_region(data, size);
#endif
}

void AllowAccess([[maybe_unused]] const std::byte* data, [[maybe_unused]] std::size_t size) {
#if STANDIN_ADDRESS_SANITIZER
    __asan_unpoison_memory_region(data, size);
#endif
}

}  // namespace

// The size is kept exact, so that an address sanitizer sees an access one byte past the end.
VisibleMemory::VisibleMemory(std::size_t size) : size_(size) {
    MemoryBudget::Take(size);
    data_ = static_cast<std::byte*>(std::calloc(1, size == 0 ? 1 : size));
    if (data_ == nullptr) {
        MemoryBudget::Return(size);
        throw std::bad_alloc();
    }
}

VisibleMemory::VisibleMemory(VisibleMemory&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)),
      size_(std::exchange(other.size_, 0)),
      poisoned_(std::exchange(other.poisoned_, false)) {}

VisibleMemory& VisibleMemory::operator=(VisibleMemory&& other) noexcept {
    if (this != &other) {
        Release();
        data_ = std::exchange(other.data_, nullptr);
        size_ = std::exchange(other.size_, 0);
        poisoned_ = std::exchange(other.poisoned_, false);
    }
    return *this;
}

VisibleMemory::~VisibleMemory() {
    Release();
}

void VisibleMemory::Poison() {
    if (data_ == nullptr) {
        return;
    }
    std::memset(data_, PoisonByte, size_);
    ForbidAccess(data_, size_);
    if (!std::exchange(poisoned_, true)) {
        MemoryBudget::Return(size_);
    }
}

bool VisibleMemory::PoisonBroken() const {
#if STANDIN_ADDRESS_SANITIZER
    return false;
#else
    return poisoned_ && std::any_of(data_, data_ + size_, [](std::byte byte) {
               return byte != static_cast<std::byte>(PoisonByte);
           });
#endif
}

void VisibleMemory::Release() {
    if (poisoned_) {
        AllowAccess(data_, size_);
    } else if (data_ != nullptr) {
        MemoryBudget::Return(size_);
    }
    std::free(data_);
    data_ = nullptr;
}

void Quarantine::Add(VisibleMemory memory, const char* what, std::uint64_t serial) {
    if (!keeps_) {
        return;
    }
    memory.Poison();
    bytes_ += memory.size();
    released_.push_back({std::move(memory), what, serial});
    while (released_.size() > QuarantinedMemories || bytes_ > QuarantinedBytes) {
        Check(released_.front());
        bytes_ -= released_.front().memory.size();
        released_.pop_front();
    }
}

void Quarantine::Check() {
    for (Released& released : released_) {
        Check(released);
    }
}

void Quarantine::Check(Released& released) {
    if (released.memory.PoisonBroken()) {
        violations_.Add(std::string(released.what) + " #" + std::to_string(released.serial) +
                        " was written to after its release");
        released.memory.Poison();
    }
}

void ViolationList::Add(std::string text) {
    if (texts_.size() < ReportedViolations) {
        texts_.push_back(std::move(text));
    } else {
        ++dropped_;
    }
}

std::vector<std::string> ViolationList::Texts() const {
    std::vector<std::string> texts = texts_;
    if (dropped_ > 0) {
        texts.push_back("and " + std::to_string(dropped_) + " more violations");
    }
    return texts;
}

void ViolationList::Clear() {
    texts_.clear();
    dropped_ = 0;
}

void AllocationFailures::Arm(Allocation kind, int n, bool persistent) {
    PlanOf(kind) = Plan{n, persistent};
}

int AllocationFailures::Disarm() {
    strings_ = {};
    objects_ = {};
    return std::exchange(failed_, 0);
}

bool AllocationFailures::FailsNow(Allocation kind) {
    Plan& plan = PlanOf(kind);
    if (plan.countdown <= 0) {
        return false;
    }
    if (plan.countdown > 1) {
        --plan.countdown;
        return false;
    }
    if (!plan.persistent) {
        plan.countdown = 0;
    }
    ++failed_;
    return true;
}

AllocationFailures::Plan& AllocationFailures::PlanOf(Allocation kind) {
    return kind == Allocation::String ? strings_ : objects_;
}

void DeadHandles::Add(const void* handle, std::string description) {
    if (description.empty()) {
        return;
    }
    const std::uint64_t serial = nextSerial_++;
    descriptions_.insert_or_assign(handle, Grave{serial, std::move(description)});
    order_.emplace_back(handle, serial);
    if (order_.size() <= RememberedHandles) {
        return;
    }
    const auto [oldest, oldestSerial] = order_.front();
    order_.pop_front();
    const auto found = descriptions_.find(oldest);
    if (found != descriptions_.end() && found->second.serial == oldestSerial) {
        descriptions_.erase(found);
    }
}

std::string_view DeadHandles::Find(const void* handle) const {
    const auto found = descriptions_.find(handle);
    return found == descriptions_.end() ? std::string_view{} : found->second.description;
}

std::string Quoted(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char c : bytes.substr(0, QuotedBytes)) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            text += '\\';
            text += c;
        } else if (code >= 0x20 && code < 0x7F) {
            text += c;
        } else {
            text += "\\x";
            text += Digits[code >> 4U];
            text += Digits[code & 0xFU];
        }
    }
    text += bytes.size() > QuotedBytes ? "…\"" : "\"";
    return text;
}

}  // namespace standin
