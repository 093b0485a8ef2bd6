// A conversation in the host's language: text comes piece by piece and runs at once.
#pragma once

#include <cstdint>

#include "standin/language/compiler.hpp"
#include "standin/language/source.hpp"

namespace standin::language {

/// Runs fragments of a program one after the other. Variables and routines stay; a later fragment
/// may declare them anew. What a fragment declares is forgotten when it fails.
class Session {
public:
    /// The host and the types must outlive the session.
    Session(Host& host, const TypeTable& types, Machine::Output print,
            std::uint64_t maximumSteps = UnlimitedSteps);

    /// Runs a fragment of whole lines: statements and routines, or one expression, whose value is
    /// printed. Returns false, and has done nothing, when more lines must follow. Throws what
    /// Program's constructor and Run throw.
    bool Run(const Source& fragment);

private:
    void Execute(const code::Block& block);

    Compiler compiler_;
    Machine machine_;
    Frame frame_;
};

}  // namespace standin::language
