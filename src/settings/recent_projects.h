// The recent projects: the file "wdesign.lst" and its entries at the end of the File menu. Without a data folder the
// list does not exist, and nothing here does anything.
#pragma once

#include <string>

inline constexpr int RECENT_PROJECTS = 5;
inline constexpr int CMD_RECENT_FIRST = 14090; // the command of the first entry; the others follow

// Reads the list and adds its entries to the menu with the handle `menu`, behind a separator.
void loadRecentProjects(int menu);

// Puts `path` at the top of the list, in the file and in the menu, each project once and by its whole path. A path that
// a line of the file has no room for is left out.
void addRecentProject(int menu, const std::string& path);

// The path of an entry, 0 the most recent; empty for none.
std::string recentProject(int index);
