"""Makes the modules of the self-test that check each member of the number classes.

usage: make_checks.py SOURCES [--check | --record COMMAND...]

Writes examples/SelfTest/BigNumberChecks.xojo_code and BiggerNumberChecks.xojo_code from the table in
members.py. The results there are computed in Python, by reference.py; no result is taken over from the
library. With one exception: the bits of a result that does not end, which depend on how each step of its
computation rounds. They were recorded from the library (--record, with the words that start the stand-in
host with it) in bits.txt, and each of them must be within a few units in the last place of what is computed
here; members.py states how many.

--check writes nothing and fails when the modules are not those that would be written.
"""

import argparse
import pathlib
import subprocess
import sys
import tempfile
from decimal import Decimal

import reference
from members import CLASSES, MEMBERS, Exact, Inexact, Member, NumberClass

TABLE = pathlib.Path(__file__).parent / "bits.txt"
PROJECT = "examples/SelfTest"


def bits_name(check: Inexact, number_class: NumberClass) -> str:
    return check.name.replace("$", number_class.name)


def read_bits() -> dict[str, tuple[str, int]]:
    """The recorded mantissas, as hexadecimal bytes in the order of memory, and exponents."""
    bits = {}
    if TABLE.exists():
        for line in TABLE.read_text("utf-8").splitlines():
            if line and not line.startswith("#"):
                name, exponent, mantissa = line.split("|")
                bits[name] = mantissa, int(exponent)
    return bits


def check_bits(name: str, mantissa: str, exponent: int, value: Decimal, units: int) -> None:
    """Fails unless the recorded bits are within so many units in the last place of the value."""
    whole = int.from_bytes(bytes.fromhex(mantissa), "little")
    bits = 4 * len(mantissa)
    if whole.bit_length() != bits:
        sys.exit(f"{name}: the recorded mantissa does not begin with a set bit")
    unit = Decimal(2) ** exponent
    off = abs(abs(value) - whole * unit) / unit
    if off > units:
        sys.exit(f"{name}: the recorded bits are {off:.3f} units in the last place off")


def literal(text: str) -> str:
    return '"' + text.replace('"', '""') + '"'


def lines_of(check, number_class: NumberClass, bits: dict) -> list[str]:
    """The statements of one check."""
    name = literal(check.name.replace("$", number_class.name))
    if isinstance(check, Exact):
        return [f"CheckText({name}, Shown({check.expression}), "
                f"{literal(reference.exact_text(check.value))})"]
    if isinstance(check, Inexact):
        value = check.value()
        places = number_class.places
        lines = [f"x = {check.expression}",
                 f"CheckText({name}, x.GetStringValue(10, False, 99999, {places}, True, \".\"), "
                 f"{literal(reference.rounded_text(value, places))})"]
        mantissa, exponent = bits[bits_name(check, number_class)]
        check_bits(check.name, mantissa, exponent, value, check.units)
        return [*lines, f"CheckBytes({name}, x.DataMantissa, {literal(mantissa)})"]
    return check.statements(name)


def method(member: Member, number_class: NumberClass, bits: dict) -> list[str]:
    """A method with the checks of a member, as it stands in a module."""
    body = ["#Pragma BreakOnExceptions False", "Dim x As $", "Dim none As $", "Try"]
    for check in member.checks:
        body += ["  " + line for line in lines_of(check, number_class, bits)]
    name = literal(member.name.replace("$", number_class.name))
    body += ["Catch e As RuntimeException", f"  Unexpected({name}, e)", "End Try"]
    used = " ".join(body)
    for variable in ("none", "x"):
        if f" {variable} " not in used.replace(f"Dim {variable} As", "").replace(
                "(", " ").replace(")", " ").replace(".", " ").replace(",", " "):
            body.remove(f"Dim {variable} As $")
    if member.condition:
        body = [f"#If {member.condition} Then", *("  " + line for line in body), "#EndIf"]
    text = ["\t#tag Method, Flags = &h21", f"\t\tPrivate Sub {member.method}()"]
    text += ["\t\t  " + line for line in body]
    return [*text, "\t\tEnd Sub", "\t#tag EndMethod", ""]


HELPERS = """\
	#tag Method, Flags = &h21
		Private Function N(digits As String) As $
		  Return $.NumberWithString(digits)
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function Shown(number As $) As String
		  ' All digits, and never an exponent.
		  If number Is Nil Then
		    Return "Nil"
		  End If
		  Return number.GetStringValue(10, False, 99999, -1, True, ".")
		End Function
	#tag EndMethod

	#tag Method, Flags = &h21
		Private Function InMessage(number As $) As String
		  ' As messages show a number.
		  Return number.GetStringValue(10, False, 15, -1, True, ".")
		End Function
	#tag EndMethod
"""


def module(number_class: NumberClass, bits: dict) -> str:
    name = f"{number_class.name.removesuffix('VQZ')}Checks"
    calls = "\n".join(f"\t\t  {member.method}" for member in MEMBERS)
    head = f"""\
#tag Module
Protected Module {name}
	#tag Note, Name = About
		Each member of {number_class.name} with results that were computed elsewhere. This module is made by
		tests/self_test/make_checks.py, which says how; what it is made from stands in members.py there.
	#tag EndNote

	#tag Method, Flags = &h1
		Protected Sub Run()
{calls}
		End Sub
	#tag EndMethod

"""
    methods = "\n".join("\n".join(method(member, number_class, bits)) for member in MEMBERS)
    tail = f"""
	#tag ViewBehavior
	#tag EndViewBehavior
End Module
#tag EndModule
"""
    text = head + HELPERS + "\n" + methods + tail
    return text.replace("$", number_class.name)


def record(command: list[str]) -> None:
    """Asks the library for the bits of all results that do not end."""
    program = []
    for number_class in CLASSES:
        program.append(f"Function N{number_class.bits}(digits As String) As {number_class.name}\n"
                       f"  Return {number_class.name}.NumberWithString(digits)\nEnd Function\n"
                       f"Sub Show{number_class.bits}(name As String, n As {number_class.name})\n"
                       "  Dim digits As String\n  Dim block As MemoryBlock = n.DataMantissa\n"
                       "  For i As Integer = 0 To block.Size - 1\n"
                       "    digits = digits + Right(\"0\" + Hex(block.Byte(i)), 2)\n  Next\n"
                       "  Print name + \"|\" + Str(n.DataExponent.Int64Value(0)) + \"|\" + digits\n"
                       "End Sub")
        for member in MEMBERS:
            for check in member.checks:
                if isinstance(check, Inexact):
                    expression = check.expression.replace("$", number_class.name)
                    expression = expression.replace("N(\"", f"N{number_class.bits}(\"")
                    program.append(f"Show{number_class.bits}("
                                   f"\"{bits_name(check, number_class)}\", {expression})")
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "bits.xojo_script"
        path.write_text("\n".join(program) + "\n", "utf-8")
        result = subprocess.run([*command, str(path)], capture_output=True, check=False, text=True)
    if result.returncode != 0:
        sys.exit(result.stderr)
    TABLE.write_text("# Recorded from the library by make_checks.py --record: the check, and of its "
                     "result the exponent\n# and the bytes of the mantissa in the order of memory.\n" +
                     result.stdout.replace("\r\n", "\n"), "utf-8")


def main() -> None:
    parser = argparse.ArgumentParser(usage=__doc__.split("usage: ")[1])
    parser.add_argument("sources", type=pathlib.Path)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--record", nargs=argparse.REMAINDER)
    given = parser.parse_args()
    if given.record:
        record(given.record)
    bits = read_bits()
    stale = []
    for number_class in CLASSES:
        path = given.sources / PROJECT / f"{number_class.name.removesuffix('VQZ')}Checks.xojo_code"
        text = module(number_class, bits)
        if not given.check:
            path.write_text(text, "utf-8")
        elif path.read_text("utf-8") != text:
            stale.append(f"{path.name} is not what make_checks.py makes; run it")
    if stale:
        sys.exit("\n".join(stale))
    print(f"{len(MEMBERS)} methods, {sum(len(member.checks) for member in MEMBERS)} checks, "
          f"{len(bits)} results with recorded bits")


if __name__ == "__main__":
    main()
