// Menu bars, pull-down and pop-up menus, their entries and separators.
#include "toolkit/families/menus.h"

#include "toolkit/frame/windows.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/text/tip_text.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace orba {
namespace {

struct EntryData : FamilyData {
    QPointer<QAction> action;
    QString label;
    int checkIcon = 0, uncheckIcon = 0, greyIcon = 0; // resources, 0 for none
};

EntryData& entryData(Widget& entry) { return dataOf<EntryData>(entry); }

// The text of an entry, and behind a bar the key that is only shown.
QString shownLabel(const Widget& entry, const QString& label) {
    const qsizetype bar = label.indexOf(QLatin1Char('|'));
    QString text = labelWithMnemonic(bar < 0 ? label : label.left(bar), entry.accel);
    if (bar >= 0) text += QLatin1Char('\t') + labelWithMnemonic(label.mid(bar + 1), 0);
    return text;
}

void showEntry(Widget& entry) {
    EntryData& data = entryData(entry);
    data.action->setText(shownLabel(entry, data.label));
    int icon = entry.status == OCHECKED && data.checkIcon ? data.checkIcon : data.uncheckIcon;
    if (entry.status == OUNSELECTABLE && data.greyIcon) icon = data.greyIcon;
    data.action->setIcon(icon ? icons::iconOfResource(icon) : QIcon());
    data.action->setToolTip(tipText(barsToLines(entry.help)));
}

void setEntryStatus(Widget& entry, int status) {
    QAction* action = entryData(entry).action;
    action->setVisible(status != OHIDDEN);
    action->setEnabled(status != OUNSELECTABLE);
    if (status == OCHECKED) action->setCheckable(true);
    action->setChecked(status == OCHECKED);
    if (entry.kind == Kind::menuEntry) showEntry(entry);
}

constexpr Attribute entryAttributes[] = {
    keeps<&EntryData::label>(owLabel),
    keeps<&EntryData::checkIcon>(owCheckIcon),
    keeps<&EntryData::uncheckIcon>(owUncheckIcon),
    keeps<&EntryData::greyIcon>(owGreyIcon),
    keeps<&Widget::accel>(owAccel),
};

void entryErased(Widget& entry) { delete entryData(entry).action; }

void pullDownErased(Widget& menu) {
    if (menu.parent && menu.parent->kind == Kind::menuEntry && entryData(*menu.parent).action) {
        entryData(*menu.parent).action->setMenu(static_cast<QMenu*>(nullptr));
    }
}

void setMenuStatus(Widget& menu, int status) {
    if (menu.kind == Kind::menuBar) menu.view->setVisible(status != OHIDDEN);
    menu.view->setEnabled(status != OUNSELECTABLE);
}

const Family bars{.name = "menu bar", .setStatus = setMenuStatus};
const Family pullDowns{.name = "pull-down menu", .setStatus = setMenuStatus, .erased = pullDownErased};
const Family popups{.name = "pop-up menu", .setStatus = setMenuStatus};
const Family entries{.name = "menu entry",
                     .attributes = entryAttributes,
                     .show = showEntry,
                     .setStatus = setEntryStatus,
                     .erased = entryErased};
const Family separators{.name = "menu separator", .setStatus = setEntryStatus, .erased = entryErased};

// The user chose an entry: the program decides whether it is checked, and dialogues that hang on it come up.
void chosen(int handle) {
    Widget* entry = widgetOf(handle);
    if (!entry) return;
    QAction* action = entryData(*entry).action;
    action->setChecked(entry->status == OCHECKED);
    post(handle, Slot::general, entry->status);
    for (Widget* child : entry->children) {
        if (child->kind == Kind::window) showWindow(*child, true);
    }
}

Widget& addAction(Kind kind, const Family& family, const Arguments& call) {
    const Widget& menu = *widgetOf(call.integer(0));
    Widget& entry = addWidget<EntryData>(kind, family, call, nullptr);
    entryData(entry).action = new QAction(menu.view);
    menu.view->addAction(entryData(entry).action);
    return entry;
}

Word createMenuBar(const Arguments& call) {
    Widget& window = *widgetOf(call.integer(0));
    FormWindow* form = formWindowOf(&window);
    auto* view = new QMenuBar(form);
    view->setNativeMenuBar(false);
    form->setMenuBar(view);
    return addWidget(Kind::menuBar, bars, &window, view).handle;
}

Word createPullDown(const Arguments& call) {
    Widget& entry = *widgetOf(call.integer(0));
    auto* view = new QMenu(entry.parent->view);
    view->setToolTipsVisible(true);
    entryData(entry).action->setMenu(view);
    return addWidget(Kind::pullDownMenu, pullDowns, &entry, view).handle;
}

Word createEntry(const Arguments& call) {
    Widget& menu = *widgetOf(call.integer(0));
    Widget& entry = addAction(Kind::menuEntry, entries, call);
    EntryData& data = entryData(entry);
    data.label = call.text(1);
    const int handle = entry.handle;
    QObject::connect(data.action, &QAction::triggered, data.action, [handle] { chosen(handle); });
    QObject::connect(data.action, &QAction::hovered, data.action, [handle] { post(handle, Slot::select); });
    finishCreation(entry, call);
    showEntry(entry);
    if (menu.kind == Kind::menuBar && menu.children.size() == 1) windowBarsChanged(menu);
    return handle;
}

Word createSeparator(const Arguments& call) {
    Widget& separator = addAction(Kind::menuSeparator, separators, call);
    entryData(separator).action->setSeparator(true);
    return separator.handle;
}

Word createPopup(const Arguments& call) {
    Widget& parent = *widgetOf(call.integer(0));
    auto* view = new QMenu(parent.view ? parent.view.data() : formWindowOf(&parent));
    view->setToolTipsVisible(true);
    if (call.integer(3) != ONONE && !call.text(4).isEmpty()) view->addSection(call.text(4));
    Widget& popup = addWidget(Kind::popupMenu, popups, &parent, view);
    return finishCreation(popup, call);
}

const Registration registration({
    {Fn::owCreateMenuBar, createMenuBar},
    {Fn::owCreatePullDownMenu, createPullDown},
    {Fn::owCreateMenuEntry, createEntry},
    {Fn::owCreateMenuSeparator, createSeparator},
    {Fn::owCreatePopupMenu, createPopup},
});

} // namespace

QAction* entryAction(const Widget& entry) {
    const bool hasAction = entry.kind == Kind::menuEntry || entry.kind == Kind::menuSeparator;
    return hasAction && entry.data ? static_cast<EntryData&>(*entry.data).action.data() : nullptr;
}

} // namespace orba
