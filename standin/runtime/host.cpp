#include "standin/runtime/host.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "standin/runtime/call.hpp"
#include "standin/runtime/call_record.hpp"
#include "standin/runtime/host_functions.hpp"
#include "standin/runtime/platform.hpp"
#include "standin/runtime/properties.hpp"
#include "standin/runtime/sanitizer.hpp"
#include "standin/runtime/state.hpp"
#include "standin/runtime/variants.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin {
namespace {

/// The name that a report shows when the language, not the plug-in, uses a handle wrongly.
constexpr const char* HostUser = "stand-in host";

/// The offsets, taken in turn, of the stack of a host that keeps four bytes of alignment only.
/// An address sanitizer keeps its notes in units of eight bytes, and needs that much alignment.
#if STANDIN_ADDRESS_SANITIZER
constexpr std::array<std::uint32_t, 1> StackOffsets = {8};
#else
constexpr std::array<std::uint32_t, 3> StackOffsets = {4, 8, 12};
#endif

Host* TheHost = nullptr;

/// A line for each count that is not 0, for a host with spare references.
void AppendBalances(std::vector<std::string>& lines, const LedgerCounts& counts) {
    const auto append = [&](const char* what, std::int64_t count) {
        if (count != 0) {
            lines.push_back(std::string(what) + ": off by " + std::to_string(count));
        }
    };
    append("references of strings", counts.stringReferences);
    append("references of objects", counts.objectReferences);
    append("string data", static_cast<std::int64_t>(counts.stringDataHeld));
}

std::uintptr_t AsWord(Object object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

/// Throws std::invalid_argument for options that no 64-bit host has.
void RequireHostThatExists(const HostOptions& options) {
    if (HOST_INTERFACE_32_BIT != 0) {
        return;
    }
    if (options.misalignedStack || options.changedControlWord) {
        throw std::invalid_argument(std::string(options.misalignedStack
                                                    ? "a misaligned stack"
                                                    : "a changed x87 control word") +
                                    " is a matter of 32-bit hosts; this is a 64-bit one");
    }
    if (options.version.value_or(0.0) < First64BitVersion) {
        throw std::invalid_argument(
            "64-bit hosts tell a version, 2015.03 or a later one; older hosts are 32-bit programs");
    }
}

}  // namespace

void DebugLog::Write(std::string_view line) {
    if (sink) {
        sink(line);
    } else {
        kept.emplace_back(line);
    }
}

Host::State::State(Host& host, HostOptions hostOptions)
    : options(std::move(hostOptions)),
      quarantine(violations, options.remembersReleased),
      classes(options.missing),
      strings(options.unterminatedStrings, options.spareReferences, violations, failures,
              quarantine),
      objects(strings, options.spareReferences, violations, failures, quarantine,
              [&host](Routine destructor, Object object) {
                  const std::array words = {AsWord(object)};
                  host.Call(destructor, words, ReturnKind::None);
              }) {}

const ClassEntry& Host::State::Class(std::string_view name) const {
    if (const ClassEntry* entry = classes.Find(name)) {
        return *entry;
    }
    throw std::runtime_error("the host has no class \"" + std::string(name) + "\"");
}

bool Host::State::Lacks(std::string_view name) const {
    return options.missing.contains(name);
}

bool Host::State::LacksGlobalMethod(std::string_view declaration) const {
    const std::string normal = NormalDeclaration(declaration);
    const std::string name = normal.substr(0, normal.find_first_of("( "));
    return std::ranges::any_of(options.missing, [&](const std::string& missing) {
        const std::string lacking = NormalDeclaration(missing);
        return lacking == normal || lacking == name;
    });
}

Host::Host(HostOptions options) {
    if (TheHost != nullptr) {
        throw std::logic_error("a process has one host at a time");
    }
    RequireHostThatExists(options);
    state_ = std::make_unique<State>(*this, std::move(options));
    TheHost = this;
    platform::CaptureDebugOutput(
        [log = &state_->debugLog](std::string_view line) { log->Write(line); });
}

Host::~Host() {
    platform::CaptureDebugOutput({});
    CallRecord::OfProcess().ForgetRoutines();
    TheHost = nullptr;
}

Host& Host::Current() {
    if (TheHost == nullptr) {
        std::fputs("the plug-in called a host that is gone\n", stderr);
        std::abort();
    }
    return *TheHost;
}

Host::State& Host::state() {
    return *state_;
}
const Host::State& Host::state() const {
    return *state_;
}
const HostOptions& Host::options() const {
    return state_->options;
}

void* Host::Resolve(const char* name) {
    State& state = Current().state();
    const std::string_view asked = name == nullptr ? "" : name;
    const auto lookup = state.lookups.try_emplace(std::string(asked), 0).first;
    ++lookup->second;
    if (CallRecord& record = CallRecord::OfProcess(); record.IsKept()) {
        record.NoteLookup(asked);
    }
    if (state.Lacks(asked) || (asked == VersionFunctionName && !state.options.version)) {
        return nullptr;
    }
    return FindHostFunction(asked);
}

const std::map<std::string, int, std::less<>>& Host::lookups() const {
    return state_->lookups;
}

std::optional<std::int32_t> Host::pluginInterfaceVersion() const {
    return state_->pluginInterfaceVersion;
}

// Classes ---------------------------------------------------------------------------------------

const ClassInfo* Host::FindClass(std::string_view name) const {
    return state_->classes.Find(name);
}

std::vector<const ClassInfo*> Host::RegisteredClasses() const {
    return state_->classes.Registered();
}

// Strings ---------------------------------------------------------------------------------------

String Host::MakeString(std::string_view bytes, HostTextEncoding encoding) {
    return state_->strings.Make(bytes, encoding);
}

String Host::MakeEmptyString(HostTextEncoding encoding) {
    return state_->strings.MakeRecord({}, encoding);
}

std::string Host::Bytes(String text) {
    return std::string(state_->strings.Bytes(text, HostUser));
}

HostTextEncoding Host::Encoding(String text) {
    return state_->strings.Encoding(text, HostUser);
}

String Host::Convert(String text, HostTextEncoding encoding) {
    return state_->strings.Convert(text, encoding, HostUser);
}

std::string Host::Utf8(String text) {
    return state_->strings.BytesAs(text, HostTextEncoding::Utf8, HostUser).value_or(Bytes(text));
}

void Host::Lock(String text) {
    state_->strings.Lock(text, HostUser);
}
void Host::Unlock(String text) {
    state_->strings.Unlock(text, HostUser);
}

std::uint32_t Host::References(String text) {
    return state_->strings.References(text, HostUser);
}

// Objects ---------------------------------------------------------------------------------------

Object Host::MakeObject(const ClassInfo& type) {
    return state_->objects.Make(static_cast<const ClassEntry&>(type));
}

const ClassInfo& Host::ProgramClass(const std::string& name) {
    return state_->classes.ProgramClass(name);
}

Object Host::MakeObject(const ClassInfo& type, std::unique_ptr<HeldData> data) {
    return state_->objects.Make(static_cast<const ClassEntry&>(type), HeldPayload{std::move(data)});
}

HeldData* Host::Held(Object object) {
    auto* const payload = state_->objects.PayloadOf<HeldPayload>(object, HostUser);
    return payload == nullptr ? nullptr : payload->data.get();
}

const ClassInfo& Host::ClassOf(Object object) {
    if (const ObjectEntry* entry = state_->objects.Find(object, HostUser)) {
        return *entry->type;
    }
    throw std::logic_error("the class of an object that is not there");
}

void Host::Lock(Object object) {
    state_->objects.Lock(object, HostUser);
}
void Host::Unlock(Object object) {
    state_->objects.Unlock(object, HostUser);
}

std::uint32_t Host::References(Object object) {
    const ObjectEntry* entry = state_->objects.Find(object, HostUser);
    return entry == nullptr ? 0 : entry->references;
}

void* Host::InstanceData(Object object) {
    const ObjectEntry* entry = state_->objects.Find(object, HostUser);
    return entry == nullptr ? nullptr : entry->memory.data() + entry->type->dataOffset;
}

std::string Host::Message(Object exception) {
    const auto* payload = state_->objects.PayloadOf<ExceptionPayload>(exception, HostUser);
    return payload == nullptr ? std::string{} : Utf8(payload->message);
}

void Host::SetMessage(Object exception, std::string_view utf8) {
    String text = MakeString(utf8, HostTextEncoding::Utf8);
    WriteProperty(*this, exception, "Message", text, HostUser);
    Unlock(text);
}

Integer Host::ErrorNumber(Object exception) {
    const auto* payload = state_->objects.PayloadOf<ExceptionPayload>(exception, HostUser);
    return payload == nullptr ? Integer{0} : payload->errorNumber;
}

void Host::SetErrorNumber(Object exception, Integer number) {
    WriteProperty(*this, exception, "ErrorNumber", number, HostUser);
}

// Values in objects -----------------------------------------------------------------------------

Object Host::MakeVariant(std::int32_t typeCode, VariantValue value) {
    using host_interface::VariantTypeCode;
    const char* unsignedClass = "";
    if (std::holds_alternative<std::uint64_t>(value)) {
        if (typeCode == static_cast<std::int32_t>(VariantTypeCode::Int32)) {
            unsignedClass = IsWrongAbout("variant-of-uint32") ? "" : "_VariantUInt32";
        } else if (typeCode == static_cast<std::int32_t>(VariantTypeCode::Int64)) {
            unsignedClass = IsWrongAbout("variant-of-uint64") ? "" : "_VariantUInt64";
        }
    }
    const ClassEntry* type = state_->classes.Find(unsignedClass);
    const String* text = std::get_if<String>(&value);
    Object variant = state_->objects.Make(type == nullptr ? state_->Class("Variant") : *type,
                                          VariantPayload{typeCode, value});
    if (variant != nullptr && text != nullptr) {
        Lock(*text);
    }
    return variant;
}

std::int32_t Host::VariantType(Object variant) {
    return VariantTypeOf(*state_, variant, HostUser);
}

VariantValue Host::VariantContents(Object variant) {
    const auto* payload = state_->objects.PayloadOf<VariantPayload>(variant, HostUser);
    return payload == nullptr ? VariantValue{} : payload->value;
}

std::int64_t Host::VariantAsInt64(Object variant) {
    return VariantInt64(*state_, variant, HostUser);
}

double Host::VariantAsDouble(Object variant) {
    return VariantDouble(*state_, variant, HostUser);
}

host_interface::Currency Host::VariantAsCurrency(Object variant) {
    return VariantCurrency(*state_, variant, HostUser);
}

String Host::VariantAsString(Object variant) {
    return VariantText(*state_, variant, HostUser);
}

Object Host::MakeMemoryBlock(std::string_view bytes) {
    BlockPayload payload{VisibleMemory(bytes.size()), !state_->options.blocksWithoutData};
    bytes.copy(reinterpret_cast<char*>(payload.bytes.data()), bytes.size());
    return state_->objects.Make(state_->Class("MemoryBlock"), std::move(payload));
}

std::span<std::byte> Host::BlockBytes(Object block) {
    const auto* payload = state_->objects.PayloadOf<BlockPayload>(block, HostUser);
    return payload == nullptr ? std::span<std::byte>{}
                              : std::span(payload->bytes.data(), payload->bytes.size());
}

void Host::ResizeBlock(Object block, std::size_t size) {
    auto* const payload = state_->objects.PayloadOf<BlockPayload>(block, HostUser);
    if (payload == nullptr) {
        return;
    }
    VisibleMemory resized(size);
    std::copy_n(payload->bytes.data(), std::min(size, payload->bytes.size()), resized.data());
    payload->bytes = std::move(resized);
}

bool Host::IsBigEndian(Object block) {
    const auto* payload = state_->objects.PayloadOf<BlockPayload>(block, HostUser);
    return payload != nullptr && payload->isBigEndian;
}

void Host::SetBigEndian(Object block, bool isBigEndian) {
    if (auto* payload = state_->objects.PayloadOf<BlockPayload>(block, HostUser)) {
        payload->isBigEndian = isBigEndian;
    }
}

Object Host::MakeDate(double totalSeconds) {
    return state_->objects.Make(state_->Class("Date"), DatePayload{totalSeconds});
}

Object Host::MakeDateTime(double secondsFrom1970) {
    return state_->objects.Make(state_->Class("DateTime"), DatePayload{secondsFrom1970});
}

double Host::Seconds(Object date) {
    const auto* payload = state_->objects.PayloadOf<DatePayload>(date, HostUser);
    return payload == nullptr ? 0.0 : payload->seconds;
}

void Host::SetSeconds(Object date, double seconds) {
    if (auto* const payload = state_->objects.PayloadOf<DatePayload>(date, HostUser)) {
        payload->seconds = seconds;
    }
}

// Calls -----------------------------------------------------------------------------------------

ReturnValue Host::Call(Routine routine, const CallArguments& arguments, ReturnKind kind) {
    if (routine == nullptr) {
        throw std::logic_error("a call of a routine that is not there");
    }
    CallConditions conditions;
    conditions.changedControlWord = state_->options.changedControlWord;
    if (state_->options.misalignedStack) {
        conditions.stackOffset = StackOffsets[state_->calls++ % StackOffsets.size()];
    }
    const CallResult result = CallRoutine(routine, arguments.All(), kind, conditions);
    if (result.faults.stackMoved) {
        state_->violations.Add("a routine took its arguments off the stack");
    }
    if (result.faults.registersChanged) {
        state_->violations.Add("a routine changed a register that it has to preserve");
    }
    if (result.faults.floatStackUnbalanced) {
        state_->violations.Add("a routine left the x87 stack unbalanced");
    }
    if (CallRecord& record = CallRecord::OfProcess(); record.IsKept()) {
        record.NoteCall(routine, arguments.All(), kind, result.value);
    }
    return result.value;
}

Object Host::TakeException() {
    return std::exchange(state_->raised, nullptr);
}

std::uint64_t Host::Raises() const {
    return state_->raises;
}

// Strictness ------------------------------------------------------------------------------------

void Host::FailAllocation(Allocation kind, int n, bool persistent) {
    state_->failures.Arm(kind, n, persistent);
}

int Host::StopFailing() {
    return state_->failures.Disarm();
}

LedgerCounts Host::Counts() const {
    LedgerCounts counts;
    state_->strings.Count(counts);
    state_->objects.Count(counts);
    return counts;
}

std::vector<std::string> Host::Violations() const {
    state_->quarantine.Check();
    return state_->violations.Texts();
}

std::vector<std::string> Host::Leaks() const {
    std::vector<std::string> lines = Violations();
    if (state_->raised != nullptr) {
        lines.emplace_back("a raised exception was not taken");
    }
    if (state_->options.spareReferences != 0) {
        AppendBalances(lines, Counts());
        return lines;
    }
    state_->strings.AppendLeaks(lines);
    state_->objects.AppendLeaks(lines);
    return lines;
}

void Host::ResetLedger() {
    state_->quarantine.Check();
    state_->violations.Clear();
    state_->strings.ResetLedger();
    state_->objects.ResetLedger();
}

// Debug log -------------------------------------------------------------------------------------

void Host::SetDebugSink(std::function<void(std::string_view)> sink) {
    state_->debugLog.sink = std::move(sink);
}

std::vector<std::string> Host::TakeDebugLog() {
    return std::exchange(state_->debugLog.kept, {});
}

}  // namespace standin
