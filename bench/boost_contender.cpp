// Boost.Multiprecision's binary floating point of the same mantissa sizes.
#include <cmath>
#include <cstdint>
#include <string>

#include <boost/multiprecision/cpp_bin_float.hpp>

#include "bench/contender.hpp"
#include "bench/operations.hpp"

namespace {

namespace mp = boost::multiprecision;

template <unsigned Bits>
class Rows {
public:
    using Value =
        mp::number<mp::cpp_bin_float<Bits, mp::digit_base_2, void, std::int32_t>, mp::et_off>;

    explicit Rows(bench::Contender& contender) : contender_(contender) {}

    void Offer() {
        Function("add", [](const Value& x, const Value& y) { return Value(x + y); });
        Function("subtract", [](const Value& x, const Value& y) { return Value(x - y); });
        Function("multiply", [](const Value& x, const Value& y) { return Value(x * y); });
        Function("multiply by integer", [](const Value& x, const Value&) { return Value(x * 7); });
        Function("divide", [](const Value& x, const Value& y) { return Value(x / y); });
        Function("divide by 7", [](const Value& x, const Value& y) { return Value(x / y); });
        Function("remainder", [](const Value& x, const Value& y) { return Value(fmod(x, y)); });
        Function("compare", [](const Value& x, const Value& y) { return x.compare(y); });
        Function("round", [](const Value& x, const Value&) { return Value(round(x)); });
        Function("sqrt", [](const Value& x, const Value&) { return Value(sqrt(x)); });
        Function("pow", [](const Value& x, const Value& y) { return Value(pow(x, y)); });
        Function("pow, integer", [](const Value& x, const Value& y) { return Value(pow(x, y)); });
        Function("exp", [](const Value& x, const Value&) { return Value(exp(x)); });
        Function("ln", [](const Value& x, const Value&) { return Value(log(x)); });
        Function("log", [](const Value& x, const Value&) { return Value(log10(x)); });
        Function("sin", [](const Value& x, const Value&) { return Value(sin(x)); });
        Function("cos", [](const Value& x, const Value&) { return Value(cos(x)); });
        Function("tan", [](const Value& x, const Value&) { return Value(tan(x)); });
        Function("asin", [](const Value& x, const Value&) { return Value(asin(x)); });
        Function("acos", [](const Value& x, const Value&) { return Value(acos(x)); });
        Function("atan", [](const Value& x, const Value&) { return Value(atan(x)); });
        Function("sinh", [](const Value& x, const Value&) { return Value(sinh(x)); });
        Function("cosh", [](const Value& x, const Value&) { return Value(cosh(x)); });
        Function("tanh", [](const Value& x, const Value&) { return Value(tanh(x)); });
        Function("asinh", [](const Value& x, const Value&) { return Value(asinh(x)); });
        Function("acosh", [](const Value& x, const Value&) { return Value(acosh(x)); });
        Function("atanh", [](const Value& x, const Value&) { return Value(atanh(x)); });
        Function("to text", [](const Value& x, const Value&) { return x.str(); });
        Function("from text", [text = OperandText(bench::FindOperation("from text").x, Bits)](
                                  const Value&, const Value&) { return Value(text); });
    }

private:
    template <typename Compute>
    void Function(std::string_view name, Compute compute) {
        contender_.OfferComputation<Value>(Bits, name, compute);
    }

    bench::Contender& contender_;
};

}  // namespace

int main() {
    bench::Contender contender;
    Rows<256>(contender).Offer();
    Rows<2048>(contender).Offer();
    return contender.Serve();
}
