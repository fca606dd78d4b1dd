#include "toolkit/frame/report.h"

#include "toolkit/frame/session.h"

#include <cstdio>
#include <cstdlib>

namespace orba {

const char* traceName = "      ";

namespace {

ReportSink sink = nullptr;

struct Message {
    int code;
    const char* text;
};

constexpr Message messages[] = {
    {1, "there is no master window yet; make one first"},
    {7, "the parent cannot hold this widget"},
    {10, "the limits of the graphics frame are empty or upside down"},
    {17, "the field length of a value entry cannot be negative"},
    {18, "there is a master window already"},
    {19, "a colour cannot be negative"},
    {21, "this is not a toggle"},
    {23, "this is not a text widget"},
    {24, "this is not a value or array widget"},
    {25, "this is not a window"},
    {26, "there is no widget of this handle"},
    {30, "this kind of widget does not have that callback"},
    {31, "this is not a graphics frame"},
    {33, "the style is out of range"},
    {34, "the size is out of range; text sizes go from 50 to 100"},
    {35, "an argument is out of range"},
    {45, "the grid is too coarse; at least 12 by 12 cells must fit on the screen"},
    {47, "this widget cannot take the focus"},
    {48, "the second argument of a menu bar must be -1"},
    {55, "this routine of the old interface is not available"},
    {56, "widgets of these kinds cannot be linked"},
    {58, "row 0 cannot be read from this list"},
    {59, "the switch must be 0 or 1"},
    {61, "this routine is not available"},
    {62, "on the master window of an MDI program a widget cannot fill the client area"},
    {63, "this is not an array"},
    {64, "this is not a gauge"},
    {66, "this is not a progress bar"},
    {67, "this kind of widget does not have that operation"},
    {68, "this is not a table box"},
    {69, "this is not a video frame"},
    {70, "this frame cannot be copied"},
    {71, "the file browser has no room for the name"},
    {72, "the file name is not valid"},
    {73, "the file browser could not be opened"},
};

const char* messageOf(int code) {
    for (const Message& message : messages) {
        if (message.code == code) return message.text;
    }
    return "the call was refused";
}

} // namespace

void setReportSink(ReportSink newSink) { sink = newSink; }

void reportError(int code, int argument, bool withArgument) {
    if (code < 1) {
        abortSession();
        return;
    }
    const int number = 1600 + code;
    if (sink) sink(number, traceName, argument);
    if (withArgument) {
        std::fprintf(stderr, "Error %d in %s: %s (%d).\n", number, traceName, messageOf(code), argument);
    } else {
        std::fprintf(stderr, "Error %d in %s: %s.\n", number, traceName, messageOf(code));
    }
}

void reportFailure(int code, int argument) { reportError(code, argument, true); }

} // namespace orba
