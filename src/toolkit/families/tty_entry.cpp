// TTY entries: a roll of lines with a prompt at its end, where the user types one line after another.
#include "toolkit/families/family_support.h"
#include "toolkit/families/text_family.h"
#include "toolkit/views/text/program_text.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace orba {
namespace {

constexpr int defaultLines = 200; // kept in the roll when the program says nothing
constexpr int mostLines = 100000;
constexpr std::size_t mostHistory = 200;
constexpr int eventTextLength = 255;

// A text entry of many lines in which only what stands behind the last prompt can be changed.
class TtyRoll : public TextEntry {
public:
    TtyRoll(const TextOptions& options, QWidget* parent) : TextEntry(options, {}, 0, 100, parent) {
        editor()->setUndoRedoEnabled(false);
        editor()->setTabChangesFocus(true);
        editor()->setAcceptDrops(false);
    }

    std::function<void(const QString& line)> entered;
    std::function<void()> came;

    void setPrompt(const QString& prompt) {
        named_ = prompt;
        prompt_ = prompt.isEmpty() || prompt.endsWith(u' ') ? prompt : prompt + u' ';
        if (!asking_) return;
        const QString typed = input();
        replaceFrom(promptAt_, prompt_ + typed);
        inputAt_ = promptAt_ + int(prompt_.size());
    }
    const QString& prompt() const { return named_; }
    void setLines(int lines) {
        editor()->document()->setMaximumBlockCount(lines > 0 ? std::min(lines, mostLines) : defaultLines);
    }

    // Output goes ahead of the prompt, and of what has been typed behind it.
    void print(const QString& text) {
        const ProgramDoing::Mark mark(program_);
        const QString typed = asking_ ? input() : QString();
        QString out = text;
        if (!out.endsWith(u'\n')) out += u'\n';
        replaceFrom(asking_ ? promptAt_ : end(), out);
        ask(typed);
    }

    void ask(const QString& typed = {}) {
        const ProgramDoing::Mark mark(program_);
        asking_ = true;
        promptAt_ = end();
        replaceFrom(promptAt_, prompt_ + typed);
        // A roll at its limit drops lines at the top, and everything moves up.
        promptAt_ = end() - int(prompt_.size() + typed.size());
        inputAt_ = promptAt_ + int(prompt_.size());
        toEnd();
    }

    QString input() const {
        QTextCursor cursor(editor()->document());
        cursor.setPosition(std::min(inputAt_, end()));
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        return cursor.selectedText();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // Focus that comes back with its window is no news.
        const bool focused = watched == editor() && event->type() == QEvent::FocusIn &&
                             static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
        if (focused && came) came();
        if (watched == editor() && event->type() == QEvent::KeyPress && key(*static_cast<QKeyEvent*>(event)))
            return true;
        return TextEntry::eventFilter(watched, event);
    }

private:
    int end() const { return editor()->document()->characterCount() - 1; }

    void replaceFrom(int position, const QString& text) {
        QTextCursor cursor(editor()->document());
        cursor.setPosition(std::clamp(position, 0, end()));
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }

    void toEnd() {
        QTextCursor cursor(editor()->document());
        cursor.movePosition(QTextCursor::End);
        editor()->setTextCursor(cursor);
        editor()->ensureCursorVisible();
        editor()->horizontalScrollBar()->setValue(0);
    }

    void setInput(const QString& text) {
        const ProgramDoing::Mark mark(program_);
        replaceFrom(inputAt_, text);
        toEnd();
    }

    void fromHistory(int step) {
        const int next = std::clamp(at_ + step, 0, int(history_.size()));
        if (next == at_) return;
        if (at_ == int(history_.size())) draft_ = input();
        at_ = next;
        setInput(at_ < int(history_.size()) ? history_[std::size_t(at_)] : draft_);
    }

    void enter() {
        const QString line = input();
        if (!line.trimmed().isEmpty() && (history_.empty() || history_.back() != line)) history_.push_back(line);
        if (history_.size() > mostHistory) history_.erase(history_.begin());
        at_ = int(history_.size());
        draft_.clear();
        {
            const ProgramDoing::Mark mark(program_);
            replaceFrom(end(), QStringLiteral("\n"));
        }
        asking_ = false;
        ask();
        if (entered) entered(line);
    }

    // True when the key is done with.
    bool key(const QKeyEvent& event) {
        if (options().readOnly || !asking_) return false;
        const bool control = event.modifiers() & Qt::ControlModifier;
        QTextCursor cursor = editor()->textCursor();
        const bool before = cursor.selectionStart() < inputAt_;
        switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: enter(); return true;
        case Qt::Key_Up: fromHistory(-1); return true;
        case Qt::Key_Down: fromHistory(1); return true;
        case Qt::Key_Home:
            cursor.setPosition(inputAt_, event.modifiers() & Qt::ShiftModifier ? QTextCursor::KeepAnchor
                                                                               : QTextCursor::MoveAnchor);
            editor()->setTextCursor(cursor);
            return true;
        case Qt::Key_Left:
        case Qt::Key_Backspace: return cursor.position() <= inputAt_ && (!cursor.hasSelection() || before);
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: return false;
        case Qt::Key_V:
        case Qt::Key_X:
            if (control && before) toEnd();
            return false;
        default:
            // Whatever is typed goes behind the prompt.
            if (before && !control && !event.text().isEmpty() && event.text()[0].isPrint())
                toEnd();
            else if (before && event.key() == Qt::Key_Delete)
                return true;
            return false;
        }
    }

    QString named_;  // the prompt as the program gave it
    QString prompt_; // with a blank behind it
    QString draft_;
    std::vector<QString> history_;
    int at_ = 0;
    int promptAt_ = 0, inputAt_ = 0;
    bool asking_ = false;
};

struct TtyData : FamilyData {
    int readOnly = OOFF;
    int wordWrap = 1;
    int margin = 0;
    int back1 = 0, back2 = 0, text = 0;
    QString last; // line that the user entered
};

TtyRoll& rollOf(Widget& widget) { return static_cast<TtyRoll&>(*widget.view); }

TextOptions optionsOf(const TtyData& data) {
    TextOptions options;
    options.readOnly = data.readOnly == OON;
    options.scroll = ScrollMode::Vertical;
    options.wordWrap = data.wordWrap != 0;
    options.margin = std::clamp(data.margin, 0, 100);
    options.inactive = colourOrNone(data.back1);
    options.active = colourOrNone(data.back2);
    options.text = textColourOrNone(data.text);
    return options;
}

void showTty(Widget& widget) { rollOf(widget).setOptions(optionsOf(dataOf<TtyData>(widget))); }

constexpr Attribute attributes[] = {keeps<&TtyData::back1>(owOffCol),      keeps<&TtyData::back2>(owOnCol),
                                    keeps<&TtyData::text>(owTextCol),      keeps<&TtyData::readOnly>(owReadOnly),
                                    keeps<&TtyData::margin>(owTextMargin), keeps<&TtyData::wordWrap>(owWordWrap)};

bool getTtyProperty(Widget& widget, int property, Value& value) {
    if (property != propertyOf(owPrompt)) return false;
    value.text = rollOf(widget).prompt();
    return true;
}

bool setTtyProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owPrompt)) return false;
    rollOf(widget).setPrompt(value.text);
    return true;
}

QString lastLine(Widget& widget) { return dataOf<TtyData>(widget).last; }
void printLine(Widget& widget, const QString& text) { rollOf(widget).print(text); }
QSize naturalSize(Widget&) { return {240, 120}; }

const Family ttyEntries{.name = "TTY entry",
                        .attributes = attributes,
                        .show = showTty,
                        .get = getTtyProperty,
                        .set = setTtyProperty,
                        .text = lastLine,
                        .setText = printLine,
                        .naturalSize = naturalSize,
                        .coloursChanged = showTty};

Word createTtyEntry(const Arguments& call) {
    auto data = dataFrom<TtyData>(ttyEntries, call);
    auto* roll = new TtyRoll(optionsOf(*data), clientOf(call));
    Widget& widget = addWidget(Kind::ttyEntry, ttyEntries, call, roll, std::move(data));
    roll->setLines(call.integer(5));
    roll->setPrompt(call.keywordText(owPrompt));
    std::string first(trimmedBytes(call.bytes(6)));
    std::replace(first.begin(), first.end(), '|', '\n');
    if (!first.empty())
        roll->print(fromProgram(first));
    else
        roll->ask();
    const int handle = widget.handle;
    roll->entered = [handle](const QString& line) {
        if (Widget* self = widgetOf(handle)) dataOf<TtyData>(*self).last = line;
        post(handle, Slot::general, 1, {}, line.left(eventTextLength));
    };
    TextHooks hooks;
    hooks.pressed = [handle] { post(handle, Slot::select, 1); };
    hooks.changed = [handle] { post(handle, Slot::change, 1); };
    roll->setHooks(hooks);
    roll->came = [handle] { post(handle, Slot::select, 1); };
    return finishCreation(widget, call);
}

const Registration registration({{Fn::owCreateTTYEntry, createTtyEntry}});

} // namespace
} // namespace orba
