#include "dialogues/controls.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int CELL = 22;     // height of a line in the tables
constexpr int GAP = 4;       // pixels between controls
constexpr double WIDEST = 4; // a larger factor would leave the screen
constexpr int LIST_HEIGHT = 300;
constexpr int LONG_TEXT = 32767;
constexpr int NATIVE_BORDER = 0; // the desktop's own, as the other fields have it

// Pixels that a control needs beside its text.
int frameOf(Field field) {
    switch (field) {
    case Field::Label: return 4;
    case Field::Toggle:
    case Field::Radio: return 28;
    case Field::Button:
    case Field::Default: return 22;
    default: return -1;
    }
}

// A label as the toolkit is to show it.
int labelWidth(const Control& control) { return owEnqTextLength(control.text) + frameOf(control.field) + GAP; }

struct Frame {
    int x, y, width, height;
};

Frame frameOf(const Control& control, bool outermost, Scale scale) {
    const int margin = outermost ? DIALOGUE_MARGIN : 0;
    const auto pixels = [](double units, double factor) { return static_cast<int>(std::lround(units * factor)); };
    Frame frame{};
    frame.x = pixels(control.x, scale.across) + margin + GAP / 2;
    frame.y = pixels(control.y, scale.down) + margin + GAP / 2;
    frame.width = control.width ? pixels(control.width, scale.across) - GAP : 0;
    frame.height = control.height ? pixels(control.height, scale.down) - GAP : 0;
    return frame;
}

int createText(const Control& control, int parent, const Frame& at, int length, int display, int border) {
    return owCreateTextEntry(parent, at.x, at.y, at.width, at.height, control.text, length, display, owHpos,
                             control.hpos, owVpos, control.vpos, owExpand, control.expand, owBorderType, border,
                             owCallback, control.id, owChangeCallback, control.typed ? FRAME_TYPED : 0, owHelp,
                             control.help ? control.help : "", 0);
}

int createRichText(const Control& control, int parent, const Frame& at) {
    return owCreateTextEntry(parent, at.x, at.y, at.width, at.height, "", -control.length, OEDIT, owHpos, control.hpos,
                             owVpos, control.vpos, owExpand, control.expand, owEntryType, ORICHEDIT, owOLEInserts, 0,
                             owCallback, control.id, owChangeCallback, control.typed ? FRAME_TYPED : 0, 0);
}

int createNumber(const Control& control, int parent, const Frame& at) {
    const bool limited = control.maximum > control.minimum;
    const double least = limited ? control.minimum : -1e9, most = limited ? control.maximum : 1e9;
    return owCreateValueEntry(parent, at.x, at.y, at.width, at.height, std::max(least, 0.0), control.length,
                              control.decimals, OEDIT, owVmin, least, owVmax, most, owHpos, control.hpos, owVpos,
                              control.vpos, owHelp, control.help ? control.help : "", owCallback, control.id, 0);
}

int createCombo(const Control& control, int parent, const Frame& at) {
    const int contents = control.field == Field::Fonts ? OFONTS : ONONE;
    const int access = control.field == Field::Combo ? OEDIT : ODISPLAY;
    return owCreateComboBox(parent, at.x, at.y, at.width, LIST_HEIGHT, contents, access, owHpos, control.hpos, owVpos,
                            control.vpos, owHelp, control.help ? control.help : "", owCallback, control.id, 0);
}

int createButton(const Control& control, int parent, const Frame& at) {
    return owCreatePushButton(parent, at.x, at.y, at.width, at.height, control.text, owType,
                              control.field == Field::Default ? ODEFAULTBUTTON : ODEFAULT, owAccel, control.mnemonic,
                              owHpos, control.hpos, owVpos, control.vpos, owHelp, control.help ? control.help : "",
                              owCallback, control.id, 0);
}

int createToggle(const Control& control, int parent, const Frame& at) {
    return owCreateToggleButton(parent, at.x, at.y, at.width, at.height, control.text, 0, owType,
                                control.field == Field::Radio ? O3DRADIO : O3DCHECKBOX, owAccel, control.mnemonic,
                                owHpos, control.hpos, owVpos, control.vpos, owHelp, control.help ? control.help : "",
                                owCallback, control.id, 0);
}

int createPicture(const Control& control, int parent, const Frame& at) {
    return owCreateIcon(parent, at.x, at.y, at.width, at.height, control.text, ODLLICON, 0, owType, OMOUSESENSITIVE,
                        owHpos, control.hpos, owVpos, control.vpos, owHelp, control.help ? control.help : "",
                        owCallback, control.id, 0);
}

int createList(const Control& control, int parent, const Frame& at) {
    return owCreateListBox(parent, at.x, at.y, at.width, at.height, ONONE, owListType,
                           control.field == Field::MultiList ? OMULTIPLECHOICE2 : OSINGLECHOICE, owHpos, control.hpos,
                           owVpos, control.vpos, owExpand, control.expand, owHelp, control.help ? control.help : "",
                           owDoubleClickCallback, FRAME_DOUBLE_CLICK, owCallback, control.id, 0);
}

int createTree(const Control& control, int parent, const Frame& at) {
    return owCreateTreeViewBox(parent, at.x, at.y, at.width, at.height, owIconSet, ORESOURCEICONS, owHpos, control.hpos,
                               owVpos, control.vpos, owExpand, control.expand, 0);
}

int createProperties(const Control& control, int parent, const Frame& at) {
    return owCreatePropertyList(parent, at.x, at.y, at.width, at.height, owColumnWidth, at.width / 3, owHpos,
                                control.hpos, owVpos, control.vpos, owExpand, control.expand, owCallback, FRAME_TYPED,
                                owChangeCallback, control.id, 0);
}

int createSlider(const Control& control, int parent, const Frame& at) {
    return owCreateSlider(parent, at.x, at.y, at.width, at.height, control.minimum, control.maximum, 1.0,
                          control.minimum, owType, OHORIZONTAL, owHpos, control.hpos, owVpos, control.vpos, owHelp,
                          control.help ? control.help : "", owCallback, control.id, 0);
}

int createPanel(const Control& control, int parent, const Frame& at) {
    const bool titled = *control.text != 0;
    return owCreatePanel(parent, at.x, at.y, at.width, at.height, owTitle, control.text, owBorderType,
                         titled ? OCHISEL : ONOBOUNDARY, owHpos, control.hpos, owVpos, control.vpos, owExpand,
                         control.expand, 0);
}

} // namespace

bool isButton(Field field) { return field == Field::Button || field == Field::Default || field == Field::Picture; }

bool isContainer(Field field) { return field == Field::Panel || field == Field::Tabs || field == Field::Page; }

Scale scaleOf(const Dialogue& dialogue, int window) {
    int height = 0;
    const int probe = owCreateTextEntry(window, 0, 0, 0, 0, "", 1, OEDIT, owWidgetStatus, OHIDDEN, 0);
    owEnqWidgetProp(probe, owHeight, &height, 0);
    owEraseWidget(probe);
    Scale scale;
    scale.down = std::max(1.0, static_cast<double>(height + GAP) / CELL);
    for (const Control& control : dialogue.controls)
        if (control.width > 0 && frameOf(control.field) >= 0)
            scale.across = std::max(scale.across, static_cast<double>(labelWidth(control)) / control.width);
    scale.across = std::min(scale.across, WIDEST);
    return scale;
}

int createControl(const Control& control, int parent, bool outermost, Scale scale) {
    const Frame at = frameOf(control, outermost, scale);
    switch (control.field) {
    case Field::Label: return createText(control, parent, at, LONG_TEXT, ODISPLAY, ONOBORDER);
    case Field::Note: return createText(control, parent, at, LONG_TEXT, ODISPLAY, NATIVE_BORDER);
    case Field::Text: return createText(control, parent, at, -control.length, OEDIT, NATIVE_BORDER);
    case Field::Area: return createText(control, parent, at, control.length, OEDIT, NATIVE_BORDER);
    case Field::RichArea: return createRichText(control, parent, at);
    case Field::Number: return createNumber(control, parent, at);
    case Field::Combo:
    case Field::Choice:
    case Field::Fonts: return createCombo(control, parent, at);
    case Field::Toggle:
    case Field::Radio: return createToggle(control, parent, at);
    case Field::Button:
    case Field::Default: return createButton(control, parent, at);
    case Field::Picture: return createPicture(control, parent, at);
    case Field::List:
    case Field::MultiList: return createList(control, parent, at);
    case Field::Tree: return createTree(control, parent, at);
    case Field::Properties: return createProperties(control, parent, at);
    case Field::Slider: return createSlider(control, parent, at);
    case Field::Panel: return createPanel(control, parent, at);
    case Field::Tabs:
        return owCreateTabDialogueBox(parent, at.x, at.y, at.width, at.height, owHpos, control.hpos, owVpos,
                                      control.vpos, owExpand, control.expand, owCallback, control.id, 0);
    case Field::Page: return owCreatePanel(parent, 0, 0, 0, 0, owTitle, control.text, owBorderType, ONOBOUNDARY, 0);
    }
    return 0;
}
