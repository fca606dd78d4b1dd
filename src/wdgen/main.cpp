#include "upgrade.h"

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const std::string command = words.empty() ? "" : words[0];
    if (command == "--upgrade") return upgradeCommand({words.begin() + 1, words.end()});
    if (command == "--list") return listCommand({words.begin() + 1, words.end()});
    return 1;
}
