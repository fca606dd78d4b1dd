// The property sheet of every type of widget, row by row, against the sheets kept beside this file. With
// ORBA_UPDATE_GOLDENS set the kept sheets are written anew.
#include "project/defaults.h"
#include "project/records.h"
#include "project/widget_types.h"
#include "properties/rows.h"
#include "surface/state.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

namespace {

const fs::path SHEETS = fs::path(ORBA_SOURCE_DIR) / "tests/designer/sheets";

struct Scene {
    const char* name;
    char platform;
    int gridMode;
    int defaultsMode;
};
constexpr Scene SCENES[] = {
    {"Windows project in pixels", 'w', 0, 0},
    {"X project in pixels", 'x', 0, 0},
    {"Windows project on the grid", 'w', 1, 0},
    {"X project on the grid", 'x', 1, 0},
    {"Widget defaults", 'w', 0, 1},
};

const char* cellWord(Cell cell) {
    switch (cell) {
    case Cell::Text: return "text";
    case Cell::Button: return "button";
    case Cell::Choice: return "choice";
    case Cell::EditableChoice: return "editable choice";
    case Cell::Number: return "number";
    case Cell::Colour: return "colour";
    }
    return "?";
}

std::string shownIn(const WidgetNode& widget, const PropertyRow& row) {
    std::ostringstream line;
    switch (cellKind(widget, row)) {
    case Cell::Number: {
        const NumberFormat format = numberFormat(widget, row);
        line << shownNumber(widget, row) << "  [" << format.width << "." << format.decimals;
        if (format.maximum > format.minimum) line << " from " << format.minimum << " to " << format.maximum;
        line << "]";
        break;
    }
    case Cell::Colour:
        line << shownColour(widget, row);
        if (*row.unset) line << "  [\"" << row.unset << "\" for none]";
        break;
    default: line << '"' << shownText(widget, row) << '"'; break;
    }
    const Choices entries = choicesOf(widget, row);
    if (!entries.empty()) line << "  of";
    for (const Choice& entry : entries)
        if (!entry.windowsOnly || project.projectPlatform == 'w') line << " |" << entry.label << "=" << entry.value;
    return line.str();
}

void writeScene(std::ostream& sheet, WidgetNode& widget, const Scene& scene) {
    project.projectPlatform = scene.platform;
    project.gridMode = scene.gridMode;
    design.defaultsMode = scene.defaultsMode;
    sheet << "\n== " << scene.name << "\n";
    for (const RowId id : sheetOf(widget)) {
        const PropertyRow& row = propertyRow(id);
        sheet << row.label << (isGrey(widget, row) ? " (grey)" : "") << ": " << cellWord(cellKind(widget, row)) << " "
              << shownIn(targetOf(widget, row), row) << "\n";
    }
}

std::string sheetText(WidgetType type) {
    const OwnedList widget = makeDefaultRecord(type);
    std::ostringstream sheet;
    sheet << "Sheet of a widget of type " << codeOf(type) << ", " << cardOf(type).label << ", as it is placed\n";
    for (const Scene& scene : SCENES) writeScene(sheet, *widget, scene);
    return sheet.str();
}

std::string fileText(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::string firstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream a(expected), b(actual);
    std::string lineA, lineB;
    for (int number = 1; std::getline(a, lineA) && std::getline(b, lineB); ++number)
        if (lineA != lineB) return "line " + std::to_string(number) + "\n  kept  " + lineA + "\n  shown " + lineB;
    return "one of them is longer";
}

class SheetOf : public testing::TestWithParam<WidgetType> {
protected:
    void SetUp() override {
        project = {};
        design = {};
    }
    void TearDown() override {
        project = {};
        design = {};
    }
};

TEST(PropertyRows, StandAtTheirIdentifiers) {
    for (int id = 0; id < ROW_COUNT; ++id)
        EXPECT_EQ(propertyRow(static_cast<RowId>(id)).id, id) << propertyRow(static_cast<RowId>(id)).label;
}

TEST_P(SheetOf, HasTheRowsThatAreKept) {
    const fs::path path = SHEETS / (std::to_string(codeOf(GetParam())) + ".txt");
    const std::string shown = sheetText(GetParam());
    if (std::getenv("ORBA_UPDATE_GOLDENS")) {
        std::ofstream(path, std::ios::binary) << shown;
        return;
    }
    const std::string kept = fileText(path);
    EXPECT_TRUE(kept == shown) << path << ": " << firstDifference(kept, shown);
}

INSTANTIATE_TEST_SUITE_P(Types, SheetOf, testing::ValuesIn(defaultOrder),
                         [](const auto& info) { return std::to_string(info.param); });

} // namespace
