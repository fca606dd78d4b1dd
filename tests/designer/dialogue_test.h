// A designer whose dialogues are worked by mouse and keys. Keys go to whatever has the focus.
#pragma once

#include "desk.h"

#include "dialogues/frame.h"
#include "toolkit/testing/robot.h"

struct DialogueTest : testing::Test {
    Desk desk;

    void press(int control) {
        orba::testing::click(dialogue::widget(control));
        desk.run();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers held = Qt::NoModifier) {
        orba::testing::key(0, code, held);
        desk.run();
    }
    void type(const char* text) {
        orba::testing::type(0, text);
        desk.run();
    }
    // A mnemonic: a button is seen to be pressed before it sends its event.
    void alt(Qt::Key code) {
        constexpr int SHORTCUT_MILLISECONDS = 150;
        orba::testing::key(0, code, Qt::AltModifier);
        orba::testing::settle(SHORTCUT_MILLISECONDS);
        desk.run();
    }
};
