// A list of words below the caret of a text edit, of which one may take the place of the word that is being typed. The
// edit keeps the focus; typing goes on and narrows the list.
#pragma once

#include <QTextCursor>
#include <QTextEdit>
#include <QTreeWidget>
#include <optional>

namespace orba {

class WordList : public QTreeWidget {
public:
    explicit WordList(QTextEdit* edit);

    struct Word {
        QString text;
        QString note; // shown beside it
    };
    // `typed` characters ahead of the caret are the start of the word. With `chosen` the first row is current, so that
    // Return takes it; else Return stays the text's own until the user goes into the list.
    void offer(const QList<Word>& words, int typed, bool chosen);
    void withdraw();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::optional<QString> typed() const; // none when the caret has left the word
    void narrow();
    void place();
    bool takesKey(QKeyEvent& key);
    void takeWord();
    void goTo(int row);

    QTextEdit* edit_;
    QList<Word> words_;
    QTextCursor start_; // of the word
};

} // namespace orba
