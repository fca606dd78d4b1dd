// Panels and radio boxes.
#include "toolkit/families/family_support.h"
#include "toolkit/views/buttons.h"
#include "toolkit/views/icons/icons.h"
#include "toolkit/views/panel.h"

#include <QApplication>
#include <QMouseEvent>

namespace orba {
namespace {

struct PanelData : FamilyData {
    int boundary = ONOBOUNDARY;
    QString title;
    int line = 0, fill = 0;
    int lineBorder = OOUTERGRID, fillBorder = OOUTERGRID;
    int scroll = ONOBARS;
    QString image;
};

PanelLook lookOf(const PanelData& data, const QFont& titleFont) {
    PanelLook look;
    look.boundary = boundaryOf(data.boundary);
    look.title = data.title;
    look.titleFont = titleFont;
    look.line = colourOrNone(data.line);
    look.fill = colourOrNone(data.fill);
    // In grid mode the boundary of the grid cell lies half a cell further in than the widget's own edge.
    look.lineInset = gridMode() && data.lineBorder != OOUTEREDGE;
    look.fillInset = gridMode() && data.fillBorder != OOUTEREDGE;
    look.inset = gridMode() ? std::min(gridCell().width(), gridCell().height()) / 4 : 0;
    if (!data.image.isEmpty()) {
        look.image = icons::imageFromFile(data.image);
        if (look.image.isNull() && icons::iconExists(data.image))
            look.image = icons::iconByName(data.image).pixmap(256, 256);
    }
    const bool both = data.scroll == OBOTHBARS;
    look.scrollVertical = both || data.scroll == OVERTICAL || data.scroll == 1;
    look.scrollHorizontal = both || data.scroll == OHORIZONTAL || data.scroll == 2;
    return look;
}

Panel& panelOf(Widget& widget) { return static_cast<Panel&>(*widget.view); }

bool isPage(const Widget& widget) { return widget.parent && widget.parent->kind == Kind::tabBox; }

// A page of a tabbed dialogue box has its title and icon on its tab, which follows those of the view.
void showPanel(Widget& widget) {
    Panel& panel = panelOf(widget);
    PanelLook look = lookOf(dataOf<PanelData>(widget), panel.look().titleFont);
    if (isPage(widget)) {
        panel.setWindowTitle(look.title);
        look.title.clear();
        look.boundary = boundaryOf(ONOBOUNDARY);
    }
    panel.setLook(look);
    widget.client = panel.content();
}

constexpr Attribute attributes[] = {
    keeps<&PanelData::boundary>(owBorderType), keeps<&PanelData::boundary>(owButtonType),
    keeps<&PanelData::line>(owLineCol),        keeps<&PanelData::lineBorder>(owLineBorder),
    keeps<&PanelData::fill>(owFillCol),        keeps<&PanelData::fillBorder>(owFillBorder),
    keeps<&PanelData::scroll>(owScrollMode),   keeps<&PanelData::title>(owTitle),
    keeps<&PanelData::image>(owImage),
};

// The title has a font of its own, which the widgets in the panel do not inherit.
bool setTitleFont(Widget& widget, int property, const Value& value) {
    PanelLook look = panelOf(widget).look();
    QFont& font = look.titleFont;
    if (property == propertyOf(owFontFace) || property == propertyOf(owPointSize)) {
        if (property == propertyOf(owFontFace)) widget.fontFace = value.text;
        if (property == propertyOf(owPointSize)) widget.pointSize = pointsFrom(value.integer);
        const QFont face = fontFor(widget.fontFace, widget.pointSize);
        font.setFamilies(face.families());
        font.setPointSizeF(face.pointSizeF());
    } else if (!setFontSwitch(font, property, value)) {
        return false;
    }
    panelOf(widget).setLook(look);
    return true;
}

bool getPanelProperty(Widget& widget, int property, Value& value) {
    return getFontSwitch(panelOf(widget).look().titleFont, property, value);
}

bool setPanelProperty(Widget& widget, int property, const Value& value) {
    if (property != propertyOf(owIcon)) return setTitleFont(widget, property, value);
    panelOf(widget).setWindowIcon(icons::iconOfResource(value.integer));
    return true;
}

void childAdded(Widget& widget, Widget&) { panelOf(widget).fitContent(); }

void radioChildAdded(Widget& widget, Widget& child) {
    childAdded(widget, child);
    auto* toggle = dynamic_cast<ToggleButton*>(child.view.data());
    if (!toggle) return;
    ToggleLook look = toggle->look();
    look.exclusive = true;
    toggle->setLook(look);
}

const Family panels{.name = "panel",
                    .attributes = attributes,
                    .show = showPanel,
                    .get = getPanelProperty,
                    .set = setPanelProperty,
                    .coloursChanged = showPanel,
                    .childAdded = childAdded};
const Family radioBoxes{.name = "radio box",
                        .attributes = attributes,
                        .show = showPanel,
                        .get = getPanelProperty,
                        .set = setPanelProperty,
                        .coloursChanged = showPanel,
                        .childAdded = radioChildAdded};

// The press is the select event, the release the general one, so that a program can follow a band between them. Both
// end here: a panel around this one has not been clicked.
class PanelMouse : public QObject {
public:
    PanelMouse(Panel* panel, int handle) : QObject(panel), panel_(panel), handle_(handle) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease &&
            type != QEvent::MouseButtonDblClick)
            return false;
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton || onlyFills()) return false;
        if (type == QEvent::MouseButtonRelease)
            post(handle_, Slot::general, 0, place(watched, mouse));
        else
            post(handle_, Slot::select, 1, place(watched, mouse));
        event->accept();
        return true;
    }

private:
    // A panel that hears no clicks is the body of its docking pane: they are the pane's.
    bool onlyFills() const {
        const Widget* panel = widgetOf(handle_);
        return panel && panel->parent && panel->parent->kind == Kind::dockingPane &&
               !hasCallback(*panel, Slot::select) && !hasCallback(*panel, Slot::general);
    }
    QPointF place(QObject* watched, const QMouseEvent* mouse) const {
        auto* from = static_cast<QWidget*>(watched);
        return from == panel_ ? mouse->position() : QPointF(from->mapTo(panel_, mouse->position().toPoint()));
    }
    Panel* panel_;
    int handle_;
};

Word create(const Arguments& call, Kind kind, const Family& family) {
    auto data = dataFrom<PanelData>(family, call);
    if (kind == Kind::panel && call.given(owType)) data->boundary = call.keyword(owType);
    auto* panel = new Panel(clientOf(call));
    panel->setLook(lookOf(*data, QApplication::font()));
    Widget& widget = addWidget(kind, family, call, panel, std::move(data));
    widget.client = panel->content();
    if (isPage(widget)) {
        panel->setWindowIcon(icons::iconOfResource(call.keyword(owIcon)));
        showPanel(widget);
    }
    auto* mouse = new PanelMouse(panel, widget.handle);
    panel->installEventFilter(mouse);
    if (panel->content() != panel) {
        panel->content()->installEventFilter(mouse);
        panel->scroller()->viewport()->installEventFilter(mouse);
    }
    return finishCreation(widget, call);
}

Word createPanel(const Arguments& call) { return create(call, Kind::panel, panels); }
Word createRadioBox(const Arguments& call) { return create(call, Kind::radioBox, radioBoxes); }

const Registration registration({{Fn::owCreatePanel, createPanel}, {Fn::owCreateRadioBox, createRadioBox}});

} // namespace
} // namespace orba
