// The frame that all families of widgets share: records behind handles, events, creation, layout, properties, colours.
//
// A family is one file. It says which routines it answers and how its widgets behave:
//
//     struct ButtonData : FamilyData { QString label; int on = 0; };
//     void showButton(Widget& widget) { ... }
//     constexpr Attribute attributes[] = {keeps<&ButtonData::label>(owLabel), keeps<&ButtonData::on>(owOnCol)};
//     const Family pushButtons{.name = "push button", .attributes = attributes, .show = showButton, ...};
//     Word createPushButton(const Arguments& call) {
//         auto* view = new QPushButton(clientOf(call));
//         Widget& button = addWidget<ButtonData>(Kind::pushButton, pushButtons, call, view);
//         QObject::connect(view, &QPushButton::clicked, [handle = button.handle] { post(handle, Slot::general); });
//         showButton(button);
//         return finishCreation(button, call);
//     }
//     const Registration registration({{Fn::owCreatePushButton, createPushButton}, ...});
//
// When a handler runs, the checks of checked/ have passed: the toolkit is open, the handle names a widget of the right
// kind, ranges hold. Only handles that are no first argument need a look of their own.
//
// Signal handlers only post events; they never call the program. While one of the program's own calls runs, post() does
// nothing: what Qt signals then is the program's doing. So a handler needs no signal blocking of its own, unless the
// signal comes later through the event loop.
//
// The frame itself posts double clicks (but on lists, tables, trees and property lists, whose families know the row),
// pointer moves, drag and drop and file drops for every view.
#pragma once

#include "toolkit/frame/attributes.h"
#include "toolkit/frame/colours.h"
#include "toolkit/frame/creation.h"
#include "toolkit/frame/events.h"
#include "toolkit/frame/layout.h"
#include "toolkit/frame/properties.h"
#include "toolkit/frame/registry.h"
#include "toolkit/frame/report.h"
#include "toolkit/frame/routines.h"
#include "toolkit/frame/widget.h"
#include "toolkit/views/fonts.h"
