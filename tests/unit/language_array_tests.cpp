// Arrays, and what loops and branches know beside the basic forms.
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/language_support.hpp"

using language_tests::PerWidth;
using language_tests::SampleHost;

TEST_CASE("arrays are declared, filled and read") {
    SampleHost host;
    CHECK(
        host.Run(
            "Dim a() As Integer, b(2) As String, c(-1) As Double\nPrint Str(a.Count)\n"
            "Print Str(b.Count)\nPrint Str(c.Count)\nPrint b(2) + \"|\"\nb(1) = \"x\"\nPrint b(1)\n"
            "Print Str(Ubound(b))\nPrint Str(b.LastIndex)\nPrint Str(a.Ubound)") ==
        "0\n3\n0\n|\nx\n2\n2\n-1\n");
    CHECK(host.Run("Dim a() As Double = Array(1, 2.5, 3)\na(0) = a(1) + a(2)\nPrint Str(a(0))\n"
                   "a(1) += 1\nPrint Str(a(1))") == "5.5\n3.5\n");
    CHECK(host.Run("Dim a(1) As Boolean\na(1) = True\nPrint Str(a(0))\nPrint Str(a(1))") ==
          "False\nTrue\n");
    CHECK(host.Run("Dim n As Integer = 2, a(n * 2) As Integer\nPrint Str(a.Count)") == "5\n");
    CHECK(
        host.Run("For i As Integer = 1 To 2\nDim a() As Integer\na.Append(i)\nPrint Str(a.Count)\n"
                 "Next") == "1\n1\n");
    CHECK(host.Run("Dim a() As Variant = Array(1, \"x\", Nil)\nPrint Str(VarType(a(0)))\n"
                   "Print Str(VarType(a(1)))\nPrint Str(a(2) Is Nil)") ==
          PerWidth("2", "3") + "\n8\nTrue\n");
    CHECK(host.Run("Print Str(Array(1, 2.5).Count)\nPrint Str(Array(4, 5)(1))") == "2\n5\n");
}

TEST_CASE("arrays of objects own them") {
    SampleHost host;
    CHECK(host.Run("Dim a() As Sample\na.Append(New Sample(3))\na.Append(Nil)\n"
                   "a.Append(a(0))\nPrint Str(a(2).Value)\nPrint Str(a(1) Is Nil)\nPrint Str(a(0) "
                   "Is a(2))\n"
                   "a.RemoveAt(0)\nPrint Str(a(1).Value)\nPrint Str(a.IndexOf(a(1)))\na.RemoveAll\n"
                   "Print Str(a.Count)") == "3\nTrue\nTrue\n3\n1\n0\n");
    CHECK(
        host.Run("Dim a(3) As Sample\nFor i As Integer = 0 To 3\na(i) = New Sample(i)\nNext\n"
                 "Redim a(1)\nPrint Str(a.Count)\nPrint Str(a(1).Value)\nPrint Str(a(2).Value)") ==
        "2\n1\nUnhandled OutOfBoundsException: The index 2 is outside the array, whose last "
        "index is 1. (line 8)\n");
}

TEST_CASE("an array is the same one wherever it goes") {
    SampleHost host;
    CHECK(host.Run("Sub Fill(a() As Integer)\na.Append(7)\na(0) = 1\nEnd Sub\n"
                   "Dim a(0) As Integer, b() As Integer\nb = a\nFill(a)\nPrint Str(b(0))\nPrint "
                   "Str(b(1))") == "1\n7\n");
    CHECK(host.Run("Sub Renew(ByRef a() As Integer)\na = Array(4, 5)\nEnd Sub\n"
                   "Dim a() As Integer\nRenew(a)\nPrint Str(a(1))") == "5\n");
    CHECK(host.Run("Function Squares(n As Integer) As Integer()\nDim r() As Integer\n"
                   "For i As Integer = 1 To n\nr.Append(i * i)\nNext\nReturn r\nEnd Function\n"
                   "Print Str(Squares(3)(2))\nFunction None() As String()\nEnd Function\n"
                   "Print Str(None.Count)") == "9\n0\n");
    CHECK(host.Run("Function Total(a() As Integer) As Integer\nReturn a.Count\nEnd Function\n"
                   "Function Total(a() As String) As Integer\nReturn -a.Count\nEnd Function\n"
                   "Dim t(1) As String\nPrint Str(Total(t))") == "-2\n");
    CHECK(host.Run("Use()\nDim a() As Integer\nSub Use()\nPrint Str(a.Count)\nEnd Sub") ==
          "Unhandled NilObjectException: An array was used before its declaration. (line 4)\n");
}

TEST_CASE("methods of arrays") {
    SampleHost host;
    const std::string make = "Dim a() As Integer = Array(5, 3, 4)\n";
    CHECK(host.Run(make + "a.AddAt(1, 9)\na.Insert(4, 8)\na.Add(7)\nFor Each n As Integer In a\n"
                          "Print Str(n)\nNext") == "5\n9\n3\n4\n8\n7\n");
    CHECK(host.Run(make + "Print Str(a.Pop)\na.Remove(0)\nPrint Str(a(0))\nPrint Str(a.Count)") ==
          "4\n3\n1\n");
    CHECK(host.Run(
              make +
              "a.Sort\nPrint Str(a(0))\nPrint Str(a(1))\nPrint Str(a(2))\nPrint Str(a.IndexOf(4))\n"
              "Print Str(a.IndexOf(6))") == "3\n4\n5\n1\n-1\n");
    CHECK(host.Run(
              "Dim a() As Double = Array(2.0, 0 / 0, 1.0, 0 / 0, -1.0)\na.Sort\nPrint Str(a(0))\n"
              "Print Str(a(2))\nPrint Str(a(3) = a(3))") == "-1\n2\nFalse\n");
    CHECK(host.Run("Dim a() As String = Array(\"b\", \"C\", \"a\")\na.Sort\nPrint a(0) + a(1) + "
                   "a(2)\nPrint Str(a.IndexOf(\"c\"))") == "abC\n2\n");
    CHECK(host.Run("Dim a(1) As Sample\na.Sort") ==
          "2:3: an array of Sample has no order of its own; write Sort(AddressOf Routine), with a "
          "Function that takes two Sample and returns an Integer");
    CHECK(host.Run("Dim a() As Variant\na.Sort")
              .starts_with("2:3: an array of Variant has no order"));
    CHECK(host.Run("Dim a() As Integer\nCall a.Pop")
              .starts_with("Unhandled OutOfBoundsException: The index -1 is outside the array"));
    CHECK(host.Run(make + "a.AddAt(4, 1)")
              .starts_with("Unhandled OutOfBoundsException: The index 4 is outside the array"));
    CHECK(host.Run(make + "Redim a(-2)") ==
          "Unhandled OutOfBoundsException: An array has no negative size. (line 2)\n");
    CHECK(host.Run(make + "a.ResizeTo(2000000000)") ==
          "Unhandled OutOfMemoryException: There is no memory for so large an array. (line 2)\n");
    CHECK(host.Run(make + "Print Str(a(-1))")
              .starts_with("Unhandled OutOfBoundsException: The index -1 is outside"));
    CHECK(host.Run(make + "Print Str(a(4294967296))")
              .starts_with("Unhandled OutOfBoundsException: The index 4294967296 is outside"));
}

TEST_CASE("mistakes with arrays are told") {
    SampleHost host;
    CHECK(host.Run("Dim a() As Integer\na.Append(\"x\")") ==
          "2:10: \"Append(value As Element)\" expects Integer for \"value\", this is a value of "
          "type String; use Val");
    CHECK(host.Run("Dim a() As Integer\nPrint a") ==
          "2:7: \"Print\" takes a String, this is Integer()");
    CHECK(host.Run("Dim a() As Integer\nPrint a(1, 2)") == "2:7: an array takes one index");
    CHECK(host.Run("Dim a() As Integer = 5") == "1:22: expected Integer(), this is Integer");
    CHECK(host.Run("Dim a As Integer\nPrint a(1)") ==
          "2:7: \"a\" is a variable of type Integer here, and takes no arguments");
    CHECK(host.Run("Dim a As Integer\na(1) = 2") ==
          "2:1: this is not something that takes arguments");
    CHECK(host.Run("Dim a() As Integer\na.Count = 2") == "2:3: \"Count\" cannot be assigned to");
    CHECK(host.Run("Dim a() As Integer, b() As String = a") ==
          "1:37: expected String(), this is Integer()");
    CHECK(host.Run("Print Array().Count") ==
          "1:7: an array without values needs a variable that tells its type");
    CHECK(host.Run("Print Array(1, \"x\").Count") ==
          "1:16: an array of Integer cannot hold String");
    CHECK(host.Run("Print Array(Nil).Count") == "1:7: there is no array of Nil");
    CHECK(host.Run("Redim a") ==
          "1:1: \"Redim\" takes an array with its last index in parentheses");
    CHECK(host.Run("For Each n As Integer In 5\nNext") ==
          "1:26: \"For Each\" takes an array or a Dictionary, this is Integer");
    CHECK(host.Run("For Each n As Sample In Array(5)\nNext") ==
          "1:10: expected Sample, this is Integer; write New Sample(...)");
}

TEST_CASE("a routine finds nothing in an array of the main program before its declaration") {
    SampleHost host;
    CHECK(host.Run("Sub Fill()\nnumbers.Append(1)\nEnd Sub\nFor i As Integer = 1 To 2\nFill\nNext\n"
                   "Dim numbers() As Integer") ==
          "Unhandled NilObjectException: An array was used before its declaration. (line 2)\n");
}

TEST_CASE("For Each goes over the elements there are") {
    SampleHost host;
    CHECK(host.Run("Dim a() As Integer = Array(1, 2, 3), n As Double\nFor Each n In a\n"
                   "If n = 2 Then Continue\nPrint Str(n)\nNext n\nPrint Str(n)") == "1\n3\n3\n");
    CHECK(host.Run("Dim a() As Integer = Array(1, 2)\nFor Each n As Integer In a\n"
                   "If n < 4 Then a.Append(n + 2)\nPrint Str(n)\nNext") == "1\n2\n3\n4\n5\n");
    CHECK(
        host.Run("For Each n As Integer In Array(1, 2, 3)\nFor Each m As Integer In Array(1, 2)\n"
                 "If m = 2 Then Exit For\nPrint Str(n * 10 + m)\nNext\nIf n = 2 Then Exit\nNext") ==
        "11\n21\n");
    CHECK(host.Run(
              "Function Find() As Sample\nDim a() As Sample = Array(New Sample(1))\n"
              "For Each s As Sample In a\nReturn s\nNext\nEnd Function\nPrint Str(Find.Value)") ==
          "1\n");
}

TEST_CASE("loops test before and after, while and until") {
    SampleHost host;
    const std::string make = "Dim i As Integer = 5\n";
    CHECK(host.Run(make + "Do While i > 3\ni -= 1\nLoop\nPrint Str(i)") == "3\n");
    CHECK(host.Run(make + "Do Until i < 3\ni -= 1\nLoop\nPrint Str(i)") == "2\n");
    CHECK(host.Run(make + "Do\ni -= 1\nLoop While i > 4\nPrint Str(i)") == "4\n");
    CHECK(host.Run(make + "Do\ni -= 1\nLoop Until i < 2\nPrint Str(i)") == "1\n");
    CHECK(host.Run(make + "Do\ni -= 1\nIf i = 0 Then Exit Do\nLoop\nPrint Str(i)") == "0\n");
}

TEST_CASE("compound assignments") {
    SampleHost host;
    CHECK(host.Run(
              "Dim i As Integer = 5\ni += 3\ni *= 2\ni -= 1\nPrint Str(i)\ni /= 2\nPrint Str(i)") ==
          "15\n7\n");
    CHECK(host.Run("Dim s As String = \"a\"\ns += \"b\" + \"c\"\nPrint s") == "abc\n");
    CHECK(host.Run("Dim s As New Sample(3)\ns.Value += 4\nPrint Str(s.Value)\ns += 5\nPrint "
                   "Str(s.Value)") == "7\n12\n");
    CHECK(host.Run("Dim i As Integer\ni += \"x\"") ==
          "2:3: \"+\" cannot stand between Integer and String; use Str to join texts, Val to add "
          "numbers");
    CHECK(host.Run("Const N = 1\nN += 1") == "2:1: a constant cannot be assigned to");
}

TEST_CASE("If as a function computes one of two values") {
    SampleHost host;
    CHECK(host.Show("If(1 < 2, \"yes\", \"no\")") == "yes");
    CHECK(host.Show("If(1 > 2, 1, 2.5)") == "2.5");
    CHECK(host.Show("If(1 < 2, 1, 2.5) / 2") == "0.5");
    CHECK(host.Run("Function Side(n As Integer) As Integer\nPrint Str(n)\nReturn n\nEnd Function\n"
                   "Dim i As Integer = If(True, Side(1), Side(2))") == "1\n");
    CHECK(host.Run("Dim s As Sample = If(False, New Sample(1), Nil)\nPrint Str(s Is Nil)") ==
          "True\n");
    CHECK(host.Show("If(1, 2, 3)") == "1:10: expected Boolean, this is Integer");
    CHECK(host.Show("If(True, 2, \"x\")") == "1:16: expected String, this is Integer; use Str");
}

TEST_CASE("functions of the language are methods of values that are no objects") {
    SampleHost host;
    CHECK(
        host.Run(
            "Dim s As String = \"hello\"\nPrint s.Left(2)\nPrint Str(s.Len)\nPrint s.Mid(2, 3)") ==
        "he\n5\nell\n");
    CHECK(host.Run("Dim n As Integer = 255\nPrint n.Hex\nPrint Str(n.Str.Len)") == "FF\n3\n");
    CHECK(host.Run("Dim n As Integer = 255\nPrint n.ToString + True.ToString") == "255True\n");
    CHECK(host.Run("Dim s As String = \"1½\"\nPrint Str(s.Length)\nPrint Str(s.Bytes)") ==
          "2\n3\n");
}
