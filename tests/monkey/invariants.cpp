#include "invariants.h"

#include "checks.h"

#include "surface/hooks.h"
#include "surface/selection.h"

namespace {

std::string finding;

} // namespace

void expect(bool holds, const std::string& words) {
    if (!holds && finding.empty()) finding = words;
}

std::string brokenInvariant() {
    finding.clear();
    checkRecords();
    checkLists();
    checkScreen();
    hooks.commitEditor();
    if (project.forms) selectWidget(project.forms); // ends a group, whose members live on its panel
    checkLive();
    if (finding.empty()) checkFiles();
    return finding;
}
