// A folder of its own for a test, gone with it; and files in it.
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>

struct ScratchFolder {
    std::filesystem::path path;

    explicit ScratchFolder(const std::string& name = "scratch") {
        std::string pattern = (std::filesystem::temp_directory_path() / (name + "-XXXXXX")).string();
        path = mkdtemp(pattern.data()) ? pattern : "/nonexistent";
    }
    ~ScratchFolder() {
        std::error_code failure;
        std::filesystem::remove_all(path, failure);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string operator/(const std::string& name) const { return (path / name).string(); }

    std::string write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((path / name).parent_path());
        std::ofstream(path / name, std::ios::binary) << text;
        return (path / name).string();
    }
    // A shell script that can be run by its path.
    std::string script(const std::string& name, const std::string& body) const {
        std::string file = write(name, "#!/bin/sh\n" + body);
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file;
    }
};

inline std::string textOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// Waits until `done` says so, up to the limit; returns what it said last.
template <typename Done> bool waitUntil(Done done, int milliseconds = 10000) {
    for (int waited = 0; waited < milliseconds && !done(); waited += 5) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return done();
}

// An environment variable with another value for the length of a test; null removes it.
struct ScopedVariable {
    std::string name;
    std::string old;
    bool wasSet;

    ScopedVariable(const char* variable, const char* value) : name(variable), wasSet(getenv(variable) != nullptr) {
        if (wasSet) old = getenv(variable);
        value ? setenv(variable, value, 1) : unsetenv(variable);
    }
    ~ScopedVariable() { wasSet ? setenv(name.c_str(), old.c_str(), 1) : unsetenv(name.c_str()); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;
};
