#include "shell/toolkit_host.h"

#include "editing/code_editor.h"
#include "menu-c.h"
#include "platform/paths.h"
#include "project/host.h"
#include "surface/live.h"
#include "surface/selection.h"

namespace {

constexpr int PATH_BYTES = 4096;

bool fileDialogue(const std::string& title, const std::string& filter, bool saving, std::string& folder,
                  std::string& name) {
    char chosenName[PATH_BYTES], chosenFolder[PATH_BYTES];
    chosenName[name.copy(chosenName, PATH_BYTES - 1)] = 0;
    chosenFolder[folder.copy(chosenFolder, PATH_BYTES - 1)] = 0;
    const int answer = owFileBrowser(chosenName, PATH_BYTES, chosenFolder, PATH_BYTES, filter.c_str(), owTitle,
                                     title.c_str(), owType, saving ? OSAVEFILE : OOPENFILE, 0);
    if (!answer || !*chosenName) return false;
    name = chosenName;
    folder = chosenFolder;
    return true;
}

void enquireColour(int index, float& red, float& green, float& blue) {
    ORGBSTY colour = {};
    oEnqRGB(index, &colour);
    red = colour.red;
    green = colour.green;
    blue = colour.blue;
}

void enquireGrid(int& pixelX, int& pixelY) {
    int columns = 0, rows = 0;
    owEnqGuiGrid(&columns, &rows, &pixelX, &pixelY);
}

} // namespace

void fillHost() {
    host.messageBox = [](const std::string& title, const std::string& text, int icon, int buttons) {
        return owDisplayMessageBox(title.c_str(), text.c_str(), icon, buttons);
    };
    host.errorBox = [](const std::string& title, const std::string& text) {
        owDisplayErrorBox(title.c_str(), text.c_str());
    };
    host.infoBox = [](const std::string& title, const std::string& text) {
        owDisplayInfoBox(title.c_str(), text.c_str());
    };
    host.busyCursor = [](bool busy) { owSetGuiCursor(0, 0, busy ? OCURSORBUSY : OCURSORDEFAULT); };
    host.defineColour = [](int index, float red, float green, float blue) { oDefineRGB(index, red, green, blue); };
    host.enquireColour = enquireColour;
    host.setGrid = [](int horizontal, int vertical, int mode) {
        owSetGuiGridMode(mode);
        owDefineGuiGrid(horizontal, vertical);
    };
    host.enquireGrid = enquireGrid;
    host.storeArrayGeometry = storeArrayGeometry;
    host.fileDialogue = fileDialogue;
    host.commitEditor = commitEditor;
    host.closeForms = forgetRecords;
}
