// Calls of members with numbers of any bits, as raw access lets programs make them.
#pragma once

#include <array>
#include <cstring>
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "tests/fuzz/fuzzed_plugin.hpp"

namespace fuzz {

/// A number whose mantissa, exponent and flags are written through the properties for that. Half of
/// them are a usual number with a few bytes replaced, so that the far ends are not all there is.
inline tests::HeldObject TakeNumber(Input& input, tests::NumberClass& number) {
    tests::HeldObject object = number.Make("12.5");
    const auto parts = input.Take<std::uint8_t>();
    const auto write = [&](const char* name) {
        const tests::HeldObject old = number.Get<tests::HeldObject>(name, object.Get());
        standin::Host& host = standin::Host::Current();
        const auto bytes = host.BlockBytes(old.Get());
        const std::string fresh = input.Bytes(bytes.size());
        std::memcpy(bytes.data(), fresh.data(), bytes.size());
        number.Set(name, object.Get(), old.Get());
    };
    if ((parts & 1U) != 0) {
        write("DataMantissa");
    }
    if ((parts & 2U) != 0) {
        write("DataExponent");
    }
    if ((parts & 4U) != 0) {
        number.Set("DataFlags", object.Get(), std::int32_t{input.Take<std::uint8_t>()});
    }
    return object;
}

/// Calls the member that the input chooses with all that it may take made from the input. Operands
/// must stay as they were unless the member is there to write.
inline void CallMember(Input& input, FuzzedClass& fuzzed) {
    FuzzedPlugin& plugin = FuzzedPlugin::Get();
    plugin.SetUp(input);
    const tests::Member& member = input.OneOf(fuzzed.members);
    const tests::HeldObject self = TakeNumber(input, fuzzed.number);
    const tests::HeldObject other = TakeNumber(input, fuzzed.number);
    tests::Samples samples;
    samples.self = self.Get();
    samples.number = other.Get();
    samples.integer = input.Take<std::int32_t>();
    samples.real = input.Take<double>();
    samples.flag = (input.Take<std::uint8_t>() & 1U) != 0;
    const tests::HeldObject variant(plugin.host().MakeVariant(
        static_cast<std::int32_t>(host_interface::VariantTypeCode::Double), samples.real));
    samples.variant = variant.Get();
    const tests::HeldObject block(plugin.host().MakeMemoryBlock(input.Bytes(8)));
    samples.memoryBlock = block.Get();
    const tests::HeldString text(
        plugin.host().MakeString(input.Rest(), host_interface::HostTextEncoding::Utf8));
    samples.text = text.Get();

    const std::string before = fuzzed.number.ValueBytes(samples.self);
    const std::string otherBefore = fuzzed.number.ValueBytes(samples.number);
    CAPTURE(member.name());
    member.Call(samples);
    CHECK((member.writesSelf() || fuzzed.number.ValueBytes(samples.self) == before));
    CHECK(fuzzed.number.ValueBytes(samples.number) == otherBefore);
}

}  // namespace fuzz
