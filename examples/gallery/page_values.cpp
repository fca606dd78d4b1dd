// Value entries of the sixteen types, the four signs, limits, spinners, and the widgets that show a number as a place.
#include "gallery.h"

#include <stdio.h>

static int progress[2], slider, gauge;

static void build(int panel) {
    static const char* const types[] = {"Decimal", "Scientific", "Binary",  "Octal",  "Hexadecimal", "Degrees",
                                        "Percent", "Fahrenheit", "Celsius", "Kelvin", "Pounds",      "US Dollars",
                                        "Marks",   "Francs",     "Yen",     "Euro"};
    for (int i = 0; i < 16; i++) {
        const int x = 12 + i / 8 * 225, y = 8 + i % 8 * 29;
        label(panel, x, y + 2, 90, types[i]);
        owCreateValueEntry(panel, x + 95, y, 115, 24, i == 14 ? 12000.0 : 123.5, 20, i == 14 ? 0 : 2, OEDIT, owVpos,
                           OTOP, owType, i, owCallback, OIDENT, owValueErrorCallback, OIDENT, 0);
    }
    static const char* const signs[] = {"Minus", "Brackets [ ]", "Brackets ( )", "Red"};
    for (int i = 0; i < 4; i++) {
        label(panel, 470, 10 + i * 29, 100, signs[i]);
        owCreateValueEntry(panel, 570, 8 + i * 29, 130, 24, -1234.5, 20, 2, OEDIT, owVpos, OTOP, owSign, i, owJustify,
                           ORIGHT, owThousands, 1, 0);
    }
    label(panel, 470, 126, 100, "0 to 10");
    const int limited =
        owCreateValueEntry(panel, 570, 124, 100, 24, 5.0, 6, 1, OEDIT, owVpos, OTOP, owVmin, 0.0, owVmax, 10.0,
                           owIncrement, 0.5, owCallback, OIDENT, owValueErrorCallback, OIDENT, 0);
    owCreateSpinner(panel, 671, 124, 20, 24, owVpos, OTOP, owBuddy, limited, owCallback, OIDENT, 0);
    label(panel, 470, 155, 100, "Label");
    owCreateValueEntry(panel, 570, 153, 130, 24, 42.0, 10, 1, ODISPLAY, owVpos, OTOP, owType, OCELCIUS, 0);
    label(panel, 470, 184, 100, "Read only");
    owCreateValueEntry(panel, 570, 182, 130, 24, 42.0, 10, 1, OEDIT, owVpos, OTOP, owReadOnly, OON, 0);

    label(panel, 12, 252, 200, "Sliders in four directions");
    slider = owCreateSlider(panel, 12, 276, 200, 26, 0.0, 100.0, 1.0, 30.0, owVpos, OTOP, owType, OHORIZONTAL,
                            owCallback, OIDENT, 0);
    owCreateSlider(panel, 12, 310, 200, 26, 0.0, 100.0, 5.0, 30.0, owVpos, OTOP, owType, OREVERSEHORIZONTAL,
                   owSliderTicks, 10, owCallback, OIDENT, 0);
    owCreateSlider(panel, 225, 254, 26, 110, 0.0, 1.0, 0.0, 0.3, owVpos, OTOP, owType, OVERTICAL, owCallback, OIDENT,
                   0);
    owCreateSlider(panel, 260, 254, 26, 110, 0.0, 1.0, 0.0, 0.3, owVpos, OTOP, owType, OREVERSEVERTICAL, owCallback,
                   OIDENT, 0);
    label(panel, 310, 252, 200, "Gauges");
    gauge = owCreateGauge(panel, 310, 274, 240, 44, "", owVpos, OTOP, owIntValue, 40, owTicks1, 11, owTicks2, 6,
                          owCallback, OIDENT, 0);
    owCreateGauge(panel, 310, 324, 240, 44, "flag", owVpos, OTOP, owIntValue, 70, owTicks2, 11, owCallback, OIDENT, 0);
    const int shown =
        owCreateGauge(panel, 570, 274, 130, 44, "", owVpos, OTOP, owIntValue, 25, owTicks2, 5, owAccess, ODISPLAY, 0);
    owSetWidgetHelp(shown, "Only shows", 0);
    const int grey = owCreateGauge(panel, 570, 324, 130, 44, "", owVpos, OTOP, owIntValue, 60, 0);
    owSetWidgetStatus(grey, OUNSELECTABLE);
    label(panel, 12, 382, 300, "Progress follows the first slider");
    progress[0] = owCreateProgressBar(panel, 12, 404, 330, 22, owVpos, OTOP, owIntValue, 30, 0);
    progress[1] =
        owCreateProgressBar(panel, 362, 404, 338, 22, owVpos, OTOP, owIntValue, 30, owProgressType, OSMOOTH, 0);
}

static void event(const OACTION* action) {
    char line[320];
    if (action->widget == slider) {
        float value = 0;
        owEnqSliderValue(slider, &value);
        for (int bar : progress) owSetProgressValue(bar, (int)value);
        snprintf(line, sizeof line, "Slider at %.0f", value);
    } else if (action->widget == gauge) {
        int value = 0;
        owEnqGaugeValue(gauge, &value);
        snprintf(line, sizeof line, "Gauge at %d", value);
    } else if (action->callback == action->widget + 10 * OIDENT) {
        static const char* const errors[] = {"That is no number", "That is too small", "That is too large"};
        snprintf(line, sizeof line, "%s", errors[action->status < 3 && action->status >= 0 ? action->status : 0]);
    } else {
        snprintf(line, sizeof line, "Value: %s", action->text);
    }
    say(line);
}

const Page valuePage = {"Values and sliders", "sval", build, event};
