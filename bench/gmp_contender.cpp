// GMP's product of two rows of limbs: a multiplication without exponent, sign and rounding, and so
// less than any number's.
#include <memory>
#include <string_view>
#include <vector>

#include <gmp.h>

#include "bench/contender.hpp"
#include "bench/operations.hpp"

namespace {

/// The digits of an operand that are not 0, as an integer with its top bit set.
std::vector<mp_limb_t> Mantissa(const bench::Operand& operand, unsigned bits) {
    std::string digits = OperandText(operand, bits);
    std::erase(digits, '.');
    mpz_t integer;
    mpz_init_set_str(integer, digits.c_str(), 10);
    const mp_bitcnt_t length = mpz_sizeinbase(integer, 2);
    if (length > bits) {
        mpz_tdiv_q_2exp(integer, integer, length - bits);
    } else {
        mpz_mul_2exp(integer, integer, bits - length);
    }
    const mp_limb_t* limbs = mpz_limbs_read(integer);
    std::vector<mp_limb_t> mantissa(limbs, limbs + bits / GMP_NUMB_BITS);
    mpz_clear(integer);
    return mantissa;
}

void OfferProduct(bench::Contender& contender, unsigned bits) {
    const bench::Operation& multiply = bench::FindOperation("multiply");
    const auto product = std::make_shared<std::vector<mp_limb_t>>(2 * bits / GMP_NUMB_BITS);
    contender.OfferRepeated(
        bits, multiply.name,
        [x = Mantissa(multiply.x, bits), y = Mantissa(multiply.y, bits), product] {
            mpn_mul_n(product->data(), x.data(), y.data(), static_cast<mp_size_t>(x.size()));
            bench::Keep(*product);
        });
}

}  // namespace

int main() {
    bench::Contender contender;
    OfferProduct(contender, 256);
    OfferProduct(contender, 2048);
    return contender.Serve();
}
