#include "mind.h"

#include "targets.h"

#include "shell/command_table.h"
#include "toolkit/frame/core.h"
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QComboBox>

#include <array>
#include <iterator>

namespace robot = orba::testing;

namespace {

// One act's dice.
class Dice {
public:
    Dice(std::uint64_t seed, int index)
        : state(seed * 0x9E3779B97F4A7C15U + static_cast<std::uint64_t>(index) * 0xD1B54A32D192ED03U + 1) {}
    int below(int limit) {
        state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = (state ^ (state >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return limit > 0 ? static_cast<int>((mixed ^ (mixed >> 31)) % static_cast<unsigned>(limit)) : 0;
    }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename List> auto& of(List& list) { return list[static_cast<std::size_t>(below(std::size(list)))]; }

private:
    std::uint64_t state;
};

// ---- What it knows of keys and texts.

struct Stroke {
    int key;
    int modifiers;
};

constexpr int CTRL = static_cast<int>(Qt::ControlModifier), SHIFT = static_cast<int>(Qt::ShiftModifier),
              ALT = static_cast<int>(Qt::AltModifier);

constexpr Stroke STROKES[] = {
    {Qt::Key_Delete, 0},  {Qt::Key_Delete, 0},   {Qt::Key_Return, 0},      {Qt::Key_Return, 0},    {Qt::Key_Escape, 0},
    {Qt::Key_Escape, 0},  {Qt::Key_Tab, 0},      {Qt::Key_Backtab, SHIFT}, {Qt::Key_Up, 0},        {Qt::Key_Down, 0},
    {Qt::Key_Left, 0},    {Qt::Key_Right, 0},    {Qt::Key_Up, SHIFT},      {Qt::Key_Down, CTRL},   {Qt::Key_Home, 0},
    {Qt::Key_End, SHIFT}, {Qt::Key_PageDown, 0}, {Qt::Key_PageUp, 0},      {Qt::Key_Backspace, 0}, {Qt::Key_Space, 0},
    {Qt::Key_C, CTRL},    {Qt::Key_V, CTRL},     {Qt::Key_X, CTRL},        {Qt::Key_D, CTRL},      {Qt::Key_Z, CTRL},
    {Qt::Key_Y, CTRL},    {Qt::Key_A, CTRL},     {Qt::Key_F, CTRL},        {Qt::Key_S, CTRL},      {Qt::Key_W, CTRL},
    {Qt::Key_U, CTRL},    {Qt::Key_N, CTRL},     {Qt::Key_F1, 0},          {Qt::Key_F2, 0},        {Qt::Key_F2, 0},
    {Qt::Key_F3, 0},      {Qt::Key_F4, 0},       {Qt::Key_F4, SHIFT},      {Qt::Key_F5, 0},        {Qt::Key_F6, 0},
    {Qt::Key_F10, 0},     {Qt::Key_F11, 0},      {Qt::Key_F12, 0},         {Qt::Key_F, ALT},       {Qt::Key_Menu, 0},
    {Qt::Key_Insert, 0},  {Qt::Key_Down, ALT},   {Qt::Key_F4, 0},
};

// What people do again and again.
constexpr Stroke EDITS[] = {{Qt::Key_C, CTRL}, {Qt::Key_V, CTRL}, {Qt::Key_V, CTRL}, {Qt::Key_X, CTRL},
                            {Qt::Key_D, CTRL}, {Qt::Key_Z, CTRL}, {Qt::Key_Y, CTRL}, {Qt::Key_Delete, 0}};

constexpr const char* TEXTS[] = {
    "a",
    "Name",
    "x1",
    "Form1_Button1",
    "form1_button1",
    "",
    "0",
    "1",
    "7",
    "12",
    "-5",
    "3.75",
    "100",
    "250",
    "9999",
    "1e9",
    "-2e-3",
    "0.1234567",
    "It's",
    "\"q\"",
    "back\\n\\",
    "one|two",
    "50 %d %s",
    "&File",
    "@",
    "end",
    "Gr\xc3\xb6\xc3\x9f"
    "e",
    "a b",
    "integer",
    "real x",
    "call sub(1, 'x')",
    "!note",
    "/* c",
    "\\",
    "x\ty",
    "\xe2\x82\xac",
    "99999999999999999999",
};

std::string longText(Dice& dice) { return std::string(static_cast<std::size_t>(dice.between(60, 300)), 'w'); }

std::string someText(Dice& dice) { return dice.chance(2) ? longText(dice) : std::string(dice.of(TEXTS)); }

// ---- Aims.

void aimInside(Dice& dice, Event& event, const QWidget& part) {
    event.x = dice.below(part.width());
    event.y = dice.below(part.height());
}

Event mouse(Dice& dice, Verb verb, QWidget* part) {
    Event event;
    event.verb = verb;
    event.target = nameOfPart(part);
    aimInside(dice, event, *part);
    event.button = dice.chance(6) ? Qt::RightButton : Qt::LeftButton;
    event.count = dice.chance(8) ? 2 : 1;
    if (dice.chance(8)) event.modifiers = static_cast<unsigned>(dice.chance(70) ? SHIFT : CTRL);
    if (verb == Verb::Drag) {
        event.button = Qt::LeftButton;
        event.dx = dice.between(-150, 150);
        event.dy = dice.between(-150, 150);
    }
    return event;
}

QWidget* somePart(Dice& dice, QWidget* window) {
    if (dice.chance(50)) {
        QWidget* part = window->childAt(dice.below(window->width()), dice.below(window->height()));
        return part ? part : window;
    }
    std::vector<QWidget*> parts = partsShown(window);
    return dice.of(parts);
}

bool isForm(const QWidget* window) {
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (robot::frameOf(form->handle) == window) return true;
    return false;
}

// A popup, else a window that is neither the main one nor a form, else the main one; null for a form.
QWidget* someWindow(Dice& dice) {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    std::vector<QWidget*> others;
    for (QWidget* window : windowsShown())
        if (!isForm(window) && window != robot::frameOf(1)) others.push_back(window);
    if (!others.empty() && dice.chance(50)) return dice.of(others);
    return robot::frameOf(1);
}

WidgetNode* someRecord(Dice& dice) {
    std::vector<WidgetNode*> records = liveRecords();
    return records.empty() ? nullptr : dice.of(records);
}

WidgetNode* someForm(Dice& dice) {
    std::vector<WidgetNode*> forms;
    for (WidgetNode* record : liveRecords())
        if (record->type == TYPE_FORM) forms.push_back(record);
    return forms.empty() ? nullptr : dice.of(forms);
}

// ---- Acts.

Event onRecord(Dice& dice, Verb verb) {
    const WidgetNode* record = someRecord(dice);
    QWidget* view = record ? robot::viewOf(record->handle) : nullptr;
    return view ? mouse(dice, verb, view) : Event{.verb = Verb::Key, .code = Qt::Key_F2};
}

Event placing(Dice& dice) {
    Event event = onRecord(dice, Verb::Place);
    if (event.verb != Verb::Place) return event;
    event.button = Qt::LeftButton;
    event.count = 1;
    event.modifiers = 0;
    event.code = 17001 + dice.below(27);
    return event;
}

Event onScreen(Dice& dice, Verb verb) {
    QWidget* window = someWindow(dice);
    return window ? mouse(dice, verb, somePart(dice, window)) : Event{.verb = Verb::Key, .code = Qt::Key_F11};
}

// A part of a class anywhere on the screen.
QWidget* partOfClass(Dice& dice, const char* name) {
    std::vector<QWidget*> parts;
    for (QWidget* window : windowsShown())
        for (QWidget* part : partsShown(window))
            if (part->inherits(name) && !isForm(window)) parts.push_back(part);
    return parts.empty() ? nullptr : dice.of(parts);
}

Event onClass(Dice& dice, const char* name) {
    QWidget* part = partOfClass(dice, name);
    if (!part) return onScreen(dice, Verb::Click);
    Event event = mouse(dice, Verb::Click, part);
    event.count = 1;
    return event;
}

Event typing(Dice& dice) { return {.verb = Verb::Type, .text = someText(dice)}; }

template <typename List> Event stroke(Dice& dice, const List& strokes) {
    const Stroke& one = dice.of(strokes);
    return {.verb = Verb::Key, .code = one.key, .modifiers = static_cast<unsigned>(one.modifiers)};
}

Event command(Dice& dice) {
    const auto table = commandTable();
    const Command& one = table[static_cast<std::size_t>(dice.below(static_cast<int>(table.size())))];
    return {.verb = Verb::Command, .code = one.id};
}

Event choosing(Dice& dice) {
    QWidget* combo = partOfClass(dice, "QComboBox");
    if (!combo) return onScreen(dice, Verb::Click);
    return {.verb = Verb::Choose, .target = nameOfPart(combo), .code = dice.below(40)};
}

Event grip(Dice& dice) {
    return {.verb = Verb::Grip, .dx = dice.between(-120, 120), .dy = dice.between(-120, 120), .code = dice.below(8)};
}

Event onForm(Dice& dice) {
    const WidgetNode* form = someForm(dice);
    if (!form) return {.verb = Verb::Key, .code = Qt::Key_F2};
    Event event{.verb = Verb::Move, .target = nameOfRecord(*form)};
    event.x = dice.between(-50, 700);
    event.y = dice.between(-50, 500);
    if (dice.chance(50)) return event;
    event.verb = dice.chance(30) ? Verb::Close : Verb::Resize;
    event.x = dice.between(20, 900);
    event.y = dice.between(20, 700);
    return event;
}

Event wheel(Dice& dice) {
    Event event = dice.chance(50) ? onScreen(dice, Verb::Wheel) : onRecord(dice, Verb::Wheel);
    event.dy = dice.chance(50) ? 120 : -120;
    return event;
}

struct Habit {
    int weight;
    Event (*act)(Dice& dice);
};

constexpr Habit HABITS[] = {
    {14, [](Dice& dice) { return onRecord(dice, Verb::Click); }},
    {9, placing},
    {8, [](Dice& dice) { return onRecord(dice, Verb::Drag); }},
    {3, grip},
    {10, [](Dice& dice) { return onScreen(dice, Verb::Click); }},
    {2, [](Dice& dice) { return onScreen(dice, Verb::Drag); }},
    {9, [](Dice& dice) { return onClass(dice, "orba::PropertyView"); }},
    {5, [](Dice& dice) { return onClass(dice, "QTreeWidget"); }},
    {3, [](Dice& dice) { return onClass(dice, "QTextEdit"); }},
    {3, [](Dice& dice) { return onClass(dice, "QAbstractButton"); }},
    {10, typing},
    {10, [](Dice& dice) { return stroke(dice, STROKES); }},
    {5, [](Dice& dice) { return stroke(dice, EDITS); }},
    {4, command},
    {4, choosing},
    {2, onForm},
    {1, wheel},
};

} // namespace

Event nextEvent(std::uint64_t seed, int index) {
    Dice dice(seed, index);
    int all = 0;
    for (const Habit& habit : HABITS) all += habit.weight;
    int left = dice.below(all);
    const Habit* habit = HABITS;
    while (left >= habit->weight) left -= habit++->weight;
    Event event = habit->act(dice);
    event.answer = static_cast<unsigned>(dice.below(1000));
    return event;
}
