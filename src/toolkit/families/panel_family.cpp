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

constexpr IntegerProperty<PanelData> properties[] = {
    {20, &PanelData::boundary}, {47, &PanelData::boundary},   {35, &PanelData::line},   {36, &PanelData::lineBorder},
    {37, &PanelData::fill},     {38, &PanelData::fillBorder}, {78, &PanelData::scroll},
};
struct TextProperty {
    int number;
    QString PanelData::*field;
};
constexpr TextProperty textProperties[] = {{82, &PanelData::title}, {64, &PanelData::image}};

// The title has a font of its own, which the widgets in the panel do not inherit.
bool getFontProperty(Widget& widget, int property, Value& value) {
    const QFont font = panelOf(widget).look().titleFont;
    switch (property) {
    case 45: value.integer = font.bold(); return true;
    case 65: value.integer = font.italic(); return true;
    case 79: value.integer = font.strikeOut(); return true;
    case 84: value.integer = font.underline(); return true;
    default: return false;
    }
}

bool setFontProperty(Widget& widget, int property, const Value& value) {
    PanelLook look = panelOf(widget).look();
    QFont& font = look.titleFont;
    switch (property) {
    case 45: font.setBold(value.integer != 0); break;
    case 65: font.setItalic(value.integer != 0); break;
    case 79: font.setStrikeOut(value.integer != 0); break;
    case 84: font.setUnderline(value.integer != 0); break;
    case 53: widget.fontFace = value.text; break;
    case 72: widget.pointSize = value.integer > 0 ? std::min(value.integer, 400) : 10; break;
    default: return false;
    }
    if (property == 53 || property == 72) {
        const QFont face = fontFor(widget.fontFace, widget.pointSize);
        font.setFamilies(face.families());
        font.setPointSizeF(face.pointSizeF());
    }
    panelOf(widget).setLook(look);
    return true;
}

bool getPanelProperty(Widget& widget, int property, Value& value) {
    PanelData& data = dataOf<PanelData>(widget);
    for (const TextProperty& row : textProperties)
        if (row.number == property) {
            value.text = data.*row.field;
            return true;
        }
    return getInteger(properties, data, property, value) || getFontProperty(widget, property, value);
}

bool setPanelProperty(Widget& widget, int property, const Value& value) {
    PanelData& data = dataOf<PanelData>(widget);
    constexpr int iconProperty = 99;
    if (property == iconProperty) {
        panelOf(widget).setWindowIcon(icons::iconOfResource(value.integer));
        return true;
    }
    bool known = setInteger(properties, data, property, value);
    for (const TextProperty& row : textProperties)
        if (row.number == property) data.*row.field = value.text, known = true;
    if (known) showPanel(widget);
    return known || setFontProperty(widget, property, value);
}

QString titleOf(Widget& widget) { return dataOf<PanelData>(widget).title; }

void setTitle(Widget& widget, const QString& title) {
    dataOf<PanelData>(widget).title = title;
    showPanel(widget);
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
                    .get = getPanelProperty,
                    .set = setPanelProperty,
                    .text = titleOf,
                    .setText = setTitle,
                    .coloursChanged = showPanel,
                    .childAdded = childAdded};
const Family radioBoxes{.name = "radio box",
                        .get = getPanelProperty,
                        .set = setPanelProperty,
                        .text = titleOf,
                        .setText = setTitle,
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
    Widget* parent = widgetOf(call.integer(0));
    auto data = std::make_unique<PanelData>();
    data->boundary = kind == Kind::radioBox ? call.keyword(owBorderType)
                     : call.given(owType)   ? call.keyword(owType)
                                            : call.keyword(owBorderType);
    data->title = call.keywordText(owTitle);
    data->line = call.keyword(owLineCol);
    data->fill = call.keyword(owFillCol);
    data->lineBorder = call.keyword(owLineBorder);
    data->fillBorder = call.keyword(owFillBorder);
    if (kind == Kind::panel) {
        data->scroll = call.keyword(owScrollMode);
        data->image = call.keywordText(owImage);
    }
    auto* panel = new Panel(clientOf(parent));
    panel->setLook(lookOf(*data, QApplication::font()));
    Widget& widget = addWidget(kind, family, parent, panel);
    if (widget.handle == 0) return 0; // no handle was left
    widget.client = panel->content();
    widget.data = std::move(data);
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
