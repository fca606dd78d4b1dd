#include "platform/safe_file.h"

#include "platform/paths.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char SUFFIX[] = ".saving"; // name.<process id>.saving
constexpr mode_t PERMISSIONS = 07777;

bool fail(SafeFile& file) {
    if (!file.failed) file.error = errno;
    file.failed = true;
    return false;
}

std::string followLinks(const std::string& path) {
    char resolved[PATH_MAX];
    return realpath(path.c_str(), resolved) ? resolved : path;
}

std::string folderToList(const std::string& path) {
    std::string folder = folderOf(path);
    if (!folder.empty()) return folder;
    return !path.empty() && path[0] == '/' ? "/" : ".";
}

// Removes temporary files of this target whose process is gone.
void clearLeftovers(const std::string& target) {
    const std::string folder = folderToList(target);
    const std::string prefix = fileNameOf(target) + ".";
    DIR* listing = opendir(folder.c_str());
    if (!listing) return;
    while (const dirent* entry = readdir(listing)) {
        const std::string name = entry->d_name;
        if (name.size() <= prefix.size() + strlen(SUFFIX) || name.compare(0, prefix.size(), prefix) != 0) continue;
        if (name.compare(name.size() - strlen(SUFFIX), std::string::npos, SUFFIX) != 0) continue;
        char* end = nullptr;
        const long process = strtol(name.c_str() + prefix.size(), &end, 10);
        if (process <= 0 || strcmp(end, SUFFIX) != 0) continue;
        if (kill(static_cast<pid_t>(process), 0) == -1 && errno == ESRCH) unlink(joinPath(folder, name).c_str());
    }
    closedir(listing);
}

void flushFolder(const std::string& path) {
    const int folder = open(folderToList(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    fsync(folder);
    close(folder);
}

// A file size limit shows as a failed write, not as a signal.
struct QuietSizeLimit {
    struct sigaction old {};
    QuietSizeLimit() {
        struct sigaction ignore {};
        ignore.sa_handler = SIG_IGN;
        sigaction(SIGXFSZ, &ignore, &old);
    }
    ~QuietSizeLimit() { sigaction(SIGXFSZ, &old, nullptr); }
};

// Another name for the old file first, so that at no moment the target is missing.
bool keepAsBackup(const SafeFile& file) {
    const std::string backup = file.target + ".bak";
    unlink(backup.c_str());
    if (link(file.target.c_str(), backup.c_str()) == 0) return true;
    if (errno == ENOENT) return true; // nothing there to keep
    return rename(file.target.c_str(), backup.c_str()) == 0;
}

bool openTemporary(SafeFile& file, mode_t mode) {
    file.temporary = file.target + "." + std::to_string(getpid()) + SUFFIX;
    unlink(file.temporary.c_str()); // of an earlier save of this process that was never ended
    file.handle = open(file.temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file.handle < 0) return fail(file);
    if (mode != 0 && fchmod(static_cast<int>(file.handle), mode) != 0) {
        // The new file then has the mode of a new file; that is no reason not to save.
    }
    return true;
}

} // namespace

bool openSafeFile(SafeFile& file, const std::string& path) {
    if (path.empty()) {
        errno = ENOENT;
        return fail(file);
    }
    file.target = followLinks(path);
    struct stat old {};
    const bool exists = stat(file.target.c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) {
        errno = EISDIR;
        return fail(file);
    }
    if (exists && access(file.target.c_str(), W_OK) != 0) return fail(file);
    if (exists && !S_ISREG(old.st_mode)) {
        file.handle = open(file.target.c_str(), O_WRONLY | O_CLOEXEC);
        return file.handle >= 0 || fail(file);
    }
    clearLeftovers(file.target);
    return openTemporary(file, exists ? old.st_mode & PERMISSIONS : 0);
}

void writeSafeFile(SafeFile& file, const void* bytes, std::size_t count) {
    if (file.failed || file.handle < 0) return;
    const QuietSizeLimit quiet;
    const char* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t written = write(static_cast<int>(file.handle), next, count);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) {
            fail(file);
            return;
        }
        next += written;
        count -= static_cast<std::size_t>(written);
    }
}

bool commitSafeFile(SafeFile& file, bool keepOld) {
    const bool plain = !file.temporary.empty();
    if (!file.failed && plain && fsync(static_cast<int>(file.handle)) != 0) fail(file);
    if (file.handle >= 0 && close(static_cast<int>(file.handle)) != 0) fail(file);
    file.handle = -1;
    if (!plain) return !file.failed;
    if (!file.failed && keepOld && !keepAsBackup(file)) fail(file);
    if (!file.failed && rename(file.temporary.c_str(), file.target.c_str()) != 0) fail(file);
    if (file.failed) {
        unlink(file.temporary.c_str());
        return false;
    }
    flushFolder(file.target);
    return true;
}

SafeFile::~SafeFile() {
    if (handle >= 0) abandonSafeFile(*this);
}

void abandonSafeFile(SafeFile& file) {
    if (file.handle >= 0) close(static_cast<int>(file.handle));
    file.handle = -1;
    if (!file.temporary.empty()) unlink(file.temporary.c_str());
}

std::string errorText(int error) { return strerror(error); }

std::FILE* openForReading(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
    return std::fopen(path.c_str(), "rbe");
}
