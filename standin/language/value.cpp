#include "standin/language/value.hpp"

namespace standin::language {

Value Value::DefaultOf(Type type) {
    switch (type.kind) {
        case Kind::Text:
            return Adopt(String{});
        case Kind::Instance:
        case Kind::Variant:
            return Adopt(Object{});
        case Kind::Single:
        case Kind::Double:
            return Of(0.0);
        case Kind::TextEncoding:
            return Of(static_cast<std::uint32_t>(HostTextEncoding::Unknown));
        case Kind::Array:
            return Adopt(
                new Array{.element = type.ElementType(),
                          .lastIndices = std::vector<std::int64_t>(
                              type.dimensions > 1 ? type.dimensions : 0, std::int64_t{-1})});
        default:
            return Of(0);
    }
}

void Value::BorrowFrom(const Value& owner) noexcept {
    const bool isSameText = owns_ == Owns::Text && payload_.text == owner.payload_.text;
    const bool isSameObject = owns_ == Owns::Instance && payload_.object == owner.payload_.object;
    if (owns_ == owner.owns_ && (isSameText || isSameObject)) {
        Unlock();
        owns_ = Owns::Nothing;
    }
}

void Value::Lock() const noexcept {
    if (owns_ == Owns::Text && payload_.text != nullptr) {
        Host::Current().Lock(payload_.text);
    } else if (owns_ == Owns::Instance && payload_.object != nullptr) {
        Host::Current().Lock(payload_.object);
    } else if (owns_ == Owns::Array && payload_.array != nullptr) {
        ++payload_.array->references;
    }
}

void Value::Unlock() noexcept {
    if (owns_ == Owns::Text && payload_.text != nullptr) {
        Host::Current().Unlock(payload_.text);
    } else if (owns_ == Owns::Instance && payload_.object != nullptr) {
        Host::Current().Unlock(payload_.object);
    } else if (owns_ == Owns::Array && payload_.array != nullptr) {
        if (--payload_.array->references == 0) {
            delete payload_.array;
        }
    }
}

}  // namespace standin::language
