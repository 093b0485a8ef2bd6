// Modules, classes, constants and projects, and how all errors of a program are told.
#include <string>

#include "tests/unit/language_support.hpp"

using language_tests::ErrorsIn;
using language_tests::RunProject;
using language_tests::SampleHost;
using standin::language::MaximumShownErrors;

namespace {

constexpr auto Head = "Type=Console\nClass=App;App.xojo_code;&h1;&h0;false\n";

}  // namespace

TEST_CASE("modules hold variables, constants and routines") {
    SampleHost host;
    const std::string module =
        "Module M\nConst kOne = 1\nDim n As Integer = 5\nPrivate hidden As Integer\n"
        "Protected Function Inner() As Integer\nReturn n + hidden\nEnd Function\n"
        "Sub Grow()\nn = n + kOne\nhidden = 100\nEnd Sub\nEnd Module\n";
    CHECK(host.Run(module + "Grow\nM.Grow\nPrint Str(n) + \" \" + Str(M.n)\nPrint Str(M.Inner)\n"
                            "Print Str(kOne + M.kOne)") == "7 7\n107\n2\n");
    CHECK(host.Run(module + "Print Str(Inner)").starts_with("13:11: there is nothing named"));
    CHECK(host.Run(module + "Print Str(M.hidden)")
              .find("the module \"M\" has no member \"hidden\" that is seen here") !=
          std::string::npos);
    CHECK(host.Run("Dim s As Sample\nModule A\nDim x As New Sample(3)\nEnd Module\n"
                   "Print Str(A.x.Value)") == "3\n");
}

TEST_CASE("classes hold fields, methods and constructors") {
    SampleHost host;
    const std::string point =
        "Class Point\nDim x, y As Integer\nDim tags(1) As String\nPrivate secret As Integer = 9\n"
        "Sub Constructor(x As Integer, y As Integer = 2)\nSelf.x = x\nSelf.y = y\nEnd Sub\n"
        "Function Sum() As Integer\nReturn x + y + secret\nEnd Function\n"
        "Sub Move(by As Integer)\nx = x + by\ntags(0) = \"moved\"\nEnd Sub\nEnd Class\n";
    CHECK(host.Run(point + "Dim p As New Point(1)\np.Move(4)\nPrint Str(p.Sum)\np.y = 20\n"
                           "p.tags(1) = \"!\"\nPrint p.tags(0) + p.tags(1) + Str(p.y)") ==
          "16\nmoved!20\n");
    CHECK(host.Run(point + "Dim p As New Point(1)\nPrint Str(p.secret)").find("is not seen here") !=
          std::string::npos);
    CHECK(host.Run(point + "Dim p As Point\nPrint Str(p.x)")
              .starts_with("Unhandled NilObjectException"));
    CHECK(host.Run(point + "Dim v As Variant = New Point(3)\nPrint Str(Point(v).x)\n"
                           "Print Str(v IsA Point)") == "3\nTrue\n");
    // Objects that hold each other are let go of at the end, also very many in a row.
    CHECK(host.Run("Class N\nDim n As N\nDim s As Sample\nEnd Class\nDim a As New N, b As New N\n"
                   "a.n = b\nb.n = a\na.s = New Sample(1)\nFor i As Integer = 1 To 20000\n"
                   "Dim c As New N\nc.n = b.n\nb.n = c\nNext\nPrint \"done\"") == "done\n");
    CHECK(host.Run("Class A\nInherits B\nEnd Class").find("are not supported here") !=
          std::string::npos);
}

TEST_CASE("enumerations, constants of the host and static variables") {
    SampleHost host;
    CHECK(host.Run("Enum E\nA\nB = 7\nC\nEnd Enum\nDim x As E = E.C\nPrint Str(Integer(x))\n"
                   "Print Str(x = E.B)\nx = E(7)\nPrint Str(x = E.B)") == "8\nFalse\nTrue\n");
    CHECK(host.Run("Enum E\nA\nEnd Enum\nDim i As Integer = E.A")
              .find("expected Integer, this is E") != std::string::npos);
    CHECK(host.Run("#If XojoVersion > 2013 And TargetConsole And Not TargetDesktop Then\n"
                   "Print \"new\"\n#Else\nthis is ( no program\n#EndIf") == "new\n");
    CHECK(host.Run("Const kOn = False\n#If kOn\nPrint 5 \"\n#ElseIf 2 > 1\nPrint \"b\"\n#Else\n"
                   "Print \"c\"\n#EndIf\nPrint \"end\"") == "b\nend\n");
    CHECK(host.Run("#If True\nPrint \"x\"") == "1:1: this \"#If\" is never closed");
    CHECK(host.Run("#EndIf") == "1:1: there is no \"#If\" before this");
    CHECK(host.Run("#If nonsense\n#EndIf") == "1:5: there is no constant \"nonsense\"");
    CHECK(host.Run("Sub F()\nStatic n As Integer = 5\nn = n + 1\nPrint Str(n)\nEnd Sub\nF\nF") ==
          "6\n7\n");
}

TEST_CASE("parameters of every sort") {
    SampleHost host;
    CHECK(host.Run("Function T(Extends s As String, n As Integer) As String\nReturn s + Str(n)\n"
                   "End Function\nPrint \"a\".T(1).T(2)") == "a12\n");
    CHECK(
        host.Run(
            "Function T(ParamArray n() As Double) As Double\nReturn n.Count\nEnd Function\n"
            "Dim a() As Double = Array(1.0, 2.0)\nPrint Str(T()) + Str(T(1, 2, 3)) + Str(T(a))") ==
        "032\n");
    CHECK(host.Run("Sub T(a As Integer, Optional b As String, Optional o As Sample)\n"
                   "Print Str(a) + b + Str(o Is Nil)\nEnd Sub\nT(1)\nT 2, \"x\"") ==
          "1True\n2xTrue\n");
}

TEST_CASE("defaults are literals, constants and values of enumerations") {
    SampleHost host;
    const std::string shared =
        "Enum E\nA\nB = -7\nEnd Enum\n"
        "Module M\nPrivate Const kHidden = 5\nConst kText = N.kText\nEnum Inner\nX\nY\nEnd Enum\n"
        "Function G(n As Integer = kHidden, i As Inner = M.Inner.Y, x As Inner = Inner.X) As "
        "String\n"
        "Return Str(n) + Str(Integer(i)) + Str(Integer(x))\nEnd Function\nEnd Module\n"
        "Module N\nConst kText = \"n\"\nEnd Module\n"
        "Class C\nConst kC = 3\nFunction H(n As Integer = kC, s As String = M.kText) As String\n"
        "Return Str(n) + s\nEnd Function\nEnd Class\n"
        "Const kTwo = 2\nConst kNine = kTwo * 3 + 7 Mod 4\n"
        "Function P(a As Integer = kNine, b As Integer = -kTwo, c As Double = -1.5,"
        " d As Boolean = TargetConsole, e As E = E.B, s As Sample = Nil) As String\n"
        "Return Str(a) + Str(b) + Str(c) + Str(d) + Str(Integer(e)) + Str(s Is Nil)\nEnd "
        "Function\n";
    // What the caller declares does not matter.
    CHECK(host.Run(shared +
                   "Const kHidden = \"mine\"\nDim c As New C\nPrint G\nPrint c.H\nPrint P") ==
          "510\n3n\n9-2-1.5True-7True\n");
    const auto fails = [&host](const std::string& parameter) {
        return host.Run(
            "Const kNine = 9\nDim v As Integer = 5\nEnum E\nA\nEnd Enum\nEnum O\nA\n"
            "End Enum\nSub F(p As " +
            parameter + ")\nEnd Sub\nF");
    };
    CHECK(fails("Integer = v") == "9:22: there is no constant \"v\"");
    CHECK(fails("Integer = Sqrt(2)") ==
          "9:22: a default is a literal, a constant or a value of an \"Enum\"");
    CHECK(fails("Integer = Sample.Zero").find("a default is a literal, a constant or") !=
          std::string::npos);
    CHECK(fails("E = 0") == "9:16: expected E, this is Integer; write E(...)");
    CHECK(fails("E = O.A") == "9:18: expected E, this is O");
    CHECK(fails("E = E.C").find("E has no member \"C\"") != std::string::npos);
    CHECK(fails("Integer = E.A") == "9:24: expected Integer, this is E");
    CHECK(fails("Boolean = kNine") == "9:22: expected Boolean, this is Integer");
    CHECK(fails("Sample = 5") == "9:21: the default of an object can only be Nil");
}

TEST_CASE("constants are made of literals and constants") {
    SampleHost host;
    CHECK(host.Run("Const kA As Double = -2.5\nSub F()\nConst kB = kA * M.kC\nPrint Str(kB)\n"
                   "End Sub\nModule M\nConst kC = 4\nEnd Module\nF") == "-10\n");
    constexpr auto Impure = "the value of a constant consists of literals and constants";
    CHECK(host.Run("Const k = Sqrt(2)") == std::string("1:11: ") + Impure);
    CHECK(host.Run("Dim n As Integer = 3\nConst k = n * 2") == std::string("2:11: ") + Impure);
    CHECK(host.Run("Sub F()\nConst k = Rnd\nEnd Sub") == std::string("2:11: ") + Impure);
    CHECK(host.Run("Const k As Sample = 5") ==
          "1:1: a constant is a number, a Boolean or a String, this is Sample");
    CHECK(host.Run("Const k = Nil").find("this is Nil") != std::string::npos);
    CHECK(host.Run("Enum E\nA\nB\na = 5\nEnd Enum") == "4:1: \"a\" is declared already");
    constexpr auto Extension =
        "Function T(Extends n As Integer) As Integer\nReturn n\nEnd Function\n";
    CHECK(host.Run(std::string("Class C\n") + Extension + "End Class") ==
          "2:20: \"Extends\" stands in a module, not in a class");
    CHECK(host.Run(std::string("Module M\n") + Extension + "End Module\nPrint Str(5.T)") == "5\n");
}

TEST_CASE("arrays of several dimensions, and a routine that sorts") {
    SampleHost host;
    CHECK(host.Run("Dim a(1, 2) As Integer\na(1, 2) = 5\na(0, 1) = 3\nRedim a(2, 4)\n"
                   "Print Str(a(1, 2)) + Str(a(0, 1)) + Str(a(2, 4))\n"
                   "Print Str(Ubound(a, 1)) + Str(a.LastIndex(2))") == "530\n24\n");
    CHECK(host.Run("Dim a(1, 2) As Integer\nPrint Str(a(1, 3))")
              .starts_with("Unhandled OutOfBoundsException: The index 3 of dimension 2"));
    CHECK(host.Run("Dim a(1, 2) As Integer\nPrint Str(a(1))") ==
          "2:11: this array takes 2 indices");
    CHECK(host.Run("Dim a(99999, 99999) As Integer").starts_with("Unhandled OutOfMemoryException"));
    CHECK(host.Run("Function C(a As String, b As String) As Integer\nReturn a.Length - b.Length\n"
                   "End Function\nDim a() As String = Array(\"ccc\", \"a\", \"bb\", \"d\")\n"
                   "a.Sort(AddressOf C)\nPrint Join(a, \" \")") == "a d bb ccc\n");
    CHECK(host.Run("Dim a() As Integer\na.Sort(AddressOf Nothing)")
              .starts_with("2:8: there is no Function \"Nothing\""));
}

TEST_CASE("fields and elements are passed by reference") {
    SampleHost host;
    constexpr auto Shared =
        "Class C\nDim n As Integer\nDim list() As Integer\nPrivate hidden As Integer\nDim c As C\n"
        "Sub Own()\nInc(n)\nInc(Self.n)\nInc(hidden)\nn = n + hidden * 100\nEnd Sub\n"
        "Sub Constructor()\nEnd Sub\nSub Constructor(ByRef n As Integer)\nn = -1\nEnd Sub\nEnd "
        "Class\n"
        "Sub Inc(ByRef n As Integer)\nn = n + 1\nEnd Sub\n"
        "Sub Both(ByRef a As Integer, ByRef b As Integer)\na = a + 1\nb = b + 10\nEnd Sub\n"
        "Sub Fail(ByRef n As Integer)\nn = 7\nRaise New RuntimeException\nEnd Sub\n"
        "Dim a(1) As Integer, m(1, 2) As Integer, o As New C\n";
    const auto run = [&](const std::string& text) { return host.Run(Shared + text); };
    CHECK(run("o.Own\nInc(o.n)\nPrint Str(o.n)") == "103\n");
    CHECK(
        run("Inc(a(1))\nInc(a(1))\nInc(m(1, 2))\nPrint Str(a(1)) + Str(m(1, 2)) + Str(m(0, 0))") ==
        "210\n");
    CHECK(run("o.list.Append(5)\nInc(o.list(0))\nPrint Str(o.list(0))") == "6\n");
    CHECK(run("Both(a(0), a(0))\nBoth(o.n, o.n)\nPrint Str(a(0)) + \" \" + Str(o.n)") == "11 11\n");
    CHECK(run("o = New C(a(0))\nPrint Str(a(0))") == "-1\n");
    // What was assigned before an exception stays.
    CHECK(run("Try\nFail(a(0))\nCatch\nEnd Try\nTry\nFail(o.n)\nCatch\nEnd Try\n"
              "Print Str(a(0)) + Str(o.n)") == "77\n");
    // The object and the array live as long as the call; an element may be gone at its end.
    CHECK(run("Dim s() As String = Array(\"x\", \"y\")\nSub Drop(ByRef t As String)\ns.RemoveAll\n"
              "t = t + \"!\"\nPrint t\nEnd Sub\nDrop(s(1))\nPrint Str(s.Count)\n"
              "Sub Part(ByRef c As C)\no = Nil\nc = New C\nPrint Str(c.n)\nEnd Sub\nPart(o.c)\n"
              "Print Str(o Is Nil)") == "y!\n0\n0\nTrue\n");
    CHECK(run("Inc(a(2))").starts_with("Unhandled OutOfBoundsException"));
    CHECK(run("Inc(m(0, 3))").starts_with("Unhandled OutOfBoundsException"));
    CHECK(run("o = Nil\nInc(o.n)").starts_with("Unhandled NilObjectException"));
    CHECK(run("Inc(o.hidden)").find("is not seen here") != std::string::npos);
    CHECK(
        run("Inc(5)").find("expects a variable of type Integer for \"n\", this is a value of type "
                           "Integer; put it into a variable first") != std::string::npos);
    CHECK(run("Dim s As Single\nInc(s)").ends_with("for \"n\", this is Single"));
}

TEST_CASE("an array is sorted by a routine of a module or a method of an object") {
    SampleHost host;
    constexpr auto Comparison = "Function Cmp(a As Integer, b As Integer) As Integer\nReturn ";
    const auto text = [&](const std::string& sort) {
        return "Module M\nDim other As Order\n" + std::string(Comparison) +
               "a - b\nEnd Function\nPrivate " +
               "Function Inner(a As Integer, b As Integer) As Integer\nReturn a - b\nEnd "
               "Function\n" +
               "Sub Go(v() As Integer)\nv.Sort(AddressOf Inner)\nEnd Sub\nEnd Module\n" +
               "Class Order\nDim factor As Integer = -1\n" + Comparison +
               "(a - b) * factor\nEnd Function\nSub Go(v() As Integer)\nv.Sort(AddressOf Cmp)\n" +
               "End Sub\nSub Again(v() As Integer)\nv.Sort(AddressOf Self.Cmp)\nEnd Sub\n" +
               "Private Function P(a As Integer, b As Integer) As Integer\nEnd Function\nEnd "
               "Class\n" +
               "Dim v() As Integer = Array(2, 3, 1)\nDim o As New Order\n" + sort +
               "\nPrint Str(v(0)) + Str(v(1)) + Str(v(2))";
    };
    for (const auto* sort : {"v.Sort(AddressOf M.Cmp)", "M.Go(v)", "v.Sort(AddressOf Cmp)",
                             "M.other = o\no.factor = 1\nv.Sort(AddressOf M.other.Cmp)"}) {
        CHECK_MESSAGE(host.Run(text(sort)) == "123\n", sort);
    }
    for (const auto* sort : {"o.Go(v)", "o.Again(v)", "v.Sort(AddressOf o.Cmp)"}) {
        CHECK_MESSAGE(host.Run(text(sort)) == "321\n", sort);
    }
    CHECK(host.Run(text("o = Nil\nv.Sort(AddressOf o.Cmp)")).starts_with("Unhandled NilObject"));
    CHECK(host.Run(text("v.Sort(AddressOf M.Inner)")).find("there is no Function \"Inner\"") !=
          std::string::npos);
    CHECK(host.Run(text("v.Sort(AddressOf o.P)")).find("\"P\" of Order is not seen here") !=
          std::string::npos);
    CHECK(host.Run(text("v.Sort(AddressOf o.Go)")).find("there is no Function \"Go\" that takes") !=
          std::string::npos);
    CHECK(host.Run(text("v.Sort(AddressOf Cmp(1, 2))")).find("takes the name of a routine alone") !=
          std::string::npos);
}

TEST_CASE("small integers wrap at their width and are computed with as Int32") {
    SampleHost host;
    CHECK(
        host.Run("Dim b As Byte = 255, i As Int8 = 127, u As UInt16 = 65535\nb = b + 1\ni = i + 1\n"
                 "u = u + 1\nPrint Str(b) + Str(i) + Str(u)") == "0-1280\n");
    CHECK(host.Run("Dim a As Byte = 200, b As Byte = 100\nPrint Str(a + b)") == "300\n");
}

TEST_CASE("dictionaries") {
    SampleHost host;
    CHECK(host.Run("Dim d As New Dictionary\nd.Value(\"A\") = 1\nd.Value(2) = New Sample(3)\n"
                   "d.Value(\"a\") = 5\nPrint d.Value(\"A\") + \" \" + Str(d.Count)\n"
                   "Print Str(d.HasKey(2.0)) + d.Lookup(\"z\", \"none\")\nd.Remove(2)\n"
                   "For Each k As String In d.Keys\nPrint k\nNext") == "5 2\nTruenone\nA\n");
    CHECK(host.Run("Dim d As New Dictionary\nd.Value(1) = d\nPrint d.Value(2)")
              .starts_with("Unhandled KeyNotFoundException"));
}

TEST_CASE("pairs") {
    SampleHost host;
    CHECK(host.Run("Dim p As Pair = \"a\" : 1 + 2\nPrint p.Left + Str(p.Right.IntegerValue)\n"
                   "Dim list As Pair = 1 : 2 : 3\nPrint Pair(list.Right).Right\n"
                   "Print New Pair(5, \"x\").Right") == "a3\n3\nx\n");
    CHECK(host.Run("Dim p As Pair = 1 : 2\np.Left = 5").find("is read-only") != std::string::npos);
    CHECK(host.Run("Dim p As Pair\nPrint p.Left").starts_with("Unhandled NilObjectException"));
    CHECK(host.Run("Dim p As Pair = 1 :").starts_with("1:20: expected an expression"));
    // Pairs of Pairs are let go of one after the other.
    CHECK(host.Run("Dim p As Pair\nFor i As Integer = 1 To 20000\np = i : p\nNext\n"
                   "Print Str(p.Left.IntegerValue)") == "20000\n");
}

TEST_CASE("dictionaries made of pairs") {
    SampleHost host;
    CHECK(host.Run("Dim d As New Dictionary(\"a\" : 1, 2 : New Sample(3), \"A\" : \"new\")\n"
                   "Print Str(d.Count) + d.Value(\"a\") + Str(Sample(d.Value(2)).Value)") ==
          "2new3\n");
    CHECK(host.Run("Dim pairs() As Pair\npairs.Append 1 : 2\nDim d As New Dictionary(pairs)\n"
                   "Print d.Value(1)") == "2\n");
    CHECK(host.Run("Dim d As New Dictionary(1)").find("New Dictionary") != std::string::npos);
    CHECK(host.Run("Dim p As Pair\nDim d As New Dictionary(p)")
              .starts_with("Unhandled NilObjectException"));
}

TEST_CASE("Me is the object that Self is") {
    SampleHost host;
    CHECK(host.Run("Class C\nDim x As Integer\nSub Constructor(x As Integer)\nMe.x = x\nEnd Sub\n"
                   "Function Same() As Boolean\nReturn Me Is Self\nEnd Function\nEnd Class\n"
                   "Dim c As New C(4)\nPrint Str(c.x) + Str(c.Same)") == "4True\n");
    CHECK(host.Run("Print Me.x").starts_with("1:7: there is nothing named \"Me\""));
}

TEST_CASE("memory blocks take text and both orders of bytes") {
    SampleHost host;
    CHECK(host.Run(
              "Dim m As MemoryBlock = \"AB\"\nPrint Str(m.UInt16Value(0))\n"
              "m.LittleEndian = False\nPrint Str(m.UInt16Value(0))\nm.UInt16Value(0) = &h4344\n"
              "Dim s As String = m\nPrint s + Str(m.LittleEndian)") == "16961\n16706\nCDFalse\n");
}

TEST_CASE("numbers take the form of a pattern") {
    SampleHost host;
    CHECK(host.Run(
              "Print Format(1234567.891, \"#,##0.00\") + \" \" + Format(-0.5, \"0.0##\") + \" \" + "
              "Format(0.25, \"0%\") + \" \" + Format(12345, \"0.00E+00\")") ==
          "1,234,567.89 -0.5 25% 1.23e+04\n");
    CHECK(host.Run(
              "Print Format(-2, \"0;(0);zero\") + Format(0, \"0;(0);zero\") + Format(7, \"000\") + "
              "Format(0.5, \"#.##\") + Format(9.99, \"0.0E+0\")") == "(2)zero007.51.0e+1\n");
}

TEST_CASE("all errors are told, the first of each line") {
    SampleHost host;
    const auto errors = ErrorsIn(host,
                                 "Print 5\nDim s As New Sample(1)\nPrint s.Vlaue\ns.PlusOne(\n"
                                 "For i As Integer = 1 To lenth\nPrint Str(j)\nNext\n");
    CHECK(errors.find("p:1:7: error: \"Print\" takes a String, this is Integer; use Str") !=
          std::string::npos);
    CHECK(errors.find("p:3:9: error: Sample has no member \"Vlaue\"; did you mean \"Value\"?") !=
          std::string::npos);
    CHECK(errors.find("p:4:") != std::string::npos);
    CHECK(errors.find("p:5:25: error: there is nothing named \"lenth\"") != std::string::npos);
}

TEST_CASE("an error in a declaration is told once") {
    SampleHost host;
    CHECK(ErrorsIn(host, "Dim x As Integer = \nPrint Str(x)\nx = 5\n") ==
          "p:1:20: error: expected an expression, found the end of the line\n"
          "  Dim x As Integer = \n                     ^\n");
    CHECK(host.Run("Dim x As Nowhere\nx.Foo\nPrint x") == "1:10: there is no type \"Nowhere\"");
}

TEST_CASE("more errors than anybody reads are counted") {
    SampleHost host;
    std::string text;
    for (std::size_t i = 0; i < MaximumShownErrors + 3; ++i) {
        text += "Print 5\n";
    }
    CHECK(ErrorsIn(host, text).ends_with("and 3 more errors\n"));
}

TEST_CASE("what is not supported says so by its name, once") {
    SampleHost host;
    CHECK(host.Run("Interface I\nSub F()\nSub G()\nEnd Interface") ==
          "1:1: Interfaces are not supported here");
    CHECK(host.Run("Declare Function F Lib \"x\" () As Integer") ==
          "1:1: Declares are not supported here");
    CHECK(host.Run("Dim f As FolderItem") == "1:10: the type \"FolderItem\" is not supported here");
    CHECK(host.Run("Class A\nSub Destructor()\nEnd Sub\nEnd Class") ==
          "2:5: Destructors are not supported here");
}

TEST_CASE("a result that nothing takes needs Call") {
    SampleHost host;
    CHECK(host.Run("Function F() As Integer\nPrint \"f\"\nEnd Function\nF()")
              .starts_with("4:1: this returns Integer"));
    CHECK(host.Run("Function F() As Integer\nPrint \"f\"\nEnd Function\nCall F()") == "f\n");
}

TEST_CASE("projects run from the application's Run") {
    SampleHost host;
    const std::string app =
        "#tag Class\nProtected Class App\nInherits ConsoleApplication\n\t#tag Event\n"
        "\t\tFunction Run(args() as String) As Integer\n\t\t  Print args(0)\n\t\t  Return Fine\n"
        "\t\tEnd Function\n\t#tag EndEvent\n\t#tag Method, Flags = &h21\n"
        "\t\tPrivate Function Fine() As Integer\n\t\t  Return kResult\n\t\tEnd Function\n"
        "\t#tag EndMethod\n\t#tag Constant, Name = kResult, Type = Double, Dynamic = False, "
        "Default = \\\"-7\\x20+ 10\", Scope = Private\n\t#tag EndConstant\n\t#tag Note, Name = n\n"
        "\t\tany \"text\n\t#tag EndNote\n\t#tag ViewBehavior\n\t\t\"\n\t#tag EndViewBehavior\n"
        "End Class\n#tag EndClass\n";
    CHECK(RunProject(host, "folder/P.xojo_project",
                     {{"folder/P.xojo_project", Head}, {"folder/App.xojo_code", app}}) ==
          "folder/P.xojo_project\n3");
    CHECK(RunProject(host, "folder/P.xojo_project", {{"folder/P.xojo_project", Head}})
              .starts_with(
                  "folder/P.xojo_project:2:1: error: cannot read the file folder/App.xojo_code"));
    CHECK(RunProject(host, "folder/P.xojo_project",
                     {{"folder/P.xojo_project", Head},
                      {"folder/App.xojo_code", "#tag Window\nBegin Window W\n"}}) ==
          "folder/App.xojo_code:1:1: error: Windows are not supported here");
    CHECK(RunProject(
              host, "folder/P.xojo_project",
              {{"folder/P.xojo_project", Head}, {"folder/App.xojo_code", "Class App\nEnd Class\n"}})
              .find("inherits from ConsoleApplication") != std::string::npos);
    CHECK(RunProject(host, "folder/P.xojo_project",
                     {{"folder/P.xojo_project", "Class=A;A;&h1;&h0;false"}})
              .find("begins with its type") != std::string::npos);
}

TEST_CASE("the application gets its arguments, and is Self and Me to its own code") {
    SampleHost host;
    const std::string app =
        "Class App\nInherits ConsoleApplication\nDim seen As Integer\n"
        "Function Run(args() As String) As Integer\nMe.seen = args.Ubound\n"
        "Print Join(args, \",\") + Self.Mark\nReturn App.seen\nEnd Function\n"
        "Function Mark() As String\nReturn \"!\"\nEnd Function\nEnd Class\n";
    CHECK(RunProject(host, "folder/P.xojo_project",
                     {{"folder/P.xojo_project", Head}, {"folder/App.xojo_code", app}},
                     {"a \"b\"", "", "ä"}) == "folder/P.xojo_project,a \"b\",,ä!\n3");
    CHECK(RunProject(host, "folder/P.xojo_project",
                     {{"folder/P.xojo_project", Head},
                      {"folder/App.xojo_code", app + "Module M\nFunction F() As Integer\n"
                                                     "Return Self.seen\nEnd Function\n"
                                                     "End Module\n"}})
              .find("there is nothing named \"Self\"") != std::string::npos);
}
