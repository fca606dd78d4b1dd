#include "targets.h"

#include "project/tree.h"
#include "toolkit/frame/core.h"
#include "toolkit/testing/robot.h"

#include <QApplication>

#include <algorithm>
#include <tuple>

namespace robot = orba::testing;

namespace {

// Windows of the toolkit by their handle; the others, menus and lists, have none.
int handleOfWindow(const QWidget* window) {
    const orba::Widget* widget = orba::widgetAt(window);
    return widget && widget->view && widget->view->window() == window ? widget->handle : 0;
}

std::string classOf(const QWidget* part) { return part->metaObject()->className(); }

std::vector<QWidget*> childrenOf(const QWidget* part) {
    std::vector<QWidget*> children;
    for (QObject* child : part->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && !widget->isWindow()) children.push_back(widget);
    }
    return children;
}

std::string stepTo(const QWidget* part) {
    int index = 0;
    for (const QWidget* sibling : childrenOf(part->parentWidget())) {
        if (sibling == part) break;
        if (classOf(sibling) == classOf(part)) index++;
    }
    return classOf(part) + "." + std::to_string(index);
}

std::string windowName(QWidget* window) {
    for (const WidgetNode* form = project.forms; form; form = form->next)
        if (robot::frameOf(form->handle) == window) return nameOfRecord(*form);
    if (const int handle = handleOfWindow(window)) return std::to_string(handle);
    int index = 0;
    for (const QWidget* other : windowsShown()) {
        if (other == window) break;
        if (classOf(other) == classOf(window)) index++;
    }
    return classOf(window) + "." + std::to_string(index);
}

QWidget* windowOfName(const std::string& name) {
    for (QWidget* window : windowsShown())
        if (windowName(window) == name) return window;
    return nullptr;
}

QWidget* childOfStep(QWidget* part, const std::string& step) {
    for (QWidget* child : childrenOf(part))
        if (child->isVisible() && stepTo(child) == step) return child;
    return nullptr;
}

const WidgetNode* recordOf(const std::string& name) {
    for (const WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        if (node->name == name) return node;
    return nullptr;
}

} // namespace

std::vector<WidgetNode*> liveRecords() {
    std::vector<WidgetNode*> records;
    for (WidgetNode* node = project.forms; node; node = walkList(node, project.forms))
        if (robot::isShown(node->handle)) records.push_back(node);
    return records;
}

std::vector<QWidget*> windowsShown() {
    std::vector<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) windows.push_back(window);
    const auto place = [](const QWidget* window) {
        return std::make_tuple(handleOfWindow(window), classOf(window), window->windowTitle().toStdString(),
                               window->x(), window->y(), window->width(), window->height());
    };
    std::ranges::sort(windows, {}, place);
    return windows;
}

std::vector<QWidget*> partsShown(QWidget* window) {
    std::vector<QWidget*> parts = {window};
    for (std::size_t i = 0; i < parts.size(); i++)
        for (QWidget* child : childrenOf(parts[i]))
            if (child->isVisible() && child->width() > 0 && child->height() > 0) parts.push_back(child);
    return parts;
}

std::string nameOfRecord(const WidgetNode& node) { return "=" + node.name; }

std::string nameOfPart(QWidget* part) {
    const orba::Widget* widget = orba::widgetAt(part);
    if (widget && widget->view == part)
        if (const WidgetNode* node = findHandle(widget->handle)) return nameOfRecord(*node);
    if (part->isWindow() || !part->parentWidget()) return windowName(part);
    return nameOfPart(part->parentWidget()) + "/" + stepTo(part);
}

QWidget* partOf(const std::string& name) {
    const std::size_t end = name.find('/');
    const std::string first = name.substr(0, end);
    QWidget* part = nullptr;
    if (!first.empty() && first[0] == '=') {
        const WidgetNode* node = recordOf(first.substr(1));
        part = node ? robot::viewOf(node->handle) : nullptr;
        if (node && node->type == TYPE_FORM && !part) part = robot::frameOf(node->handle);
    } else {
        part = windowOfName(first);
    }
    for (std::size_t at = end; part && at != std::string::npos;) {
        const std::size_t next = name.find('/', at + 1);
        part = childOfStep(part, name.substr(at + 1, next == std::string::npos ? next : next - at - 1));
        at = next;
    }
    return part && part->isVisible() ? part : nullptr;
}
