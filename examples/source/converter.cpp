// A converter of units and a small book of materials, in C: combo box, list boxes, tree view, text array, status bar.
#include "builder.h"
#include "examples.h"

namespace example {
namespace {

void addUnits(WidgetNode& form) {
    addLabel(form, "Quantity_Label", 16, 404, 90, "Quantity");
    WidgetNode& quantity = add(form, TYPE_COMBO_BOX, "Quantity", 110, 404, 190, 24);
    quantity.editMode = 1;
    addListEntries(quantity, {"Length", "Mass", "Pressure", "Energy", "Temperature"});
    quantity.slots[SLOT_GENERAL] = code(R"(
int rows, chosen, row;
owEnqListStatus(Quantity, &rows, &chosen, &row);
showUnits(row - 1);
)");
    addLabel(form, "From_Label", 16, 372, 130, "From");
    addLabel(form, "To_Label", 170, 372, 130, "To");
    for (const char* name : {"From_Unit", "To_Unit"}) {
        WidgetNode& list = add(form, TYPE_LIST_BOX, name, name[0] == 'F' ? 16 : 170, 220, 130, 150);
        list.slots[SLOT_GENERAL] = code("convert();");
    }
    addLabel(form, "Amount_Label", 16, 182, 90, "Amount");
    WidgetNode& amount = add(form, TYPE_VALUE_ENTRY, "Amount", 110, 182, 190, 24);
    amount.value = 1;
    amount.minValue = -1e30F;
    amount.maxValue = 1e30F;
    amount.format = 4;
    amount.fieldWidth = 20;
    amount.slots[SLOT_GENERAL] = code("convert();");
    add(form, TYPE_BUTTON, "Convert", 110, 142, 90, 28, "Convert").slots[SLOT_GENERAL] = code("convert();");
    add(form, TYPE_BUTTON, "Swap", 210, 142, 90, 28, "Swap").slots[SLOT_GENERAL] = code(R"(
int rows, chosen, from, to;
owEnqListStatus(From_Unit, &rows, &chosen, &from);
owEnqListStatus(To_Unit, &rows, &chosen, &to);
owSetListEntry(From_Unit, OSELECT, owEntry, to, 0);
owSetListEntry(To_Unit, OSELECT, owEntry, from, 0);
convert();
)");
    WidgetNode& answer = add(form, TYPE_TEXT_LABEL, "Answer", 16, 96, 284, 26, "");
    answer.pointSize = 12;
    answer.bold = 1;
    add(form, TYPE_BUTTON, "Leave", 210, 16, 90, 28, "Quit").slots[SLOT_GENERAL] = code("callid = -1;");
}

void addMaterials(WidgetNode& form) {
    addLabel(form, "Material_Label", 330, 404, 200, "Materials");
    WidgetNode& tree = add(form, TYPE_TREE_VIEW, "Materials", 330, 190, 300, 210);
    tree.subType = 1;
    addTreeEntries(tree, {{0, "Metals", "Metals"},
                          {1, "Steel", "Steel", "showMaterial(0);"},
                          {1, "Aluminium", "Aluminium", "showMaterial(1);"},
                          {1, "Copper", "Copper", "showMaterial(2);"},
                          {1, "Titanium", "Titanium", "showMaterial(3);"},
                          {0, "Polymers", "Polymers"},
                          {1, "Polyethylene", "Polyethylene", "showMaterial(4);"},
                          {1, "Nylon", "Nylon", "showMaterial(5);"},
                          {0, "Ceramics", "Ceramics"},
                          {1, "Alumina", "Alumina", "showMaterial(6);"},
                          {1, "Glass", "Glass", "showMaterial(7);"}});
    WidgetNode& array = add(form, TYPE_TEXT_ARRAY, "Properties", 330, 16, 300, 150);
    array.columns = 1;
    array.rows = 5;
    array.columnWidths = {196};
    array.rowHeights = {24, 24, 24, 24, 24};
    array.xLabels = "Value";
    array.yLabels = "Density|Modulus|Strength|Conductivity|Expansion";
    array.yLabelsWidth = 100;
    array.xLabelsHeight = 24;
    array.readOnly = 1;
    array.scrollMode = -1;
}

void addCode() {
    project.codeBlocks[BLOCK_GLOBAL_DEFINITIONS] = code(R"(
#include <stdio.h>
#include <string.h>

struct Unit { const char *quantity; const char *name; double factor; double offset; };
static const Unit units[] = {
   {"Length", "metre", 1, 0}, {"Length", "millimetre", 1e-3, 0}, {"Length", "kilometre", 1e3, 0},
   {"Length", "inch", 0.0254, 0}, {"Length", "foot", 0.3048, 0}, {"Length", "mile", 1609.344, 0},
   {"Mass", "kilogram", 1, 0}, {"Mass", "gram", 1e-3, 0}, {"Mass", "tonne", 1e3, 0}, {"Mass", "pound", 0.45359237, 0},
   {"Mass", "ounce", 0.028349523125, 0},
   {"Pressure", "pascal", 1, 0}, {"Pressure", "bar", 1e5, 0}, {"Pressure", "megapascal", 1e6, 0},
   {"Pressure", "psi", 6894.757293168, 0}, {"Pressure", "atmosphere", 101325, 0},
   {"Energy", "joule", 1, 0}, {"Energy", "kilojoule", 1e3, 0}, {"Energy", "kilowatt hour", 3.6e6, 0},
   {"Energy", "calorie", 4.184, 0}, {"Energy", "BTU", 1055.05585262, 0},
   {"Temperature", "kelvin", 1, 0}, {"Temperature", "Celsius", 1, 273.15},
   {"Temperature", "Fahrenheit", 5.0 / 9.0, 459.67 * 5.0 / 9.0}};
static const char *quantities[] = {"Length", "Mass", "Pressure", "Energy", "Temperature"};

static const char *materials[][6] = {
   {"Steel", "7850 kg/m3", "210 GPa", "400 MPa", "50 W/mK", "12e-6 /K"},
   {"Aluminium", "2700 kg/m3", "69 GPa", "276 MPa", "167 W/mK", "24e-6 /K"},
   {"Copper", "8960 kg/m3", "117 GPa", "210 MPa", "398 W/mK", "17e-6 /K"},
   {"Titanium", "4510 kg/m3", "116 GPa", "880 MPa", "17 W/mK", "9e-6 /K"},
   {"Polyethylene", "950 kg/m3", "1 GPa", "25 MPa", "0.45 W/mK", "120e-6 /K"},
   {"Nylon", "1140 kg/m3", "2.8 GPa", "75 MPa", "0.25 W/mK", "80e-6 /K"},
   {"Alumina", "3950 kg/m3", "370 GPa", "300 MPa", "30 W/mK", "8e-6 /K"},
   {"Glass", "2500 kg/m3", "70 GPa", "50 MPa", "1 W/mK", "9e-6 /K"}};

void showUnits(int quantity);
void showMaterial(int material);
void convert(void);
)");
    project.codeBlocks[BLOCK_GLOBAL_ROUTINES] = code(R"(
static int quantityShown = 0;

void showUnits(int quantity)
{
   if (quantity < 0 || quantity > 4) return;
   quantityShown = quantity;
   owSetListEntry(From_Unit, OCLEAR, 0);
   owSetListEntry(To_Unit, OCLEAR, 0);
   for (const Unit &unit : units) {
      if (strcmp(unit.quantity, quantities[quantity]) != 0) continue;
      owSetListEntry(From_Unit, OADD, owString, unit.name, 0);
      owSetListEntry(To_Unit, OADD, owString, unit.name, 0);
   }
   owSetListEntry(From_Unit, OSELECT, owEntry, 1, 0);
   owSetListEntry(To_Unit, OSELECT, owEntry, 2, 0);
   convert();
}

static const Unit *chosenUnit(int list)
{
   int rows, chosen, row, seen = 0;
   owEnqListStatus(list, &rows, &chosen, &row);
   for (const Unit &unit : units)
      if (strcmp(unit.quantity, quantities[quantityShown]) == 0 && ++seen == row) return &unit;
   return nullptr;
}

void convert(void)
{
   const Unit *from = chosenUnit(From_Unit), *to = chosenUnit(To_Unit);
   double amount;
   char text[200];
   if (!from || !to) return;
   owEnqValueSettingDouble(Amount, &amount);
   double result = (amount * from->factor + from->offset - to->offset) / to->factor;
   snprintf(text, sizeof text, "%.7g %s = %.7g %s", amount, from->name, result, to->name);
   owSetTextSetting(Answer, text, 0);
   owSetStatusBarText(Messages, 0, quantities[quantityShown]);
   owSetStatusBarText(Messages, 1, text);
}

void showMaterial(int material)
{
   for (int row = 1; row <= 5; row++) owSetTextArray(Properties, 1, row, materials[material][row]);
   owSetStatusBarText(Messages, 1, materials[material][0]);
}
)");
    project.codeBlocks[BLOCK_PRE_ACTION] = code("   showUnits(0);");
}

} // namespace

void makeConverter() {
    WidgetNode& form = begin(99, "Converter", "Units and materials", 648, 444);
    addUnits(form);
    addMaterials(form);
    addStatusBar(form, "Messages", {120, -1}, {"", "Choose units, or a material"});
    addCode();
}

} // namespace example
