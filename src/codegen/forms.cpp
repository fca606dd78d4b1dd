// The walk that every language's source follows: identifiers, form routines with their widgets, user colours.

#include "codegen/fortran90.h"
#include "codegen/generation.h"
#include "codegen/markers.h"

#include "project/colours.h"
#include "project/host.h"
#include "project/preferences.h"
#include "project/tree.h"

#include <algorithm>

namespace {

void applySizing(Placed& widget) {
    const WidgetNode& node = widget.node;
    const SizingRule rule = cardOf(node).sizing;
    if (node.expand == 0 || rule == AS_IT_IS) return;
    if (rule == WIDTH_GIVES_WAY) {
        widget.width = 0;
        return;
    }
    if (node.hpos == 0) widget.width = rule == LIST_BY_ORIGIN ? 1 : 0;
    if (node.vpos == 0) widget.height = 0;
}

void writeComment(Generation& g, const Placed& widget) {
    const TypeCard& card = cardOf(widget.node);
    const std::string_view noun = card.nounFixed && !g.language.commentsLikeFree ? card.nounFixed : card.noun;
    if (noun.empty()) return;
    if (g.language.commentsLikeFree) {
        write(g, "\n%s Create %s %s child of %s\n", g.facts.comment, noun, widget.node.name, widget.parent);
    } else if (widget.node.type == TYPE_BUTTON && widget.node.onToolbar == 1) {
        write(g, "C create ToolBar Button %s child of %s\n", widget.node.name, widget.parent);
    } else {
        write(g, "C create %s %s child of %s\n", noun, widget.node.name, widget.parent);
    }
}

void writeDefineCalls(Generation& g, const WidgetNode& node) {
    for (std::size_t i = 0; i < DEFINE_ORDER.size(); ++i) {
        const WidgetSlot slot = DEFINE_ORDER[i];
        const bool defined = slot == SLOT_GENERAL ? needsGeneralCallback(node) : !node.slots[slot].empty();
        if (defined) write(g, g.language.defineCalls[i], node.name, node.name);
    }
    for (const MenuEntryRec& entry : node.entries) {
        for (std::size_t slot = 0; slot < ENTRY_SLOTS; ++slot) {
            if (!entry.slots[slot].empty()) write(g, g.language.defineEntryCalls[slot], entry.name, entry.name);
        }
    }
}

void writeStatus(Generation& g, const WidgetNode& node) {
    if (node.type == TYPE_FORM || node.type == TYPE_MAIN_PANEL) return;
    const std::string_view status = nameOf(g.language.statusNames, node.initialState);
    if (!status.empty()) write(g, g.language.setStatus, node.name, status);
}

// A widget's own text; what hangs below it follows by the walk.
void writeWidget(Generation& g, const Placed& widget) {
    writeComment(g, widget);
    const CreationRow* creation = rowOf(g.language.creation, widget.node.type);
    if (creation && creation->write) {
        creation->write(g, widget);
        if (g.language.furtherProperties) g.language.furtherProperties(g, widget);
    }
    writeDefineCalls(g, widget.node);
    writeStatus(g, widget.node);
}

} // namespace

void writeFormRoutine(Generation& g, const WidgetNode& form) {
    for (const WidgetNode* node = &form; node; node = walkBelow(node, &form)) {
        // Tool bars and panes live on the window itself, not on its main panel.
        const bool onWindow = isBarOrPane(*node) || !node->parent;
        Placed widget{*node, form, onWindow ? form.name : node->parent->name, node->width, node->height};
        applySizing(widget);
        writeWidget(g, widget);
        passOn(g);
    }
}

void writeIdentifiers(Generation& g, const WidgetNode& form) {
    for (const WidgetNode* node = &form; node; node = walkBelow(node, &form)) {
        write(g, g.language.declareWidget, node->name);
        if (node->type == TYPE_FORM && node->statusBar) {
            write(g, g.language.declareWidget, node->statusBar->name);
        }
        for (const MenuEntryRec& entry : node->entries) {
            const bool structure = entry.kind == MENU_BAR || entry.kind == MENU_PULL_DOWN;
            if (node->type != TYPE_TREE_VIEW || !structure) write(g, g.language.declareEntry, entry.name);
        }
        passOn(g);
    }
}

namespace {

constexpr int COLOUR_SCALE = 255;

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;
    bool operator==(const Colour&) const = default;
};
std::array<Colour, COLOURS> startColours;

Colour scaled(float red, float green, float blue) {
    return {wholeNumber(red * COLOUR_SCALE), wholeNumber(green * COLOUR_SCALE), wholeNumber(blue * COLOUR_SCALE)};
}

} // namespace

void noteStartColours() {
    for (int index = 0; index < COLOURS; ++index) {
        float red = 0;
        float green = 0;
        float blue = 0;
        host.enquireColour(index, red, green, blue);
        startColours[static_cast<std::size_t>(index)] = scaled(red, green, blue);
    }
}

void writeUserColours(Generation& g) {
    bool commented = false;
    for (int index = FIXED_COLOURS; index < COLOURS; ++index) {
        float red = 0;
        float green = 0;
        float blue = 0;
        host.enquireColour(index, red, green, blue);
        const Colour start = g.language.startsFromBlack ? Colour() : startColours[static_cast<std::size_t>(index)];
        if (scaled(red, green, blue) == start) continue;
        if (!commented) g.out += g.language.colourComment;
        commented = true;
        write(g, g.language.defineColour, index, red, green, blue);
    }
}

void writeGenerateCalls(Generation& g) {
    for (const WidgetNode* form : g.forms) {
        if (!isDynamic(*form)) write(g, g.language.generateForm, form->name);
    }
}

void rememberMaster(Generation& g, const WidgetNode& form) {
    g.masterX = form.xpos;
    g.masterY = form.ypos;
    g.masterName = form.name;
}

std::string_view parentName(const Generation& g, const WidgetNode& form) {
    if (g.language.parentConstants && isDynamic(form)) return parentConstant(form);
    return form.parentName == "NONE" ? g.masterName : std::string_view(form.parentName);
}

const WidgetNode* activeOnInit(const Generation& g) {
    for (const WidgetNode* form : g.forms) {
        for (const WidgetNode* node = form; node; node = walkBelow(node, form)) {
            if (node->activeOnInit == 1) return node;
        }
    }
    return nullptr;
}

void writeStatementSplit(Generation& g) {
    appendSplit(g.out, g.statement, g.language.split);
    g.statement.clear();
}

namespace {

constexpr std::size_t PIECE = 1 << 18; // bytes that are passed on at once

void countLines(Generation& g) {
    g.linesCounted +=
        static_cast<int>(std::count(g.out.begin() + static_cast<std::ptrdiff_t>(g.linesCountedTo), g.out.end(), '\n'));
    g.linesCountedTo = g.out.size();
}

} // namespace

void passOn(Generation& g) {
    if (!g.sink || g.out.size() < PIECE) return;
    countLines(g);
    g.sink(g.out);
    g.out.clear();
    g.linesCountedTo = 0;
}

void pasteCode(Generation& g, PastedCode place, std::string_view code, bool indented) {
    countLines(g);
    place.firstLine = g.linesCounted + 1;
    place.lines = 1;
    place.indent = indented ? std::max(preferences.globalIndent, 0) : 0;

    const std::string indent(static_cast<std::size_t>(place.indent), ' ');
    g.out += indent;
    for (const char c : code) {
        if (c == '\r') continue;
        g.out += c;
        if (c != '\n') continue;
        g.out += indent;
        ++place.lines;
    }
    g.out += '\n';
    g.map.push_back(std::move(place));
}

void writeBlock(Generation& g, CodeBlockIndex block) {
    const CodeBlock& code = project.codeBlocks[block];
    if (code.empty()) return;
    g.out += g.language.blockComments[block];
    pasteCode(g, {.kind = PastedCode::PROJECT_BLOCK, .index = block, .widget = {}, .entry = {}}, code, false);
}
