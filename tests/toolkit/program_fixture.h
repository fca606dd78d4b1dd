// A program of the toolkit with a master window and a panel on it, for tests that work its widgets with real events.
#pragma once

#include "toolkit/frame/core.h"
#include "toolkit/include/menu-c.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

struct Seen {
    int callback, widget, status;
    std::string text;
    float x, y;
    int count;
    int first, second; // of the event's whole numbers
};

class Program : public ::testing::Test {
protected:
    void SetUp() override {
        oOpenOrba();
        oGuiwin();
        owInitializeMenu();
        owSetGuiGridMode(0);
        window = owCreateMasterWindow(10, 10, 600, 500, OALL, "Test", owVpos, OTOP, 0);
        panel = owCreatePanel(window, 0, 0, 600, 500, owVpos, OTOP, owType, ONOBOUNDARY, 0);
        owManage();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view(window)));
        events();
    }
    void TearDown() override {
        owCloseMenu();
        oCloseOrba();
    }

    static QWidget* view(int handle) {
        orba::Widget* widget = orba::widgetOf(handle);
        return widget ? widget->view.data() : nullptr;
    }

    // What keys go to.
    static QWidget* field(int handle) {
        QWidget* widget = view(handle);
        return widget && widget->focusProxy() ? widget->focusProxy() : widget;
    }

    static void focus(int handle) {
        field(handle)->window()->activateWindow();
        field(handle)->setFocus();
        QApplication::processEvents();
    }

    // Every event that has come, in order.
    static std::vector<Seen> events() {
        constexpr int mark = 777777;
        QApplication::processEvents();
        owPostCallback(mark, 0);
        std::vector<Seen> all;
        for (int id = owAction(nullptr); id != mark; id = owAction(nullptr)) {
            OACTION action;
            owEnqActionState(&action);
            all.push_back({id, action.widget, action.status, action.text, action.xpos, action.ypos, action.count,
                           action.iargs[0], action.iargs[1]});
        }
        return all;
    }

    static std::vector<int> identifiers() {
        std::vector<int> all;
        for (const Seen& event : events()) all.push_back(event.callback);
        return all;
    }

    static std::string text(int handle, int type = OSTANDARD) {
        std::string buffer(3000000, '\0');
        owEnqTextSetting(handle, buffer.data(), int(buffer.size()), owEntryType, type, 0);
        buffer.resize(buffer.find('\0'));
        return buffer;
    }

    int entry(const char* string, int height = 22, int type = OSTANDARD, int field = 0, int display = OEDIT) {
        return owCreateTextEntry(panel, 10, 10, 200, height, string, field, display, owVpos, OTOP, owEntryType, type,
                                 owCallback, OIDENT, owSelectCallback, OIDENT, owChangeCallback, OIDENT, 0);
    }

    int window = 0, panel = 0;
};
