// What is typed onto a form and not left yet is in the project whatever its user does next.
#include "desk.h"

#include "project/files.h"
#include "surface/hierarchy.h"
#include "surface/live.h"

#include <QPoint>

namespace robot = orba::testing;

namespace {

struct Form {
    Desk desk;
    WidgetNode* other = desk.place(PLACE_BUTTON, desk.panel, 20, 300);
    WidgetNode* text = desk.place(PLACE_TEXT_ENTRY, desk.panel, 20, 20);
    WidgetNode* value = desk.place(PLACE_VALUE_ENTRY, desk.panel, 20, 80);
};

struct NextAction {
    const char* what;
    void (*act)(Form& form);
};
const NextAction actions[] = {
    {"a click on the form", [](Form& form) { form.desk.click(form.desk.panel, 350, 450); }},
    {"a click on a button", [](Form& form) { form.desk.click(form.other); }},
    {"a rubber band",
     [](Form& form) {
         robot::drag(form.desk.panel->handle, {10, 280}, {200, 400});
     }},
    {"a tool", [](Form& form) { form.desk.place(PLACE_BUTTON, form.desk.panel, 200, 300); }},
    {"a copy", [](Form& form) { form.desk.command(CMD_COPY); }},
    {"a duplicate", [](Form& form) { form.desk.command(CMD_DUPLICATE); }},
    {"a new form", [](Form& form) { form.desk.command(CMD_NEW_FORM); }},
    {"a row of the hierarchy", [](Form& form) { owPostCallback(CMD_HIERARCHY_ROW, form.other->hierarchyItem); }},
    {"a move",
     [](Form& form) {
         robot::drag(project.currentWidget->handle, {10, 10}, {60, 10});
         form.desk.run();
     }},
};

TEST(Typed, TextIsTakenByWhateverComesNext) {
    for (const NextAction& row : actions) {
        SCOPED_TRACE(row.what);
        Form form;
        selectWidget(form.text);
        robot::type(form.text->handle, "hello");
        row.act(form);
        form.desk.run();
        EXPECT_EQ(form.text->text, "hello");
        EXPECT_EQ(robot::shownText(form.text->handle).toStdString(), groupStands() ? "" : "hello");
    }
}

TEST(Typed, AValueIsTakenByWhateverComesNext) {
    for (const NextAction& row : actions) {
        SCOPED_TRACE(row.what);
        Form form;
        selectWidget(form.value);
        robot::key(form.value->handle, Qt::Key_A, Qt::ControlModifier);
        robot::type(form.value->handle, "12.5");
        row.act(form);
        form.desk.run();
        EXPECT_FLOAT_EQ(form.value->value, 12.5F);
    }
}

} // namespace
