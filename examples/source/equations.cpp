// Two linear equations, solved by a routine of a library that the project's settings alone bring into the program.
#include "builder.h"
#include "examples.h"

namespace example {

void makeEquations() {
    WidgetNode& form = begin(90, "Equations", "Linear equations", 420, 190);
    struct Coefficient {
        const char* name;
        int x, y;
        float value;
    };
    for (const Coefficient& one :
         {Coefficient{"A11", 20, 140, 2}, Coefficient{"A12", 150, 140, 1}, Coefficient{"B1", 290, 140, 5},
          Coefficient{"A21", 20, 106, 1}, Coefficient{"A22", 150, 106, -3}, Coefficient{"B2", 290, 106, -8}}) {
        WidgetNode& entry = add(form, TYPE_VALUE_ENTRY, one.name, one.x, one.y, 80, 24);
        entry.value = one.value;
        entry.minValue = -1e6F;
        entry.maxValue = 1e6F;
        entry.fieldWidth = 10;
        entry.format = 2;
    }
    for (const int y : {140, 106}) {
        const std::string row = y == 140 ? "1" : "2";
        addLabel(form, "X_Label" + row, 104, y, 40, "x  +");
        addLabel(form, "Y_Label" + row, 234, y, 50, "y  =");
    }
    WidgetNode& answer = add(form, TYPE_TEXT_LABEL, "Answer", 20, 62, 380, 24, "");
    answer.bold = 1;
    WidgetNode& solve = add(form, TYPE_BUTTON, "Solve", 220, 16, 86, 28, "Solve");
    solve.subType = 2;
    solve.slots[SLOT_GENERAL] = code("call solve_them()");
    add(form, TYPE_BUTTON, "Leave", 314, 16, 86, 28, "Quit").slots[SLOT_GENERAL] = code("callid = -1");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = code(R"(
subroutine solve_them()
   external :: dgesv                     ! of LAPACK
   double precision :: a(2, 2), b(2)
   integer :: pivots(2), info
   character(80) :: text
   call owEnqValueSettingDouble(A11, a(1, 1))
   call owEnqValueSettingDouble(A12, a(1, 2))
   call owEnqValueSettingDouble(A21, a(2, 1))
   call owEnqValueSettingDouble(A22, a(2, 2))
   call owEnqValueSettingDouble(B1, b(1))
   call owEnqValueSettingDouble(B2, b(2))
   call dgesv(2, 1, a, 2, pivots, b, 2, info)
   if (info == 0) then
      write(text, '(a, f0.4, a, f0.4)') 'x = ', b(1), '   y = ', b(2)
   else
      text = 'There is no single solution'
   end if
   call owSetTextSetting(Answer, trim(text))
end subroutine
)");
    project.linkerSwitches = "-llapack -lblas";
    project.customSwitches = 1;
}

} // namespace example
