#include "toolkit/views/text/tip_text.h"

#include <QTextDocument>
#include <gtest/gtest.h>

using orba::tipText;

// Qt draws a bubble help as rich text when it looks like it, and as it stands when not.
TEST(TipText, IsDrawnAsItStands) {
    for (const char* text : {"plain", "R & D", "R &amp; D", "a < b", "<b>bold</b>", "Press <Enter>", "<p>one\ntwo</p>",
                             "&lt;", "two  blanks <i>x</i>"}) {
        QString drawn = tipText(QString::fromUtf8(text));
        if (Qt::mightBeRichText(drawn)) {
            QTextDocument document;
            document.setHtml(drawn);
            drawn = document.toPlainText();
        }
        EXPECT_EQ(drawn.toStdString(), text);
    }
}
