// Variants, and the classes that are the host's own.
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/language_support.hpp"

using language_tests::SampleHost;

TEST_CASE("every value goes into a Variant and comes out") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 5\nDim i As Integer = v, d As Double = v, t As String = v\n"
                   "Print i\nPrint d\nPrint t\nPrint v") == "5\n5\n5\n5\n");
    CHECK(host.Run("Dim v As Variant = \"12\"\nDim i As Int64 = v\nPrint i + 1\nPrint v") ==
          "13\n12\n");
    CHECK(host.Run("Dim u As UInt64 = 18446744073709551615\nDim v As Variant = u\nu = 0\nu = v\n"
                   "Print u") == "18446744073709551615\n");
    CHECK(host.Run("Dim u As UInt32 = 4294967295\nDim v As Variant = u\nu = 0\nu = v\nPrint u") ==
          "4294967295\n");
    CHECK(host.Run("Dim c As Currency = 1.25\nDim v As Variant = c\nc = 0\nc = v\nPrint c") ==
          "1.25\n");
    CHECK(host.Run("Dim s As Single = 0.5\nDim v As Variant = s\ns = v\nPrint s") == "0.5\n");
    CHECK(host.Run("Dim v As Variant = True\nDim b As Boolean = v\nPrint b\nv = False\nb = v\n"
                   "Print b\nv = \"true\"\nb = v\nPrint b") == "True\nFalse\nTrue\n");
    CHECK(host.Run("Dim v As Variant\nDim i As Integer = v\nPrint i\nPrint v = Nil\nv = 0\n"
                   "Print v = Nil") == "0\nTrue\nFalse\n");
}

TEST_CASE("objects are Variants of themselves") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample(3)\nDim v As Variant = s\nPrint v Is s\n"
                   "Dim t As Sample = v\nPrint t.Value\nDim e As SampleException = v") ==
          "True\n3\nUnhandled IllegalCastException: A Sample is not a SampleException. (line 6)\n");
    CHECK(host.Run("Dim v As Variant = 5\nDim s As Sample = v")
              .starts_with("Unhandled IllegalCastException: "));
    CHECK(host.Run("Dim v As Variant\nDim s As Sample = v\nPrint s Is Nil") == "True\n");
}

TEST_CASE("VarType tells what a Variant holds") {
    SampleHost host;
    CHECK(
        host.Run("Print VarType(Nil)\nPrint VarType(1)\nPrint VarType(3000000000)\n"
                 "Print VarType(1.5)\nPrint VarType(\"x\")\nPrint VarType(True)\n"
                 "Print VarType(New Sample)\nDim c As Currency, s As Single\nPrint VarType(c)\n"
                 "Print VarType(s)\nPrint VarType(New Date(0))\nPrint VarType(New DateTime(0))") ==
        "0\n2\n3\n5\n8\n11\n9\n6\n4\n7\n38\n");
}

TEST_CASE("a plug-in takes, changes and returns Variants") {
    SampleHost host;
    CHECK(host.Run("Dim s As New Sample\nPrint s.Echo(12)\nPrint s.Echo(\"text\")\n"
                   "Print s.Echo(Nil) = Nil\nPrint s.Echo(s) Is s\nDim v As Variant = 1\n"
                   "s.Replace(v)\nDim t As Sample = v\nPrint t.Value") ==
          "12\ntext\nTrue\nTrue\n7\n");
}

TEST_CASE("what cannot be done with Variants is told") {
    SampleHost host;
    CHECK(host.Run("Dim v As Variant = 1\nPrint v + 1") ==
          "2:9: \"+\" cannot stand between Variant and Integer");
    CHECK(host.Run("Dim v, w As Variant\nPrint v = w") ==
          "2:9: \"=\" cannot stand between Variant and Variant");
    CHECK(host.Run("Dim v As Variant = Encodings.UTF8") ==
          "1:30: expected Variant, this is TextEncoding");
}

TEST_CASE("memory blocks") {
    SampleHost host;
    CHECK(
        host.Run("Dim m As New MemoryBlock(8), s As New Sample\nPrint m.Size\nm.Byte(1) = 258\n"
                 "Print m.Byte(1)\nPrint m.UInt32Value(0)\nm.Int64Value(0) = -1\n"
                 "Print m.UInt64Value(0)\nm.DoubleValue(0) = 0.5\nPrint m.DoubleValue(0)\n"
                 "Print LenB(m.StringValue(2, 3))\nPrint s.BlockSize(m)\nPrint s.BlockSize(Nil)") ==
        "8\n2\n512\n18446744073709551615\n0.5\n3\n8\n-1\n");
    CHECK(host.Run("Print (New MemoryBlock(0)).Size") == "0\n");
    CHECK(host.Run("Dim m As New MemoryBlock(4)\nm.Size = 5") ==
          "2:3: \"Size As Integer\" is read-only");
    const std::string beyond =
        "Unhandled OutOfBoundsException: The MemoryBlock ends before that. "
        "(line 2)\n";
    const std::string make = "Dim m As New MemoryBlock(4)\n";
    CHECK(host.Run(make + "Print m.Byte(4)") == beyond);
    CHECK(host.Run(make + "Print m.Byte(-1)") == beyond);
    CHECK(host.Run(make + "Print m.UInt32Value(1)") == beyond);
    CHECK(host.Run(make + "m.Int64Value(0) = 1") == beyond);
    CHECK(host.Run(make + "Print m.StringValue(2, -1)") == beyond);
    CHECK(host.Run("\nDim m As New MemoryBlock(-1)") ==
          "Unhandled OutOfBoundsException: A MemoryBlock has no negative size. (line 2)\n");
    CHECK(host.Run("\nDim m As MemoryBlock\nPrint m.Size") ==
          "Unhandled NilObjectException: An object that is Nil was used. (line 3)\n");
}

TEST_CASE("dates know their seconds") {
    SampleHost host;
    CHECK(host.Run("Dim d As New Date(3600.5)\nPrint d.TotalSeconds\nDim t As New DateTime(60)\n"
                   "Print t.SecondsFrom1970") == "3600.5\n60\n");
    CHECK(host.Run("Dim d As New Date")
              .starts_with("1:14: \"New Date\" has 0 arguments, but \"Constructor(totalSeconds"));
}
