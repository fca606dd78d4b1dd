#include "compile/compilers.h"

namespace {

constexpr const Compiler* ALL[] = {
#define COMPILER(name, number) &compilers::name,
#include "compile/compilers.def"
#undef COMPILER
};

constexpr Compiler NO_COMPILER;

} // namespace

std::span<const Compiler* const> allCompilers() { return ALL; }

const Compiler& compilerOf(int profile) {
    for (const Compiler* each : ALL) {
        if (each->profile == profile) return *each;
    }
    return NO_COMPILER;
}
