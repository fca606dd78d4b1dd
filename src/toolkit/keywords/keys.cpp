#include "toolkit/frame/keys.h"

#include "menu-c.h"

void owDefineWidgetKeyCallback(int widget, int key, int callback) { orba::defineWidgetKey(widget, key, callback); }
int owEnqWidgetKeyCallback(int widget, int key) { return orba::widgetKey(widget, key); }
void owDefineInputCallback(int callback) { orba::defineInput(callback); }
void owSetWindowInput(int widget) { orba::setWindowInput(widget); }
