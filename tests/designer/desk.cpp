#include "desk.h"

#include "properties/sheet.h"

#include <QPoint>

#include <cstdlib>

namespace robot = orba::testing;

namespace {

constexpr int TEXT_BYTES = 256;

int rowOf(const char* label) { return owPropertyItemNumber(propertyList(), label); }

} // namespace

Desk::Desk() {
    session.start();
    form = project.forms;
    panel = form->child;
}

void Desk::run() { DesignerSession::pump(); }

WidgetNode* Desk::place(int tool, WidgetNode* parent, int x, int y) {
    const WidgetNode* before = project.currentWidget;
    selectTool(tool);
    owAdoptChild(0, 0, 0);
    robot::click(parent->handle, {x, y});
    run();
    return project.currentWidget != before ? project.currentWidget : nullptr;
}

void Desk::click(WidgetNode* widget) {
    robot::click(widget->handle);
    run();
}

void Desk::click(WidgetNode* onPanel, int x, int y) {
    robot::click(onPanel->handle, {x, y});
    run();
}

void Desk::setProperty(const char* label, const std::string& text) {
    const int list = propertyList(), row = rowOf(label);
    ASSERT_GT(row, 0) << label;
    int kind = 0;
    owEnqPropertySetting(list, row, owPropertyKind, &kind, 0);
    if (kind == OPROPVALUE)
        owSetPropertySetting(list, row, owPropertyValue, std::atof(text.c_str()), 0);
    else
        owSetPropertySetting(list, row, owString, text.c_str(), 0);
    owPostCallback(CMD_PROPERTY_CHANGED, list);
    run();
}

std::string Desk::property(const char* label) {
    char text[TEXT_BYTES] = "";
    const int row = rowOf(label);
    if (row == 0) return "(none)";
    owEnqPropertySetting(propertyList(), row, owLength, TEXT_BYTES, owString, text, 0);
    return text;
}

bool Desk::propertyEnabled(const char* label) {
    int status = -1;
    owEnqPropertySetting(propertyList(), rowOf(label), owPropertyStatus, &status, 0);
    return status == 1;
}

void Desk::command(int identifier) {
    owPostCallback(identifier, 0);
    run();
}
