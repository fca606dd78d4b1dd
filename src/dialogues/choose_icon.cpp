#include "dialogues/choose_icon.h"

#include "dialogues/frame.h"
#include "dialogues/icon_grid.h"
#include "platform/paths.h"
#include "project/host.h"

#include <algorithm>
#include <utility>

namespace {

struct State {
    unsigned sets = 0;
    std::string present;
    std::function<void(const IconChoice&)> deliver;
} state;

struct FileSet {
    IconSets set;
    const char *title, *filter, *extension;
};
constexpr FileSet FILE_SETS[] = {
    {ICON_FILE, "Choose icon file to use", "*.ico|Windows icon files|*.*|All file formats", ".ico"},
    {BITMAP_FILE, "Use bitmap file", "*.bmp|Bitmap Files|*.*|All Files", ".bmp"},
};

std::string lastFolder, lastName; // of the file box

struct FormatButton {
    int id;
    IconSets set;
};
constexpr FormatButton BUTTONS[] = {{ICON_LARGE, STOCK_LARGE},     {ICON_SMALL, STOCK_SMALL}, {ICON_THUMB, STOCK_THUMB},
                                    {ICON_TOOLBAR, STOCK_TOOLBAR}, {ICON_VISTA, STOCK_VISTA}, {ICON_ICO, ICON_FILE},
                                    {ICON_BITMAP, BITMAP_FILE}};

extern const Dialogue DIALOGUE;

void cancel() { closeDialogue(DIALOGUE); }

void deliver(const IconChoice& choice) {
    const auto to = std::exchange(state.deliver, nullptr);
    if (to) to(choice);
}

void chooseFrom(IconSets set) {
    closeDialogue(DIALOGUE);
    openIconGrid(set, state.present, deliver);
}

void chooseFile(IconSets set) {
    const FileSet& files = *std::ranges::find(FILE_SETS, set, &FileSet::set);
    closeDialogue(DIALOGUE);
    std::string folder = lastFolder, name = lastName;
    if (!host.fileDialogue(files.title, files.filter, false, folder, name)) return;
    lastFolder = folder;
    lastName = name;
    std::string path = joinPath(folder, name);
    if (fileNameOf(path).find('.') == std::string::npos) path += files.extension;
    if (!fileReadable(path)) return host.errorBox("File not found", "The requested file could not be found");
    deliver({path, set, 0});
}

constexpr Control formatButton(int id, const char* text, short y, char mnemonic, void (*pressed)()) {
    return {.field = Field::Button,
            .id = id,
            .text = text,
            .x = 22,
            .y = y,
            .width = 220,
            .mnemonic = mnemonic,
            .changed = pressed};
}

constexpr Control CONTROLS[] = {
    {.field = Field::Label, .text = "Choose an icon/image format:", .x = 22, .y = 186, .width = 220},
    formatButton(ICON_LARGE, "Large ORBAWIDG resource icon", 164, 'L', [] { chooseFrom(STOCK_LARGE); }),
    formatButton(ICON_SMALL, "Small ORBAWIDG resource icon", 142, 'S', [] { chooseFrom(STOCK_SMALL); }),
    formatButton(ICON_THUMB, "ORBAWIDG Thumb resource icon", 120, 'T', [] { chooseFrom(STOCK_THUMB); }),
    formatButton(ICON_TOOLBAR, "ORBAWIDG Toolbar resource icon", 98, 'o', [] { chooseFrom(STOCK_TOOLBAR); }),
    formatButton(ICON_VISTA, "ORBAWIDG Vista Toolbar resource icon", 76, 'v', [] { chooseFrom(STOCK_VISTA); }),
    formatButton(ICON_ICO, "User defined resource icon", 54, 'I', [] { chooseFile(ICON_FILE); }),
    formatButton(ICON_BITMAP, "Bitmap file (.BMP)", 32, 'B', [] { chooseFile(BITMAP_FILE); }),
    {.field = Field::Default,
     .id = ICON_CANCEL,
     .text = "Cancel",
     .x = 77,
     .width = 110,
     .mnemonic = 'C',
     .changed = cancel},
};

const Dialogue DIALOGUE = {.title = "Change icon",
                           .icon = "Icopick",
                           .help = "Change Icon Dialogue Box",
                           .width = 264,
                           .height = 208,
                           .windowEvent = ICON_WINDOW,
                           .controls = CONTROLS,
                           .cancel = ICON_CANCEL,
                           .fill = [] {
                               for (const FormatButton& button : BUTTONS)
                                   dialogue::enable(button.id, (state.sets & button.set) != 0);
                           }};

} // namespace

void chooseIcon(unsigned sets, const std::string& present, std::function<void(const IconChoice&)> to) {
    if (isOpen(DIALOGUE)) return;
    state = {sets, present, std::move(to)};
    openDialogue(DIALOGUE);
}
