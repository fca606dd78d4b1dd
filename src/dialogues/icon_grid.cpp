#include "dialogues/icon_grid.h"

#include "dialogues/frame.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace {

// Names are numbered by a pattern, or listed.
struct StockSet {
    IconSets set;
    const char* title;
    const char* prefix; // of the numbered names, null for listed ones
    int first, count;
    short size, columns; // pixels of a picture in the tables' units
    int windowEvent;
};

constexpr std::array<const char*, 40> VISTA_NAMES = {
    "filenew&",      "fileopen&",  "save&",         "saveas&",         "cut&",      "copy&",       "paste&",
    "redo&",         "undo&",      "print&",        "back&",           "forward&",  "cancel&",     "delete&",
    "error&",        "help&",      "flag&",         "font&",           "envelope&", "function&",   "gotonext&",
    "gotoprevious&", "info&",      "preferences&",  "recycle&",        "repeat&",   "restart&",    "ruler&",
    "search&",       "showgrid&",  "graph&",        "symbol&",         "warning&",  "calculator&", "calendar&",
    "indentin&",     "indentout&", "commentlines&", "uncommentlines&", "icon&"};

constexpr char TITLE[] = "Choose an icon";
constexpr StockSet SETS[] = {
    {STOCK_LARGE, TITLE, "MBIG", 1001, 100, 44, 10, GRID_LARGE_WINDOW},
    {STOCK_SMALL, TITLE, "MSML", 1001, 100, 22, 10, GRID_SMALL_WINDOW},
    {STOCK_THUMB, TITLE, "mthumb0", 1, 8, 22, 8, GRID_THUMB_WINDOW},
    {STOCK_TOOLBAR, TITLE, "mstd", 1001, 27, 22, 9, GRID_TOOLBAR_WINDOW},
    {STOCK_VISTA, "Choose a XP/Vista toolbar icon", nullptr, 1, 40, 22, 10, GRID_VISTA_WINDOW},
};

const StockSet& rowOf(IconSets set) { return *std::ranges::find(SETS, set, &StockSet::set); }

// One grid at a time: its table of controls is made for the set.
struct Grid {
    const StockSet* set = nullptr;
    std::vector<std::string> names;
    std::vector<std::string> labels; // bubble helps: the name, and what the picture shows
    std::vector<Control> controls;
    Dialogue dialogue;
    int present = 0; // number of the marked picture, 0 for none
    void (*deliver)(const IconChoice&) = nullptr;
} grid;

int numberOf(int id) { return id - GRID_FIRST_PICTURE + 1; }
int idOf(int number) { return GRID_FIRST_PICTURE + number - 1; }

void chosen(int number) {
    const bool numbered = grid.set->prefix && grid.set->set != STOCK_THUMB;
    const IconChoice choice{grid.names[static_cast<std::size_t>(number) - 1], grid.set->set, numbered ? number : 0};
    const auto deliver = grid.deliver;
    closeDialogue(grid.dialogue);
    deliver(choice);
}

void pictureChosen() { chosen(numberOf(dialogue::sender())); }

// ---- Keys

// Number of the picture that has the focus, 0 for none.
int focused() {
    const int active = owEnqActiveWidget();
    for (int number = 1; number <= grid.set->count; ++number)
        if (dialogue::widget(idOf(number)) == active) return number;
    return 0;
}

bool isShown(int number) {
    return number >= 1 && number <= grid.set->count && owEnqWidgetStatus(dialogue::widget(idOf(number))) != OHIDDEN;
}

// The next shown picture in steps of `step`.
void walk(int step) {
    int number = focused();
    if (number == 0 && step > 0) number = 1 - step;
    do number += step;
    while (number >= 1 && number <= grid.set->count && !isShown(number));
    if (isShown(number)) dialogue::focus(idOf(number));
}

void takeFocused() {
    if (const int number = focused()) return chosen(number);
    int only = 0, shown = 0;
    for (int number = 1; number <= grid.set->count; ++number)
        if (isShown(number)) only = number, ++shown;
    if (shown == 1) chosen(only); // the one that the filter has left
}

const DialogueKey KEYS[] = {
    {.key = OKEYLEFT, .pressed = [] { walk(-1); }, .without = GRID_FILTER},
    {.key = OKEYRIGHT, .pressed = [] { walk(1); }, .without = GRID_FILTER},
    {.key = OKEYUP, .pressed = [] { walk(-grid.set->columns); }},
    {.key = OKEYDOWN, .pressed = [] { focused() ? walk(grid.set->columns) : walk(1); }},
    {.key = OKEYRETURN, .pressed = takeFocused},
};

// ---- The filter

std::string lowered(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

void filterTyped() {
    const std::string wanted = lowered(dialogue::text(GRID_FILTER));
    for (int number = 1; number <= grid.set->count; ++number) {
        const bool matches =
            lowered(grid.labels[static_cast<std::size_t>(number) - 1]).find(wanted) != std::string::npos;
        if (isShown(number) != matches) dialogue::show(idOf(number), matches);
    }
}

void fill() {
    if (grid.present) owSetWidgetStatus(dialogue::widget(idOf(grid.present)), OCHECKED);
}

// What the picture shows stands behind its name, so that both can be looked for.
std::string labelOf(const std::string& name) {
    char picture[64] = "";
    owEnqIconPicture(name.c_str(), picture, sizeof picture);
    return *picture && lowered(name) != std::string(picture) ? name + " " + picture : name;
}

void makeControls() {
    const StockSet& set = *grid.set;
    const auto rows = static_cast<short>((set.count + set.columns - 1) / set.columns);
    const auto height = static_cast<short>(rows * set.size);
    grid.controls.push_back({.field = Field::Label, .text = "Filter:", .y = height, .width = 44});
    const auto room = static_cast<short>(std::max(set.columns * set.size, 176));
    grid.controls.push_back({.field = Field::Text,
                             .id = GRID_FILTER,
                             .x = 44,
                             .y = height,
                             .width = static_cast<short>(room - 44),
                             .typed = filterTyped});
    for (int number = 1; number <= set.count; ++number) {
        const std::size_t index = static_cast<std::size_t>(number) - 1;
        const int column = (number - 1) % set.columns, row = (number - 1) / set.columns;
        grid.controls.push_back({.field = Field::Picture,
                                 .id = idOf(number),
                                 .text = grid.names[index].c_str(),
                                 .x = static_cast<short>(column * set.size),
                                 .y = static_cast<short>(height - (row + 1) * set.size),
                                 .width = set.size,
                                 .height = set.size,
                                 .changed = pictureChosen,
                                 .help = grid.labels[index].c_str()});
    }
    grid.dialogue = {.title = set.title,
                     .icon = "Icopick",
                     .help = "Change Icon Dialogue Box",
                     .width = room,
                     .height = static_cast<short>(height + 22),
                     .windowEvent = set.windowEvent,
                     .controls = grid.controls,
                     .first = grid.present ? idOf(grid.present) : idOf(1),
                     .fill = fill,
                     .keys = KEYS};
}

} // namespace

std::string iconName(IconSets set, int number) {
    const StockSet& row = rowOf(set);
    if (number < 1 || number > row.count) return {};
    return row.prefix ? row.prefix + std::to_string(row.first + number - 1)
                      : VISTA_NAMES[static_cast<std::size_t>(number) - 1];
}

void openIconGrid(IconSets set, const std::string& present, void (*deliver)(const IconChoice&)) {
    if (isOpen(grid.dialogue)) return;
    grid = {};
    grid.set = &rowOf(set);
    grid.deliver = deliver;
    for (int number = 1; number <= grid.set->count; ++number) {
        grid.names.push_back(iconName(set, number));
        grid.labels.push_back(labelOf(grid.names.back()));
        if (lowered(grid.names.back()) == lowered(present)) grid.present = number;
    }
    makeControls();
    openDialogue(grid.dialogue);
}
