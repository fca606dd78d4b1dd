// What new projects can begin with: a dialogue, a tool with menu, status bar and drawing, a calculator; each in
// Fortran 90 and in C.
#include "builder.h"
#include "examples.h"

#include "project/language.h"

namespace example {
namespace {

// The same thing in both languages.
std::string in(int language, const char* fortran, const char* c) { return code(language == LANGUAGE_C ? c : fortran); }

} // namespace

void makeDialogue(int language) {
    WidgetNode& form = begin(language, "Dialogue", "Dialogue", 320, 160);
    addLabel(form, "Name_Label", 20, 108, 60, "Name");
    add(form, TYPE_TEXT_ENTRY, "Name", 84, 108, 216, 24);
    WidgetNode& accept = add(form, TYPE_BUTTON, "Accept", 124, 20, 84, 28, "OK");
    accept.subType = 2; // Return presses it
    accept.slots[SLOT_GENERAL] = in(language, R"(
! What OK does goes here.
callid = -1
)",
                                    R"(
/* What OK does goes here. */
callid = -1;
)");
    add(form, TYPE_BUTTON, "Refuse", 216, 20, 84, 28, "Cancel").slots[SLOT_GENERAL] =
        in(language, "callid = -1", "callid = -1;");
}

void makeTool(int language) {
    WidgetNode& form = begin(language, "Tool", "Tool", 640, 480);
    addMenu(form,
            {{0, "File", "File"},
             {1, "Start_Again", "New", in(language, "call draw()", "draw();")},
             {1, "", ""},
             {1, "Leave", "Quit", in(language, "callid = -1", "callid = -1;")},
             {0, "Help", "Help"},
             {1, "About", "About",
              in(language, "call owDisplayInfoBox('About', 'A tool')", "owDisplayInfoBox(\"About\", \"A tool\");")}});
    WidgetNode& drawing = add(form, TYPE_GRAPHICS_FRAME, "Drawing", 8, 8, 624, 464);
    drawing.xMin = 0;
    drawing.xMax = 1000;
    drawing.yMin = 0;
    drawing.yMax = 750;
    drawing.slots[SLOT_EXPOSE] = in(language, "call draw()", "draw();");
    addStatusBar(form, "Messages", {200, -1}, {"Ready", ""});
    if (language == LANGUAGE_C) project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS] = code("void draw(void);");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = in(language, R"(
subroutine draw()
   call owActivateGraphicsFrame(Drawing)
   call owClearGraphicsFrame(Drawing)
   call oMoveTo2D(100.0, 100.0)
   call oDrawLineTo2D(900.0, 650.0)
   call oFlushGraphics()
   call owSetStatusBarText(Messages, 0, 'Drawn')
end subroutine
)",
                                                   R"(
void draw(void)
{
   owActivateGraphicsFrame(Drawing);
   owClearGraphicsFrame(Drawing);
   oMoveTo2D(100.0, 100.0);
   oDrawLineTo2D(900.0, 650.0);
   oFlushGraphics();
   owSetStatusBarText(Messages, 0, "Drawn");
}
)");
    project.codeBlocks[BLOCK_PRE_ACTION] = in(language, "   call draw()", "   draw();");
}

void makeCalculator(int language) {
    WidgetNode& form = begin(language, "Calculator", "Calculator", 300, 220);
    const auto addValue = [&](const char* name, int y, WidgetType type) {
        WidgetNode& value = add(form, type, name, 110, y, 170, 24);
        value.minValue = -1e30F;
        value.maxValue = 1e30F;
        value.fieldWidth = 16;
        value.format = 4;
    };
    addLabel(form, "First_Label", 20, 176, 86, "First");
    addValue("First", 176, TYPE_VALUE_ENTRY);
    addLabel(form, "Second_Label", 20, 144, 86, "Second");
    addValue("Second", 144, TYPE_VALUE_ENTRY);
    addLabel(form, "Result_Label", 20, 60, 86, "Result");
    addValue("Result", 60, TYPE_VALUE_LABEL);
    struct Operation {
        const char *name, *label, *fortran, *c;
    };
    int x = 20;
    for (const Operation& one : {Operation{"Add", "+", "call calculate(1)", "calculate('+');"},
                                 Operation{"Subtract", "-", "call calculate(2)", "calculate('-');"},
                                 Operation{"Multiply", "*", "call calculate(3)", "calculate('*');"},
                                 Operation{"Divide", "/", "call calculate(4)", "calculate('/');"}}) {
        add(form, TYPE_BUTTON, one.name, x, 102, 60, 28, one.label).slots[SLOT_GENERAL] =
            in(language, one.fortran, one.c);
        x += 66;
    }
    add(form, TYPE_BUTTON, "Leave", 200, 16, 80, 28, "Quit").slots[SLOT_GENERAL] =
        in(language, "callid = -1", "callid = -1;");
    if (language == LANGUAGE_C) project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS] = code("void calculate(char operation);");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = in(language, R"(
subroutine calculate(operation)
   integer, intent(in) :: operation
   real :: a, b, answer
   call owEnqValueSetting(First, a)
   call owEnqValueSetting(Second, b)
   answer = 0.0
   select case (operation)
   case (1)
      answer = a + b
   case (2)
      answer = a - b
   case (3)
      answer = a*b
   case (4)
      if (b /= 0.0) answer = a/b
   end select
   call owSetValueSetting(Result, answer)
end subroutine
)",
                                                   R"(
void calculate(char operation)
{
   double a = 0, b = 0, answer = 0;
   owEnqValueSettingDouble(First, &a);
   owEnqValueSettingDouble(Second, &b);
   switch (operation) {
   case '+': answer = a + b; break;
   case '-': answer = a - b; break;
   case '*': answer = a * b; break;
   case '/': if (b != 0) answer = a / b; break;
   }
   owSetValueSetting(Result, answer);
}
)");
}

} // namespace example
