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

bool getEntryProperty(Widget& entry, int property, Value& value) {
    const EntryData& data = entryData(entry);
    switch (property) {
    case 113: value.integer = data.checkIcon; return true;
    case 114: value.integer = data.uncheckIcon; return true;
    case 111: value.integer = data.greyIcon; return true;
    default: return false;
    }
}

bool setEntryProperty(Widget& entry, int property, const Value& value) {
    switch (property) {
    case 21: entry.accel = value.integer; break;
    case 55: entry.help = value.text; break;
    case 111: entryData(entry).greyIcon = value.integer; break;
    case 113: entryData(entry).checkIcon = value.integer; break;
    case 114: entryData(entry).uncheckIcon = value.integer; break;
    default: return false;
    }
    showEntry(entry);
    return true;
}

QString entryLabel(Widget& entry) { return entryData(entry).label; }

void setEntryLabel(Widget& entry, const QString& label) {
    entryData(entry).label = label;
    showEntry(entry);
}

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
                     .get = getEntryProperty,
                     .set = setEntryProperty,
                     .setStatus = setEntryStatus,
                     .text = entryLabel,
                     .setText = setEntryLabel,
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

Widget& addAction(Kind kind, const Family& family, Widget& menu) {
    Widget& entry = addWidget(kind, family, &menu, nullptr);
    auto data = std::make_unique<EntryData>();
    data->action = new QAction(menu.view);
    entry.data = std::move(data);
    menu.view->addAction(entryData(entry).action);
    return entry;
}

Word createMenuBar(const Arguments& call) {
    Widget& window = *widgetOf(call.integer(0));
    FormWindow* form = formWindowOf(&window);
    auto* view = new QMenuBar(form);
    view->setNativeMenuBar(false);
    form->setMenuBar(view);
    Widget& bar = addWidget(Kind::menuBar, bars, &window, view);
    return bar.handle;
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
    Widget& entry = addAction(Kind::menuEntry, entries, menu);
    if (entry.handle == 0) return 0;
    EntryData& data = entryData(entry);
    data.label = call.text(1);
    data.checkIcon = call.keyword(owCheckIcon);
    data.uncheckIcon = call.keyword(owUncheckIcon);
    data.greyIcon = call.keyword(owGreyIcon);
    const int handle = entry.handle;
    QObject::connect(data.action, &QAction::triggered, data.action, [handle] { chosen(handle); });
    QObject::connect(data.action, &QAction::hovered, data.action, [handle] { post(handle, Slot::select); });
    finishCreation(entry, call);
    showEntry(entry);
    if (menu.kind == Kind::menuBar && menu.children.size() == 1) windowBarsChanged(menu);
    return handle;
}

Word createSeparator(const Arguments& call) {
    Widget& separator = addAction(Kind::menuSeparator, separators, *widgetOf(call.integer(0)));
    if (separator.handle == 0) return 0;
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
