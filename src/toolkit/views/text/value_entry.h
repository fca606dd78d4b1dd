// The value entry: a line that holds a number, shown in the form of its type and edited as a bare number.
#pragma once

#include "toolkit/views/text/text_entry.h"
#include "toolkit/views/text/value_format.h"

#include <QFrame>
#include <QLineEdit>
#include <functional>
#include <optional>

class QKeyEvent;

namespace orba {

struct ValueOptions {
    ValueFormat format;
    int field = 0; // most characters while editing; 0 any number
    bool label = false;
    bool readOnly = false;
    bool tabStop = true;       // Tab comes here
    bool anyCharacter = false; // letters may be typed, too; what is no number is refused at the end
    bool thousands = false;    // groups of three at rest, decimal types only
    std::optional<double> minimum, maximum;
    double increment = 0; // of the Up and Down keys, 0 none
    int justify = -1;
    TextBorder border = TextBorder::Default;
    QString prefix, postfix;
    std::optional<double> rogue; // this value shows as rogueText
    QString rogueText;
    QColor inactive, active, text;
};

enum class ValueError { NotANumber = 0, TooSmall = 1, TooLarge = 2 };

struct ValueHooks {
    std::function<void()> committed;         // Return, or the focus leaves a changed value
    std::function<void(ValueError)> refused; // the entry is back at its last value
    std::function<void()> selected;          // the focus came; a label was pressed
    std::function<void()> changed;           // each key
    std::function<void()> pressed;
};

class ValueEntry : public QFrame {
public:
    ValueEntry(const ValueOptions& options, const ValueHooks& hooks, QWidget* parent);

    const ValueOptions& options() const { return options_; }
    void setHooks(const ValueHooks& hooks) { hooks_ = hooks; }
    void setOptions(const ValueOptions& options);
    QLineEdit* field() const { return line_; }

    // Also the value that stands in the line but has not been entered yet, when it is a good one.
    double value() const;
    void setValue(double value);
    void clear();         // shows nothing until a value is set or typed; counts as 0
    bool step(int steps); // false when there is no room left
    std::string shown() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOptions();
    void showColours();
    void showValue();
    std::string restingText() const;
    std::optional<double> entered(std::optional<ValueError>& error) const;
    bool enter(bool always);
    bool characterRefused(const QKeyEvent& event) const;

    ValueOptions options_;
    ValueHooks hooks_;
    QLineEdit* line_;
    double value_ = 0;
    bool empty_ = false;
    bool focused_ = false;
    bool clicked_ = false; // by the mouse since it got the focus
    bool awaitsUser_ = false;
    bool edited_ = false;
};

} // namespace orba
