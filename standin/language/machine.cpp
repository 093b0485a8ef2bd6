#include <string>

#include "standin/language/code.hpp"
#include "standin/language/names.hpp"
#include "standin/runtime/memory_budget.hpp"

namespace standin::language {

void Machine::Step() {
    if (interrupted_ != 0) {
        interrupted_ = 0;
        throw Interrupted();
    }
    if (++steps_ > maximumSteps_) {
        throw ProgramError(
            position, "the program takes more than " + std::to_string(maximumSteps_) + " steps");
    }
    CheckMemory();
}

void Machine::CheckMemory() const {
    if (MemoryBudget::exceeded()) {
        throw ProgramError(position, "the program needs more memory than there is for it");
    }
}

void Machine::Throw(Value exception) const {
    throw Thrown(std::move(exception), position);
}

void Machine::Raise(std::string_view className, std::string_view message) const {
    CheckMemory();
    const ClassInfo* info = host_.FindClass(className);
    if (info == nullptr) {
        info = host_.FindClass("RuntimeException");
    }
    auto exception =
        info == nullptr ? Value::Adopt(Object{}) : Value::Adopt(host_.MakeObject(*info));
    if (exception.object() == nullptr) {
        throw OutOfObjects(position);
    }
    host_.SetMessage(exception.object(), message);
    Throw(std::move(exception));
}

void Machine::RequireObject(const Value& object, const Written& written) const {
    if (object.object() != nullptr) {
        return;
    }
    if (written.text.empty()) {
        Raise("NilObjectException", "An object that is Nil was used.");
    }
    const bool hasNoValue = written.isAssigned != nullptr && !*written.isAssigned;
    Raise("NilObjectException",
          Quoted(written.text) + " is Nil" + (hasNoValue ? "; missing New?" : "."));
}

Value Machine::MakeObject(const ClassInfo& info) const {
    auto object = Value::Adopt(host_.MakeObject(info));
    if (object.object() == nullptr) {
        Raise("OutOfMemoryException", "There is no memory for a new " + info.name + ".");
    }
    return object;
}

Value Machine::MakeText(std::string_view bytes, HostTextEncoding encoding) const {
    auto text = Value::Adopt(host_.MakeString(bytes, encoding));
    if (text.text() == nullptr && !bytes.empty()) {
        Raise("OutOfMemoryException", "There is no memory for a new string.");
    }
    return text;
}

Value Machine::MakeText(std::string_view utf8) const {
    return MakeText(utf8, HostTextEncoding::Utf8);
}

}  // namespace standin::language
