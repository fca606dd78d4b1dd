// What happens to the form windows, and the events that no widget took.
#include "surface/selection.h"

#include "menu-c.h"
#include "project/host.h"
#include "project/tree.h"
#include "project/widget_types.h"
#include "surface/commands.h"
#include "surface/event.h"
#include "surface/hooks.h"
#include "surface/live.h"
#include "surface/pointer.h"
#include "surface/state.h"

namespace {

// What the project's unit makes of a form's window, read as a whole.
OWIDGET windowInfo(const WidgetNode& form) {
    OWIDGET info = {};
    setGridMode(project.gridMode);
    owEnqWidgetInfo(form.handle, &info);
    setGridMode(0);
    return info;
}

void writeBack(const WidgetNode& form, const OWIDGET& info) {
    if (project.gridMode != 1) return; // a pixel project has what the window has
    setGridMode(project.gridMode);
    owSetWidgetInfo(form.handle, &info);
    setGridMode(0);
}

void formMoved(WidgetNode& form) {
    constexpr int NORMAL = 1;
    const OWIDGET info = windowInfo(form);
    const bool same = info.xpos == form.xpos && info.ypos == form.ypos;
    if (!same && info.state == NORMAL) {
        form.xpos = info.xpos;
        form.ypos = info.ypos;
        design.movedForms.insert(form.id);
        writeBack(form, info);
        if (form.selected) hooks.refreshProperties();
        markChanged();
    }
    hooks.leaveTextMode();
}

void formResized(WidgetNode& form) {
    const OWIDGET info = windowInfo(form);
    if (info.width == form.width && info.height == form.height) return;
    if (!form.selected) selectWidget(&form);
    form.width = info.width;
    form.height = info.height;
    if (form.child) {
        form.child->width = info.width;
        form.child->height = info.height;
    }
    writeBack(form, info);
    hooks.refreshProperties();
    markChanged();
}

WidgetNode* formBefore(const WidgetNode& form) {
    WidgetNode* before = nullptr;
    for (WidgetNode* one = project.forms; one && one != &form; one = one->next) before = one;
    return before ? before : form.next;
}

void formClosed(WidgetNode& form) {
    if (!form.selected) selectWidget(&form);
    if (isMaster(form)) {
        host.infoBox("Cannot hide master form", form.name + " is the master form in the project and cannot be hidden");
        return selectWidget(&form);
    }
    const int answer = host.messageBox("Confirm Widget Hide",
                                       "This will hide the Form|It can be redisplayed by clicking on the Form name or "
                                       "one of its children in the Object Hierarchy or Property Combo.|Do you want to "
                                       "continue?",
                                       BOX_QUESTION, BOX_YES_NO);
    if (answer != ANSWER_YES) return selectWidget(&form);
    owRemoveWindow(form.handle);
    form.formHidden = 1;
    project.projectModified = 1;
    selectWidget(formBefore(form));
}

void windowEvent(WidgetNode& form, int status) {
    switch (status) {
    case OMOVED: return formMoved(form);
    case ORESIZED: return formResized(form);
    case OCLOSED: return formClosed(form);
    default: return;
    }
}

// A window that comes to the front keeps the widgets that are selected in it: the same click may begin a drag of one.
bool holdsSelection(const WidgetNode& node) {
    if (node.selected || activeForm(project.forms) == &node) return true;
    return !design.selection.empty() && formOf(design.selection.front(), project.forms) == &node;
}

bool holdsInput(const WidgetNode& form) {
    const int active = owEnqActiveWidget();
    if (active == 0) return true;
    const WidgetNode* holder = findHandle(active);
    return holder && formOf(holder, project.forms) == &form;
}

} // namespace

void formEvent(int id) {
    if (id <= 0 || isCommand(id)) return;
    WidgetNode* node = findHandle(id - OBJECT_SELECT_OFFSET);
    const bool selectEvent = node && node->designSelectId == id;
    if (!selectEvent) node = findHandle(id);
    if (!node) return;
    if (selectEvent) {
        if (holdsBand(*node)) return pressOn(*node);
        if (action.status == 1 && !holdsSelection(*node)) selectWidget(node);
        if (!holdsInput(*node)) return; // late news: the input has moved on since
        design.helpContext = "Form";
        hooks.leaveTextMode();
    } else if (node->type == TYPE_FORM && node->formCallbackId == id) {
        windowEvent(*node, action.status);
    } else if (node->designCallbackId == id && node->type == TYPE_MAIN_PANEL) {
        releaseOn(*node);
    }
}
