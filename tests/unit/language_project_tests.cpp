// Projects that are broken, or written otherwise than the environment does: they run, or what is
// said of them names the file and the line.
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/unit/language_support.hpp"

using language_tests::RunProject;
using language_tests::SampleHost;

namespace {

using Files = std::map<std::string, std::string>;

constexpr const char* ProjectName = "P.xojo_project";
constexpr const char* AppName = "App.xojo_code";
constexpr const char* ModuleName = "Words.xojo_code";

constexpr std::string_view Project =
    "Type=Console\nRBProjectVersion=2021.021\n"
    "Class=App;App.xojo_code;&h0000000000000001;&h0000000000000000;false\n"
    "Module=Words;Words.xojo_code;&h0000000000000002;&h0000000000000000;false\n"
    "BuildFlags=&h4100\n";
constexpr std::string_view App =
    "#tag Class\nProtected Class App\nInherits ConsoleApplication\n\t#tag Event\n"
    "\t\tFunction Run(args() as String) As Integer\n\t\t  Print Words.Greeting\n\t\t  Return 3\n"
    "\t\tEnd Function\n\t#tag EndEvent\n\n\t#tag ViewBehavior\n\t#tag EndViewBehavior\n"
    "End Class\n#tag EndClass\n";
constexpr std::string_view Module =
    "#tag Module\nProtected Module Words\n\t#tag Method, Flags = &h1\n"
    "\t\tProtected Function Greeting() As String\n\t\t  Return kHello + mSign\n"
    "\t\tEnd Function\n\t#tag EndMethod\n\t#tag Property, Flags = &h21\n"
    "\t\tPrivate mSign As String = \"!\"\n\t#tag EndProperty\n"
    "\t#tag Constant, Name = kHello, Type = String, Dynamic = False, Default = \\\"hello\", "
    "Scope = Private\n\t#tag EndConstant\nEnd Module\n#tag EndModule\n";
constexpr std::string_view Output = "hello!\n3";

Files Plain() {
    return {{ProjectName, std::string(Project)},
            {AppName, std::string(App)},
            {ModuleName, std::string(Module)}};
}

/// The same files with a piece of one of them replaced wherever it occurs.
Files With(const std::string& file, std::string_view piece, std::string_view replacement) {
    auto files = Plain();
    auto& text = files.at(file);
    std::size_t at = text.find(piece);
    REQUIRE(at != std::string::npos);
    for (; at != std::string::npos; at = text.find(piece, at + replacement.size())) {
        text.replace(at, piece.size(), replacement);
    }
    return files;
}

/// The files, each of them changed.
template <typename Change>
Files Each(Change change) {
    auto files = Plain();
    for (auto& [name, text] : files) {
        text = change(text);
    }
    return files;
}

std::string WithLineEnds(const std::string& text, std::string_view lineEnd) {
    std::string result;
    for (const char character : text) {
        character == '\n' ? result += lineEnd : result += character;
    }
    return result;
}

std::string Run(SampleHost& sample, const Files& files) {
    return RunProject(sample, ProjectName, files);
}

/// Takes a number and the colon behind it off the text; false when it begins otherwise.
bool TakeNumber(std::string_view& text) {
    const auto end = text.find_first_not_of("0123456789");
    if (end == 0 || end == std::string_view::npos || text[end] != ':') {
        return false;
    }
    text.remove_prefix(end + 1);
    return true;
}

/// Whether the report begins with a file of the project, a line and a column, and says something.
bool NamesAPlace(std::string_view report) {
    for (const std::string_view file : {"P.xojo_project:", "App.xojo_code:", "Words.xojo_code:"}) {
        if (report.starts_with(file)) {
            constexpr std::string_view Error = " error: ";
            report.remove_prefix(file.size());
            const bool hasLine = TakeNumber(report);
            const bool hasColumn = TakeNumber(report);
            return hasLine && hasColumn && report.starts_with(Error) &&
                   report.size() > Error.size();
        }
    }
    return false;
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = text.find('\n') + 1;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) {
        text += line;
    }
    return text;
}

}  // namespace

TEST_CASE("a project runs with any line ends, with a byte-order mark, and without its tabs") {
    SampleHost host;
    CHECK(Run(host, Plain()) == Output);
    for (const std::string_view lineEnd : {"\r\n", "\r"}) {
        CAPTURE(lineEnd);
        CHECK(Run(host, Each([lineEnd](const std::string& text) {
                      return WithLineEnds(text, lineEnd);
                  })) == Output);
    }
    CHECK(Run(host, Each([](const std::string& text) { return "\xEF\xBB\xBF" + text; })) == Output);
    CHECK(Run(host, Each([](const std::string& text) {
                  return text.substr(0, text.size() - 1);
              })) == Output);
    CHECK(Run(host, With(AppName, "\t", "")) == Output);
    CHECK(Run(host, With(ModuleName, "\t", "    ")) == Output);
    CHECK(Run(host, With(ProjectName, "\nModule", "\n\t \n\nModule")) == Output);
}

TEST_CASE("what is wrong with a project is told with its line") {
    SampleHost host;
    auto files = Plain();
    files.erase(ModuleName);
    CHECK(Run(host, files).starts_with("P.xojo_project:4:1: error: cannot read the file Words"));
    CHECK(Run(host, With(ProjectName, "Type=Console\n", ""))
              .starts_with("P.xojo_project:1:1: error: a project begins with its type"));
    CHECK(Run(host, With(ProjectName, "Type=Console", "Type=Desktop"))
              .starts_with("P.xojo_project:1:6: error: projects of the type \"Desktop\""));
    CHECK(Run(host, With(ProjectName, "RBProjectVersion=2021.021", "RBProjectVersion"))
              .starts_with("P.xojo_project:2:1: error: this is no line of a project"));
    CHECK(Run(host, With(ProjectName, ";&h0000000000000001", ""))
              .starts_with("P.xojo_project:3:1: error: an item is written"));
    CHECK(Run(host, {{ProjectName, ""}}) == "P.xojo_project:1:1: error: the project is empty");
    CHECK(Run(host, {{ProjectName, "Type=Console\n"}}) ==
          "P.xojo_project:1:1: error: the project lists no class and no module");
    CHECK(Run(host, With(ProjectName, "RBProjectVersion", "RB\xFFProjectVersion"))
              .find("is not UTF-8 text") != std::string::npos);
    CHECK(NamesAPlace(Run(host, With(ModuleName, "kHello +", "\xFF +"))));
}

TEST_CASE("a file is what the project says, and its tags are closed") {
    SampleHost host;
    CHECK(Run(host, With(ModuleName, "Module Words", "Module Wards")) ==
          "Words.xojo_code:2:18: error: the project calls this file the Module \"Words\"");
    CHECK(Run(host, With(ProjectName, "Module=", "Class=")) ==
          "Words.xojo_code:2:18: error: the project calls this file the Class \"Words\"");
    CHECK(Run(host, With(ModuleName, "Private mSign",
                         "Private Class Inner\nEnd Class\nPrivate mSign")) == Output);
    CHECK(Run(host, With(ModuleName, "\t#tag EndMethod\n", "")) ==
          "Words.xojo_code:3:2: error: this \"#tag Method\" has no \"#tag EndMethod\"");
    CHECK(Run(host, With(ModuleName, "#tag EndModule\n", "")) ==
          "Words.xojo_code:1:1: error: this \"#tag Module\" has no \"#tag EndModule\"");
    CHECK(Run(host, With(ModuleName, "#tag Method", "#tag Metod")) ==
          "Words.xojo_code:3:2: error: there is no \"#tag Metod\"; did you mean \"Method\"?");
    CHECK(Run(host, With(AppName, "#tag EndViewBehavior\n", "")) ==
          "App.xojo_code:11:2: error: this \"#tag ViewBehavior\" is never closed");
}

TEST_CASE("a project without an application, or without its Run, says so") {
    SampleHost host;
    const auto withoutApp = With(
        ProjectName, "Class=App;App.xojo_code;&h0000000000000001;&h0000000000000000;false\n", "");
    CHECK(Run(host, withoutApp).find("inherits from ConsoleApplication") != std::string::npos);
    CHECK(Run(host, With(AppName, "Function Run(", "Function Start(")) ==
          "App.xojo_code:5:12: error: a ConsoleApplication has no event \"Start\"; it has Run and "
          "UnhandledException");
}

TEST_CASE("a project whose files end anywhere runs or names a place") {
    SampleHost host;
    // A structured binding cannot be captured by what doctest makes of CAPTURE.
    for (const auto& file : Plain()) {
        const auto& name = file.first;
        const auto& text = file.second;
        for (std::size_t size = 0; size < text.size(); ++size) {
            auto files = Plain();
            files.at(name) = text.substr(0, size);
            CAPTURE(name);
            CAPTURE(size);
            const auto result = Run(host, files);
            CHECK((result == Output || NamesAPlace(result)));
        }
    }
}

TEST_CASE("a project with a line too few or twice runs or names a place") {
    SampleHost host;
    for (const auto& [name, text] : Plain()) {
        const auto lines = LinesOf(text);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            for (const std::size_t times : {0U, 2U}) {
                auto changed = lines;
                changed[i] = times == 0 ? "" : lines[i] + lines[i];
                auto files = Plain();
                files.at(name) = Joined(changed);
                CAPTURE(lines[i]);
                CAPTURE(times);
                const auto result = Run(host, files);
                CHECK((result.ends_with('3') || result.ends_with('0') || NamesAPlace(result)));
            }
        }
    }
}

TEST_CASE("the declaration of a variable that hides a function is named with its file") {
    SampleHost host;
    auto files = With(ModuleName, "\t#tag Property, Flags = &h21\n",
                      "\t#tag Property, Flags = &h0\n\t\tHex As String\n\t#tag EndProperty\n"
                      "\t#tag Property, Flags = &h21\n");
    files[AppName] = With(AppName, "Words.Greeting", "Hex(5)").at(AppName);
    CHECK(RunProject(host, ProjectName, files) ==
          "App.xojo_code:6:11: error: \"Hex\" is a variable of type String here, and takes no "
          "arguments; rename it to call the function of that name; it is declared in line 9 of "
          "Words.xojo_code");
}

TEST_CASE("a constant has the value for the platform") {
    SampleHost host;
    const auto with = [&](const std::string& instances) {
        return Run(host,
                   With(ModuleName, "\t#tag EndConstant\n", instances + "\t#tag EndConstant\n"));
    };
    const std::string here = standin::language::IsWindows ? "Windows" : "Linux";
    const std::string elsewhere = standin::language::IsWindows ? "Linux" : "Windows";
    const auto instance = [](const std::string& platform, const std::string& value,
                             const std::string& language = "Default") {
        return "\t\t#Tag Instance, Platform = " + platform + ", Language = " + language +
               ", Definition  = \\\"" + value + "\"\n";
    };
    CHECK(with(instance(here, "here\\x2C you") + instance(elsewhere, "there")) == "here, you!\n3");
    CHECK(with(instance(elsewhere, "there") + "\n") == Output);
    CHECK(with(instance(here, "hier", "de"))
              .find("Values of constants for one language, here \"de\"") != std::string::npos);
    CHECK(with("\t\t#Tag Instance, Platform = " + here + "\n")
              .find("this tag has no platform with a definition") != std::string::npos);
    // Also where #If asks.
    auto files = With(ModuleName, "Return kHello + mSign",
                      "#If kHello = \"here\"\n\t\t  Return \"seen\"\n#EndIf\n");
    auto& module = files.at(ModuleName);
    module.insert(module.find("\t#tag EndConstant"), instance(here, "here"));
    CHECK(Run(host, files) == "seen\n3");
}
