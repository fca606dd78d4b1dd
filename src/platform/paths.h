// File names. They are joined with the system's own separator and split at either slash, since a project may have been
// saved on another system. Nothing here looks at the disk but the enquiries at the end.
#pragma once

#include <string>
#include <string_view>

// '\\' on Windows, '/' elsewhere.
char nativeSeparator();

std::string joinPath(std::string_view folder, std::string_view name); // an empty folder gives the name alone
std::string folderOf(std::string_view path);                          // up to the last separator; empty without one
std::string fileNameOf(std::string_view path);                        // behind the last separator
std::string nativePath(std::string path);                             // every separator turned into the system's own
bool isAbsolutePath(std::string_view path);

// A dot counts as an extension only in the file name itself, never in a folder's name.
std::string withoutExtension(std::string_view path);
std::string withExtension(std::string_view path, std::string_view extension); // extension with its dot, or empty

// The program that a build of this source makes: ".exe" in place of the extension on Windows, no extension here. A
// source without any extension gets ".exe" on every system, so that the program never takes the place of its source.
std::string executablePath(std::string_view sourcePath);

bool pathExists(const std::string& path);
bool folderExists(const std::string& path);
bool fileReadable(const std::string& path); // a plain file that can be opened for reading

// Removes a plain file; a missing one is no failure.
bool removeFile(const std::string& path);

// The path in its short form without blanks where the system has one; otherwise, and for a missing file, the path as it
// is.
std::string shortPath(const std::string& path);

// From the root, without "." and ".."; a relative one counts from the current folder. Empty stays empty.
std::string absolutePath(const std::string& path);

std::string currentFolder();

// A file in `folder` that only this process uses: the number of the process stands between stem and extension.
std::string ownFile(const std::string& folder, const std::string& stem, const std::string& extension);
std::string programPath();                 // full path of the running program, empty when the system does not tell
bool makeFolders(const std::string& path); // with all folders above it; true when it is there in the end
