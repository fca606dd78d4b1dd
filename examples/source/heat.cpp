// Heat conduction in a rod, in Fortran 90: value entries, a slider, start and stop, a progress bar fed by a timer, a
// plot, a table of results, and a settings form that is made when it is asked for.
#include "builder.h"
#include "examples.h"

namespace example {
namespace {

WidgetNode& addValue(WidgetNode& parent, const std::string& name, int x, int y, float value, float low, float high,
                     int decimals) {
    WidgetNode& entry = add(parent, TYPE_VALUE_ENTRY, name, x, y, 90, 22);
    entry.value = value;
    entry.minValue = low;
    entry.maxValue = high;
    entry.format = decimals;
    return entry;
}

void addControls(WidgetNode& form) {
    addLabel(form, "Alpha_Label", 16, 470, 150, "Diffusivity (mm2/s)");
    addValue(form, "Alpha", 170, 470, 117, 1, 1000, 1).bubbleHelp = "117 is copper, 97 aluminium, 4 steel";
    addLabel(form, "Left_Label", 16, 440, 150, "Left end (C)");
    addValue(form, "Left_End", 170, 440, 100, -200, 1000, 1);
    addLabel(form, "Right_Label", 16, 410, 150, "Right end (C)");
    addValue(form, "Right_End", 170, 410, 0, -200, 1000, 1);
    addLabel(form, "Speed_Label", 16, 376, 150, "Steps per tick");
    WidgetNode& speed = add(form, TYPE_SLIDER, "Speed", 16, 340, 244, 30);
    speed.subType = 32764;
    speed.minValue = 1;
    speed.maxValue = 200;
    speed.stepValue = 1;
    speed.value = 40;
    add(form, TYPE_BUTTON, "Start", 16, 296, 76, 28, "Start").slots[SLOT_GENERAL] = code(R"(
running = .true.
call owSetWidgetStatus(Start, OUNSELECTABLE)
call owSetWidgetStatus(Pause, OSELECTABLE)
call owDefineTimerCallback(40, tick)
)");
    WidgetNode& pause = add(form, TYPE_BUTTON, "Pause", 100, 296, 76, 28, "Stop");
    pause.initialState = 0;
    pause.slots[SLOT_GENERAL] = code("call halt()");
    add(form, TYPE_BUTTON, "Rewind", 184, 296, 76, 28, "Reset").slots[SLOT_GENERAL] = code(R"(
call halt()
call reset_rod()
)");
    add(form, TYPE_BUTTON, "Settings_Button", 16, 256, 118, 28, "Settings...").slots[SLOT_GENERAL] = code(R"(
call halt()
call GenerateSettings()
call owSetValueSetting(Node_Count, real(nodes))
call owSetValueSetting(Start_Temperature, start_value)
call owSetValueSetting(End_Time, finish)
call owDrawWindow(Settings, 1)
)");
    add(form, TYPE_BUTTON, "Leave", 142, 256, 118, 28, "Quit").slots[SLOT_GENERAL] = code("callid = -1");
    WidgetNode& table = add(form, TYPE_TABLE_BOX, "Results", 16, 52, 244, 190);
    table.columns = 2;
    table.columnWidths = {110, 110};
    table.xLabels = "Position (mm)|Temperature (C)";
    WidgetNode& progress = add(form, TYPE_PROGRESS_BAR, "Progress", 16, 16, 688, 20);
    progress.minValue = 0;
    progress.maxValue = 100;
    progress.value = 0;
    progress.subType = 32745;
    WidgetNode& plot = add(form, TYPE_GRAPHICS_FRAME, "Plot", 276, 52, 428, 440);
    plot.xMin = -0.08F;
    plot.xMax = 1.04F;
    plot.yMin = -0.1F;
    plot.yMax = 1.08F;
}

void addSettings() {
    WidgetNode& form = addForm("Settings", "Settings", FORM_DYNAMIC_SDI, 290, 170);
    form.titleFlag = 2;
    form.quitMode = 1;
    addLabel(form, "Nodes_Label", 16, 126, 150, "Nodes (11 to 401)");
    addValue(form, "Node_Count", 176, 126, 101, 11, 401, 0);
    addLabel(form, "Start_Label", 16, 94, 150, "Start temperature (C)");
    addValue(form, "Start_Temperature", 176, 94, 20, -200, 1000, 1);
    addLabel(form, "End_Label", 16, 62, 150, "End time (s)");
    addValue(form, "End_Time", 176, 62, 2000, 1, 100000, 0);
    WidgetNode& accept = add(form, TYPE_BUTTON, "Accept", 84, 16, 86, 28, "OK");
    accept.subType = 2;
    accept.slots[SLOT_GENERAL] = code(R"(
call take_settings()
call owEraseWidget(Settings)
call reset_rod()
)");
    add(form, TYPE_BUTTON, "Refuse", 180, 16, 86, 28, "Cancel").slots[SLOT_GENERAL] =
        code("call owEraseWidget(Settings)");
}

void addCode() {
    project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS] = code(R"(
integer, parameter :: most_nodes = 401
integer, parameter :: tick = 14001     ! event of the timer
integer :: nodes = 101
real :: rod(most_nodes) = 0.0          ! temperatures along one metre
real :: elapsed = 0.0, finish = 2000.0 ! seconds
real :: start_value = 20.0
logical :: running = .false.
)");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = code(R"(
subroutine halt()
   running = .false.
   call owDefineTimerCallback(0, tick)
   call owSetWidgetStatus(Start, OSELECTABLE)
   call owSetWidgetStatus(Pause, OUNSELECTABLE)
end subroutine

subroutine reset_rod()
   elapsed = 0.0
   rod(1:nodes) = start_value
   call show()
end subroutine

subroutine take_settings()
   real :: count
   call owEnqValueSetting(Node_Count, count)
   nodes = max(11, min(most_nodes, nint(count)))
   call owEnqValueSetting(Start_Temperature, start_value)
   call owEnqValueSetting(End_Time, finish)
end subroutine

! Explicit steps at 0.4 of the limit of stability.
subroutine advance()
   real :: diffusivity, left, right, steps, dx, dt
   integer :: i
   call owEnqValueSetting(Alpha, diffusivity)
   call owEnqValueSetting(Left_End, left)
   call owEnqValueSetting(Right_End, right)
   call owEnqSliderValue(Speed, steps)
   dx = 1.0/real(nodes - 1)
   dt = 0.4*dx*dx/(diffusivity*1.0e-6)
   do i = 1, nint(steps)
      rod(1) = left
      rod(nodes) = right
      rod(2:nodes - 1) = rod(2:nodes - 1) + 0.4*(rod(1:nodes - 2) - 2.0*rod(2:nodes - 1) + rod(3:nodes))
      elapsed = elapsed + dt
   end do
   if (elapsed >= finish) call halt()
   call show()
end subroutine

subroutine show()
   real :: low, high, x, y
   integer :: i, station
   character(24) :: text
   low = min(0.0, minval(rod(1:nodes)))
   high = max(low + 1.0, maxval(rod(1:nodes)))
   call owActivateGraphicsFrame(Plot)
   call owClearGraphicsFrame(Plot)
   call oSetLineColour(30)
   do i = 0, 5
      call oMoveTo2D(0.0, 0.2*i)
      call oDrawLineTo2D(1.0, 0.2*i)
   end do
   call oSetLineColour(1)
   call oMoveTo2D(0.0, 1.0)
   call oDrawLineTo2D(0.0, 0.0)
   call oDrawLineTo2D(1.0, 0.0)
   call oSetLineColour(31)
   call oSetLineWidthPixel(2)
   call oMoveTo2D(0.0, (rod(1) - low)/(high - low))
   do i = 2, nodes
      x = real(i - 1)/real(nodes - 1)
      y = (rod(i) - low)/(high - low)
      call oDrawLineTo2D(x, y)
   end do
   call oSetLineWidthPixel(1)
   call oSetLineColour(1)
   write (text, '(f8.1,a)') high, ' C'
   call oMoveTo2D(0.02, 1.02)
   call oDisplayStr(trim(adjustl(text)))
   write (text, '(a,f8.0,a)') 't =', elapsed, ' s'
   call oMoveTo2D(0.7, 1.02)
   call oDisplayStr(trim(text))
   call oFlushGraphics()
   do station = 0, 10
      i = 1 + nint(real(station*(nodes - 1))/10.0)
      write (text, '(i0)') 100*station
      i = max(1, min(nodes, i))
      call put_result(station + 1, 1, text)
      write (text, '(f10.2)') rod(i)
      call put_result(station + 1, 2, adjustl(text))
   end do
   call owSetProgressValue(Progress, min(100, nint(100.0*elapsed/finish)))
end subroutine

subroutine put_result(row, column, text)
   integer, intent(in) :: row, column
   character(*), intent(in) :: text
   integer :: added
   added = owAddTableBoxEntry(Results, row, column, text)
end subroutine
)");
    project.codeBlocks[BLOCK_PRE_ACTION] = code(R"(
   call oDefineRGB(30, 0.85, 0.85, 0.85)
   call oDefineRGB(31, 0.80, 0.15, 0.10)
   call reset_rod()
)");
    project.codeBlocks[BLOCK_LOOP_START] = code("      if (callid == tick .and. running) call advance()");
}

} // namespace

void makeHeat() {
    WidgetNode& form = begin(90, "HeatRod", "Heat conduction in a rod", 720, 510);
    addControls(form);
    addSettings();
    addCode();
}

} // namespace example
