// Writes project, form and defaults files of any version straight from records, field by field, as an independent
// measure of what the project room reads and writes.
#pragma once

#include "project/records.h"

#include <array>
#include <string>
#include <vector>

struct FileImage {
    int version = 80;            // times ten
    std::string marks = "F90-s"; // behind the version in the header
    char padding = '\0';         // stands behind the NUL of every field
    std::array<float, 708> colours{};
    int strayGridMode = 0; // in the records of versions 2.0 to 3.0
};

std::string encodeProject(const FileImage& image, const ProjectState& state);
std::string encodeForm(const FileImage& image, const WidgetNode* first, int snapX, int snapY);
// 24 records in the order of the file, as far as the version has them. Version 3.0 has no header.
std::string encodeDefaults(const FileImage& image, const std::vector<const WidgetNode*>& records);
std::string encodeChain(const FileImage& image, const WidgetNode* first);
