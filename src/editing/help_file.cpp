#include "editing/help_file.h"

#include "menu-c.h"
#include "platform/environment.h"
#include "platform/paths.h"

bool showHelpFile(const std::string& name, const std::string& topic) {
    const std::string file = joinPath(joinPath(folders.installDir, "Help"), name);
    const bool there = fileReadable(file) || fileReadable(withoutExtension(file) + ".html");
    return there && owDisplayHelpWindow(file.c_str(), topic.c_str()) != 0;
}
