// MPFR in 64-bit code: how fast it can be done where nothing holds one back.
#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include <mpfr.h>

#include "bench/contender.hpp"
#include "bench/operations.hpp"

namespace {

/// A number of a fixed precision. Each measurement keeps its own, for as long as the process runs.
class Number {
public:
    explicit Number(unsigned bits, const std::string& text = "0") {
        mpfr_init2(value_, bits);
        mpfr_set_str(value_, text.c_str(), 10, MPFR_RNDN);
    }
    ~Number() { mpfr_clear(value_); }
    Number(const Number&) = delete;
    Number& operator=(const Number&) = delete;

    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

using OneNumber = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
using TwoNumbers = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

struct FunctionOfOne {
    std::string_view name;
    OneNumber function;
};

struct FunctionOfTwo {
    std::string_view name;
    TwoNumbers function;
};

int Compare(mpfr_ptr, mpfr_srcptr x, mpfr_srcptr y, mpfr_rnd_t) {
    return mpfr_cmp3(x, y, 1);
}

int MultiplyBySeven(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
    return mpfr_mul_si(result, x, 7, rounding);
}

int FifthRoot(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t rounding) {
    return mpfr_rootn_ui(result, x, 5, rounding);
}

int Round(mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t) {
    return mpfr_round(result, x);
}

int ToText(mpfr_ptr, mpfr_srcptr x, mpfr_rnd_t rounding) {
    mpfr_exp_t exponent = 0;
    mpfr_free_str(mpfr_get_str(nullptr, &exponent, 10, 0, x, rounding));
    return 0;
}

constexpr std::array FunctionsOfOne{
    FunctionOfOne{"multiply by integer", MultiplyBySeven},
    FunctionOfOne{"round", Round},
    FunctionOfOne{"sqrt", mpfr_sqrt},
    FunctionOfOne{"root", FifthRoot},
    FunctionOfOne{"exp", mpfr_exp},
    FunctionOfOne{"ln", mpfr_log},
    FunctionOfOne{"log", mpfr_log10},
    FunctionOfOne{"sin", mpfr_sin},
    FunctionOfOne{"cos", mpfr_cos},
    FunctionOfOne{"tan", mpfr_tan},
    FunctionOfOne{"cot", mpfr_cot},
    FunctionOfOne{"asin", mpfr_asin},
    FunctionOfOne{"acos", mpfr_acos},
    FunctionOfOne{"atan", mpfr_atan},
    FunctionOfOne{"sinh", mpfr_sinh},
    FunctionOfOne{"cosh", mpfr_cosh},
    FunctionOfOne{"tanh", mpfr_tanh},
    FunctionOfOne{"coth", mpfr_coth},
    FunctionOfOne{"asinh", mpfr_asinh},
    FunctionOfOne{"acosh", mpfr_acosh},
    FunctionOfOne{"atanh", mpfr_atanh},
    FunctionOfOne{"to text", ToText},
};

constexpr std::array FunctionsOfTwo{
    FunctionOfTwo{"add", mpfr_add},          FunctionOfTwo{"subtract", mpfr_sub},
    FunctionOfTwo{"multiply", mpfr_mul},     FunctionOfTwo{"divide", mpfr_div},
    FunctionOfTwo{"divide by 7", mpfr_div},  FunctionOfTwo{"remainder", mpfr_fmod},
    FunctionOfTwo{"compare", Compare},       FunctionOfTwo{"pow", mpfr_pow},
    FunctionOfTwo{"pow, integer", mpfr_pow},
};

/// The operands of a row and room for its result.
struct Numbers {
    Number x;
    Number y;
    Number result;

    Numbers(const bench::Operation& operation, unsigned bits)
        : x(bits, OperandText(operation.x, bits)),
          y(bits, OperandText(operation.y, bits)),
          result(bits) {}
};

void OfferAll(bench::Contender& contender, unsigned bits) {
    const auto numbersOf = [bits](std::string_view name) {
        return std::make_shared<Numbers>(bench::FindOperation(name), bits);
    };
    for (const auto& [name, function] : FunctionsOfOne) {
        contender.OfferRepeated(bits, name, [function, n = numbersOf(name)] {
            function(n->result.get(), n->x.get(), MPFR_RNDN);
        });
    }
    for (const auto& [name, function] : FunctionsOfTwo) {
        contender.OfferRepeated(bits, name, [function, n = numbersOf(name)] {
            function(n->result.get(), n->x.get(), n->y.get(), MPFR_RNDN);
        });
    }
    const auto& fromText = bench::FindOperation("from text");
    contender.OfferRepeated(bits, fromText.name,
                            [text = OperandText(fromText.x, bits), n = numbersOf("from text")] {
                                mpfr_set_str(n->result.get(), text.c_str(), 10, MPFR_RNDN);
                            });
}

}  // namespace

int main() {
    // MPFR remembers constants such as pi between calls; that is how its users get it.
    bench::Contender contender;
    OfferAll(contender, 256);
    OfferAll(contender, 2048);
    return contender.Serve();
}
