// Boxes that ask, the help window, and the clipboard.
#include "toolkit/families/boxes.h"
#include "toolkit/testing/robot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <gtest/gtest.h>

using namespace orba::testing;

namespace {

struct Browse {
    int answer;
    std::string name, directory;
};

Browse browse(const char* name, const std::string& directory, int type,
              const char* filter = "*.wdp|Projects (*.wdp)|*.*|All Files (*.*)") {
    char chosen[256], folder[1024];
    snprintf(chosen, sizeof chosen, "%s", name);
    snprintf(folder, sizeof folder, "%s", directory.c_str());
    const int answer =
        owFileBrowser(chosen, sizeof chosen, folder, sizeof folder, filter, owTitle, "Open Project", owType, type, 0);
    return {answer, chosen, folder};
}

// Does something to the box that comes up, as its user.
template <typename Box> void whenOpen(void (*act)(Box& box)) {
    QTimer::singleShot(50, qApp, [act] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

} // namespace

TEST(MessageBoxes, AnswersOfTheirButtons) {
    struct Case {
        int buttons, answer;
    };
    for (const Case& row : {Case{OBOXOK, OANSWEROK}, Case{OBOXOKCANCEL, OANSWEROK}, Case{OBOXOKCANCEL, OANSWERCANCEL},
                            Case{OBOXYESNO, OANSWERYES}, Case{OBOXYESNO, OANSWERNO}, Case{OBOXYESNOCANCEL, OANSWERYES},
                            Case{OBOXYESNOCANCEL, OANSWERNO}, Case{OBOXYESNOCANCEL, OANSWERCANCEL}}) {
        const Toolkit toolkit;
        expectBox("Exit", "Save first?|It has changed", row.answer);
        EXPECT_EQ(owDisplayMessageBox("Exit", "Save first?|It has changed", OQUESTION, row.buttons), row.answer)
            << row.buttons;
    }
    const Toolkit toolkit;
    expectBox("Blank Entry", "One or more list entries are blank", OANSWEROK);
    owDisplayErrorBox("Blank Entry", "One or more list entries are blank");
    expectBox("Note", "a < b & c", OANSWEROK);
    owDisplayInfoBox("Note", "a < b & c");
    owDisplayMessageBox("x", "y", 1, 9);
    EXPECT_EQ(reports(), (std::vector<int>{1633}));
}

// A box shows its title whole, cannot be minimised, and belongs to the program though no window of it is active.
TEST(MessageBoxes, AreOnesOfTheProgram) {
    Toolkit toolkit;
    watchProgram(false);
    static QString longTitle;
    longTitle = QString(60, QLatin1Char('W'));
    viewOf(toolkit.master)->window()->hide();
    settle();
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_GE(box.width(), box.fontMetrics().horizontalAdvance(longTitle));
        EXPECT_FALSE(box.windowFlags() & Qt::WindowMinMaxButtonsHint);
        EXPECT_NE(box.parentWidget(), nullptr);
        for (const QAbstractButton* button : box.buttons()) EXPECT_TRUE(button->icon().isNull());
        box.accept();
    });
    orba::messageBox(longTitle, "short", 1, OBOXYESNOCANCEL);
    watchProgram(true);
}

TEST(MessageBoxes, EscapeIsTheMildestAnswer) {
    { const Toolkit starter; } // makes the application; with no script at work the keys below answer
    struct Case {
        int buttons, answer;
    };
    for (const Case& row : {Case{OBOXOK, OANSWEROK}, Case{OBOXOKCANCEL, OANSWERCANCEL}, Case{OBOXYESNO, OANSWERNO},
                            Case{OBOXYESNOCANCEL, OANSWERCANCEL}}) {
        QTimer::singleShot(30, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        EXPECT_EQ(orba::messageBox("Title", "Text", OWARNING, row.buttons), row.answer) << row.buttons;
    }
    QTimer::singleShot(30, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    EXPECT_EQ(orba::messageBox("Title", "Text", OWARNING, OBOXYESNO), OANSWERYES) << "Return presses the first button";
}

TEST(FileBrowsers, GiveNameAndFolder) {
    const Toolkit toolkit;
    const QTemporaryDir folder;
    QFile file(folder.filePath("bridge.wdp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    expectBrowser("Open Project", folder.filePath("bridge.wdp").toStdString());
    Browse choice = browse("", folder.path().toStdString(), OOPENFILE);
    EXPECT_EQ(choice.answer, 1);
    EXPECT_EQ(choice.name, "bridge.wdp");
    EXPECT_EQ(QDir(QString::fromStdString(choice.directory)), QDir(folder.path()));

    expectBrowser("Open Project", "");
    choice = browse("old.wdp", folder.path().toStdString(), OOPENFILE);
    EXPECT_EQ(choice.answer, 0);
    EXPECT_EQ(choice.name, "") << "no choice empties the name";

    expectBrowser("Open Project", folder.filePath("new").toStdString());
    choice = browse("", folder.path().toStdString(), OSAVEFILE);
    EXPECT_EQ(choice.answer, 1);
    EXPECT_EQ(choice.name, "new") << "no ending is added";
    expectBrowser("Open Project", folder.filePath("bridge.wdp").toStdString());
    EXPECT_EQ(browse("", folder.path().toStdString(), OSAVEFILE).name, "bridge.wdp")
        << "and nothing asked about overwriting";

    QDir(folder.path()).mkdir("sub");
    expectBrowser("Open Project", folder.filePath("sub").toStdString());
    choice = browse("", folder.path().toStdString(), OPICKDIRECTORY);
    EXPECT_EQ(choice.answer, 1);
    EXPECT_EQ(QDir(QString::fromStdString(choice.directory)), QDir(folder.filePath("sub")));
    EXPECT_EQ(choice.name, "");

    expectBrowser("Open Project", "");
    browse("", "", OOPENFILE);
}

TEST(FileBrowsers, StartInTheFolderOfTheLastOne) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.wdp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    {
        const Toolkit toolkit;
        expectBrowser("Open Project", folder.filePath("a.wdp").toStdString());
        browse("", folder.path().toStdString(), OOPENFILE);
    }
    static QString shown;
    whenOpen<QFileDialog>([](QFileDialog& box) {
        shown = box.directory().path();
        box.reject();
    });
    orba::FileChoice choice;
    EXPECT_FALSE(orba::fileBrowser(choice));
    EXPECT_EQ(QDir(shown), QDir(folder.path()));
}

TEST(FileBrowsers, FiltersArePairsOfPatternAndDescription) {
    EXPECT_EQ(orba::dialogueFilters("*.for|Fortran source files (*.for)|*.*|All files (*.*)"),
              (QStringList{"Fortran source files (*.for)", "All files (*)"}));
    EXPECT_EQ(orba::dialogueFilters("*.cpp|C++ source files (*.cpp)|*.c|C source files"),
              (QStringList{"C++ source files (*.cpp)", "C source files (*.c)"}));
    EXPECT_EQ(orba::dialogueFilters("*.f90;*.f95|Fortran"), (QStringList{"Fortran (*.f90 *.f95)"}));
    EXPECT_EQ(orba::dialogueFilters("*.rtf"), (QStringList{"*.rtf (*.rtf)"}));
    EXPECT_EQ(orba::dialogueFilters(""), QStringList());
    EXPECT_EQ(orba::dialogueFilters("|||"), QStringList());
}

TEST(ColourBoxes, ChangeTheColourOnlyWhenOneIsChosen) {
    const Toolkit toolkit;
    float red = 0.25F, green = 0.5F, blue = 1;
    expectColourBox(QColor(255, 0, 51));
    EXPECT_EQ(owColourControl(&red, &green, &blue), 1);
    EXPECT_NEAR(red, 1, 0.01);
    EXPECT_NEAR(green, 0, 0.01);
    EXPECT_NEAR(blue, 0.2, 0.01);
    expectColourBox(QColor());
    EXPECT_EQ(owColourControl(&red, &green, &blue), 0);
    EXPECT_NEAR(blue, 0.2, 0.01);
    EXPECT_EQ(owColourControl(nullptr, &green, &blue), 0);
}

TEST(HelpWindows, ShowAFileAtItsTopic) {
    const Toolkit toolkit;
    const QTemporaryDir folder;
    QFile file(folder.filePath("Wdesign85.md"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# Designer\n\nBeginning.\n\n## Push Button\n\nOne.\n\n## Button\n\nTwo, with an odd word: quixotic.\n");
    file.close();
    const std::string path = folder.filePath("Wdesign85.chm").toStdString();
    const auto place = [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* text = window->findChild<QTextBrowser*>()) return text->textCursor().block().text().toStdString();
        return std::string("no window");
    };
    EXPECT_EQ(owDisplayHelpWindow(path.c_str(), "Button"), 1);
    EXPECT_EQ(place(), "Button") << "the heading itself before one that holds it";
    EXPECT_EQ(owDisplayHelpWindow(path.c_str(), "push"), 1);
    EXPECT_EQ(place(), "Push Button");
    EXPECT_EQ(owDisplayHelpWindow(path.c_str(), "quixotic"), 1);
    EXPECT_NE(place().find("quixotic"), std::string::npos);
    EXPECT_EQ(owDisplayHelpWindow(path.c_str(), ""), 1);
    EXPECT_EQ(place(), "Designer");
    EXPECT_EQ(owDisplayHelpWindow(folder.filePath("Missing.chm").toStdString().c_str(), "Button"), 0);
    EXPECT_EQ(owDisplayHelpWindow("", ""), 0);
}

TEST(Clipboard, TellsWhetherItHoldsText) {
    const Toolkit toolkit;
    QApplication::clipboard()->clear();
    EXPECT_EQ(owEnqClipboardStatus(OPLAINTEXT), 0);
    QApplication::clipboard()->setText("call owManage()");
    EXPECT_EQ(owEnqClipboardStatus(OPLAINTEXT), 1);
    EXPECT_EQ(owEnqClipboardStatus(12345), 0);
}
