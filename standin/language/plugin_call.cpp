#include "standin/language/plugin_call.hpp"

#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <deque>
#include <type_traits>
#include <utility>

#include "standin/runtime/wrong_facts.hpp"

namespace standin::language {
namespace {

const char* currentLabel = nullptr;

constexpr FactOf<Kind> ArgumentFacts[] = {
    {Kind::Boolean, "argument-boolean"}, {IntegerKind, "argument-integer"},
    {UIntegerKind, "argument-uinteger"}, {Kind::Int32, "argument-int32"},
    {Kind::UInt32, "argument-uint32"},   {Kind::Int64, "argument-int64"},
    {Kind::UInt64, "argument-uint64"},   {Kind::Single, "argument-single"},
    {Kind::Double, "argument-double"},   {Kind::Currency, "argument-currency"},
};

constexpr FactOf<Kind> ResultFacts[] = {
    {Kind::Boolean, "result-boolean"}, {IntegerKind, "result-integer"},
    {Kind::Int64, "result-int64"},     {Kind::UInt64, "result-uint64"},
    {Kind::Double, "result-double"},   {Kind::Currency, "result-currency"},
};

/// What becomes of a value that a host passes wrongly: half of an integer's bits, a Double of
/// single precision, a Single without its fraction, an amount in units, the other Boolean.
Value Damaged(const Value& value, Kind kind) {
    if (kind == Kind::Boolean) {
        return Value::Of(!value.IsTrue());
    }
    return WithNumberType(kind, [&value]<typename T>(std::type_identity<T>) {
        const auto number = value.Get<T>();
        if constexpr (std::is_same_v<T, CurrencyAmount>) {
            return Value::Of(CurrencyAmount{number.scaled / CurrencyScale});
        } else if constexpr (std::is_same_v<T, double>) {
            return Value::Of(static_cast<double>(static_cast<float>(number)));
        } else if constexpr (std::is_same_v<T, float>) {
            return Value::Of(std::trunc(number));
        } else {
            constexpr auto Half = 4 * sizeof(T);
            return Value::Of(static_cast<T>(static_cast<std::uint64_t>(number) &
                                            ((std::uint64_t{1} << Half) - 1)));
        }
    });
}

void AppendAsItIs(CallArguments& arguments, const Value& value, Kind kind) {
    switch (kind) {
        case Kind::Boolean:
            return arguments.Add(value.IsTrue());
        case Kind::Text:
            return arguments.Add(value.text());
        case Kind::Instance:
        case Kind::Variant:
            return arguments.Add(value.object());
        case Kind::Currency:
            return arguments.Add(value.Get<CurrencyAmount>().scaled);
        default:
            return WithNumberType(kind, [&]<typename T>(std::type_identity<T>) {
                if constexpr (!std::is_same_v<T, CurrencyAmount>) {
                    arguments.Add(value.Get<T>());
                }
            });
    }
}

void Append(CallArguments& arguments, const Value& value, Kind kind) {
    if (kind == Kind::Instance && IsWrongAbout("argument-object-reference")) {
        Host::Current().Lock(value.object());
    } else if (kind == Kind::Text && IsWrongAbout("argument-text-reference")) {
        Host::Current().Lock(value.text());
    }
    const bool isWrong = IsWrongAbout<Kind>(ArgumentFacts, kind);
    AppendAsItIs(arguments, isWrong ? Damaged(value, kind) : value, kind);
}

template <typename T>
void Store(std::array<std::byte, 8>& bytes, T value) {
    std::memcpy(bytes.data(), &value, sizeof value);
}

template <typename T>
T Load(const std::array<std::byte, 8>& bytes) {
    T value;
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

/// The memory that a ByRef argument points at: the variable's value moves in before the call and
/// back into the variable after it, a string or object together with its reference.
class ByRefCell {
public:
    ByRefCell(Value& variable, Kind kind) : variable_(variable), kind_(kind) { Fill(); }
    ~ByRefCell() { Empty(); }
    ByRefCell(const ByRefCell&) = delete;
    ByRefCell& operator=(const ByRefCell&) = delete;

    bool IsFor(const Value& variable) const { return &variable_ == &variable; }
    const std::byte* Address() const { return bytes_.data(); }

private:
    void Fill() {
        switch (kind_) {
            case Kind::Boolean:
                return Store(bytes_, static_cast<std::uint8_t>(variable_.IsTrue()));
            case Kind::Text:
                if (IsWrongAbout("byref-text-released")) {
                    Host::Current().Lock(variable_.text());
                }
                return Store(bytes_, variable_.ReleaseText());
            case Kind::Instance:
            case Kind::Variant:
                return Store(bytes_, variable_.ReleaseObject());
            default:
                return WithNumberType(kind_, [this]<typename T>(std::type_identity<T>) {
                    Store(bytes_, variable_.Get<T>());
                });
        }
    }

    void Empty() {
        switch (kind_) {
            case Kind::Boolean:
                if (!IsWrongAbout("byref-boolean")) {
                    variable_ = Value::Of(Load<std::uint8_t>(bytes_) != 0);
                }
                break;
            case Kind::Text:
                variable_ = Value::Adopt(Load<String>(bytes_));
                if (IsWrongAbout("byref-text")) {
                    variable_ = {};
                } else if (variable_.text() == nullptr && IsWrongAbout("text-empty")) {
                    variable_ = Value::Adopt(
                        Host::Current().MakeString("Nil", host_interface::HostTextEncoding::Utf8));
                }
                break;
            case Kind::Instance:
            case Kind::Variant:
                variable_ = Value::Adopt(Load<Object>(bytes_));
                break;
            default:
                WithNumberType(kind_, [this]<typename T>(std::type_identity<T>) {
                    variable_ = Value::Of(Load<T>(bytes_));
                });
                break;
        }
    }

    Value& variable_;
    Kind kind_;
    alignas(8) std::array<std::byte, 8> bytes_{};
};

/// The cells of one call. A variable that is passed twice has one cell, as it has one address.
class ByRefCells {
public:
    const std::byte* AddressFor(Value& variable, Kind kind) {
        for (const auto& cell : cells_) {
            if (cell.IsFor(variable)) {
                return cell.Address();
            }
        }
        return cells_.emplace_back(variable, kind).Address();
    }

private:
    std::deque<ByRefCell> cells_;
};

}  // namespace

CallLabel::CallLabel(const char* label) : outer_(std::exchange(currentLabel, label)) {}

CallLabel::~CallLabel() {
    currentLabel = outer_;
}

const char* CallLabel::Current() {
    return currentLabel;
}

namespace code {

PluginCall::PluginCall(std::string label, host_interface::Routine routine,
                       std::vector<Argument> arguments, Kind result,
                       std::optional<std::int32_t> parameter)
    : label_(std::move(label)),
      routine_(routine),
      arguments_(std::move(arguments)),
      result_(result),
      parameter_(parameter) {}

std::vector<Value> PluginCall::EvaluateArguments(Frame& frame) const {
    std::vector<Value> values;
    values.reserve(arguments_.size());
    for (const auto& argument : arguments_) {
        values.push_back(argument.byRef ? Value() : argument.value->Evaluate(frame));
    }
    return values;
}

Value PluginCall::Invoke(Frame& frame, std::vector<Value> arguments, const Object* self) const {
    // A variable's own reference is all that an argument has in the host, so it is all it has here:
    // a routine that drops the variable it got by reference drops the argument too.
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments_[i].kind == Kind::Instance && IsWrongAbout("nil-argument")) {
            frame.machine.RequireObject(arguments[i], arguments_[i].value->written());
        }
        const Value* storage = arguments_[i].byRef ? nullptr : arguments_[i].value->Storage(frame);
        if (storage != nullptr) {
            arguments[i].BorrowFrom(*storage);
        }
    }
    CallArguments passed;
    if (self != nullptr) {
        passed.Add(*self);
    }
    if (parameter_) {
        passed.Add(*parameter_);
    }
    ReturnValue returned;
    {
        References references;
        ByRefCells cells;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            const auto& argument = arguments_[i];
            if (argument.byRef) {
                auto& place = *argument.value->Place(frame, references);
                passed.Add(cells.AddressFor(place, argument.kind));
            } else {
                Append(passed, arguments[i], argument.kind);
            }
        }
        const CallLabel label(label_.c_str());
        returned = frame.machine.host().Call(routine_, passed, HowToReturn());
    }
    auto result = ToValue(returned);
    if (IsWrongAbout<Kind>(ResultFacts, result_)) {
        result = Damaged(result, result_);
    } else if (result_ == Kind::Instance && IsWrongAbout("result-object-reference")) {
        frame.machine.host().Lock(result.object());
    } else if (result_ == Kind::Text && IsWrongAbout("result-text-reference")) {
        frame.machine.host().Lock(result.text());
    }
    if (auto* exception = frame.machine.host().TakeException()) {
        frame.machine.Throw(Value::Adopt(exception));
    }
    return result;
}

ReturnKind PluginCall::HowToReturn() const {
    switch (result_) {
        case Kind::None:
            return ReturnKind::None;
        case Kind::Int64:
        case Kind::UInt64:
        case Kind::Currency:
            return ReturnKind::TwoWords;
        case Kind::Single:
            return ReturnKind::Single;
        case Kind::Double:
            return ReturnKind::Double;
        default:
            return ReturnKind::Word;
    }
}

Value PluginCall::ToValue(const ReturnValue& returned) const {
    switch (result_) {
        case Kind::None:
            return {};
        case Kind::Boolean:
            return Value::Of((returned.low & 0xFFU) != 0);
        case Kind::Int32:
            return Value::Of(static_cast<std::int32_t>(returned.low));
        case Kind::Int64:
        case Kind::UInt64:
        case Kind::Currency:
            return Value::Of(returned.Wide());
        case Kind::Single:
        case Kind::Double:
            return Value::Of(returned.real);
        case Kind::Text:
            return Value::Adopt(std::bit_cast<String>(returned.Word()));
        case Kind::Instance:
        case Kind::Variant:
            return Value::Adopt(std::bit_cast<Object>(returned.Word()));
        default:
            return Value::Of(returned.low);
    }
}

InstanceCall::InstanceCall(ExpressionPtr receiver, PluginCall call, NilReceiver nilReceiver,
                           bool argumentsFirst)
    : receiver_(std::move(receiver)),
      call_(std::move(call)),
      nilReceiver_(nilReceiver),
      argumentsFirst_(argumentsFirst) {}

Value InstanceCall::Evaluate(Frame& frame) const {
    std::vector<Value> arguments;
    if (argumentsFirst_) {
        arguments = call_.EvaluateArguments(frame);
    }
    const auto receiver = receiver_->Evaluate(frame);
    if (!argumentsFirst_) {
        arguments = call_.EvaluateArguments(frame);
    }
    if (nilReceiver_ == NilReceiver::Refused) {
        if (receiver.object() == nullptr && IsWrongAbout("nil-receiver-of-setter")) {
            return {};
        }
        frame.machine.RequireObject(receiver, receiver_->written());
    } else if (IsWrongAbout("nil-receiver")) {
        frame.machine.RequireObject(receiver, receiver_->written());
    }
    auto* const self = receiver.object();
    return call_.Invoke(frame, std::move(arguments), &self);
}

Value SharedCall::Evaluate(Frame& frame) const {
    return call_.Invoke(frame, call_.EvaluateArguments(frame), nullptr);
}

Value NewObject::Evaluate(Frame& frame) const {
    std::vector<Value> arguments;
    if (constructor_) {
        arguments = constructor_->EvaluateArguments(frame);
    }
    auto object = frame.machine.MakeObject(info_);
    if (constructor_) {
        auto* const self = object.object();
        constructor_->Invoke(frame, std::move(arguments), &self);
    }
    return object;
}

}  // namespace code
}  // namespace standin::language
