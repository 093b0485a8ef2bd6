// The arithmetic library by itself, without the plug-in: as it is installed, or with the kernels
// that the plug-in adds to it.
#include "bench/contender.hpp"
#include "bench/operations.hpp"
#include "number/kernels/specialisations.hpp"

namespace {

template <unsigned Bits, typename Value>
class Rows {
public:
    explicit Rows(bench::Contender& contender) : contender_(contender) {}

    void Offer() {
        InPlace("add", [](Value& me, const Value& other) { me.Add(other); });
        InPlace("subtract", [](Value& me, const Value& other) { me.Sub(other); });
        InPlace("multiply", [](Value& me, const Value& other) { me.Mul(other); });
        InPlace("multiply by integer", [](Value& me, const Value&) { me.MulInt(7); });
        InPlace("divide", [](Value& me, const Value& other) { me.Div(other); });
        InPlace("divide by 7", [](Value& me, const Value& other) { me.Div(other); });
        InPlace("remainder", [](Value& me, const Value& other) { me.Mod(other); });
        InPlace("round", [](Value& me, const Value&) { me.Round(); });
        InPlace("sqrt", [](Value& me, const Value&) { me.Sqrt(); });
        InPlace("pow", [](Value& me, const Value& other) { me.Pow(other); });
        InPlace("pow, integer", [](Value& me, const Value& other) { me.Pow(other); });

        Function("root", [](const Value& x, const Value& y) { return ttmath::Root(x, y); });
        Function("log", [](const Value& x, const Value& y) { return ttmath::Log(x, y); });
        Function("exp", [](const Value& x, const Value&) { return ttmath::Exp(x); });
        Function("ln", [](const Value& x, const Value&) { return ttmath::Ln(x); });
        Function("sin", [](const Value& x, const Value&) { return ttmath::Sin(x); });
        Function("cos", [](const Value& x, const Value&) { return ttmath::Cos(x); });
        Function("tan", [](const Value& x, const Value&) { return ttmath::Tan(x); });
        Function("cot", [](const Value& x, const Value&) { return ttmath::Cot(x); });
        Function("asin", [](const Value& x, const Value&) { return ttmath::ASin(x); });
        Function("acos", [](const Value& x, const Value&) { return ttmath::ACos(x); });
        Function("atan", [](const Value& x, const Value&) { return ttmath::ATan(x); });
        Function("acot", [](const Value& x, const Value&) { return ttmath::ACot(x); });
        Function("sinh", [](const Value& x, const Value&) { return ttmath::Sinh(x); });
        Function("cosh", [](const Value& x, const Value&) { return ttmath::Cosh(x); });
        Function("tanh", [](const Value& x, const Value&) { return ttmath::Tanh(x); });
        Function("coth", [](const Value& x, const Value&) { return ttmath::Coth(x); });
        Function("asinh", [](const Value& x, const Value&) { return ttmath::ASinh(x); });
        Function("acosh", [](const Value& x, const Value&) { return ttmath::ACosh(x); });
        Function("atanh", [](const Value& x, const Value&) { return ttmath::ATanh(x); });
        Function("acoth", [](const Value& x, const Value&) { return ttmath::ACoth(x); });
        Function("compare", [](const Value& x, const Value& y) {
            return x < y ? -1 : static_cast<int>(x > y);
        });
        Function("to text", [](const Value& x, const Value&) { return x.ToString(); });
        Function("from text", [text = Text("from text")](const Value&, const Value&) {
            Value value;
            value.FromString(text);
            return value;
        });
        Function("zero", [](const Value&, const Value&) {
            Value value;
            value.SetZero();
            return value;
        });
        InPlace("abs", [](Value& me, const Value&) { me.Abs(); });
        Function("is zero", [](const Value& x, const Value&) { return x.IsZero(); });
        Function("to double", [](const Value& x, const Value&) { return x.ToDouble(); });
        Function("from double", [](const Value&, const Value&) { return Value(1.5); });
    }

private:
    static std::string Text(std::string_view name) {
        return OperandText(bench::FindOperation(name).x, Bits);
    }

    /// A computation of a new value from two operands.
    template <typename Compute>
    void Function(std::string_view name, Compute compute) {
        contender_.OfferComputation<Value>(Bits, name, compute);
    }

    /// A member that changes its number.
    template <typename Change>
    void InPlace(std::string_view name, Change change) {
        Function(name, [change](const Value& x, const Value& y) {
            Value result = x;
            change(result, y);
            return result;
        });
    }

    bench::Contender& contender_;
};

}  // namespace

int main() {
    bench::Contender contender;
    Rows<256, ttmath::Big<TTMATH_BITS(64), TTMATH_BITS(256)>>(contender).Offer();
    Rows<2048, ttmath::Big<TTMATH_BITS(512), TTMATH_BITS(2048)>>(contender).Offer();
    return contender.Serve();
}
