#include "tests/unit/tables/members.hpp"

#include <algorithm>
#include <bit>
#include <cctype>
#include <cstddef>
#include <span>
#include <utility>
#include <variant>

#include <doctest/doctest.h>

#include "tests/unit/support/signature.hpp"

namespace tests {
namespace {

/// Whether a type is as wide as a pointer.
bool IsPointerWide(std::string_view type) {
    return type == "integer" || type == "uinteger";
}

/// Whether values of a type take two words of a 32-bit host.
bool IsWide(std::string_view type) {
    return type == "int64" || type == "uint64" || type == "currency";
}

/// The type code and what the Variant holds. Asks the host for nothing new.
std::string DescribedVariant(Object variant) {
    standin::Host& host = standin::Host::Current();
    const standin::VariantValue value = host.VariantContents(variant);
    std::string description = std::to_string(host.VariantType(variant)) + " ";
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        description += std::to_string(*number);
    } else if (const auto* text = std::get_if<String>(&value)) {
        description += Described(*text);
    }
    return description;
}

}  // namespace

bool Member::Takes(std::string_view type) const {
    return (type == "self" && hasSelf_) ||
           std::ranges::find(argumentTypes_, type) != argumentTypes_.end();
}

standin::CallArguments Member::Arguments(const Samples& samples, String& afterText,
                                         std::uint8_t& valueRead) const {
    standin::CallArguments words;
    if (hasSelf_) {
        words.Add(samples.self);
    }
    for (const std::string& type : argumentTypes_) {
        if (type == "number") {
            words.Add(samples.number);
        } else if (type == "string") {
            words.Add(samples.text);
        } else if (type == "byref string") {
            words.Add(&afterText);
        } else if (type == "byref boolean") {
            words.Add(&valueRead);
        } else if (type == "variant") {
            words.Add(samples.variant);
        } else if (type == "memoryblock") {
            words.Add(samples.memoryBlock);
        } else if (type == "double") {
            words.Add(samples.real);
        } else if (type == "single") {
            words.Add(static_cast<float>(samples.real));
        } else if (type == "boolean") {
            AddArgument(words, samples.flag);
        } else if (IsWide(type)) {
            words.Add(std::int64_t{samples.integer});
        } else if (IsPointerWide(type)) {
            words.Add(Integer{samples.integer});
        } else {
            INFO(type);
            REQUIRE((type == "parameter" || type == "int32" || type == "uint32"));
            words.Add(type == "parameter" ? 0 : samples.integer);
        }
    }
    return words;
}

Answer Member::Take(const standin::ReturnValue& result) const {
    standin::Host& host = standin::Host::Current();
    if (resultType_.empty()) {
        return {};
    }
    if (resultType_ == "double") {
        return {result.real != 0.0, std::to_string(std::bit_cast<std::uint64_t>(result.real))};
    }
    if (resultType_ == "string") {
        const HeldString text(std::bit_cast<String>(result.Word()));
        return {static_cast<bool>(text), Described(text.Get())};
    }
    if (resultType_ == "number") {
        const HeldObject number(std::bit_cast<Object>(result.Word()));
        return {static_cast<bool>(number), number ? class_.ValueBytes(number.Get()) : "Nil"};
    }
    if (resultType_ == "variant") {
        const HeldObject variant(std::bit_cast<Object>(result.Word()));
        return {static_cast<bool>(variant), DescribedVariant(variant.Get())};
    }
    if (resultType_ == "memoryblock") {
        const HeldObject block(std::bit_cast<Object>(result.Word()));
        const std::span<const std::byte> bytes = host.BlockBytes(block.Get());
        return {static_cast<bool>(block),
                std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size())};
    }
    const std::uint64_t word = IsWide(resultType_)          ? result.Wide()
                               : resultType_ == "boolean"   ? result.low & 0xFFU
                               : IsPointerWide(resultType_) ? result.Word()
                                                            : result.low;
    return {word != 0, std::to_string(word)};
}

Answer Member::CallForAnswer(const Samples& samples) const {
    using standin::ReturnKind;
    // What "byref" arguments point at.
    String afterText = nullptr;
    std::uint8_t valueRead = 0;
    const standin::CallArguments arguments = Arguments(samples, afterText, valueRead);

    const ReturnKind kind = resultType_.empty()       ? ReturnKind::None
                            : resultType_ == "double" ? ReturnKind::Double
                            : IsWide(resultType_)     ? ReturnKind::TwoWords
                                                      : ReturnKind::Word;
    Answer answer = Take(standin::Host::Current().Call(routine_, arguments, kind));
    const HeldString after(afterText);
    if (Takes("byref string")) {
        answer.shown = Described(after.Get()) + (valueRead != 0 ? ", read" : ", not read");
    }
    return answer;
}

std::vector<Member> MembersOf(const NumberClass& number) {
    std::vector<Member> members;
    const auto add = [&](const std::string& declaration, Routine routine, bool hasSelf,
                         bool writesSelf, Signature signature) {
        if (routine == nullptr) {
            return;
        }
        Member member(number);
        member.name_ = number.name() + "." + declaration;
        member.routine_ = routine;
        member.hasSelf_ = hasSelf;
        member.writesSelf_ = writesSelf;
        member.argumentTypes_ = std::move(signature.argumentTypes);
        member.resultType_ = std::move(signature.resultType);
        members.push_back(std::move(member));
    };
    const auto neutral = [&](const std::string& declaration) {
        std::string text = declaration;
        for (std::size_t at = text.find(number.name()); at != std::string::npos;
             at = text.find(number.name())) {
            text.replace(at, number.name().size(), "Number");
        }
        return Lower(text);
    };

    const standin::ClassInfo& info = number.info();
    for (const standin::PropertyInfo& property : info.properties) {
        const std::string type = Lower(property.type);
        add(property.name, property.getter, true, false, {{"parameter"}, type});
        add(property.name + " (set)", property.setter, true, true, {{"parameter", type}, ""});
    }
    for (const standin::MethodInfo& method : info.methods) {
        const std::string declaration = neutral(method.declaration);
        const bool writes = declaration.starts_with("constructor") ||
                            declaration.starts_with("operator_convert(") ||
                            declaration.starts_with("setstringvalue");
        const Signature signature = SignatureOf(declaration);
        add(method.declaration, method.function, true, writes, signature);
        Signature setter = signature;
        setter.argumentTypes.push_back(std::exchange(setter.resultType, ""));
        add(method.declaration + " (set)", method.setter, true, true, setter);
    }
    for (const standin::MethodInfo& method : info.sharedMethods) {
        add(method.declaration, method.function, false, false,
            SignatureOf(neutral(method.declaration)));
    }
    return members;
}

}  // namespace tests
