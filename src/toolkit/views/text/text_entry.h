// The text entry: one widget for a line of text, a secret, many lines or rich text, editable or a label. It holds a
// line edit or a text edit inside and changes between them when its height does.
#pragma once

#include "toolkit/views/program_doing.h"
#include "toolkit/views/text/code_view.h"
#include "toolkit/views/text/syntax_highlighter.h"
#include "toolkit/views/text/text_index.h"
#include "toolkit/views/text/word_list.h"

#include <QFrame>
#include <QLineEdit>
#include <QPointer>
#include <QTextEdit>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QKeyEvent;
class QMouseEvent;

namespace orba {

enum class TextKind { Security = -1, Standard = 0, Rich = 1 };
enum class TextBorder { Default, ThreeD, TwoD, None };
enum class ScrollMode { None = -1, Both = 0, Vertical = 1, Horizontal = 2 };

struct TextOptions {
    TextKind kind = TextKind::Standard;
    bool label = false; // display only: no caret, no focus
    bool readOnly = false;
    bool tabStop = true; // Tab comes here
    int limit = 0;       // most characters a user may enter, 0 any number
    int justify = -1;    // -1 left, 0 centre, 1 right
    TextBorder border = TextBorder::Default;
    ScrollMode scroll = ScrollMode::None;
    bool wordWrap = true; // lines also wrap at the right edge where no horizontal bar is asked for
    bool autoUrl = false; // addresses in the text are links
    QColor inactive;      // background; not valid: the default
    QColor active;        // background while the entry has the focus; not valid: as inactive
    QColor text;
    int margin = 0; // pixels between the edge and the text
};

// What a user does. A program's own calls raise none of these.
struct TextHooks {
    std::function<void()> committed; // Return in a single line, or the focus leaves changed text
    std::function<void()> selected;  // the focus came, the caret or the selection moved
    std::function<void()> changed;
    std::function<void(const QString& url)> linked; // a link was pressed
    std::function<void()> pressed;                  // the mouse, before anything else
};

struct TextFont { // absent parts stay as they are
    std::optional<QString> face;
    std::optional<double> points;
    std::optional<bool> bold, italic, underline, strikeout;
    std::optional<QColor> colour;
};

class TextEntry : public QFrame {
public:
    // `singleHeight`: pixels up to which a standard entry is a single line; `height`: what it will have at first.
    TextEntry(const TextOptions& options, const TextHooks& hooks, int singleHeight, int height, QWidget* parent);
    ~TextEntry() override { dropField(); } // which still speaks as it loses the focus

    const TextOptions& options() const { return options_; }
    inline static bool selectOnFocus = false; // an entry that takes the focus selects its text
    void setHooks(const TextHooks& hooks) { hooks_ = hooks; }
    void setOptions(const TextOptions& options); // may exchange the widget inside; the text stays
    bool singleLine() const { return line_ != nullptr; }
    bool rich() const { return options_.kind == TextKind::Rich; }
    QWidget* field() const; // the widget inside, which takes the focus
    QTextEdit* editor() const { return edit_; }
    QLineEdit* lineEdit() const { return line_; }

    // Bytes as programs pass them, lines ended by CR LF. `asRtf` asks for, or says that the text is, rich text; a text
    // that does not begin as one is taken as plain all the same.
    void setText(std::string_view text, bool asRtf);
    std::string text(bool asRtf) const;
    void replaceSelection(std::string_view text, bool asRtf);

    // Positions in characters from 1, see TextIndex. The caret is where start equals end.
    const TextIndex& index() const;
    void selection(int& start, int& end) const;
    int caret() const;
    std::string selectedText() const;
    void select(int start, int end); // end below 1: to the end; both 0: nothing
    int lastPosition() const { return index().length(); }
    int textLength() const; // bytes that text() gives, rich text as RTF where it was loaded as such
    std::string wordAt(int position, int& start) const;
    void scrollToCaret();
    void markLine(int line);              // shades it, counted from 1, until the text changes; 0: none
    QRect caretPlace(int position) const; // of a caret there, in pixels of the entry; below 1: of the caret itself

    bool canUndo() const;
    bool canRedo() const;
    void undo();
    void redo();
    void resetUndo();

    void cut();
    void copy();
    void paste();
    void deleteSelection();

    // Of the selection in rich text, of the whole text otherwise.
    void setTextFont(const TextFont& font);
    bool formatsWholeText() const; // whether a font goes to all of it
    TextFont textFont() const;     // at the caret

    // Paragraphs of the selection. Indents in twips.
    struct Paragraph {
        std::optional<int> justify, bullet, first, left, right; // bullet 0 none, 1 disc, 2 digits, 3 letters
    };
    void setParagraph(const Paragraph& paragraph);
    Paragraph paragraph() const;
    QList<double> tabStops() const; // pixels
    void setTabStops(const QList<double>& stops);

    bool load(const std::string& path);       // by its first bytes: RTF in a rich entry, else plain
    bool save(const std::string& path) const; // rich text under a name that ends in .rtf, else plain

    void setHighlighting(SyntaxLanguage language, std::function<QColor(int)> colour);
    void refreshHighlighting();
    void freeze(bool on);
    bool frozen() const { return frozen_ > 0; }

    // An editor of code: see CodeView. Pasted text comes plain. Null until it is one.
    void makeCodeView();
    CodeView* codeView() const { return code_; }
    WordList* words(); // null for a single line

    // One of several texts, each with a history of its own: shows it, empty at first. False when it is new. The text
    // that was there before the first call is number 0. Of those not shown only the last ones are kept.
    bool showDocument(int number);
    void forgetDocuments(); // all but the shown one, which becomes number 0

    std::unique_ptr<QTextDocument> printable(int pointSize, bool selectionOnly) const; // a copy to print

protected:
    ProgramDoing program_; // while a mark lives, no hook is called
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool wantsSingleLine() const;
    void chooseField();
    void dropField();
    void makeLine();
    void makeEdit();
    void showOptions();
    void showBorder();
    void showColours();
    void showAlignment();
    void placeField();
    void userChanged();
    void userMoved();
    void focusCame(Qt::FocusReason reason);
    void userCame();
    void focusLeft();
    bool mouseReleased(QMouseEvent* event);
    QString linkAt(const QPoint& position) const;
    int room() const;
    bool refusesKey(const QKeyEvent& key) const;
    void forgetIndex() { indexed_ = false; }
    void clearFormats();
    void followDocument();

    TextOptions options_;
    TextHooks hooks_;
    int singleHeight_;
    QPointer<QLineEdit> line_;
    QPointer<QTextEdit> edit_;
    QPointer<SyntaxHighlighter> highlighter_;
    QPointer<CodeView> code_;
    QPointer<WordList> words_;
    struct Document {
        int number;
        QTextDocument* document; // a child of the entry
    };
    QList<Document> documents_; // the shown one last, empty while there is but one text
    QString coloured_;          // the text at its last change, while words in it are coloured
    int frozen_ = 0;
    bool focused_ = false;
    bool awaitsUser_ = false; // the focus came with the window; the user has not turned to the entry yet
    bool changedSinceFocus_ = false;
    bool loadedRich_ = false;
    bool choosing_ = false;
    bool dragged_ = false;
    int reportedStart_ = -1, reportedEnd_ = -1;
    mutable TextIndex index_;
    mutable bool indexed_ = false;
};

} // namespace orba
