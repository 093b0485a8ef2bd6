"""Drawn mutants that no test notices, each with the reason why that is right."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Explained:
    """A line of a source file and what a mutant makes of it, both without the blanks around them,
    and why no test can distinguish them. Where the same line stands elsewhere, too, those above it say
    which is meant."""

    before: str
    after: str
    reason: str
    above: tuple[str, ...] = ()


EXPLAINED = [
    Explained(
        "std::uint32_t value = 0;",
        "std::uint32_t value = 1;",
        "The system's random bytes replace it, and where there are none, it is not used.",
    ),
    Explained(
        "return std::calloc(1, byteCount);",
        "return std::calloc((1+1), byteCount);",
        "Half of the memory is not used; it is zero and is freed like the other half.",
    ),
    Explained(
        'constexpr std::array Words = {"1", "true", "yes"};',
        'constexpr std::array Words = {"1" , "yes", "true"};',
        "Whether any of the words is the setting does not depend on their order.",
    ),
    Explained(
        "std::current_exception();",
        "/*std::current_exception();*/",
        "Native language runtimes keep what this prepares in thread-local memory, which is there from "
        "the start. It is for the runtime of Windows, which these builds do not have.",
    ),
    Explained(
        "PrepareForExceptions();",
        "/*PrepareForExceptions();*/",
        "The same, one call further out.",
    ),
    Explained(
        "if (handle != nullptr) {",
        "if (1==1) {",
        "Hosts count no references of a null handle, which is an empty text or no object; the condition "
        "saves a call.",
    ),
    Explained(
        "while (getrandom(&value, sizeof value, 0) != static_cast<ssize_t>(sizeof value)) {",
        "while (getrandom(&value, sizeof value, (0+1)) != static_cast<ssize_t>(sizeof value)) {",
        "Nothing calls this function; it is there for the linker.",
    ),
    Explained(
        "Reset();",
        "/*Reset();*/",
        "The destructor's last step; nobody may look at the text after it.",
        above=("}",),
    ),
    Explained(
        "if (factor != std::numeric_limits<std::int32_t>::min()) {",
        "if (factor > std::numeric_limits<std::int32_t>::min()) {",
        "No factor is less than the least one.",
    ),
    Explained(
        "bool EqualIgnoringCase(const char* left, const char* right) noexcept {",
        "bool EqualIgnoringCase ( const char* right,const char* left) noexcept {",
        "Equality does not depend on the order.",
    ),
    Explained(
        "static Vector Add(Vector left, Vector right) { return _mm_add_epi64(left, right); }",
        "static Vector Add(Vector left, Vector right) { return _mm_add_epi64 ( right,left); }",
        "A sum does not depend on the order.",
    ),
    Explained(
        "return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>([](Object self, Object other) {",
        "return MakeUnguardedRoutine<Unguarded::NothingThrows, LogName>([] ( Object other,Object self) {",
        "Whether two numbers are equal does not depend on the order.",
    ),
    Explained(
        "static Vector Add(Vector left, Vector right) { return _mm256_add_epi64(left, right); }",
        "static Vector Add ( Vector right,Vector left) { return _mm256_add_epi64(left, right); }",
        "A sum does not depend on the order.",
    ),
    Explained(
        "static Vector And(Vector left, Vector right) { return _mm256_and_si256(left, right); }",
        "static Vector And(Vector left, Vector right) { return _mm256_and_si256 ( right,left); }",
        "A bitwise product does not depend on the order.",
    ),
    Explained(
        "exponent > PlainExponentLimit) {",
        "exponent >= PlainExponentLimit) {",
        "The limit itself may be plain or not: both ways give the same number.",
    ),
    Explained(
        "if (columns > 0) {",
        "if (columns != 0) {",
        "For fewer than no columns nothing is computed either way; then zeros are written, also over limbs that "
        "are 0 already.",
    ),
]
