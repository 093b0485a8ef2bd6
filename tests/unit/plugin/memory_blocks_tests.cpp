// Making MemoryBlocks and looking into them.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "host/byte_view.hpp"
#include "host/memory_blocks.hpp"
#include "host/variants.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "tests/unit/plugin/direct_host.hpp"

namespace {

using standin::Allocation;
using tests::DirectHost;
using tests::HeldObject;
using tests::LogLines;
using tests::Rebound;
using tests::TakeRaised;

std::string TextOf(const vqz::ByteView& view) {
    return view.data() == nullptr
               ? "null"
               : std::string(view.data(), static_cast<std::size_t>(view.length()));
}

std::string OutOfMemory(const std::string& size) {
    return "OutOfMemoryException: Failed to allocate a memoryblock with " + size +
           " bytes in size.";
}

host_interface::Object ThrowForWantOfMemory(std::int32_t) {
    throw std::bad_alloc();
}

/// How often a function of these tests was called.
int calls = 0;

/// "PluginNewInstance" that throws at its first call.
host_interface::Object ThrowOnce(const char* className) {
    if (++calls == 1) {
        throw std::bad_alloc();
    }
    using Function = host_interface::functions::PluginNewInstance;
    return reinterpret_cast<Function*>(standin::Host::Resolve("PluginNewInstance"))(className);
}

/// "REALGetPropValueDouble" that writes a value and reports a failure all the same.
host_interface::BooleanWord WriteAndFail(host_interface::Object, const char*, double* value) {
    *value = 7.5;
    return 0;
}

/// The host that `NoteWhatLives` looks at, and what lived there at its call.
const standin::Host* watchedHost = nullptr;
std::vector<std::string> living;

/// "PluginNewInstance" that notes what lives when it is called.
host_interface::Object NoteWhatLives(const char* className) {
    living = watchedHost->Leaks();
    using Function = host_interface::functions::PluginNewInstance;
    return reinterpret_cast<Function*>(standin::Host::Resolve("PluginNewInstance"))(className);
}

host_interface::Object MakeNoBlock(std::int32_t) {
    ++calls;
    return nullptr;
}

host_interface::BooleanWord SayYes(host_interface::Object, host_interface::ClassReference) {
    ++calls;
    return 1;
}

}  // namespace

TEST_CASE("A block is asked of the host for sizes from 0 to 0x7FFFFFFE") {
    DirectHost host;
    const Rebound newMemoryBlock(vqz::host::newMemoryBlock, &MakeNoBlock);
    calls = 0;
    for (const std::int64_t size : {std::int64_t{-1}, std::int64_t{0x7FFFFFFF},
                                    std::int64_t{0x80000000}, INT64_MIN, INT64_MAX}) {
        CAPTURE(size);
        CHECK_FALSE(vqz::NewMemoryBlock64(size));
    }
    CHECK(calls == 0);
    for (const std::int64_t size : {0, 1, 0x7FFFFFFE}) {
        CHECK_FALSE(vqz::NewMemoryBlock64(size));
    }
    CHECK(calls == 3);
    CHECK(TakeRaised(host) == "");
}

TEST_CASE("A block is made with a copy of the bytes") {
    DirectHost host;
    const vqz::ObjectReference block = vqz::REALBuildMemoryblock("abc", 3);
    REQUIRE(block);
    const auto bytes = host.BlockBytes(block.Get());
    REQUIRE(bytes.size() == 3);
    CHECK(std::memcmp(bytes.data(), "abc", 3) == 0);
    CHECK(host.References(block.Get()) == 1);
}

TEST_CASE("Without bytes there is no block and nothing is raised") {
    DirectHost host;
    CHECK_FALSE(vqz::REALBuildMemoryblock(nullptr, 3));
    CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 0));
    CHECK_FALSE(vqz::REALBuildMemoryblock("abc", -1));
    CHECK(TakeRaised(host) == "");
}

TEST_CASE("A block that the host does not make is an error that tells the size") {
    DirectHost host;
    CHECK(host.LogOf([&] { CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 3000000000)); }) ==
          LogLines({"Error: Failed to allocate memoryblock 3000000000"}));
    CHECK(TakeRaised(host) == OutOfMemory("3000000000"));

    host.FailAllocation(Allocation::Object, 1, false);
    CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 3));
    CHECK(TakeRaised(host) == OutOfMemory("3"));
    host.StopFailing();
}

TEST_CASE("A native exception for want of memory is logged, and is the same error") {
    DirectHost host;
    const Rebound newMemoryBlock(vqz::host::newMemoryBlock, &ThrowForWantOfMemory);
    CHECK(host.LogOf([] { CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 3)); }) ==
          LogLines({"Got C++ exception in REALBuildMemoryblock:  std::bad_alloc"}));
    CHECK(TakeRaised(host) == OutOfMemory("3"));
}

TEST_CASE("A native exception while the missing block is reported is the same error") {
    DirectHost host;
    const Rebound newInstance(vqz::host::PluginNewInstance, &ThrowOnce);
    calls = 0;
    CHECK(host.LogOf([] { CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 3000000000)); }) ==
          LogLines({"Error: Failed to allocate memoryblock 3000000000",
                    "Got C++ exception in REALBuildMemoryblock:  std::bad_alloc"}));
    CHECK(calls == 2);
    CHECK(TakeRaised(host) == OutOfMemory("3000000000"));
}

TEST_CASE("A block without data is given back before the error is made") {
    DirectHost host(standin::HostOptions{.blocksWithoutData = true});
    watchedHost = &host;
    const Rebound newInstance(vqz::host::PluginNewInstance, &NoteWhatLives);
    living = {"nothing was noted"};
    CHECK_FALSE(vqz::REALBuildMemoryblock("abc", 3));
    CHECK_MESSAGE(std::ranges::none_of(living,
                                       [](const std::string& line) {
                                           return line.find("MemoryBlock") != std::string::npos;
                                       }),
                  tests::Joined(living));
    CHECK(TakeRaised(host) == OutOfMemory("3"));
}

TEST_CASE("A view of a block shows its bytes and holds it") {
    DirectHost host;
    const HeldObject block(host.MakeMemoryBlock("0123456789"));
    {
        const vqz::ByteView whole(block.Get());
        CHECK(TextOf(whole) == "0123456789");
        CHECK(host.References(block.Get()) == 2);
        CHECK(TextOf(vqz::ByteView(block.Get(), 3, 4)) == "3456");
        // A length of 0 means that of the block; bounds are the caller's business.
        CHECK(vqz::ByteView(block.Get(), 3).length() == 10);
    }
    CHECK(host.References(block.Get()) == 1);
    CHECK(TextOf(vqz::ByteView(host_interface::Object{})) == "null");
    CHECK(vqz::ByteView(host_interface::Object{}).length() == 0);
}

TEST_CASE("A view of a block without data is empty and holds the block") {
    DirectHost host(standin::HostOptions{.blocksWithoutData = true});
    const HeldObject block(host.MakeMemoryBlock("0123456789"));
    const vqz::ByteView view(block.Get());
    CHECK(view.data() == nullptr);
    CHECK(view.length() == 0);
    CHECK(host.References(block.Get()) == 2);
}

TEST_CASE("A null Variant has no text and is asked nothing") {
    DirectHost host;
    const std::size_t namesAsked = host.lookups().size();
    CHECK_FALSE(vqz::VariantToString(nullptr));
    CHECK(host.lookups().size() == namesAsked);
}

TEST_CASE("Objects are told by the class that they are of or descend from") {
    DirectHost host;
    host.RegisterClasses();
    const HeldObject exception(host.MakeObject(*host.FindClass("BigNumberErrorExceptionVQZ")));
    CHECK(vqz::ObjectIsA(exception.Get(), "BigNumberErrorExceptionVQZ"));
    CHECK(vqz::ObjectIsA(exception.Get(), "RuntimeException"));
    CHECK_FALSE(vqz::ObjectIsA(exception.Get(), "BigNumberVQZ"));
    CHECK_FALSE(vqz::ObjectIsA(exception.Get(), "NobodyKnows"));
    CHECK_FALSE(vqz::ObjectIsA(nullptr, "RuntimeException"));
}

TEST_CASE("The host is not asked what class no object has, nor whether one is of no class") {
    DirectHost host;
    const Rebound isa(vqz::host::RuntimeObjectIsa, &SayYes);
    calls = 0;
    const HeldObject block(host.MakeMemoryBlock("x"));
    CHECK_FALSE(vqz::ObjectIsA(nullptr, "RuntimeException"));
    CHECK_FALSE(vqz::ObjectIsA(block.Get(), "NobodyKnows"));
    CHECK(calls == 0);
    CHECK(vqz::ObjectIsA(block.Get(), "RuntimeException"));
    CHECK(calls == 1);
}

TEST_CASE("What a date cannot tell is 0 and logged where it counts") {
    DirectHost host;
    const HeldObject block(host.MakeMemoryBlock("x"));
    CHECK(host.LogOf([&] { CHECK(vqz::GetDateTotalSeconds(block.Get()) == 0.0); }) ==
          LogLines({"GetDateTotalSeconds 0.000000"}));
    CHECK(host.LogOf([&] { CHECK(vqz::GetSecondsFrom1970(block.Get()) == 0.0); }) ==
          LogLines({"Failed to read SecondsFrom1970 property."}));
    const HeldObject dateTime(host.MakeDateTime(1.5));
    CHECK(host.LogOf([&] { CHECK(vqz::GetSecondsFrom1970(dateTime.Get()) == 1.5); }) == "");
}

TEST_CASE("A date that the host fails to read is 0 whatever the host wrote") {
    DirectHost host;
    const HeldObject dateTime(host.MakeDateTime(1.5));
    const Rebound reader(vqz::host::REALGetPropValueDouble, &WriteAndFail);
    CHECK(host.LogOf([&] { CHECK(vqz::GetDateTotalSeconds(dateTime.Get()) == 0.0); }) ==
          LogLines({"GetDateTotalSeconds 0.000000"}));
    CHECK(host.LogOf([&] { CHECK(vqz::GetSecondsFrom1970(dateTime.Get()) == 0.0); }) ==
          LogLines({"Failed to read SecondsFrom1970 property."}));
}
