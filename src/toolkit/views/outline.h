// A dashed rectangle over everything else in a window: where something will be that the mouse is about to change.
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;

namespace orba {

class OutlineView : public QWidget {
public:
    explicit OutlineView(QWidget* over);
    ~OutlineView() override;

    // Around `rect` of the widget that it lies over, in front, with a text beside it unless that is empty.
    void showAround(const QRect& rect, const QString& text);
    void setFilled(bool on); // a tint inside

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void placeText(const QRect& rect);

    QPointer<QLabel> text_;
    bool filled_ = false;
};

} // namespace orba
