#include "desk.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace desk {
namespace {

struct Desk {
    pid_t server = 0;
    pid_t manager = 0;
    std::string display;
    std::string folder;
    std::vector<pid_t> programs;
};

Desk one;

std::string probeFolder() { return one.folder + "/probe"; }

// Clears the desk when all tests are over; what they left behind stays for a look when one failed.
class Clearing : public testing::Environment {
    void TearDown() override {
        for (pid_t program : one.programs) kill(program, SIGKILL);
        if (one.manager > 0) kill(one.manager, SIGTERM);
        if (one.server > 0) kill(one.server, SIGTERM);
        if (one.server > 0) waitpid(one.server, nullptr, 0);
        std::error_code ignored;
        if (!testing::UnitTest::GetInstance()->Failed()) fs::remove_all(one.folder, ignored);
    }
};
const testing::Environment* const clearing = testing::AddGlobalTestEnvironment(new Clearing);

pid_t spawn(const std::vector<std::string>& command, const std::map<std::string, std::string>& environment,
            const std::string& folder, const std::string& output, int passFd = -1) {
    const pid_t child = fork();
    if (child != 0) return child;
    if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(126);
    const int out = ::open(output.empty() ? "/dev/null" : output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const int in = ::open("/dev/null", O_RDONLY);
    dup2(in, 0);
    dup2(out, 1);
    dup2(out, 2);
    for (int fd = 3; fd < 256; ++fd)
        if (fd != passFd) close(fd);
    for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
}

std::string quoted(const std::string& text) {
    std::string out = "'";
    for (char letter : text) {
        if (letter == '\'')
            out += "'\\''";
        else
            out += letter;
    }
    return out + "'";
}

void run(const std::string& command) {
    const int status = std::system(("DISPLAY=" + one.display + " " + command + " >/dev/null 2>&1").c_str());
    EXPECT_EQ(status, 0) << command;
}

std::string unescaped(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size())
            out += text[i];
        else if (const char mark = text[++i]; mark == 't')
            out += '\t';
        else if (mark == 'n')
            out += '\n';
        else
            out += mark;
    }
    return out;
}

Thing parsed(const std::string& line) {
    std::vector<std::string> fields;
    std::stringstream stream(line);
    for (std::string field; std::getline(stream, field, '\t');) fields.push_back(field);
    fields.resize(9);
    return {fields[0],
            std::atoi(fields[1].c_str()),
            std::atoi(fields[2].c_str()),
            std::atoi(fields[3].c_str()),
            std::atoi(fields[4].c_str()),
            fields[5],
            unescaped(fields[6]),
            unescaped(fields[7]),
            unescaped(fields[8])};
}

std::string ask(const std::string& path) {
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    std::string answer;
    timeval patience{5, 0};
    setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    if (connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 && write(fd, "look\n", 5) == 5) {
        char bytes[65536];
        while (answer.size() < 2 || answer.substr(answer.size() - 2) != "\n\n") {
            const ssize_t got = read(fd, bytes, sizeof bytes);
            if (got <= 0) break;
            answer.append(bytes, static_cast<size_t>(got));
            if (answer == "\n") break;
        }
    }
    close(fd);
    return answer;
}

std::string withoutMnemonic(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) ++i;
        out += text[i];
    }
    return out.substr(0, out.find('\t'));
}

void pause(int milliseconds) { std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds)); }

} // namespace

bool open(int width, int height) {
    if (!one.display.empty()) return true;
    char pattern[] = "/tmp/orba-e2e-XXXXXX";
    one.folder = mkdtemp(pattern);
    fs::create_directory(probeFolder());
    int number[2];
    if (pipe(number) != 0) return false;
    const std::string size = std::to_string(width) + "x" + std::to_string(height) + "x24";
    one.server = spawn({"Xvfb", "-displayfd", std::to_string(number[1]), "-screen", "0", size, "-nolisten", "tcp"}, {},
                       "", one.folder + "/xvfb.log", number[1]);
    close(number[1]);
    std::string digits; // the server writes them piece by piece, a line end last
    for (char digit = 0; read(number[0], &digit, 1) == 1 && digit != '\n';) digits += digit;
    close(number[0]);
    if (digits.empty()) return false;
    one.display = ":" + digits;
    one.manager =
        spawn({"openbox"}, {{"DISPLAY", one.display}, {"HOME", one.folder}}, one.folder, one.folder + "/openbox.log");
    return waitUntil([] {
        return std::system(("DISPLAY=" + one.display + " xdotool get_num_desktops >/dev/null 2>&1").c_str()) == 0;
    });
}

std::string scratchFolder() { return one.folder; }

pid_t start(const std::vector<std::string>& command, const std::map<std::string, std::string>& environment,
            const std::string& folder, const std::string& output) {
    std::map<std::string, std::string> whole = {
        {"DISPLAY", one.display},          {"HOME", one.folder},       {"XDG_CONFIG_HOME", one.folder + "/config"},
        {"XDG_RUNTIME_DIR", one.folder},   {"QT_QPA_PLATFORM", "xcb"}, {"ORBA_PROBE_DIR", probeFolder()},
        {"LD_PRELOAD", ORBA_PROBE_LIBRARY}};
    for (const auto& [name, value] : environment) whole[name] = value;
    const pid_t program = spawn(command, whole, folder, output);
    if (program > 0) one.programs.push_back(program);
    return program;
}

bool running(pid_t program) { return waitpid(program, nullptr, WNOHANG) == 0; }

int stop(pid_t program, int seconds) {
    int status = 0;
    const bool ended = waitUntil([&] { return waitpid(program, &status, WNOHANG) != 0; }, seconds);
    if (!ended) {
        kill(program, SIGKILL);
        waitpid(program, &status, 0);
    }
    std::erase(one.programs, program);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

std::vector<Thing> look(pid_t program) {
    std::vector<Thing> things;
    std::stringstream lines(ask(probeFolder() + "/" + std::to_string(program)));
    for (std::string line; std::getline(lines, line) && !line.empty();) things.push_back(parsed(line));
    return things;
}

std::vector<pid_t> probed() {
    std::vector<pid_t> programs;
    for (const auto& entry : fs::directory_iterator(probeFolder())) {
        const pid_t program = std::atoi(entry.path().filename().c_str());
        if (program > 0 && kill(program, 0) == 0) programs.push_back(program);
    }
    std::sort(programs.begin(), programs.end());
    return programs;
}

bool waitUntil(const std::function<bool()>& holds, double seconds) {
    if (testing::Test::HasFailure()) seconds = std::min(seconds, 0.5); // what follows a failure only winds up
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) return false;
        pause(50);
    }
    return true;
}

Thing waitFor(pid_t program, const std::string& what, const Test& test, double seconds) {
    Thing found;
    const bool came = waitUntil(
        [&] {
            for (const Thing& thing : look(program)) {
                if (!test(thing)) continue;
                found = thing;
                return true;
            }
            return false;
        },
        seconds);
    EXPECT_TRUE(came) << "nothing on the screen is " << what;
    if (!came)
        picture(one.folder + "/missing_" + testing::UnitTest::GetInstance()->current_test_info()->name() + ".png");
    return found;
}

void settle(pid_t program) {
    std::string before;
    EXPECT_TRUE(waitUntil(
        [&] {
            std::string places;
            for (const Thing& thing : look(program))
                if (thing.kind == "orba::FormWindow")
                    places += std::to_string(thing.x) + "," + std::to_string(thing.y) + ";";
            const bool still = !places.empty() && places == before;
            before = places;
            pause(250);
            return still;
        },
        20))
        << "its windows do not stand still";
}

bool shows(pid_t program, const Test& test) {
    const std::vector<Thing> things = look(program);
    return std::any_of(things.begin(), things.end(), test);
}

Test withText(const std::string& text) {
    return [text](const Thing& thing) { return withoutMnemonic(thing.text) == text; };
}

Test withTip(const std::string& tip) {
    return [tip](const Thing& thing) { return thing.tooltip == tip; };
}

Test inWindow(const std::string& window, Test test) {
    return [window, test](const Thing& thing) {
        return thing.window.find(window) != std::string::npos && (!test || test(thing));
    };
}

Test ofKind(const std::string& kind, Test test) {
    return [kind, test](const Thing& thing) { return thing.kind == kind && (!test || test(thing)); };
}

void clickAt(int x, int y, int button) {
    run("xdotool mousemove " + std::to_string(x) + " " + std::to_string(y));
    pause(60);
    run("xdotool click " + std::to_string(button));
    pause(150);
}

void click(const Thing& thing, int button) { clickAt(thing.x + thing.width / 2, thing.y + thing.height / 2, button); }

void doubleClick(const Thing& thing) {
    run("xdotool mousemove " + std::to_string(thing.x + thing.width / 2) + " " +
        std::to_string(thing.y + thing.height / 2));
    pause(60);
    run("xdotool click --repeat 2 --delay 60 1");
    pause(200);
}

void drag(int fromX, int fromY, int toX, int toY) {
    run("xdotool mousemove " + std::to_string(fromX) + " " + std::to_string(fromY));
    pause(60);
    run("xdotool mousedown 1");
    for (int step = 1; step <= 8; ++step) {
        run("xdotool mousemove " + std::to_string(fromX + (toX - fromX) * step / 8) + " " +
            std::to_string(fromY + (toY - fromY) * step / 8));
        pause(25);
    }
    run("xdotool mouseup 1");
    pause(200);
}

void key(const std::string& keys) {
    run("xdotool key " + keys);
    pause(120);
}

void type(const std::string& text) {
    run("xdotool type --delay 15 " + quoted(text));
    pause(150);
}

void picture(const std::string& file) {
    fs::create_directories(fs::path(file).parent_path());
    run("import -window root " + quoted(file));
}

} // namespace desk
