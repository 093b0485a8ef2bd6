// Calls every member of the plug-in with seeded operands and prints one hash for each block of
// results, so that the libraries of different targets can be compared bit for bit: a line
// "BLOCK HASH CLASS.DECLARATION" for each block, where a property has its name for a declaration.
//
// usage: plugin_results LIBRARY FIRST END [CLASS.DECLARATION]
//
// It computes the blocks from FIRST up to, but without, END; with a member only those of that one.
// Operands are numbers of all kinds, raw and contradictory ones among them, texts, and values of
// the host's types. What depends on the width of Integer is kept out: Integers are of 32 bits, and
// "IntegerValue" is not called. Neither are the random numbers and the switch of the debug log.
#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <limits>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/runtime/host.hpp"
#include "tests/differential/operands.hpp"

namespace {

using differential::Operands;
using differential::Random;
using host_interface::HostTextEncoding;
using host_interface::Integer;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;
using host_interface::UInteger;
using standin::CallArguments;
using standin::ReturnKind;
using standin::ReturnValue;

/// Fowler, Noll and Vo's FNV-1a, of 64 bits.
class Hash {
public:
    void Add(std::string_view bytes) {
        for (const char byte : bytes) {
            value_ = (value_ ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
        }
    }

    /// A number, with its bytes in the same order everywhere.
    void Add(std::uint64_t number) {
        for (int i = 0; i < 8; ++i) {
            value_ = (value_ ^ (number >> (8 * i) & 0xFFU)) * 0x100000001B3;
        }
    }

    std::uint64_t value() const { return value_; }

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};

/// A routine of a class, with the types of its arguments and of its result in lower case.
struct Member {
    std::string name;
    Routine routine = nullptr;
    bool hasSelf = false;
    /// Whether it is an accessor, which has a word of the table between object and value.
    bool isAccessor = false;
    std::int32_t parameter = 0;
    std::vector<std::string> arguments = {};
    std::string result = {};
};

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

/// The type in "name as Type = default", with "byref " before it where that is so.
std::string TypeOf(std::string_view parameter) {
    const std::string lower = Lower(parameter);
    const std::size_t as = lower.find(" as ");
    if (as == std::string::npos) {
        throw std::runtime_error("no type in " + lower);
    }
    const std::string type = lower.substr(as + 4, lower.find(' ', as + 4) - as - 4);
    return (lower.starts_with("byref ") ? "byref " : "") + type;
}

/// The member with this declaration, such as "Pow(other as $) as $".
Member FromDeclaration(const std::string& declaration, Routine routine, bool hasSelf) {
    Member member{.name = declaration, .routine = routine, .hasSelf = hasSelf};
    std::string_view rest = declaration;
    if (const std::size_t open = rest.find('('); open != std::string_view::npos) {
        const std::size_t close = rest.rfind(')');
        std::string_view list = rest.substr(open + 1, close - open - 1);
        while (!list.empty()) {
            const std::size_t comma = std::min(list.find(", "), list.size());
            member.arguments.push_back(TypeOf(list.substr(0, comma)));
            list.remove_prefix(std::min(comma + 2, list.size()));
        }
        rest.remove_prefix(close + 1);
    }
    if (rest.find(" as ") != std::string_view::npos) {
        member.result = TypeOf(rest);
    }
    return member;
}

/// What depends on the width of Integer, on chance, or is no computation.
bool IsLeftOut(std::string_view name) {
    static const std::set<std::string_view> names{"IntegerValue", "Rand", "Debugging"};
    return names.contains(name.substr(0, name.find_first_of(" (")));
}

std::vector<Member> MembersOf(const standin::ClassInfo& info) {
    std::vector<Member> members;
    for (const standin::PropertyInfo& property : info.properties) {
        Member member{.name = property.name,
                      .routine = property.getter,
                      .hasSelf = true,
                      .isAccessor = true,
                      .parameter = property.parameter,
                      .result = Lower(property.type)};
        members.push_back(member);
        if (property.setter != nullptr) {
            member.name += " (set)";
            member.routine = property.setter;
            member.arguments = {std::exchange(member.result, {})};
            members.push_back(member);
        }
    }
    for (const standin::MethodInfo& method : info.methods) {
        members.push_back(FromDeclaration(method.declaration, method.function, true));
        if (method.setter != nullptr) {
            Member setter = FromDeclaration(method.declaration, method.setter, true);
            setter.name += " (set)";
            setter.arguments.push_back(std::exchange(setter.result, {}));
            members.push_back(setter);
        }
    }
    for (const standin::MethodInfo& method : info.sharedMethods) {
        members.push_back(FromDeclaration(method.declaration, method.function, false));
    }
    std::erase_if(members, [](const Member& member) { return IsLeftOut(member.name); });
    return members;
}

/// How many calls make a block: fewer of what takes long.
std::uint32_t BlockSize(std::string_view name, std::uint32_t bits) {
    static const std::set<std::string_view> functions{"Sqrt",
                                                      "Pow",
                                                      "Root",
                                                      "ACoth",
                                                      "ATanh",
                                                      "ACosh",
                                                      "ASinh",
                                                      "Coth",
                                                      "Tanh",
                                                      "Cosh",
                                                      "Sinh",
                                                      "ACot",
                                                      "ATan",
                                                      "ACos",
                                                      "ASin",
                                                      "Cot",
                                                      "Tan",
                                                      "Cos",
                                                      "Sin",
                                                      "Log",
                                                      "Ln",
                                                      "Exp",
                                                      "Modulate",
                                                      "Operator_Modulo",
                                                      "Operator_ModuloRight"};
    const bool isFunction = functions.contains(name.substr(0, name.find_first_of(" (")));
    if (isFunction) {
        return bits == 256 ? 5 : 1;
    }
    return bits == 256 ? 100 : 25;
}

/// One of the number classes, called with numbers as raw access writes them.
template <ttmath::uint E, ttmath::uint W>
class Results {
public:
    using Number = ttmath::Big<E, W>;

    Results(standin::Host& host, std::string name)
        : host_(host), name_(std::move(name)), class_(*host.FindClass(name_)) {}

    void Print(std::uint32_t first, std::uint32_t end, std::string_view only) {
        for (const Member& member : MembersOf(class_)) {
            const std::string name = name_ + "." + member.name;
            if (!only.empty() && name != only) {
                continue;
            }
            for (std::uint32_t block = first; block < end; ++block) {
                std::printf("%u %016llX %s\n", block,
                            static_cast<unsigned long long>(HashOfBlock(member, block)),
                            name.c_str());
            }
        }
    }

private:
    standin::Host& host_;
    std::string name_;
    const standin::ClassInfo& class_;

    std::uint64_t HashOfBlock(const Member& member, std::uint32_t block) {
        Operands<E, W> operands(1 + (std::uint64_t{block} << 32));
        Hash hash;
        for (std::uint32_t i = BlockSize(member.name, W * 32); i > 0; --i) {
            HashCall(member, operands, hash);
        }
        return hash.value();
    }

    /// Numbers for a call: any for the basic operations, of bearable size for the others.
    static std::array<Number, 3> NumbersFor(const Member& member, Operands<E, W>& operands) {
        const bool isBasic = BlockSize(member.name, 256) >= 100 && member.result != "string";
        typename Operands<E, W>::Pair pair;
        if (isBasic || operands.random().OneIn(16)) {
            pair = operands.NextPair();
        } else {
            pair.first = operands.NextArgument();
            pair.second = operands.NextArgument();
        }
        const Number third = operands.NextArgument();
        std::array<Number, 3> numbers{pair.first, pair.second, third};
        for (Number& number : numbers) {
            if (!isBasic) {
                operands.Contradict(number);
                Operands<E, W>::MakeBearable(number);
            }
        }
        return numbers;
    }

    void HashCall(const Member& member, Operands<E, W>& operands, Hash& hash) {
        Random& random = operands.random();
        const std::array<Number, 3> numbers = NumbersFor(member, operands);
        std::size_t nextNumber = 0;
        std::vector<Object> objects;
        std::vector<String> texts;
        String byRefText = nullptr;
        std::uint8_t byRefFlag = 0;
        CallArguments arguments;
        Object self = nullptr;
        if (member.hasSelf) {
            self = MakeNumber(numbers[nextNumber++]);
            objects.push_back(self);
            arguments.Add(self);
        }
        if (member.isAccessor) {
            arguments.Add(member.parameter);
        }
        const std::string ownType = Lower(name_);
        for (const std::string& type : member.arguments) {
            if (type == ownType) {
                objects.push_back(MakeNumber(numbers[nextNumber++]));
                arguments.Add(objects.back());
            } else if (type == "string") {
                texts.push_back(host_.MakeString(AnyText(random), HostTextEncoding::Utf8));
                arguments.Add(texts.back());
            } else if (type == "byref string") {
                arguments.Add(&byRefText);
            } else if (type == "byref boolean") {
                arguments.Add(&byRefFlag);
            } else if (type == "variant") {
                objects.push_back(AnyVariant(random));
                arguments.Add(objects.back());
            } else if (type == "memoryblock") {
                objects.push_back(AnyBlock(random));
                arguments.Add(objects.back());
            } else {
                AddValue(arguments, type, random);
            }
        }

        const ReturnValue result = host_.Call(member.routine, arguments, KindOf(member.result));
        HashResult(member.result, result, hash);
        if (self != nullptr && member.result.empty()) {
            hash.Add(BytesOf(self));
        }
        hash.Add(host_.Bytes(byRefText));
        hash.Add(std::uint64_t{byRefFlag});
        if (const Object exception = host_.TakeException(); exception != nullptr) {
            hash.Add(host_.ClassOf(exception).name);
            hash.Add(host_.Message(exception));
            host_.Unlock(exception);
        }
        host_.Unlock(byRefText);
        for (const Object object : objects) {
            host_.Unlock(object);
        }
        for (const String text : texts) {
            host_.Unlock(text);
        }
    }

    /// Adds a number of the host or a Boolean.
    static void AddValue(CallArguments& arguments, std::string_view type, Random& random) {
        const std::uint64_t bits = AnyBits(random);
        const auto narrow = static_cast<std::uint32_t>(bits);
        if (type == "boolean") {
            arguments.Add((bits & 1) != 0);
        } else if (type == "int32") {
            arguments.Add(static_cast<std::int32_t>(narrow));
        } else if (type == "uint32") {
            arguments.Add(narrow);
        } else if (type == "int64" || type == "currency") {
            arguments.Add(static_cast<std::int64_t>(bits));
        } else if (type == "uint64") {
            arguments.Add(bits);
        } else if (type == "integer") {
            // Half of them are fit for a base or a number of digits, and none makes a text long.
            const auto value = static_cast<std::int32_t>(narrow);
            arguments.Add(Integer{random.OneIn(2) ? value % 17 : value % 1000});
        } else if (type == "uinteger") {
            arguments.Add(UInteger{narrow});
        } else if (type == "double") {
            arguments.Add(std::bit_cast<double>(bits));
        } else if (type == "single") {
            arguments.Add(std::bit_cast<float>(narrow));
        } else {
            throw std::runtime_error("no values of type " + std::string(type));
        }
    }

    /// Bits of a number: any, few, or near a limit.
    static std::uint64_t AnyBits(Random& random) {
        const std::uint64_t bits = random.Next();
        switch (random.Below(4)) {
            case 0:
                return bits >> random.Below(64);
            case 1:
                return (std::uint64_t{1} << random.Below(64)) - 2 + random.Below(4);
            case 2:
                return 0 - (bits >> random.Below(64));
            default:
                return bits;
        }
    }

    /// Digits of some base, and now and then something else.
    static std::string AnyText(Random& random) {
        constexpr std::string_view digits = "0123456789aBcDeF";
        constexpr std::string_view others = "0000'''.,.e+- g&";
        const std::uint32_t base = random.OneIn(2) ? 10 : 2 + random.Below(15);
        const std::uint32_t rareness = 2 + random.Below(400);
        const std::uint32_t limit = random.OneIn(4) ? W * 20 : 40;
        std::string text = random.OneIn(3) ? "-" : "";
        for (std::uint32_t i = random.Below(limit); i > 0; --i) {
            text += random.OneIn(rareness) ? others[random.Below(others.size())]
                                           : digits[random.Below(base)];
        }
        return text;
    }

    /// A Variant of a number or of a text.
    Object AnyVariant(Random& random) {
        const std::uint64_t bits = AnyBits(random);
        switch (random.Below(4)) {
            case 0:
                return host_.MakeVariant(2, std::int64_t{static_cast<std::int32_t>(bits)});
            case 1:
                return host_.MakeVariant(3, static_cast<std::int64_t>(bits));
            case 2:
                return host_.MakeVariant(5, std::bit_cast<double>(bits));
            default: {
                const String text = host_.MakeString(AnyText(random), HostTextEncoding::Utf8);
                const Object variant = host_.MakeVariant(8, text);
                host_.Unlock(text);
                return variant;
            }
        }
    }

    /// A memory block of the size of a mantissa or an exponent, or of another one.
    Object AnyBlock(Random& random) {
        const std::array<std::uint32_t, 3> sizes{W * 4, E * 4, random.Below(40)};
        std::string bytes(sizes[random.Below(sizes.size())], '\0');
        std::ranges::generate(bytes, [&] { return static_cast<char>(random.Word()); });
        return host_.MakeMemoryBlock(bytes);
    }

    static ReturnKind KindOf(std::string_view type) {
        if (type.empty()) {
            return ReturnKind::None;
        }
        if (type == "int64" || type == "uint64" || type == "currency") {
            return ReturnKind::TwoWords;
        }
        if (type == "double") {
            return ReturnKind::Double;
        }
        return type == "single" ? ReturnKind::Single : ReturnKind::Word;
    }

    void HashResult(std::string_view type, const ReturnValue& result, Hash& hash) {
        if (type.empty()) {
            return;
        }
        if (type == "boolean") {
            hash.Add(std::uint64_t{result.low & 0xFFU});
        } else if (type == "integer" || type == "int32" || type == "uint32") {
            hash.Add(static_cast<std::uint64_t>(static_cast<std::intptr_t>(result.Word())));
        } else if (KindOf(type) == ReturnKind::TwoWords) {
            hash.Add(result.Wide());
        } else if (KindOf(type) == ReturnKind::Double || KindOf(type) == ReturnKind::Single) {
            // Which of all NaN it is, processors decide.
            hash.Add(std::isnan(result.real) ? 1 : std::bit_cast<std::uint64_t>(result.real));
        } else if (result.Word() == 0) {
            hash.Add("Nil");
        } else if (type == "string") {
            const auto text = std::bit_cast<String>(result.Word());
            hash.Add(static_cast<std::uint64_t>(host_.Encoding(text)));
            hash.Add(host_.Bytes(text));
            host_.Unlock(text);
        } else {
            const auto object = std::bit_cast<Object>(result.Word());
            HashObject(type, object, hash);
            host_.Unlock(object);
        }
    }

    void HashObject(std::string_view type, Object object, Hash& hash) {
        if (type == "memoryblock") {
            const auto bytes = host_.BlockBytes(object);
            hash.Add({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
        } else if (type == "variant") {
            hash.Add(static_cast<std::uint64_t>(host_.VariantType(object)));
            const String text = host_.VariantAsString(object);
            hash.Add(host_.Bytes(text));
            host_.Unlock(text);
        } else {
            hash.Add(BytesOf(object));
        }
    }

    Routine Accessor(std::string_view property, bool isSetter) const {
        const standin::PropertyInfo& info = class_.Property(property);
        return isSetter ? info.setter : info.getter;
    }

    Object MakeNumber(const Number& number) {
        const Object object = host_.MakeObject(class_);
        CallArguments constructing;
        constructing.Add(object);
        host_.Call(class_.Method("Constructor").function, constructing, ReturnKind::None);
        WritePart(object, "DataMantissa", number.mantissa.table);
        WritePart(object, "DataExponent", number.exponent.table);
        CallArguments arguments;
        arguments.Add(object);
        arguments.Add(std::int32_t{0});
        arguments.Add(Integer{number.info});
        host_.Call(Accessor("DataFlags", true), arguments, ReturnKind::None);
        return object;
    }

    template <std::size_t Count>
    void WritePart(Object object, std::string_view name, const ttmath::uint (&words)[Count]) {
        const Object block =
            host_.MakeMemoryBlock({reinterpret_cast<const char*>(words), sizeof words});
        CallArguments arguments;
        arguments.Add(object);
        arguments.Add(std::int32_t{0});
        arguments.Add(block);
        host_.Call(Accessor(name, true), arguments, ReturnKind::None);
        host_.Unlock(block);
    }

    /// Mantissa, exponent and flags of a number.
    std::string BytesOf(Object object) {
        CallArguments arguments;
        arguments.Add(object);
        arguments.Add(std::int32_t{0});
        std::string bytes;
        for (const std::string_view name : {"DataMantissa", "DataExponent"}) {
            const auto block = std::bit_cast<Object>(
                host_.Call(Accessor(name, false), arguments, ReturnKind::Word).Word());
            const auto part = host_.BlockBytes(block);
            bytes.append(reinterpret_cast<const char*>(part.data()), part.size());
            host_.Unlock(block);
        }
        bytes += static_cast<char>(
            host_.Call(Accessor("DataFlags", false), arguments, ReturnKind::Word).low);
        return bytes;
    }
};

std::uint32_t BlockNumber(const char* word) {
    return static_cast<std::uint32_t>(std::stoul(word));
}

}  // namespace

int main(int count, char** words) {
    if (count < 4 || count > 5) {
        std::cerr << "usage: " << words[0] << " LIBRARY FIRST END [CLASS.DECLARATION]\n";
        return EXIT_FAILURE;
    }
    try {
        standin::Host host({.remembersReleased = false});
        const standin::PluginLibrary library(words[1]);
        const std::string_view only = count > 4 ? words[4] : "";
        Results<2, 8>(host, "BigNumberVQZ")
            .Print(BlockNumber(words[2]), BlockNumber(words[3]), only);
        Results<16, 64>(host, "BiggerNumberVQZ")
            .Print(BlockNumber(words[2]), BlockNumber(words[3]), only);
    } catch (const std::exception& error) {
        std::cerr << "plugin_results: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
