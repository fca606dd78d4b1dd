// Leaks that are not ours, told to the leak checker of the asan preset; part of every test program.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n"; // keeps its configuration until the process ends; loaded by the platform plugin
}
