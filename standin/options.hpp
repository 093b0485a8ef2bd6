// The text of --help, which is the one list of the command's options. The command line is checked
// against it, and ./run reads it out of this file, before anything is built. An option is a line
// that begins with two spaces and its name; a word in capitals after it is its value, N a number
// from 1, V a version.
#pragma once

#include <string_view>

namespace standin {

inline constexpr std::string_view OptionsText =
    R"(usage: ./run [options] [PROGRAM [argument...] | - | -e TEXT | -i]

Runs a program in the host's language against the plug-in library. PROGRAM is a .xojo_script file
or a project, NAME.xojo_project; `-` reads the program from standard input; without any program
examples/tour.xojo_script runs. The words behind a project are the arguments of its application;
those that begin with a dash stand behind `--`.

The library is the DLL for 32-bit Windows, loaded by the stand-in host under Wine, unless --target
names another one. What is missing is installed, fetched and built first; without --target also the
package with the libraries of all targets, and the release.

  -e TEXT              the text of the program itself
  -i                   runs line by line what you type
  --list               every registered class with its members as the host sees them; `--list NAME`
                       shows the members with that name
  --dump               the registered tables, entry by entry
  --ledger             counts of strings and objects at the end, on standard error
  --debug-log          the plug-in's log lines, on standard error
  --max-steps N        ends a program that takes more than N steps
  --max-memory N       ends a program that needs more than N bytes for its text, objects and arrays
  --help               this text

Options of ./run alone:
  --target NAME        the library of this target: windows-x86, windows-x86_64, linux-x86_64,
                       linux-arm64, or linux-x86, which is in no package
  --native             the same as --target linux-x86_64, which needs neither Wine nor QEMU
  --version            the version of the plug-in

What kind of host to be:
  --host-version V     the host's version; `none` for a host that tells no version. A 64-bit host is
                       of 2015.03 or later
  --without FUNCTION   a host that lacks this function (repeatable)
  --built-application  a built application instead of the development environment
  --constructor-on-new new instances made by the plug-in run their empty constructor
  --unterminated-strings
                       the byte after a string's text is not 0
  --misaligned-stack   the plug-in is called with a stack aligned to 4 bytes only
                       (32-bit hosts)
  --changed-control-word
                       the plug-in is called with another x87 control word (32-bit hosts)
  --blocks-without-data
                       memory blocks have a size but no data
  --spare-references   what is released too often lives on, and the ledger tells by how many
                       references it is off
  --fail-string N      the N-th string that is made while the program runs fails
  --fail-object N      the N-th object that is made while the program runs fails
  --wrong FACT         a host about which this fact of docs/host-facts.md is not true

What ./run gives to the stand-in host:
  --library FILE       the plug-in library to load
  --documentation FILE the members and guides that ? shows at the prompt
  --prompts            -i shows where a line is expected

Exit status: 0; 1 for an exception nobody caught; 2 for an error in the program or in the call;
3 when strings or objects were leaked or released too often; 4 when the plug-in crashed.
)";

}  // namespace standin
