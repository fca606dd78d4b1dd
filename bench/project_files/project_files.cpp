// Load against read(2) of the same bytes with a warm cache, save against write(2) and fsync of them, in one run, for
// 1,000, 10,000 and 100,000 records; and the memory of a loaded record beyond its texts and code.
//   bench_project_files FOLDER [records...]
#include "project/files.h"
#include "project/tree.h"
#include "support/sample_project.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::size_t BLOCK = 1 << 20;

void die(const char* what) {
    std::perror(what);
    std::exit(1);
}

double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double best(int rounds, const std::function<void()>& work) {
    double least = 1e9;
    for (int i = 0; i < rounds; ++i) least = std::min(least, seconds(work));
    return least;
}

// Best time of `work` over processes of their own: each starts without memory that an earlier round has left warm, as a
// program does that opens its first project.
double bestAfresh(int rounds, const std::function<void()>& work) {
    double least = 1e9;
    for (int i = 0; i < rounds; ++i) {
        int ends[2];
        if (pipe(ends) != 0) die("pipe");
        const pid_t child = fork();
        if (child == 0) {
            const double time = seconds(work);
            _exit(write(ends[1], &time, sizeof time) == sizeof time ? 0 : 1);
        }
        double time = 0;
        if (read(ends[0], &time, sizeof time) != sizeof time) die("child");
        waitpid(child, nullptr, 0);
        close(ends[0]);
        close(ends[1]);
        least = std::min(least, time);
    }
    return least;
}

double median(int rounds, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) times.push_back(seconds(work));
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void readPlain(const std::string& path) {
    static std::vector<char> block(BLOCK);
    const int file = open(path.c_str(), O_RDONLY);
    if (file < 0) die("open");
    while (read(file, block.data(), block.size()) > 0) {
    }
    close(file);
}

void writePlain(const std::string& path, std::size_t size) {
    static const std::vector<char> block(BLOCK, '1');
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (file < 0) die("create");
    for (std::size_t done = 0; done < size;) {
        const ssize_t count = write(file, block.data(), std::min(BLOCK, size - done));
        if (count <= 0) die("write");
        done += static_cast<std::size_t>(count);
    }
    if (fsync(file) != 0) die("fsync");
    close(file);
}

std::size_t heapOf(const std::string& text) { return text.size() > 15 ? text.size() + 1 : 0; }

// Memory in use beyond what texts and code take themselves, per record.
double overhead(std::size_t before) {
    std::size_t texts = 0;
    int records = 0;
    for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms)) {
        ++records;
        for (const std::string* text : {&n->name, &n->text, &n->icon, &n->bubbleHelp, &n->fontFace, &n->xLabels})
            texts += heapOf(*text);
        for (const std::string& slot : n->slots) texts += heapOf(slot);
    }
    const struct mallinfo2 now = mallinfo2();
    return static_cast<double>(now.uordblks + now.hblkhd - before - texts) / records;
}

double measure(const std::string& folder, int records) {
    const std::string name = "bench.wdp";
    const std::string path = folder + "/" + name;
    largeProject(records);
    const int rounds = records > 50000 ? 3 : 5;
    if (!saveProject(folder, name, true)) die("save");
    struct stat status {};
    stat(path.c_str(), &status);
    const auto size = static_cast<std::size_t>(status.st_size);
    const double write = median(rounds, [&] { writePlain(folder + "/plain.bin", size); });
    const double save = median(rounds, [&] {
        if (!saveProject(folder, name, true)) die("save");
    });
    unlink((folder + "/plain.bin").c_str());
    const double read = best(rounds, [&] { readPlain(path); });
    resetProject();
    malloc_trim(0);
    const struct mallinfo2 empty = mallinfo2();
    const double load = bestAfresh(rounds, [&] {
        if (!loadProject(folder, name)) die("load");
    });
    if (!loadProject(folder, name)) die("load");
    const double memory = overhead(empty.uordblks + empty.hblkhd);
    const double lookups = seconds([&] {
        for (WidgetNode* n = project.forms; n; n = walkList(n, project.forms))
            if (!findName(project.forms, n->name, false)) std::abort();
    });
    std::printf("%7d records %7.1f MB | read %8.4f s  load %8.4f s  %5.2f times | write %8.4f s  save %8.4f s  %5.2f "
                "times | %5.0f bytes a record | %8.4f s to look up every name\n",
                records, static_cast<double>(size) / 1e6, read, load, load / read, write, save, save / write, memory,
                lookups);
    std::fflush(stdout);
    unlink(path.c_str());
    return load;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_project_files FOLDER [records...]\n");
        return 1;
    }
    std::vector<int> sizes;
    for (int i = 2; i < argc; ++i) sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty()) sizes = {1000, 10000, 100000};
    double previous = 0;
    for (int size : sizes) {
        const double load = measure(argv[1], size);
        if (previous > 0) std::printf("        load takes %.2f times the one before\n", load / previous);
        previous = load;
    }
    return 0;
}
