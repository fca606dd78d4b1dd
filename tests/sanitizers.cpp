// What the sanitizers of the asan preset are told; part of every test program, of no effect in the other presets.

extern "C" {
const char* __asan_default_options();
const char* __ubsan_default_options();
const char* __lsan_default_suppressions();

const char* __asan_default_options() { return "handle_abort=1"; } // a stack for what ends itself, a hang for instance
const char* __ubsan_default_options() { return "print_stacktrace=1"; }

const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n"; // keeps its configuration until the process ends; loaded by the platform plugin
}
}
