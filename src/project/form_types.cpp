// Masters and children: what a choice of form type asks, and what it changes on other forms.
#include "project/host.h"
#include "project/placement.h"
#include "project/tree.h"
#include "project/widget_types.h"

namespace {

bool refuse(const char* title, const char* text) {
    host.errorBox(title, text);
    return false;
}

bool agreed(const char* title, const char* text) {
    return host.messageBox(title, text, BOX_QUESTION, BOX_YES_NO) == ANSWER_YES;
}

WidgetNode* formOfType(int formType) {
    for (WidgetNode* form = project.forms; form; form = form->next)
        if (form->formType == formType) return form;
    return nullptr;
}

bool toChildSdi() {
    return (project.forms && project.forms->next) ||
           refuse("Form Type Change", "Cannot change only form to be Child SDI");
}

bool toChildMdi() {
    return formOfType(FORM_MASTER_MDI) || refuse("No Master MDI form found", "Cannot set a form to be child MDI");
}

WidgetNode* otherMaster(const WidgetNode& form) {
    for (WidgetNode* other = project.forms; other; other = other->next)
        if (other != &form && isMaster(*other)) return other;
    return nullptr;
}

bool mayTakeOver(const WidgetNode& form) {
    return !otherMaster(form) ||
           agreed("Master already set",
                  "A form has already been set as the master.|If you set this form as the master, the current master "
                  "will become a child SDI window form.|Do you wish to continue?");
}

bool childrenMayChange() {
    return (!formOfType(FORM_STATIC_MDI) && !formOfType(FORM_DYNAMIC_MDI)) ||
           agreed("Master SDI Requested",
                  "All child MDI forms will be reset to child SDI forms|Do you wish to continue?");
}

// What a new master does to the other forms; only once nothing can be refused any more.
void takeOver(const WidgetNode& form) {
    if (WidgetNode* other = otherMaster(form)) {
        other->formType = FORM_STATIC_SDI;
        other->parentName = "NONE";
    }
    if (form.formType != FORM_MASTER_SDI) return;
    for (WidgetNode* child = project.forms; child; child = child->next) {
        if (child->formType == FORM_STATIC_MDI) child->formType = FORM_STATIC_SDI;
        if (child->formType == FORM_DYNAMIC_MDI) child->formType = FORM_DYNAMIC_SDI;
    }
}

bool fitForMasterMdi(const WidgetNode& form) {
    const WidgetNode* first = form.child ? form.child->child : nullptr;
    return !first || isBarOrPane(*first) ||
           refuse("Change to Master MDI",
                  "Form cannot contain any children for it to be master MDI|Remove child widgets before changing");
}

} // namespace

bool quitModeEnabled(const WidgetNode& form) { return !isMaster(form); }

bool changeFormType(WidgetNode& form, int formType) {
    if (formType == form.formType) return true;
    bool accepted = false;
    switch (formType) {
    case FORM_STATIC_SDI:
    case FORM_DYNAMIC_SDI: accepted = toChildSdi(); break;
    case FORM_STATIC_MDI:
    case FORM_DYNAMIC_MDI: accepted = toChildMdi(); break;
    case FORM_MASTER_SDI: accepted = mayTakeOver(form) && childrenMayChange(); break;
    case FORM_MASTER_MDI: accepted = mayTakeOver(form) && fitForMasterMdi(form); break;
    default: break;
    }
    if (!accepted) return false;
    form.formType = formType;
    if (isMaster(form)) {
        form.parentName = "NONE";
        takeOver(form);
    }
    markProjectChanged();
    return true;
}
