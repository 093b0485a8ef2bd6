// Programs that use a plug-in: what is passed, which member is meant, what a failure becomes.
#include <string>

#include <doctest/doctest.h>

#include "standin/language/listing.hpp"
#include "tests/unit/language_support.hpp"

using language_tests::PerWidth;
using language_tests::SampleHost;

TEST_CASE("every type is passed and comes back") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample(3), o As New Sample(4)\n"
                   "Print s.Describe(True, -1, 4294967295, -5000000000, 18446744073709551615, 0.5, "
                   "0.25, 1.5, \"ä\", o)\n"
                   "Print s.Describe(False, 1, 1, 1, 1, 1, 1, 1, \"\", Nil)") ==
          "3 1 -1 4294967295 -5000000000 18446744073709551615 0.500000 0.250000 15000 ä 4\n"
          "3 0 1 1 1 1 1.000000 1.000000 10000  -1\n");
    CHECK(host.Show("Sample.AUInt64") == "18364758544493064720");
    CHECK(host.Show("Sample.AnInt64") == "-5000000000");
    CHECK(host.Show("Sample.AUInt32") == "4294967295");
    CHECK(host.Show("Sample.ASingle") == "0.1");
    CHECK(host.Show("Sample.ADouble") == "0.1");
    CHECK(host.Show("Sample.ACurrency") == "-1.25");
    CHECK(host.Run("Print Sample.NoString + \"|\"") == "|\n");
    CHECK(host.Show("Sample.NoSample Is Nil") == "True");
}

TEST_CASE("the stack and the control word may be any 32-bit host's") {
    const standin::HostOptions options{.misalignedStack = true, .changedControlWord = true};
    if (sizeof(host_interface::Integer) != 4) {
        CHECK_THROWS_WITH(SampleHost(options).Run(""),
                          "a misaligned stack is a matter of 32-bit hosts; this is a 64-bit one");
        return;
    }
    SampleHost host(options);
    CHECK(
        host.Run("Dim s As New Sample(3)\nPrint s.Describe(True, 1, 2, 3, 4, 5, 6, 7, \"t\", s)") ==
        "3 1 1 2 3 4 5.000000 6.000000 70000 t 3\n");
}

TEST_CASE("variables are changed by reference") {
    SampleHost host;
    CHECK(host.Run("Dim b As Boolean, i As Integer = 1, u As UInt64 = 18446744073709551614\n"
                   "Dim s As Single = 0.5, d As Double = 0.25, t As String = \"t\", o As Sample\n"
                   "Dim x As New Sample\nx.Change(b, i, u, s, d, t, o)\n"
                   "x.Change b, i, u, s, d, t, o\n"
                   "Print Str(b)\nPrint Str(i)\nPrint Str(u)\nPrint Str(s)\nPrint Str(d)\nPrint "
                   "t\nPrint Str(o.Value)") == "False\n3\n0\n2\n1\nt!!\n1\n");
    CHECK(host.Run("Sub Inner(x As Sample, ByRef t As String)\nPrint x.Swap(\"a\", t)\nEnd Sub\n"
                   "Dim x As New Sample, t As String = \"b\"\nInner(x, t)\nPrint t") ==
          "a\ndropped\n");
    CHECK(host.Run("Dim x As New Sample, t As String = \"b\"\nPrint x.Swap(t, t)\nPrint t") ==
          "b\ndropped\n");
    CHECK(host.Run("Dim x As New Sample\nPrint x.Swap(\"a\", \"b\")") ==
          "2:19: \"Swap(text as String, byref variable as String) as String\" expects a variable "
          "of type String for \"variable\", this is a value of type String; put it into a variable "
          "first");
    CHECK(host.Run("Const c = \"b\"\nDim x As New Sample\nPrint x.Swap(\"a\", c)")
              .starts_with("3:19: "));
    CHECK(host.Run("Dim x As New Sample, i As Int64\nPrint x.Swap(\"a\", i)")
              .ends_with(PerWidth("for \"variable\", this is Int64",
                                  "for \"variable\", this is Integer")));
    // Fields and elements as well.
    CHECK(host.Run("Class C\nDim t As String = \"f\"\nEnd Class\nDim x As New Sample, c As New C\n"
                   "Dim a() As String = Array(\"0\", \"1\")\nPrint x.Swap(\"new\", c.t) + c.t\n"
                   "Print x.Swap(\"new\", a(1)) + a(1) + a(0)") == "newdropped\nnewdropped0\n");
}

TEST_CASE("an argument has no reference but the variable's own") {
    SampleHost host;
    host.Run("Dim x As New Sample, t As String = \"b\"\nCall x.SwapCareless(t, t)");
    CHECK_FALSE(host.host().Violations().empty());
    host.host().ResetLedger();
}

TEST_CASE("missing arguments come from the declaration") {
    SampleHost host;
    const std::string make = "Dim s As New Sample\n";
    CHECK(host.Run(make + "Print s.Greet") == "hello you \"hello you \"!-1.500000\n");
    CHECK(host.Run(make + "Print s.Greet()") == "hello you \"hello you \"!-1.500000\n");
    CHECK(host.Run(make + "Print s.Greet(\"me\", 1, False, 2, \"\")") == "hello me.2.000000\n");
    CHECK(host.Run(make + "Print s.Cell") ==
          "2:9: \"Cell\" has 0 arguments, but \"Cell(index as Integer) as Integer\" takes more");
}

TEST_CASE("properties") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample\ns.value = 5\nPrint Str(s.VALUE)\nPrint Str(s.IsOdd)\n"
                   "Print Str(s.ValuePlusTen)\ns.ValuePlusTen = 12\nPrint Str(s.Value)\nPrint "
                   "Str(s.IsOdd)") == "5\nTrue\n15\n2\nFalse\n");
    CHECK(host.Run("Sample.Counter = 3\nPrint Str(Sample.counter)\nDim s As New Sample\n"
                   "s.Counter = 4\nPrint Str(s.Counter)\nPrint Str(Sample.Instances)") ==
          "3\n4\n1\n");
    CHECK(host.Run("Dim s As New Sample\ns.IsOdd = True") ==
          "2:3: \"IsOdd as Boolean\" is read-only");
    CHECK(host.Run("Dim s As New Sample\nPrint s.Later") ==
          "2:9: no routine for \"Later as Integer\"");
    CHECK(host.Run("Dim s As New Sample\ns.Later = 1") ==
          "2:3: no routine for \"Later as Integer\"");
    CHECK(host.Run("Dim s As New Sample\nPrint s.Strange") ==
          "2:9: cannot use \"Strange as Colour\": there is no type \"Colour\"");
    CHECK(host.Run("Dim s As New Sample\ns.Value = \"x\"") ==
          "2:11: expected Integer, this is String; use Val");
    CHECK(host.Run("Print Sample.Value") ==
          "1:14: \"Value\" needs an object of Sample; write value.Value");
    CHECK(host.Run("Dim s As New Sample\nPrint s.Value(1)") ==
          "2:9: \"Value\" is a property and takes no arguments");
    CHECK(host.Run("Dim s As New Sample\nPrint s.Nobody") ==
          "2:9: Sample has no member \"Nobody\"");
    CHECK(host.Run("Dim s As String\nPrint s.Foo") == "2:9: String has no member \"Foo\"");
}

TEST_CASE("methods that can be assigned to") {
    SampleHost host;
    CHECK(
        host.Run("Dim s As New Sample\ns.Cell(3) = 10\nPrint Str(s.Value)\nPrint Str(s.Cell(1))") ==
        "7\n71\n");
    CHECK(host.Run("Dim s As New Sample\ns.Fixed(3) = 10") ==
          "2:3: \"Fixed(index as Integer) as Integer\" cannot be assigned to");
    CHECK(host.Run("Dim s As New Sample\ns.Missing(3) = Nil") ==
          "2:3: no routine for \"Missing(value as Integer) as Sample\"");
    CHECK(host.Run("Dim s As New Sample\ns.Cell(3) = \"x\"") ==
          "2:13: expected Integer, this is String; use Val");
}

TEST_CASE("a declaration without a routine, or that makes no sense, is told when it is used") {
    SampleHost host;
    const std::string make = "Dim s As New Sample\n";
    CHECK(host.Run(make + "Call s.Missing(1)") ==
          "2:8: no routine for \"Missing(value as Integer) as Sample\"");
    CHECK(host.Run(make + "Print s * s") ==
          "2:9: no routine for \"Operator_Multiply(other as Sample) as Sample\"");
    CHECK(host.Run(make + "s.Broken(1)") ==
          "2:3: cannot use \"Broken(value as\": expected the name of a type, found the end of the "
          "line");
    CHECK(host.Run(make + "s.Unknown(1)") ==
          "2:3: cannot use \"Unknown(value as Colour)\": there is no type \"Colour\"");
    CHECK(host.Run(make + "s.Nothing\ns.Nothing()\nPrint s.Nothing") ==
          "4:9: this returns no value");
}

TEST_CASE("overloads") {
    SampleHost host;
    CHECK(host.Show("Sample.Which(1)") == PerWidth("1", "2"));
    CHECK(host.Show("Sample.Which(CType(1, Int32))") == "1");
    CHECK(host.Show("Sample.Which(3000000000)") == "2");
    // Where Integer is an Int64, nothing sets these two apart.
    CHECK(host.Show("Sample.Twice(1)") ==
          PerWidth("11",
                   "1:14: \"Twice\" with (Integer) fits several equally well: \"Twice(value as "
                   "Integer) as Integer\", \"Twice(value as Int64) as Integer\""));
    CHECK(host.Show("Sample.Twice(3000000000)")
              .starts_with(PerWidth("12", "1:14: \"Twice\" with (Integer) fits several")));
    CHECK(host.Show("Sample.Which(1.0)") == "3");
    CHECK(host.Show("Sample.Which(\"1\")") == "4");
    CHECK(host.Show("Sample.Which(New Sample)") == "5");
    CHECK(host.Show("Sample.Which(Nil)") == "5");
    CHECK(host.Run("Dim s As Single\nPrint Str(Sample.Which(s))") == "3\n");
    // Both Int64 and Double hold every UInt32.
    CHECK(host.Run("Dim u As UInt32\nPrint Sample.Which(u)") ==
          "2:14: \"Which\" with (" + PerWidth("UInteger", "UInt32") +
              ") fits several equally well: \"Which(value as Int64) as "
              "Integer\", \"Which(value as Double) as Integer\"; write New Sample(...)");
    CHECK(host.Show("Sample.Which(True)")
              .starts_with("1:14: \"Which\" does not take (Boolean); there is: \"Which(value as "
                           "Int32) as Integer\", "));
    CHECK(host.Show("Sample.Pair(1, 2.0)") == "6");
    CHECK(host.Show("Sample.Pair(1.0, 2)") == "7");
    CHECK(host.Show("Sample.Pair(1, 2)") ==
          "1:14: \"Pair\" with (Integer, Integer) fits several equally well: \"Pair(a as Integer, "
          "b as Double) as Integer\", \"Pair(a as Double, b as Integer) as Integer\"; assign the "
          "values to "
          "variables of the types that are meant first");
    // Widening goes before Operator_Convert, and Operator_Convert before what loses something.
    CHECK(host.Show("Sample.Wide(1)") == "8");
    CHECK(host.Show("Sample.Wide(\"1\")") == "9");
    CHECK(host.Show("Sample.Wide(1.5)") == "8");
    CHECK(host.Show("Sample.OfUInt32(5)") == "10");
    CHECK(host.Run("Dim d As Double = 5\nPrint Str(Sample.OfUInt32(d))") == "10\n");
    CHECK(host.Show("Sample.OfUInt32(\"5\")") ==
          "1:23: \"OfUInt32(value as UInt32) as Integer\" expects " +
              PerWidth("UInteger", "UInt32") +
              " for \"value\", this is "
              "a value of type String; use Val");
}

TEST_CASE("objects are made") {
    SampleHost host;
    CHECK(
        host.Run(
            "Print Str(Sample.Instances)\nIf True Then\nDim a As New Sample(5), b As New Sample(a)"
            "\nPrint Str(b.Value)\nPrint Str(Sample.Instances)\nPrint Str(a Is b)\nPrint Str(a = "
            "b)\nEnd If\n"
            "Print Str(Sample.Instances)") == "0\n5\n2\nFalse\nTrue\n0\n");
    CHECK(host.Run("Dim a, b As New Sample\nPrint Str(a Is b)\nPrint Str(Sample.Instances)") ==
          "False\n2\n");
    CHECK(host.Run("Dim s As New Sample(21474836480)\nPrint Str(s.Value)") == "5\n");
    CHECK(host.Run("Dim s As Sample = New Sample(\"12\")\nPrint Str((New Sample(s)).Value)") ==
          "12\n");
    CHECK(host.Run("Dim s As New Sample(1.5)")
              .starts_with("1:14: \"New Sample\" with (Double) fits several equally well: "));
    CHECK(host.Run("Dim s As New Sample(True)")
              .starts_with("1:14: \"New Sample\" does not take (Boolean); there is: "));
    CHECK(host.Run("Dim s As New Integer") == "1:14: Integer is not a class");
    CHECK(host.Run("Dim s As New Sample(\"bad\")") ==
          "Unhandled SampleException: bad text (line 1)\n");
}

TEST_CASE("text converts in and out") {
    SampleHost host;
    CHECK(host.Run("Dim s As Sample = \"12\"\nPrint s\nDim t As String = s\nPrint t\ns = \"13\"\n"
                   "Print Str(s.Value)") == "Sample 12\nSample 12\n13\n");
    CHECK(
        host.Run(
            "Dim s As Sample = \"12\"\nDim old As Sample = s\ns = \"13\"\nPrint Str(old.Value)") ==
        "12\n");
    CHECK(host.Run("Dim s As Sample\nPrint s") == "Sample -1\n");
    CHECK(host.Run("Function F() As Sample\nReturn \"7\"\nEnd Function\nPrint Str(F().Value)") ==
          "7\n");
    CHECK(host.Run("Dim s As Sample = 5") ==
          "1:19: expected Sample, this is Integer; write \"5\" or New Sample(5)");
    CHECK(host.Run("Dim s As New Sample\nPrint Str(Len(s))") == "8\n");
    CHECK(host.Run("Dim s As Sample = \"bad\"") ==
          "Unhandled SampleException: bad text (line 1)\n");
}

TEST_CASE("operators of classes") {
    SampleHost host;
    const std::string make = "Dim a As Sample = \"10\", b As Sample = \"3\"\n";
    const auto show = [&](const std::string& expression) {
        return host.Run(make + "Print " + expression);
    };
    const auto value = [&](const std::string& expression) {
        return show("Str(" + expression + ")");
    };
    CHECK(value("(a + b).Value") == "13\n");
    CHECK(value("(a + 5).Value") == "15\n");
    CHECK(value("(a + \"5\").Value") == "15\n");
    CHECK(value("(\"5\" + a).Value") == "15\n");
    CHECK(value("(\"5\" - a).Value") == "-5\n");
    CHECK(value("(-a).Value") == "-10\n");
    CHECK(value("a > b") == "True\n");
    CHECK(value("a = \"10\"") == "True\n");
    CHECK(value("\"3\" < a") == "True\n");
    CHECK(value("a = Nil") == "False\n");
    CHECK(value("Nil < a") == "True\n");
    CHECK(value("a Is Nil") == "False\n");
    // The right operand's operator takes the left one as its argument.
    CHECK(value("(a - b).Value") == "7\n");
    CHECK(show("a / b") == "2:9: \"/\" cannot stand between Sample and Sample");
    CHECK(show("5 + a") ==
          "2:9: \"+\" cannot stand between Integer and Sample; there is "
          "\"Operator_Add(other as Sample) as Sample\"; there is "
          "\"Operator_Add(other as Integer) as Sample\"; write \"5\" or New Sample(5)");
    CHECK(show("a < 5") ==
          "2:9: \"<\" cannot stand between Sample and Integer; there is "
          "\"Operator_Compare(other as Sample) as Integer\"; write \"5\" or New Sample(5)");
    CHECK(show("Not a") == "2:7: \"Not\" cannot stand before Sample");
    CHECK(show("a Is 5") == "2:9: \"Is\" stands between objects");
}

TEST_CASE("operands are evaluated from left to right") {
    SampleHost host;
    CHECK(host.Run("Function F(text As String) As Sample\nPrint text\nReturn text\nEnd Function\n"
                   "Call F(\"1\") + F(\"2\")")
              .starts_with("5:"));
    CHECK(host.Run("Function F(text As String) As Sample\nPrint text\nReturn text\nEnd Function\n"
                   "Print Str((F(\"1\") - F(\"2\")).Value)") == "1\n2\n-1\n");
}

TEST_CASE("Nil receivers read, but do not write") {
    SampleHost host;
    const std::string make = "Dim s As Sample\n";
    CHECK(host.Run(make + "Print Str(s.Value)") == "-1\n");
    CHECK(host.Run(make + "Print Str((s + s).Value)\nPrint Str((-s).Value)") == "-2\n1\n");
    CHECK(host.Run(make + "Print s.Greet(\"me\", 0)") == "!-1.500000\n");
    const std::string refused =
        "Unhandled NilObjectException: \"s\" is Nil; missing New? "
        "(line 2)\n";
    CHECK(host.Run(make + "s.Value = 1") == refused);
    CHECK(host.Run(make + "s.Cell(1) = 1") == refused);
    CHECK(host.Run(make + "s.Nothing") == refused);
}

TEST_CASE("a raised exception reaches the program, what came with it is released") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample\nTry\nCall s.Fail(\"why\")\nPrint \"no\"\n"
                   "Catch e As SampleException\nPrint e.Message\nEnd Try\n"
                   "Dim r As Sample = s\nTry\nr = s.Fail(\"again\")\nCatch e As RuntimeException\n"
                   "Print Str(r Is s)\nEnd Try\nCall s.Fail(\"last\")") ==
          "why\nTrue\nUnhandled SampleException: last (line 14)\n");
}

TEST_CASE("references are given back when blocks end") {
    SampleHost host;
    CHECK(host.Run(
              "For i As Integer = 1 To 3\nDim s As New Sample\nPrint Str(Sample.Instances)\nNext\n"
              "Print Str(Sample.Instances)") == "1\n1\n1\n0\n");
    CHECK(host.Run("Sub S()\nDim a As New Sample\nPrint Str(Sample.Instances)\nEnd Sub\nS\n"
                   "Print Str(Sample.Instances)") == "1\n0\n");
}

TEST_CASE("the host may lack classes") {
    SampleHost host({.missing = {"NilObjectException", "StackOverflowException"}});
    CHECK(host.Run("Dim s As Sample\ns.Value = 1") ==
          "Unhandled RuntimeException: \"s\" is Nil; missing New? (line 2)\n");
}

TEST_CASE("the listing shows every member and marks what is missing") {
    SampleHost host;
    const auto list = standin::language::ListClasses(host.host(), host.types());
    CHECK(list.starts_with("Class Sample\n  Property Value as Integer\n"));
    const auto contains = [&list](std::string_view line) {
        return list.find("\n  " + std::string(line) + "\n") != std::string::npos;
    };
    CHECK(contains("Property IsOdd as Boolean  (read-only)"));
    CHECK(contains("Property Later as Integer  (no routine)"));
    CHECK(contains("Property Strange as Colour  (cannot be used: there is no type \"Colour\")"));
    CHECK(contains("Method Constructor"));
    CHECK(contains("Method Cell(index as Integer) as Integer  (assignable)"));
    CHECK(contains("Method Missing(value as Integer) as Sample  (no routine)"));
    CHECK(contains("Shared Property Instances as Integer  (read-only)"));
    CHECK(contains("Shared Method AUInt64 as UInt64"));
    CHECK(list.ends_with("Class SampleException, inherits RuntimeException\n"));
}

TEST_CASE("a constructor that there is not is named with the assignment that takes the same") {
    SampleHost host;
    CHECK(host.Run("Dim x As New Sample(7, 1)")
              .ends_with("; write value.Cell(index) = ..., with a new object as value"));
    CHECK(host.Run("Dim x As New Sample(\"7\", 1)").ends_with("\"Constructor(other as Sample)\""));
}
