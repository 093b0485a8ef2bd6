// The same comparison with the members of the plug-in, which is called through its registered
// tables in the stand-in host: prints what `differential --members` prints.
//
// usage: plugin_differential LIBRARY [option...]
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

#include "standin/runtime/host.hpp"
#include "tests/differential/driver.hpp"

namespace differential {
namespace {

using host_interface::Object;
using host_interface::Routine;
using host_interface::String;

/// How a member of a number class is called.
enum class Shape {
    Method,          ///< of one number
    MethodOfPair,    ///< of one number with another
    Rounding,        ///< of one number with another, and a switch for rounding
    Function,        ///< shared, of one number
    FunctionOfPair,  ///< shared, of two numbers
    WordFactor,      ///< of one number with an integer that the other one gives
    Text,            ///< a property that is read and written
};

struct Member {
    std::string declaration;
    Shape shape;
    bool isRounded = true;
    /// Whether the number is its own partner.
    bool isPartner = false;
};

/// The member that does what an operation does.
Member FindMember(std::string_view operation) {
    static const std::map<std::string_view, std::string> roundings{
        {"Add", "Add"}, {"Sub", "Subtract"}, {"Mul", "Multiply"}, {"Div", "Divide"}};
    if (const auto found = roundings.find(operation.substr(0, 3)); found != roundings.end()) {
        const std::string_view rest = operation.substr(3);
        return {found->second + "(other as $, round as boolean = true) as $", Shape::Rounding,
                rest != "Cut", rest == "Self"};
    }
    static const std::map<std::string_view, Member> others{
        {"WordProduct", {"Multiply(value as UInt32) as $", Shape::WordFactor}},
        {"Sqrt", {"Sqrt as $", Shape::Method}},
        {"Pow", {"Pow(other as $) as $", Shape::MethodOfPair}},
        {"PowInteger", {"Pow(other as $) as $", Shape::MethodOfPair}},
        {"PowHuge", {"Pow(other as $) as $", Shape::MethodOfPair}},
        {"Mod", {"Modulate(other as $) as $", Shape::MethodOfPair}},
        {"Log", {"Log(value as $, base as $) as $", Shape::FunctionOfPair}},
        {"Root", {"Root(value as $, index as $) as $", Shape::FunctionOfPair}},
        {"Text10", {"StringValue", Shape::Text}},
    };
    if (const auto found = others.find(operation); found != others.end()) {
        return found->second;
    }
    return {std::string(operation) + "(value as $) as $", Shape::Function};
}

/// One of the number classes, called with numbers as ttmath has them.
template <typename Number>
class NumberClass {
public:
    NumberClass(standin::Host& host, const std::string& name)
        : host_(host), class_(*host.FindClass(name)), first_(Make()), second_(Make()) {}

    ~NumberClass() {
        host_.Unlock(first_);
        host_.Unlock(second_);
    }
    NumberClass(const NumberClass&) = delete;
    NumberClass& operator=(const NumberClass&) = delete;

    std::vector<Operation<Number>> Operations() {
        std::vector<Operation<Number>> operations = differential::Operations<Number>();
        std::erase_if(operations, [](const auto& operation) { return !operation.isMember; });
        for (Operation<Number>& operation : operations) {
            const Member member = FindMember(operation.name);
            operation.call = [this, member, routine = RoutineOf(member)](
                                 Number& me, const Number& other, std::string& text) {
                Write(first_, me);
                Write(second_, other);
                return Call(member, routine, me, WordFactor(other), text);
            };
        }
        return operations;
    }

private:
    template <typename Function>
    static Function As(Routine routine) {
        return reinterpret_cast<Function>(routine);
    }

    Object Make() {
        Object object = host_.MakeObject(class_);
        As<void (*)(Object)>(class_.Method("Constructor").function)(object);
        return object;
    }

    Routine RoutineOf(const Member& member) const {
        return member.shape == Shape::Text ? nullptr : class_.Method(member.declaration).function;
    }

    void Write(Object object, const Number& number) {
        WritePart(object, "DataMantissa", number.mantissa.table);
        WritePart(object, "DataExponent", number.exponent.table);
        As<void (*)(Object, int, int)>(class_.Property("DataFlags").setter)(object, 0, number.info);
    }

    template <std::size_t Count>
    void WritePart(Object object, std::string_view name, const ttmath::uint (&words)[Count]) {
        const Object block =
            host_.MakeMemoryBlock({reinterpret_cast<const char*>(words), sizeof words});
        As<void (*)(Object, int, Object)>(class_.Property(name).setter)(object, 0, block);
        host_.Unlock(block);
    }

    void Read(Object object, Number& number) {
        ReadPart(object, "DataMantissa", number.mantissa.table);
        ReadPart(object, "DataExponent", number.exponent.table);
        number.info = static_cast<unsigned char>(
            As<int (*)(Object, int)>(class_.Property("DataFlags").getter)(object, 0));
    }

    template <std::size_t Count>
    void ReadPart(Object object, std::string_view name, ttmath::uint (&words)[Count]) {
        const Object block = As<Object (*)(Object, int)>(class_.Property(name).getter)(object, 0);
        std::memcpy(words, host_.BlockBytes(block).data(), sizeof words);
        host_.Unlock(block);
    }

    /// Returns 1 when the call failed: every failure raises an exception.
    ttmath::uint Call(const Member& member, Routine routine, Number& me, ttmath::uint factor,
                      std::string& text) {
        const Object partner = member.isPartner ? first_ : second_;
        Object result = nullptr;
        switch (member.shape) {
            case Shape::Method:
            case Shape::Function:
                result = As<Object (*)(Object)>(routine)(first_);
                break;
            case Shape::MethodOfPair:
            case Shape::FunctionOfPair:
                result = As<Object (*)(Object, Object)>(routine)(first_, partner);
                break;
            case Shape::Rounding:
                result = As<Object (*)(Object, Object, int)>(routine)(first_, partner,
                                                                      member.isRounded ? 1 : 0);
                break;
            case Shape::WordFactor:
                result = As<Object (*)(Object, ttmath::uint)>(routine)(first_, factor);
                break;
            case Shape::Text:
                WriteAndRead(member.declaration, text);
                Read(first_, me);
                break;
        }
        if (result != nullptr) {
            Read(result, me);
            host_.Unlock(result);
        }
        const Object exception = host_.TakeException();
        if (exception == nullptr) {
            return 0;
        }
        host_.Unlock(exception);
        return 1;
    }

    void WriteAndRead(const std::string& property, std::string& text) {
        const String written =
            As<String (*)(Object, int)>(class_.Property(property).getter)(first_, 0);
        text = host_.Bytes(written);
        As<void (*)(Object, int, String)>(class_.Property(property).setter)(first_, 0, written);
        host_.Unlock(written);
    }

    standin::Host& host_;
    const standin::ClassInfo& class_;
    Object first_;
    Object second_;
};

}  // namespace
}  // namespace differential

int main(int count, char** words) {
    if (count < 2) {
        std::cerr << "usage: " << words[0] << " LIBRARY [option...]\n";
        return EXIT_FAILURE;
    }
    try {
        using differential::NumberClass;
        standin::Host host({.remembersReleased = false});
        const standin::PluginLibrary library(words[1]);
        NumberClass<ttmath::Big<2, 8>> small(host, "BigNumberVQZ");
        NumberClass<ttmath::Big<16, 64>> large(host, "BiggerNumberVQZ");
        return differential::Main(
            count - 1, words + 1, [&] { return small.Operations(); },
            [&] { return large.Operations(); });
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
