// How families of compilers put the place of an error into a message; each gives line 0 for a message that has none.
#pragma once

#include "compile/compilers.h"

MessagePosition lineAt(const std::string& message, size_t at);      // the number that begins there
MessagePosition lineBehindParenthesis(const std::string& message);  // "main.f90(12): ..."
MessagePosition lineAheadOfParenthesis(const std::string& message); // "0012) ..."
// "file:line:" or "file:line:column:", the column perhaps with the end of its range: "3:8-14:".
MessagePosition positionInColons(const std::string& message);

// The command of StepKind::manifest.
inline constexpr char BIND_MANIFEST[] = R"(mt -manifest "{base}.exe.manifest"  -outputresource:"{base}.exe;1" )";
