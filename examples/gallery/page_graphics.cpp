// A graphics frame with every kind of shape, and one to draw in with the mouse.
#include "gallery.h"

#include <math.h>
#include <stdio.h>

static int shapes, board, clear;

static void drawShapes() {
    owActivateGraphicsFrame(shapes);
    owClearGraphicsFrame(shapes);
    const OPOINT triangle[] = {{10, 55}, {30, 55}, {20, 75}};
    for (int style = 0; style < 4; style++) {
        oSetLineColour(style + 2);
        oSetLineStyle(style);
        oSetLineWidthPixel(style + 1);
        oMoveTo2D(5, 95 - style * 4);
        oDrawLineTo2D(45, 95 - style * 4);
    }
    oSetLineStyle(OSOLID);
    oSetLineWidthPixel(1);
    for (int style = 1; style <= 6; style++) {
        oSetFillMode(style, 4);
        oSetLineColour(4);
        oFillRect(52 + (style - 1) * 8, 82, 58 + (style - 1) * 8, 96);
    }
    oSetFillMode(1, 9);
    oFillPolygonTo2D(3, triangle);
    oSetLineColour(3);
    oMoveTo2D(45, 65);
    oDrawCircle2D(9);
    oSetLineColour(2);
    oMoveTo2D(70, 65);
    oDrawEllipse2D(12, 6);
    oMoveTo2D(98, 65);
    oDrawArcBy2D(-8, 0, 270);
    oSetLineColour(1);
    for (int marker = 0; marker < 8; marker++) {
        oMoveTo2D(10 + marker * 11, 45);
        oDrawMarker(marker);
    }
    for (int angle = 0; angle < 90; angle += 30) {
        oSetStrAngle(angle);
        oSetCharSize(2, 3);
        oMoveTo2D(5, 8);
        oDisplayStr("      at an angle");
    }
    oSetStrAngle(0);
    oSetCharSize(1.6, 3);
    oSetStrJustify(OCENTRE);
    oMoveTo2D(75, 4);
    oDisplayStr("a damped wave");
    oSetStrJustify(OLEFT);
    oSetLineColour(7);
    oSetLineWidthPixel(2);
    oMoveTo2D(52, 22);
    for (int i = 0; i <= 200; i++) oDrawLineTo2D(52 + i * 0.22, 22 + 12 * exp(-i / 60.0) * cos(i / 6.0));
    oSetLineWidthPixel(1);
    oSetLineColour(10);
    oDrawRect2D(51, 8, 98, 36);
    oFlushGraphics();
}

static void build(int panel) {
    OLIMIT limits = {0, 100, 0, 100};
    label(panel, 12, 8, 300, "Shapes, kept and repainted at any size");
    shapes = owCreateGraphicsFrame(panel, 12, 30, 420, 430, &limits, owVpos, OTOP, owExposeCallback, OIDENT, owCallback,
                                   OIDENT, 0);
    label(panel, 448, 8, 250, "Click to add a star");
    board = owCreateGraphicsFrame(panel, 448, 30, 252, 390, &limits, owVpos, OTOP, owCallback, OIDENT, 0);
    clear = owCreatePushButton(panel, 448, 432, 110, 28, "Clear", owVpos, OTOP, owCallback, OIDENT, 0);
    drawShapes();
}

static void event(const OACTION* action) {
    char line[128];
    if (action->widget == clear) {
        owClearGraphicsFrame(board);
        return;
    }
    if (action->widget == board) {
        owActivateGraphicsFrame(board);
        oSetLineColour((int)(action->xpos + action->ypos) % 8 + 2);
        oSetMarkerSize(8);
        oMoveTo2D(action->xpos, action->ypos);
        oDrawMarker(7);
        oSetMarkerSize(0);
    }
    snprintf(line, sizeof line, "At %.1f, %.1f", action->xpos, action->ypos);
    say(line);
}

const Page graphicsPage = {"Graphics", "graph", build, event};
