#include "tests/unit/tables/loaded_plugin.hpp"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <random>
#include <utility>

#include <doctest/doctest.h>

namespace tests {
namespace {

/// The only entry with that text; the test fails when there is none.
template <typename Entry>
const Entry& Find(const std::vector<Entry>& entries, std::string Entry::*text,
                  std::string_view wanted) {
    const auto found = std::ranges::find(entries, wanted, text);
    INFO("the table has no entry " << std::string(wanted));
    REQUIRE(found != entries.end());
    return *found;
}

}  // namespace

NumberClass::NumberClass(standin::Host& host, std::string name, std::size_t wordCount)
    : host_(&host), name_(std::move(name)), wordCount_(wordCount) {}

const standin::ClassInfo& NumberClass::info() const {
    const standin::ClassInfo* info = host_->FindClass(name_);
    REQUIRE(info != nullptr);
    return *info;
}

std::string NumberClass::Declaration(std::string_view pattern) const {
    std::string declaration;
    for (const char character : pattern) {
        declaration.append(character == '$' ? name_ : std::string(1, character));
    }
    return declaration;
}

const standin::MethodInfo& NumberClass::Method(std::string_view pattern) const {
    return Find(info().methods, &standin::MethodInfo::declaration, Declaration(pattern));
}

const standin::MethodInfo& NumberClass::SharedMethod(std::string_view pattern) const {
    return Find(info().sharedMethods, &standin::MethodInfo::declaration, Declaration(pattern));
}

const standin::PropertyInfo& NumberClass::Property(std::string_view name) const {
    return Find(info().properties, &standin::PropertyInfo::name, name);
}

HeldObject NumberClass::Unconstructed() {
    return HeldObject(host_->MakeObject(info()));
}

HeldObject NumberClass::Make(std::string_view text) {
    HeldObject object = Unconstructed();
    const HeldString value(host_->MakeString(text, HostTextEncoding::Utf8));
    Call<void>("Constructor(value as String)", object.Get(), value.Get());
    return object;
}

HeldObject NumberClass::MakeNan() {
    HeldObject object = Unconstructed();
    Call<void>("Constructor(other as $)", object.Get(), nullptr);
    return object;
}

std::string NumberClass::Text(Object object) {
    const auto text = Get<HeldString>("StringValue", object);
    return text ? host_->Bytes(text.Get()) : "null";
}

std::string NumberClass::ValueBytes(Object object) const {
    const char* value = nullptr;
    std::memcpy(&value, host_->InstanceData(object), sizeof value);
    return value == nullptr ? std::string() : std::string(value, 4 * wordCount_ + 1);
}

int NumberClass::Flags(Object object) const {
    const std::string bytes = ValueBytes(object);
    REQUIRE_FALSE(bytes.empty());
    return static_cast<unsigned char>(bytes.back());
}

LoadedPlugin::LibraryCopy::LibraryCopy(LibraryFile file)
    : path_(BIGNUMBERVQZ_LIBRARY), isCopy_(file == LibraryFile::Copy) {
    if (!isCopy_) {
        return;
    }
    namespace fs = std::filesystem;
    const fs::path original = path_;
    fs::path copy = fs::temp_directory_path();
    copy /= "table_tests_" + std::to_string(std::random_device()());
    copy += original.extension();
    fs::copy_file(original, copy);
    path_ = copy.string();
}

LoadedPlugin::LibraryCopy::~LibraryCopy() {
    if (isCopy_) {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
}

LoadedPlugin::LoadedPlugin(standin::HostOptions options,
                           const std::optional<std::string>& debugSetting, bool withResolver,
                           LibraryFile file)
    : file_(file),
      debugSetting_("VQZDEBUG", debugSetting),
      host_(std::move(options)),
      library_(std::in_place, file_.path(), withResolver),
      classes_{NumberClass(host_, "BigNumberVQZ", 2 + 8),
               NumberClass(host_, "BiggerNumberVQZ", 16 + 64)} {}

LoadedPlugin::LoadedPlugin(double version)
    : LoadedPlugin(standin::HostOptions{.version = version}) {}

LoadedPlugin::~LoadedPlugin() {
    library_.reset();
    CheckLedger(host_);
}

HeldString LoadedPlugin::MakeString(std::string_view bytes, HostTextEncoding encoding) {
    return HeldString(host_.MakeString(bytes, encoding));
}

void LoadedPlugin::SwitchDebugLog(bool on) {
    const auto& debugging = bigNumber().info().sharedProperties.at(0);
    CallRoutine<void>(debugging.setter, on);
}

}  // namespace tests
