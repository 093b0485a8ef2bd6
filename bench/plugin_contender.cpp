// The plug-in in the stand-in host: the routines of its registered tables, called as the host calls
// them. The host's own part of a call is on offer too, so that it can be taken off.
#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>

#include "bench/contender.hpp"
#include "bench/operations.hpp"
#include "standin/runtime/host.hpp"

namespace {

using bench::Operation;
using bench::Shape;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;

/// The operations of one number class.
class Rows {
public:
    Rows(bench::Contender& contender, standin::Host& host, const std::string& className,
         unsigned bits)
        : contender_(contender), host_(host), class_(*host.FindClass(className)), bits_(bits) {}

    void Offer() {
        for (const Operation& operation : bench::Operations) {
            Offer(operation);
        }
        OfferHostPart();
    }

private:
    template <typename Function>
    static Function As(Routine routine) {
        return reinterpret_cast<Function>(routine);
    }

    /// The routine that the class registers under the operation's declaration.
    Routine Find(const Operation& operation) const {
        switch (operation.shape) {
            case Shape::BooleanGetter:
            case Shape::DoubleGetter:
                return class_.Property(operation.declaration).getter;
            case Shape::DoubleSetter:
                return class_.Property(operation.declaration).setter;
            default:
                return class_.Method(operation.declaration).function;
        }
    }

    /// An object with the operand's value; it lives as long as the process.
    Object Make(const bench::Operand& operand) {
        const Operation& fromText = bench::FindOperation("from text");
        Object object = host_.MakeObject(class_);
        const String text = Text(operand);
        As<void (*)(Object, String)>(Find(fromText))(object, text);
        host_.Unlock(text);
        return object;
    }

    String Text(const bench::Operand& operand) {
        return host_.MakeString(OperandText(operand, bits_),
                                host_interface::HostTextEncoding::Utf8);
    }

    template <typename Once>
    void Repeated(const Operation& operation, Once once) {
        contender_.OfferRepeated(bits_, operation.name, once);
    }

    /// A call that returns a new object, which is dropped at once.
    template <typename Call>
    void Returning(const Operation& operation, Call call) {
        Repeated(operation, [call, &host = host_] { host.Unlock(call()); });
    }

    void Offer(const Operation& operation) {
        const Routine routine = Find(operation);
        const Object x = Make(operation.x);
        const Object y = Make(operation.y);
        switch (operation.shape) {
            case Shape::OneNumber:
                Returning(operation, [f = As<Object (*)(Object)>(routine), x] { return f(x); });
                break;
            case Shape::TwoNumbers:
                Returning(operation,
                          [f = As<Object (*)(Object, Object)>(routine), x, y] { return f(x, y); });
                break;
            case Shape::RoundedPair:
                Returning(operation, [f = As<Object (*)(Object, Object, int)>(routine), x, y] {
                    return f(x, y, 1);
                });
                break;
            case Shape::NumberAndInt:
                Returning(operation,
                          [f = As<Object (*)(Object, int)>(routine), x] { return f(x, 7); });
                break;
            case Shape::Constant:
                Returning(operation, As<Object (*)()>(routine));
                break;
            case Shape::TextOut:
                Returning(operation, [f = As<String (*)(Object)>(routine), x] { return f(x); });
                break;
            case Shape::Comparison:
                Repeated(operation, [f = As<int (*)(Object, Object)>(routine), x, y] { f(x, y); });
                break;
            case Shape::TextIn:
                Repeated(operation, [f = As<void (*)(Object, String)>(routine), y,
                                     text = Text(operation.x)] { f(y, text); });
                break;
            case Shape::BooleanGetter:
                Repeated(operation, [f = As<int (*)(Object, int)>(routine), x] { f(x, 0); });
                break;
            case Shape::DoubleGetter:
                Repeated(operation, [f = As<double (*)(Object, int)>(routine), x] { f(x, 0); });
                break;
            case Shape::DoubleSetter:
                Repeated(operation,
                         [f = As<void (*)(Object, int, double)>(routine), y] { f(y, 0, 1.5); });
                break;
        }
    }

    template <typename Function>
    static Function HostFunction(const char* name) {
        return As<Function>(reinterpret_cast<Routine>(standin::Host::Resolve(name)));
    }

    /// What the host does for each number that it gets: it makes the object and drops it. Dropping
    /// calls the destructor of the class, which is the plug-in's part and on offer by itself. And
    /// what it does for texts: it makes and drops one, or lends one and returns its encoding.
    void OfferHostPart() {
        const auto offer = [this](const char* name, auto once) {
            contender_.OfferRepeated(bits_, name, once);
        };
        offer("host: object", [make = HostFunction<Object (*)(const char*)>("PluginNewInstance"),
                               this] { host_.Unlock(make(class_.name.c_str())); });
        offer("host: destructor", [destruct = As<void (*)(Object)>(class_.destructor),
                                   empty = host_.MakeObject(class_)] { destruct(empty); });

        const Operation& toText = bench::FindOperation("to text");
        const String text = As<String (*)(Object)>(Find(toText))(Make(toText.x));
        const auto encodingOf = HostFunction<std::uint32_t (*)(String)>("REALGetStringEncoding");
        offer("host: new text", [make = HostFunction<String (*)(const char*, int, std::uint32_t)>(
                                     "REALBuildStringWithEncoding"),
                                 bytes = host_.Bytes(text), encoding = encodingOf(text), this] {
            host_.Unlock(make(bytes.data(), static_cast<int>(bytes.size()), encoding));
        });
        offer("host: known text",
              [lend = HostFunction<void (*)(String)>("REALLockString"),
               giveBack = HostFunction<void (*)(String)>("REALUnlockString"), encodingOf, text] {
                  lend(text);
                  encodingOf(text);
                  giveBack(text);
              });
    }

    bench::Contender& contender_;
    standin::Host& host_;
    const standin::ClassInfo& class_;
    unsigned bits_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " LIBRARY\n";
        return 2;
    }
    try {
        standin::Host host({.remembersReleased = false});
        const standin::PluginLibrary library(argv[1]);
        bench::Contender contender;
        Rows small(contender, host, "BigNumberVQZ", 256);
        Rows large(contender, host, "BiggerNumberVQZ", 2048);
        small.Offer();
        large.Offer();
        return contender.Serve();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
