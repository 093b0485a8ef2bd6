"""Draws arguments for the functions: random numbers that fill the mantissa, and short decimals.

Each function here makes, or is, a `draw`: called with a random generator and the bits of the
mantissa it returns a tuple of arguments. One number in four, where the range is that of everyday
numbers, is a decimal of at most five digits such as 12.7, rounded to the mantissa; the others have
random bits.
"""

import mpmath
from mpmath import mp, mpf

# Decimals are drawn between 2^-70 and 2^70 only.
EVERYDAY_EXPONENT = 70


def with_bits(value, bits):
    """The value rounded to so many bits."""
    with mp.workprec(bits):
        return +value


def value_of(text: str):
    """The value of "a", "a/b" or "a**b" of integers."""
    if "**" in text:
        base, power = text.split("**")
        return mpf(int(base)) ** int(power)
    numerator, _, denominator = text.partition("/")
    return mpf(int(numerator)) / int(denominator or 1)


def in_binade(rng, bits, exponent):
    """A number from 2^exponent up to the next power of two."""
    mantissa = rng.getrandbits(bits - 1) | 1 << (bits - 1)
    return mpmath.ldexp(mpf(mantissa), exponent - bits + 1)


def maybe_decimal(rng, bits, value, is_allowed=lambda value: True):
    """One time in four, the short decimal nearest to the value."""
    if rng.random() >= 0.25 or value == 0 or abs(mpmath.mag(value)) > EVERYDAY_EXPONENT:
        return value
    digits = rng.randint(1, 5)
    with mp.workprec(64):
        place = digits - 1 - int(mpmath.floor(mpmath.log10(abs(value))))
    scaled = int(mpmath.nint(value * mpf(10) ** place))
    decimal = with_bits(mpf(scaled) / mpf(10) ** place, bits)
    return decimal if is_allowed(decimal) else value


def with_random_sign(rng, value):
    return rng.choice([value, -value])


# ---------------------------------------------------------------------------------- one number

def magnitude(lowest: int, highest: int):
    """From 2^lowest to 2^highest, each power of two as often as the others, with either sign."""
    def draw(rng, bits):
        value = in_binade(rng, bits, rng.randrange(lowest, highest))
        value = maybe_decimal(rng, bits, value, lambda one: lowest < mpmath.mag(one) <= highest)
        return (with_random_sign(rng, value),)
    return draw


def between(lowest: str, highest: str):
    """Evenly from one number to another."""
    low, high = value_of(lowest), value_of(highest)

    def draw(rng, bits):
        share = mpmath.ldexp(mpf(rng.getrandbits(bits + 64)), -bits - 64)
        value = with_bits(low + (high - low) * share, bits)
        return (maybe_decimal(rng, bits, value, lambda one: low <= one <= high),)
    return draw


def uniform(lowest: str, highest: str, both: bool = True):
    """Evenly from one positive number to another; with either sign, or positive."""
    inner = between(lowest, highest)

    def draw(rng, bits):
        (value,) = inner(rng, bits)
        return (with_random_sign(rng, value) if both else value,)
    return draw


def huge_exponent(rng, bits) -> int:
    """2^50 to 2^60, in the larger class to 2^500."""
    size = rng.randrange(50, 60 if bits == 256 else 500)
    return rng.getrandbits(size) | 1 << size


def above(lowest: int):
    """From 2^lowest to almost the square root of the largest number, with either sign."""
    common = magnitude(lowest, 5000)

    def draw(rng, bits):
        if rng.random() < 0.75:
            return common(rng, bits)
        return (with_random_sign(rng, in_binade(rng, bits, huge_exponent(rng, bits))),)
    return draw


def below(highest: int):
    """From 2^highest down to almost the square root of the smallest number, with either sign."""
    near, far = magnitude(-64, highest), magnitude(-5000, -64)

    def draw(rng, bits):
        kind = rng.random()
        if kind < 0.75:
            return (near if kind < 0.5 else far)(rng, bits)
        return (with_random_sign(rng, in_binade(rng, bits, -huge_exponent(rng, bits))),)
    return draw


def ends_of_range(rng, bits):
    """Positive, with exponents that need many of the bits that an exponent has."""
    exponent = huge_exponent(rng, bits)
    return (in_binade(rng, bits, rng.choice([exponent, -exponent])),)


def beside_one(lowest: int, highest: int, side: int, both: bool = False):
    """1 + side * d for d from 2^lowest to 2^highest, or to 1/20 where that is -5."""
    limit = mpf(1) / 20 if highest == -5 else mpmath.ldexp(mpf(1), highest)

    def draw(rng, bits):
        while True:
            distance = in_binade(rng, bits, rng.randrange(lowest, highest + 1))
            distance = maybe_decimal(rng, bits, distance)
            if distance <= limit:
                value = with_bits(1 + side * distance, bits)
                return (with_random_sign(rng, value) if both else value,)
    return draw


def beside_pi(multiples):
    """2^-90 to 2^-60 from one of the multiples of pi, with either sign."""
    def draw(rng, bits):
        distance = in_binade(rng, bits, rng.randrange(-90, -60))
        point = mp.pi * value_of(rng.choice(multiples))
        return (with_random_sign(rng, with_bits(point + with_random_sign(rng, distance), bits)),)
    return draw


# ------------------------------------------------------------------------------- made of others

def positive(inner):
    return lambda rng, bits: tuple(abs(value) for value in inner(rng, bits))


def negative(inner):
    return lambda rng, bits: tuple(-abs(value) for value in inner(rng, bits))


def either(first, second):
    return lambda rng, bits: rng.choice([first, second])(rng, bits)


def both(first, second):
    """The arguments of both."""
    return lambda rng, bits: first(rng, bits) + second(rng, bits)


def those_that(is_allowed, inner):
    """Draws until the number is allowed."""
    def draw(rng, bits):
        while True:
            (value,) = inner(rng, bits)
            if is_allowed(value):
                return (value,)
    return draw


def away_from(inner, zeros_per_pi: int, first: str = "0"):
    """At least 1/16 from each (n / zeros_per_pi + first) * pi."""
    def is_away(value):
        place = (value / mp.pi - value_of(first)) * zeros_per_pi
        return abs(place - mpmath.nint(place)) * mp.pi / zeros_per_pi >= mpf(1) / 16
    return those_that(is_away, inner)


def not_just_below_one(inner):
    return those_that(lambda value: not mpf(19) / 20 < value < 1, inner)


# --------------------------------------------------------------------------------- more numbers

def pair(lowest: int, highest: int):
    return both(magnitude(lowest, highest), magnitude(lowest, highest))


def sum_of_magnitudes(sign: int):
    """Two numbers of which the smaller one may be too small to count; the second has the sign of
    the first, or the other one for -1."""
    def draw(rng, bits):
        (first,) = magnitude(-64, 64)(rng, bits)
        reach = rng.choice([4, bits + 4])
        exponent = mpmath.mag(first) - 1 + rng.randint(-reach, reach)
        second = maybe_decimal(rng, bits, in_binade(rng, bits, exponent))
        return first, second * mpmath.sign(first) * sign
    return draw


def difference_of_far(sign: int):
    """The same, one of the two at least four times as large as the other."""
    inner = sum_of_magnitudes(sign)

    def draw(rng, bits):
        while True:
            first, second = inner(rng, bits)
            low, high = sorted([abs(first), abs(second)])
            if high >= 4 * low:
                return first, second
    return draw


def difference_of_near(sign: int):
    """The same, none of the two four times as large as the other."""
    def draw(rng, bits):
        (first,) = magnitude(-64, 64)(rng, bits)
        (ratio,) = uniform("1", "4", both=False)(rng, bits)
        second = first * ratio if rng.random() < 0.5 else first / ratio
        return first, with_bits(second, bits) * sign
    return draw


def with_word(inner):
    """The number and an integer that a machine word holds."""
    return lambda rng, bits: inner(rng, bits) + (mpf(integer_below(rng, 32)),)


def division(lowest: int, highest: int):
    """Two numbers with a quotient from 2^lowest to 2^highest that is at least 1/1000 away from each
    whole number."""
    def is_allowed(quotient):
        fraction = abs(quotient - mpmath.nint(quotient))
        return lowest < mpmath.mag(quotient) <= highest and fraction >= mpf(1) / 1000

    def draw(rng, bits):
        while True:
            (divisor,) = magnitude(-20, 20)(rng, bits)
            quotient = in_binade(rng, bits, rng.randrange(lowest, highest))
            dividend = maybe_decimal(rng, bits, with_bits(abs(divisor) * quotient, bits))
            if is_allowed(abs(dividend / divisor)):
                return with_random_sign(rng, dividend), divisor
    return draw


def integer_below(rng, size: int) -> int:
    """An integer of at most so many bits, each length as often as the others; not 0."""
    length = rng.randrange(size)
    return rng.getrandbits(length) | 1 << length


def integers(rng, bits):
    """Two integers that the mantissa holds, the first one mostly the larger one."""
    numbers = sorted((integer_below(rng, bits) for _ in range(2)), reverse=rng.random() < 0.9)
    return tuple(with_random_sign(rng, mpf(number)) for number in numbers)


def square(rng, bits):
    return (mpf(integer_below(rng, bits // 2) ** 2),)


def perfect_power(rng, bits):
    """A power of an integer, negative at times, and its index."""
    index = rng.randint(2, 20)
    power = mpf(integer_below(rng, bits // index) ** index)
    return with_random_sign(rng, power) if index % 2 else power, mpf(index)


def root(lowest: int, highest: int):
    """A number, negative at times, and an index from 2 to 100."""
    inner = positive(magnitude(lowest, highest))

    def draw(rng, bits):
        (value,) = inner(rng, bits)
        index = rng.randint(2, 100)
        return with_random_sign(rng, value) if index % 2 else value, mpf(index)
    return draw


def whole_power(lowest: int, highest: int, least: int, most: int):
    """A base from 2^lowest to 2^highest and a whole exponent, both with either sign."""
    inner = magnitude(lowest, highest)

    def draw(rng, bits):
        (base,) = inner(rng, bits)
        return base, mpf(with_random_sign(rng, rng.randint(least, most)))
    return draw


def logarithm(rng, bits):
    """A number that is not just below 1 and a base, one time in two a whole one."""
    (value,) = not_just_below_one(positive(magnitude(-300, 300)))(rng, bits)
    if rng.random() < 0.5:
        return value, mpf(rng.randint(2, 100))
    (base,) = positive(either(magnitude(1, 100), magnitude(-100, -1)))(rng, bits)
    return value, base


def long_angle(rng, bits):
    """Degrees, whole ones at times, minutes and seconds."""
    (degrees,) = between("-360", "360")(rng, bits)
    if rng.random() < 0.25:
        degrees = mpmath.nint(degrees)
    parts = uniform("0", "100", both=False)
    return (degrees,) + parts(rng, bits) + parts(rng, bits)
