#include "designer_fixture.h"

#include "project/tree.h"

int DesignerTest::live(const std::string& name) {
    const WidgetNode* node = findName(project.forms, name, false);
    return node ? node->handle : 0;
}

std::string DesignerTest::title() {
    char text[256];
    owEnqWidgetProp(1, owTitle, text, 0);
    return text;
}
