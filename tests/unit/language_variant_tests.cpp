// Variants, and the classes that are the host's own.
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/language_support.hpp"

using language_tests::PerWidth;
using language_tests::SampleHost;

TEST_CASE("every value goes into a Variant and comes out") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 5\nDim i As Integer = v, d As Double = v, t As String = v\n"
                   "Print Str(i)\nPrint Str(d)\nPrint t\nPrint v") == "5\n5\n5\n5\n");
    CHECK(host.Run("Dim v As Variant = \"12\"\nDim i As Int64 = v\nPrint Str(i + 1)\nPrint v") ==
          "13\n12\n");
    CHECK(host.Run("Dim u As UInt64 = 18446744073709551615\nDim v As Variant = u\nu = 0\nu = v\n"
                   "Print Str(u)") == "18446744073709551615\n");
    CHECK(host.Run(
              "Dim u As UInt32 = 4294967295\nDim v As Variant = u\nu = 0\nu = v\nPrint Str(u)") ==
          "4294967295\n");
    CHECK(host.Run("Dim c As Currency = 1.25\nDim v As Variant = c\nc = 0\nc = v\nPrint Str(c)") ==
          "1.25\n");
    CHECK(host.Run("Dim s As Single = 0.5\nDim v As Variant = s\ns = v\nPrint Str(s)") == "0.5\n");
    CHECK(host.Run("Dim v As Variant = True\nDim b As Boolean = v\nPrint Str(b)\nv = False\nb = v\n"
                   "Print Str(b)\nv = \"true\"\nb = v\nPrint Str(b)") == "True\nFalse\nTrue\n");
    CHECK(
        host.Run("Dim v As Variant\nDim i As Integer = v\nPrint Str(i)\nPrint Str(v = Nil)\nv = 0\n"
                 "Print Str(v = Nil)") == "0\nTrue\nFalse\n");
}

TEST_CASE("objects are Variants of themselves") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample(3)\nDim v As Variant = s\nPrint Str(v Is s)\n"
                   "Dim t As Sample = v\nPrint Str(t.Value)\nDim e As SampleException = v") ==
          "True\n3\nUnhandled IllegalCastException: A Sample is not a SampleException. (line 6)\n");
    CHECK(
        host.Run("Dim v As Variant = 5\nDim s As Sample = v") ==
        "Unhandled IllegalCastException: This Variant holds an Integer, not a Sample. (line 2)\n");
    CHECK(host.Run("Dim v As Variant\nDim s As Sample = v\nPrint Str(s Is Nil)") == "True\n");
}

TEST_CASE("VarType tells what a Variant holds") {
    SampleHost host;
    CHECK(host.Run(
              "Print Str(VarType(Nil))\nPrint Str(VarType(1))\nPrint Str(VarType(3000000000))\n"
              "Print Str(VarType(1.5))\nPrint Str(VarType(\"x\"))\nPrint Str(VarType(True))\n"
              "Print Str(VarType(New Sample))\nDim c As Currency, s As Single\nPrint "
              "Str(VarType(c))\n"
              "Print Str(VarType(s))\nPrint Str(VarType(New Date))\nPrint Str(VarType(New "
              "DateTime(0)))") == "0\n" + PerWidth("2", "3") + "\n3\n5\n8\n11\n9\n6\n4\n7\n38\n");
}

TEST_CASE("a plug-in takes, changes and returns Variants") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample\nPrint s.Echo(12)\nPrint s.Echo(\"text\")\n"
                   "Print Str(s.Echo(Nil) = Nil)\nPrint Str(s.Echo(s) Is s)\nDim v As Variant = 1\n"
                   "s.Replace(v)\nDim t As Sample = v\nPrint Str(t.Value)") ==
          "12\ntext\nTrue\nTrue\n7\n");
}

TEST_CASE("Variants are computed with by what they hold") {
    SampleHost host;
    CHECK(host.Run("Dim d As New Dictionary\nd.Value(\"a\") = 1\n"
                   "d.Value(\"a\") = d.Value(\"a\") + 1\nd.Value(\"a\") += 1\n"
                   "Print d.Value(\"a\")\nPrint d.Lookup(\"b\", 0) - 1") == "3\n-1\n");
    const std::string three = "Dim v As Variant = 3\n";
    CHECK(host.Run(three + "Print v * 2.5\nPrint Str(1 / v > 0.3)\nPrint 7 \\ v\nPrint 7 Mod v\n"
                           "Print v ^ 2\nPrint -v\nPrint v Or 4\nPrint v + \"4\"\nPrint v + "
                           "True") == "7.5\nTrue\n2\n1\n9\n-3\n7\n34\n4\n");
    CHECK(host.Run(three + "Print Str(VarType(v + 1))\nPrint Str(VarType(v / 1))") ==
          PerWidth("2", "3") + "\n5\n");
    // Text joins text only; with a number it is the number that it begins with, and Nil is 0.
    CHECK(host.Run("Dim v As Variant = \"5\", w As Variant = \"6\"\nPrint v + w\nPrint v + 6\n"
                   "Print v * w\nv = Nil\nPrint v + 6") == "56\n11\n30\n6\n");
    CHECK(host.Run("Dim v As Variant = True\nPrint v And False\nPrint v Xor False") ==
          "False\nTrue\n");
    CHECK(host.Run("Dim c As Currency = 0.1, v As Variant = c\nPrint v + v + v\nPrint "
                   "Str(VarType(v + c))\nDim u As UInt64 = 18446744073709551614\nv = u\nPrint v + "
                   "1\nDim i As Int64 = 3000000000\nv = i\nPrint v * 4") ==
          "0.3\n6\n18446744073709551615\n12000000000\n");
    CHECK(host.Run("Dim v As Variant = 1\nv = v \\ 0") ==
          "Unhandled RuntimeException: Division by zero. (line 2)\n");
    CHECK(host.Run("Dim v As Variant = \"1\"\nv = v And 1") ==
          "Unhandled TypeMismatchException: \"And\" cannot stand between Variants that hold String "
          "and Integer. (line 2)\n");
}

TEST_CASE("an object in a Variant is no value") {
    SampleHost host;
    const std::string make = "Dim v As Variant = New Sample(3)\n";
    const auto message = [](const std::string& wanted) {
        return "Unhandled TypeMismatchException: The Variant holds an object of Sample, which is "
               "no " +
               wanted + "; assign it to a variable of that class first. (line 2)\n";
    };
    CHECK(host.Run(make + "Print v") == message("String"));
    CHECK(host.Run(make + "Print \"is \" + v") == message("String"));
    CHECK(host.Run(make + "Print v.StringValue") == message("String"));
    CHECK(host.Run(make + "Print Str(v)") == message("String"));
    CHECK(host.Run(make + "Print CStr(v)") == message("String"));
    CHECK(host.Run(make + "Print Str(v.DoubleValue)") == message("number"));
    CHECK(host.Run(make + "Dim i As Integer = v") == message("number"));
    CHECK(host.Run(make + "If v Then Print \"yes\"") == message("Boolean"));
    CHECK(host.Run(make + "Print Str(v > 2)") == message("value to compute with"));
    CHECK(host.Run(make + "Print v + 2") == message("value to compute with"));
    CHECK(host.Run(make + "Print -v") == message("value to compute with"));
    CHECK(host.Run(make + "Print Str(v = 3)\nPrint Str(v <> Nil)\nDim s As Sample = v\nPrint "
                          "Str(s.Value)") == "False\nTrue\n3\n");
}

TEST_CASE("what a Variant holds as text and as digits") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 15\nPrint Str(v) + Hex(v) + v.StringValue\nv = 15.7\n"
                   "Print Str(v) + Hex(v)\nv = \"9\"\nPrint Str(v) + Oct(v)\nDim i As Int32 = "
                   "-1\nv = i\nPrint Hex(v)") == "15F15\n15.7F\n911\nFFFFFFFF\n");
    // Only a Variant is taken as one: nothing becomes one to fit.
    CHECK(host.Run("Print Hex(True)").starts_with("1:7: \"Hex\" does not take (Boolean)"));
    CHECK(host.Run("Print Str(\"x\")").starts_with("1:7: \"Str\" does not take (String)"));
}

TEST_CASE("what cannot be done with Variants is told") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 1\nPrint v + Nil") ==
          "2:9: \"+\" cannot stand between Variant and Nil");
    CHECK(host.Run("Dim v As Variant = 1\nPrint v + New Date")
              .starts_with("2:9: \"+\" cannot stand between Variant and Date"));
    CHECK(host.Run("Dim v As Variant\nPrint v = Encodings.UTF8") ==
          "2:9: \"=\" cannot stand between Variant and TextEncoding");
    CHECK(host.Run("Dim d As New Dictionary\nd.Value(1) = Array(1, 2)") ==
          "2:14: an array in a Variant is not supported here");
    CHECK(host.Run("Dim v As Variant = Encodings.UTF8") ==
          "1:30: expected Variant, this is TextEncoding");
}

TEST_CASE("memory blocks") {
    SampleHost host;
    CHECK(host.Run(
              "Dim m As New MemoryBlock(8), s As New Sample\nPrint Str(m.Size)\nm.Byte(1) = 258\n"
              "Print Str(m.Byte(1))\nPrint Str(m.UInt32Value(0))\nm.Int64Value(0) = -1\n"
              "Print Str(m.UInt64Value(0))\nm.DoubleValue(0) = 0.5\nPrint Str(m.DoubleValue(0))\n"
              "Print Str(LenB(m.StringValue(2, 3)))\nPrint Str(s.BlockSize(m))\nPrint "
              "Str(s.BlockSize(Nil))") == "8\n2\n512\n18446744073709551615\n0.5\n3\n8\n-1\n");
    CHECK(host.Run("Print Str((New MemoryBlock(0)).Size)") == "0\n");
    CHECK(host.Run(
              "Dim m As New MemoryBlock(4)\nm.UInt32Value(0) = &h04030201\nm.Size = 5\n"
              "Print Str(m.Size)\nPrint Str(m.Byte(4))\nm.Size = 2\nPrint Str(m.UInt16Value(0))\n"
              "m.Size = 4\nPrint Str(m.UInt32Value(0))") == "5\n0\n513\n513\n");
    CHECK(
        host.Run(
            "Dim m As New MemoryBlock(8)\nm.Int8Value(0) = 255\nPrint Str(m.Int8Value(0))\n"
            "m.Int16Value(0) = 65534\nPrint Str(m.Int16Value(0))\nm.SingleValue(4) = 1.5\n"
            "Print Str(m.SingleValue(4))\nm.CurrencyValue(0) = 1.25\nPrint Str(m.Int32Value(0))") ==
        "-1\n-2\n1.5\n12500\n");
    CHECK(host.Run("Dim m As New MemoryBlock(4)\nm.UInt32Value(0) = &hFFFFFFFF\n"
                   "m.StringValue(1, 2) = \"abc\"\nPrint Hex(m.UInt32Value(0))\n"
                   "m.StringValue(0, 4) = \"A\"\nPrint Str(m.UInt32Value(0))") == "FF6261FF\n65\n");
    const std::string beyond =
        "Unhandled OutOfBoundsException: The MemoryBlock ends before that. "
        "(line 2)\n";
    CHECK(host.Run("\nDim m As New MemoryBlock(1)\nm.Size = 2000000000") ==
          "Unhandled OutOfMemoryException: There is no memory for so large a MemoryBlock. "
          "(line 3)\n");
    const std::string make = "Dim m As New MemoryBlock(4)\n";
    CHECK(host.Run(make + "Print Str(m.Byte(4))") == beyond);
    CHECK(host.Run(make + "Print Str(m.Byte(-1))") == beyond);
    CHECK(host.Run(make + "Print Str(m.UInt32Value(1))") == beyond);
    CHECK(host.Run(make + "m.Int64Value(0) = 1") == beyond);
    CHECK(host.Run(make + "Print m.StringValue(2, -1)") == beyond);
    CHECK(host.Run("\nDim m As New MemoryBlock(-1)") ==
          "Unhandled OutOfBoundsException: A MemoryBlock has no negative size. (line 2)\n");
    CHECK(host.Run("\nDim m As MemoryBlock\nPrint Str(m.Size)") ==
          "Unhandled NilObjectException: \"m\" is Nil; missing New? (line 3)\n");
}

TEST_CASE("dates know their seconds") {
    SampleHost host;
    CHECK(host.Run("Dim d As New Date\nd.TotalSeconds = 3600.5\nPrint Str(d.TotalSeconds)\nDim t "
                   "As New DateTime(60)\n"
                   "Print Str(t.SecondsFrom1970)") == "3600.5\n60\n");
    CHECK(host.Run("Dim d As New Date\nd.TotalSeconds = 2.5\nPrint Str(d.TotalSeconds)") ==
          "2.5\n");
    CHECK(host.Run("Dim d As New Date\nPrint Str(d.TotalSeconds > 3800000000)") == "True\n");
    CHECK(host.Run("Dim t As New DateTime(0)\nt.SecondsFrom1970 = 1") ==
          "2:3: \"SecondsFrom1970 As Double\" is read-only");
}

TEST_CASE("a Variant has its value in every type") {
    SampleHost host;
    CHECK(host.Run(
              "Dim v As Variant = \"12.5\"\nPrint Str(v.IntegerValue)\nPrint Str(v.Int32Value)\n"
              "Print Str(v.Int64Value)\nPrint Str(v.UInt32Value)\nPrint Str(v.UInt64Value)\n"
              "Print Str(v.SingleValue)\nPrint Str(v.DoubleValue)\nPrint Str(v.CurrencyValue)\n"
              "Print v.StringValue\nPrint Str(v.BooleanValue)\nPrint Str(v.Type)\nPrint "
              "Str(v.IsNull)") == "12\n12\n12\n12\n12\n12.5\n12.5\n12.5\n12.5\nTrue\n8\nFalse\n");
    CHECK(
        host.Run(
            "Dim v As Variant\nPrint Str(v.IntegerValue)\nPrint v.StringValue\nPrint Str(v.Type)\n"
            "Print Str(v.IsNull)\nPrint Str(v.ObjectValue Is Nil)") == "0\n\n0\nTrue\nTrue\n");
    CHECK(host.Run("Dim s As New Sample, v As Variant = s\nPrint Str(v.ObjectValue Is s)\n"
                   "v = New Date(1904, 1, 1, 0, 0, 7)\nPrint Str(v.DateValue.TotalSeconds)\nv = "
                   "New DateTime(8)\n"
                   "Print Str(v.DateTimeValue.SecondsFrom1970)\nPrint Str(v.Type)") ==
          "True\n7\n8\n38\n");
    CHECK(
        host.Run("Dim v As Variant = 5\nDim o As Object = v.ObjectValue") ==
        "Unhandled IllegalCastException: This Variant holds an Integer, not an Object. (line 2)\n");
    CHECK(host.Run(
              "Dim v As Variant = 5\nPrint Str(v IsA Object)\nv = New Sample\nPrint Str(v IsA "
              "Object)\n"
              "Print Str(v IsA Sample)\nPrint Str(v IsA Date)\nv = Nil\nPrint Str(v IsA Object)") ==
          "False\nTrue\nTrue\nFalse\nFalse\n");
    CHECK(host.Run("Dim v As Variant\nv.IntegerValue = 5") ==
          "2:3: \"IntegerValue As Integer\" is read-only");
}

TEST_CASE("a Variant can be given any type code") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = VariantOfType(16, 255)\nPrint Str(VarType(v))\nPrint v") ==
          "16\n255\n");
    CHECK(host.Run("Dim v As Variant = VariantOfType(37, \"text\")\nPrint Str(v.Type)\nPrint v") ==
          "37\ntext\n");
    CHECK(host.Run("Print Str(VarType(VariantOfType(4098, Nil)))\nPrint "
                   "Str(VarType(VariantOfType(-1, 1)))") == "4098\n-1\n");
}

TEST_CASE("a class that the host lacks takes only its own members away") {
    SampleHost host({.missing = {"Date"}});
    CHECK(host.Run(
              "Dim v As Variant = 5\nPrint Str(v.IntegerValue)\nPrint Str(v.DateValue Is Nil)") ==
          "3:13: cannot use \"DateValue As Date\": there is no type \"Date\"");
}

TEST_CASE("Variants are compared by what they hold") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 5, w As Variant = 5.0\nPrint Str(v = 5)\nPrint Str(v = "
                   "w)\nPrint Str(v < 6)\n"
                   "Print Str(6 <= v)\nPrint Str(v <> \"5\")\nPrint Str(v = \"6\")") ==
          "True\nTrue\nTrue\nFalse\nFalse\nFalse\n");
    CHECK(host.Run("Dim v As Variant = \"abc\"\nPrint Str(v = \"ABC\")\nPrint Str(v < "
                   "\"abd\")\nPrint Str(v = 0)") == "True\nTrue\nTrue\n");
    CHECK(host.Run("Dim v As Variant = 9007199254740993, u As UInt64 = 18446744073709551615\n"
                   "Print Str(v = 9007199254740992)\nPrint Str(v < u)\nv = -1\nPrint Str(v < "
                   "u)\nPrint Str(v = u)") == "False\nTrue\nTrue\nFalse\n");
    CHECK(
        host.Run("Dim c As Currency = 1.5, v As Variant = c\nPrint Str(v = c)\nPrint Str(v = 1.5)\n"
                 "Print Str(v > 1)\nPrint Str(v = 15000)") == "True\nTrue\nTrue\nFalse\n");
    CHECK(host.Run("Dim v As Variant, w As Variant = 0\nPrint Str(v = w)\nPrint Str(v <> w)\nPrint "
                   "Str(v < w)\n"
                   "w = Nil\nPrint Str(v = w)") == "False\nTrue\nFalse\nTrue\n");
    CHECK(host.Run(
              "Dim s As New MemoryBlock(1), v As Variant = s, w As Variant = s\nPrint Str(v = w)\n"
              "Print Str(v = s)\nw = New MemoryBlock(1)\nPrint Str(v = w)\nPrint Str(v = 5)") ==
          "True\nTrue\nFalse\nFalse\n");
    CHECK(host.Run(
              "Dim a() As Variant = Array(1, \"x\", Nil)\nPrint Str(a.IndexOf(\"X\"))\n"
              "Print Str(a.IndexOf(Nil))\nPrint Str(a.IndexOf(1.0))\nPrint Str(a.IndexOf(True))") ==
          "1\n2\n0\n0\n");
}

TEST_CASE("Not before a Variant") {
    SampleHost host;
    CHECK(
        host.Run("Dim v As Variant = True\nIf Not v Then\nPrint \"x\"\nElse\nPrint \"y\"\nEnd If\n"
                 "v = Not v\nPrint v\nPrint Str(v.Type)\nv = Not v\nPrint v") ==
        "y\nFalse\n11\nTrue\n");
    CHECK(host.Run(
              "Dim v As Variant = 5\nPrint Not v\nDim i As Int64 = 5000000000\nv = i\nPrint Not v\n"
              "v = Nil\nPrint Not v") == "-6\n-5000000001\n-1\n");
    const std::string refused =
        "Unhandled TypeMismatchException: \"Not\" cannot stand before a Variant that holds a ";
    CHECK(host.Run("Dim v As Variant = \"True\"\nPrint Not v") == refused + "String. (line 2)\n");
    CHECK(host.Run("Dim v As Variant = 1.5\nPrint Not v") == refused + "Double. (line 2)\n");
    CHECK(host.Run("Dim v As Variant = New Sample\nPrint Not v")
              .starts_with("Unhandled TypeMismatchException: The Variant holds an object"));
}

TEST_CASE("the entries of a Dictionary are made by it alone") {
    SampleHost host;
    CHECK(host.Run("Dim e As DictionaryEntry = New DictionaryEntry(\"a\", 1)") ==
          "1:32: DictionaryEntry has no constructor; a For Each over a Dictionary makes the "
          "entries, and New Pair(left, right) a pair");
    CHECK(host.Run("Dim e As New DictionaryEntry") ==
          "1:14: DictionaryEntry has no constructor; a For Each over a Dictionary makes the "
          "entries, and New Pair(left, right) a pair");
    CHECK(
        host.Run("For Each e As DictionaryEntry In New Dictionary(\"a\" : 1)\nPrint e.Key\nNext") ==
        "a\n");
}
