// What makes a text edit an editor of code: line numbers with marks beside them, the current line, matching brackets,
// guides at the indents, findings underlined with their words, and Returns that indent.
#pragma once

#include "toolkit/views/text/syntax_tree.h"

#include <QObject>
#include <QTextCursor>
#include <QTextEdit>
#include <functional>

class QHelpEvent;
class QKeyEvent;
class QWheelEvent;

namespace orba {

class CodeView : public QObject {
public:
    // `leftRoom` keeps so many pixels free at the left of the text.
    CodeView(QTextEdit* edit, std::function<void(int)> leftRoom);
    ~CodeView() override;

    void setLanguage(SyntaxLanguage language) { language_ = language; }
    void setIndentStep(int blanks);
    // Asked for larger or smaller letters in steps, or for words with 0.
    void setAsked(std::function<void(int steps)> asked) { asked_ = std::move(asked); }
    void documentExchanged(); // the edit shows another document: marks go, what follows the text follows the new one

    void markLine(int line); // the line of an error, from 1, until it is edited; 0: none

    struct Finding {
        int line = 1;   // from 1
        int column = 1; // from 1
        int length = 0; // 0: the word that stands there
        bool error = true;
        QString words;
    };
    void addFinding(const Finding& finding); // until its line is edited
    void clearFindings();
    int findingCount() const { return int(findings_.size()); }

    void paintOver(const QRect& area); // behind the text's own painting
    int marginWidth() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Mark {
        QTextCursor at;
        bool error;
        QString words;
        QString line; // as it was; edited since when it is not
    };
    void textChanged();
    void showMarks();
    void addBrackets(QList<QTextEdit::ExtraSelection>& marks) const;
    void placeMargin();
    void paintMargin(QPaintEvent* event);
    void selectLineAt(int y);
    bool newLine();
    bool wheel(const QWheelEvent& event);
    bool toolTip(QHelpEvent& event, bool margin);
    QRectF rectOf(const QTextBlock& block) const; // in the viewport
    QTextBlock firstShown() const;
    const Mark* markIn(const QTextBlock& block) const; // an error first

    QTextEdit* edit_;
    QWidget* margin_;
    std::function<void(int)> leftRoom_;
    std::function<void(int)> asked_;
    SyntaxLanguage language_ = SyntaxLanguage::None;
    int step_ = 3;
    QTextCursor errorAt_; // null for none
    QString errorLine_;
    QList<Mark> findings_;
    int wheelRest_ = 0;
};

} // namespace orba
