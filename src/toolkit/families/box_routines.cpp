// The routines that open boxes and the help window, find pictures by name, and ask the clipboard.
#include "toolkit/families/boxes.h"
#include "toolkit/frame/core.h"
#include "toolkit/views/help_window.h"
#include "toolkit/views/icons/icons.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace orba {
namespace {

constexpr int errorIcon = 4;

Word displayMessageBox(const Arguments& call) {
    return messageBox(call.text(0), call.text(1), call.integer(2), call.integer(3));
}

Word displayErrorBox(const Arguments& call) {
    messageBox(call.text(0), call.text(1), errorIcon, OBOXOK);
    return 0;
}

Word displayInfoBox(const Arguments& call) {
    messageBox(call.text(0), call.text(1), OINFORMATION, OBOXOK);
    return 0;
}

// The buffers are taken in and given back; no choice empties the name.
Word fileBrowserRoutine(const Arguments& call) {
    FileChoice choice{.name = call.text(0),
                      .directory = call.text(2),
                      .filter = call.text(4),
                      .title = call.keywordText(owTitle),
                      .question = static_cast<FileQuestion>(call.keyword(owType))};
    if (!fileBrowser(choice)) {
        call.giveText(0, {});
        return 0;
    }
    call.giveText(0, choice.name);
    call.giveText(2, choice.directory);
    return 1;
}

Word colourControl(const Arguments& call) {
    float* channels[] = {call.record<float>(0), call.record<float>(1), call.record<float>(2)};
    for (const float* channel : channels)
        if (!channel) return 0;
    const auto level = [](float value) { return qBound(0.0F, value, 1.0F); };
    QColor colour = QColor::fromRgbF(level(*channels[0]), level(*channels[1]), level(*channels[2]));
    if (!colourBox(colour)) return 0;
    *channels[0] = colour.redF();
    *channels[1] = colour.greenF();
    *channels[2] = colour.blueF();
    return 1;
}

Word displayHelpWindow(const Arguments& call) { return showHelp(call.text(0), call.text(1)) ? 1 : 0; }

Word getIconResource(const Arguments& call) { return icons::iconResource(call.text(0)); }

Word enqResourceImageInfo(const Arguments& call) {
    const QPixmap image = icons::imageFromFile(call.text(0));
    const bool stock = image.isNull() && icons::iconExists(call.text(0));
    const QSize size = stock ? QSize(32, 32) : image.size();
    call.give(1, size.width());
    call.give(2, size.height());
    return stock || !image.isNull() ? 1 : 0;
}

Word enqIconPicture(const Arguments& call) {
    const QString picture = icons::pictureBehind(call.text(0));
    call.giveText(1, picture);
    return picture.isEmpty() ? 0 : 1;
}

Word enqClipboardStatus(const Arguments& call) {
    const QMimeData* held = QGuiApplication::clipboard()->mimeData();
    if (!held) return 0;
    switch (call.integer(0)) {
    case OPLAINTEXT: return held->hasText() && !held->text().isEmpty() ? 1 : 0;
    case 0: return held->formats().isEmpty() ? 0 : 1;
    default: return 0;
    }
}

const Registration registration({{Fn::owDisplayMessageBox, displayMessageBox},
                                 {Fn::owDisplayErrorBox, displayErrorBox},
                                 {Fn::owDisplayInfoBox, displayInfoBox},
                                 {Fn::owFileBrowser, fileBrowserRoutine},
                                 {Fn::owColourControl, colourControl},
                                 {Fn::owDisplayHelpWindow, displayHelpWindow},
                                 {Fn::owDisplayHelp, displayHelpWindow},
                                 {Fn::owGetIconResource, getIconResource},
                                 {Fn::owGetBitmapResource, getIconResource},
                                 {Fn::owEnqResourceImageInfo, enqResourceImageInfo},
                                 {Fn::owEnqIconPicture, enqIconPicture},
                                 {Fn::owEnqClipboardStatus, enqClipboardStatus}});

} // namespace
} // namespace orba
