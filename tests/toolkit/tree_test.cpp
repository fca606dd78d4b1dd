// Tree view boxes and their entries.
#include "toolkit/testing/robot.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>
#include <memory>

using namespace orba::testing;

namespace {

struct Tree {
    Toolkit toolkit;
    int box, form, panel, button, label;

    explicit Tree(int iconSet = ORESOURCEICONS) {
        box = owCreateTreeViewBox(toolkit.panel, 0, 0, 300, 250, owVpos, OTOP, owIconSet, iconSet, 0);
        const int folder = owGetIconResource("newform"), leaf = owGetIconResource("Button"),
                  open = owGetIconResource("Panel");
        form = owCreateTreeEntry(box, OLASTCHILD, "Form1", owCallback, 15529, owIcon, folder, owCloseIcon, folder,
                                 owOpenIcon, open, 0);
        panel = owCreateTreeEntry(form, OLASTCHILD, "Form1_Panel1", owCallback, 15529, owSelectCallback, OIDENT,
                                  owChangeCallback, OIDENT, owDoubleClickCallback, OIDENT, owIcon, folder, 0);
        button = owCreateTreeEntry(panel, OLASTCHILD, "Form1_Button1", owCallback, 15529, owIcon, leaf, 0);
        label = owCreateTreeEntry(form, OLASTCHILD, "Form1_Label1", owCallback, 15529, owIcon, leaf, 0);
        settle();
        events();
    }

    QTreeWidget* view() const { return static_cast<QTreeWidget*>(viewOf(box)); }
    QTreeWidgetItem* item(int entry) const {
        char text[256];
        owEnqTreeViewLabel(entry, text, sizeof text);
        const QList<QTreeWidgetItem*> found = view()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? nullptr : found.constFirst();
    }
    void clickRow(int entry) const {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, view()->visualItemRect(item(entry)).center());
    }
    std::string selected() const {
        settle();
        return view()->currentItem() ? view()->currentItem()->text(0).toStdString() : "";
    }
};

std::vector<std::pair<int, int>> heard() {
    std::vector<std::pair<int, int>> all;
    for (const OACTION& action : events()) all.emplace_back(action.callback, action.widget);
    return all;
}
using Heard = std::vector<std::pair<int, int>>;

} // namespace

TEST(TreeViews, EntriesStandWhereTheyAreAdded) {
    const Tree tree;
    owCreateTreeEntry(tree.form, OFIRSTCHILD, "first", 0);
    owCreateTreeEntry(tree.form, 2, "second", 0);
    owCreateTreeEntry(tree.form, OLASTCHILD, "last", 0);
    owCreateTreeEntry(tree.form, 99, "behind", 0);
    std::vector<std::string> rows;
    for (int i = 0; i < tree.item(tree.form)->childCount(); ++i)
        rows.push_back(tree.item(tree.form)->child(i)->text(0).toStdString());
    EXPECT_EQ(rows, (std::vector<std::string>{"first", "second", "Form1_Panel1", "Form1_Label1", "last", "behind"}));
}

TEST(TreeViews, AClickComesFromItsEntry) {
    const Tree tree;
    owTreeViewAction(tree.form, OOPENENTRY);
    settle();
    tree.clickRow(tree.label);
    EXPECT_EQ(heard(), (Heard{{15529, tree.label}}));
    tree.clickRow(tree.panel);
    EXPECT_EQ(heard(), (Heard{{tree.panel + OIDENT, tree.panel}, {15529, tree.panel}}));
    tree.clickRow(tree.panel);
    EXPECT_EQ(heard().size(), 2U) << "a second click on the selected row tells again";
    QTest::keyClick(tree.view(), Qt::Key_Down);
    EXPECT_EQ(heard(), (Heard{{tree.panel + OIDENT, tree.panel}, {15529, tree.label}}))
        << "the row that is left tells too";
}

TEST(TreeViews, ActionsByTheProgramAreSilent) {
    const Tree tree;
    const QTreeWidgetItem* form = tree.item(tree.form);
    EXPECT_FALSE(form->isExpanded());
    owTreeViewAction(tree.form, OOPENENTRY);
    EXPECT_TRUE(form->isExpanded());
    owTreeViewAction(tree.form, OCLOSEENTRY);
    EXPECT_FALSE(form->isExpanded());
    owTreeViewAction(tree.form, OTOGGLEENTRY);
    EXPECT_TRUE(form->isExpanded());
    owTreeViewAction(tree.button, OSELECTENTRY);
    EXPECT_EQ(tree.selected(), "Form1_Button1");
    EXPECT_TRUE(tree.item(tree.panel)->isExpanded()) << "a selected row can be seen";
    owTreeViewAction(tree.label, OSELECTENTRY);
    owTreeViewAction(tree.form, OSELECTENTRY);
    EXPECT_EQ(tree.selected(), "Form1") << "the last selection counts";
    EXPECT_TRUE(events().empty());
}

TEST(TreeViews, OpeningByTheUserIsAChange) {
    const Tree tree;
    owTreeViewAction(tree.form, OOPENENTRY);
    settle();
    owTreeViewAction(tree.panel, OSELECTENTRY);
    settle();
    tree.view()->setFocus();
    events();
    QTest::keyClick(tree.view(), Qt::Key_Right);
    std::vector<OACTION> all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].callback, tree.panel + 4 * OIDENT);
    EXPECT_EQ(all[0].status, 1);
    QTest::keyClick(tree.view(), Qt::Key_Left);
    all = events();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].status, 0);
}

TEST(TreeViews, LabelsCanBeChangedAndRead) {
    const Tree tree;
    owSetTreeViewLabel(tree.button, "Main_Button1");
    char text[256] = "";
    owEnqTreeViewLabel(tree.button, text, sizeof text);
    EXPECT_STREQ(text, "Main_Button1");
    char small[6] = "";
    owEnqTreeViewLabel(tree.button, small, sizeof small);
    EXPECT_STREQ(small, "Main_");
    owTreeViewAction(tree.label, OSELECTENTRY);
    owEnqTreeViewLabel(tree.box, text, sizeof text);
    EXPECT_STREQ(text, "Form1_Label1") << "of a box that of its selected entry";
}

TEST(TreeViews, ErasingARowTakesItsChildren) {
    const Tree tree;
    owTreeViewAction(tree.button, OSELECTENTRY);
    owEraseWidget(tree.panel);
    settle();
    EXPECT_EQ(viewOf(tree.button), nullptr);
    EXPECT_EQ(tree.item(tree.form)->childCount(), 1);
    owSetTreeViewLabel(tree.button, "dead");
    EXPECT_EQ(reports(), (std::vector<int>{1626}));
    owEraseWidget(tree.box);
    owTreeViewAction(tree.form, OSELECTENTRY);
    EXPECT_EQ(reports(), (std::vector<int>{1626}));
    settle();
}

TEST(TreeViews, IconsFollowTheSetAndTheState) {
    for (const int set : {OFOLDERS, OBOOKS, ORESOURCEICONS}) {
        const Tree tree(set);
        const auto icon = [&](int entry) { return tree.item(entry)->icon(0).pixmap(16, 16).toImage(); };
        const QImage closed = icon(tree.form), leaf = icon(tree.button);
        EXPECT_NE(closed, leaf) << set;
        owTreeViewAction(tree.form, OOPENENTRY);
        EXPECT_NE(icon(tree.form), closed) << set;
        owTreeViewAction(tree.form, OCLOSEENTRY);
        EXPECT_EQ(icon(tree.form), closed) << set;
        const QImage asLeaf = icon(tree.label);
        owCreateTreeEntry(tree.label, OLASTCHILD, "child", 0);
        EXPECT_EQ(icon(tree.label) == asLeaf, set == ORESOURCEICONS) << "a row that gains a child becomes a folder";
    }
    const Tree none(ONONE);
    EXPECT_TRUE(none.item(none.form)->icon(0).isNull());
    owSetWidgetProp(none.box, owIconSet, OFOLDERS, 0);
    EXPECT_FALSE(none.item(none.form)->icon(0).isNull());
}

TEST(TreeViews, DoubleClickAndReturn) {
    const Tree tree;
    owTreeViewAction(tree.form, OOPENENTRY);
    settle();
    events();
    const QPoint place = tree.view()->visualItemRect(tree.item(tree.panel)).center();
    QTest::mouseDClick(tree.view()->viewport(), Qt::LeftButton, {}, place);
    bool doubled = false;
    for (const auto& [identifier, widget] : heard()) doubled = doubled || identifier == tree.panel + 6 * OIDENT;
    EXPECT_TRUE(doubled);
    tree.clickRow(tree.label);
    events();
    QTest::keyClick(tree.view(), Qt::Key_Return);
    EXPECT_EQ(heard(), (Heard{{15529, tree.label}}));
}

TEST(TreeViews, ADropTellsItsTargetOfTheDraggedEntry) {
    const Tree tree;
    owTreeViewAction(tree.form, OOPENENTRY);
    owDefineDragDropCallback(tree.panel, 4712);
    settle();
    tree.clickRow(tree.label);
    events();
    const QPoint place = tree.view()->visualItemRect(tree.item(tree.panel)).center();
    const std::unique_ptr<QMimeData> data(tree.view()->model()->mimeData({tree.view()->currentIndex()}));
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.view()->viewport(), &enter);
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(tree.view()->viewport(), &drop);
    const std::vector<OACTION> heard = events();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].callback, 4712);
    EXPECT_EQ(heard[0].widget, tree.panel);
    EXPECT_EQ(heard[0].status, tree.label);
    EXPECT_EQ(tree.item(tree.form)->childCount(), 2) << "moving entries is the program's to do";
}

TEST(TreeViews, ManyRowsAreBuiltInTimeInProportion) {
    const Tree tree;
    const int count = 20000;
    for (int i = 0; i < count; ++i) {
        const int entry = owCreateTreeEntry(tree.form, OLASTCHILD, "row", owCallback, 15529, 0);
        owTreeViewAction(tree.form, OOPENENTRY);
        owTreeViewAction(entry, OSELECTENTRY);
    }
    settle();
    EXPECT_EQ(tree.item(tree.form)->childCount(), count + 2);
    EXPECT_EQ(tree.selected(), "row");
}
