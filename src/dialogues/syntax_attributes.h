// Font, colour and style of each category of code. The categories are changed in the toolkit, so that the code in the
// editor shows them at once; OK writes them to the user's file, Cancel brings back those of the opening.
#pragma once

enum SyntaxAttributesId : int {
    SYNTAX_SAMPLE = 15900,
    SYNTAX_CODE,
    SYNTAX_GROUP,
    SYNTAX_WINDOW = 15590,
    SYNTAX_CATEGORY = 15591,
    SYNTAX_FONT = 15593,
    SYNTAX_COLOUR = 15594,
    SYNTAX_BOLD = 15595,
    SYNTAX_ITALIC = 15596,
    SYNTAX_UNDERLINE = 15597,
    SYNTAX_STRIKEOUT = 15598,
    SYNTAX_CANCEL = 15599,
    SYNTAX_OK = 15600,
    SYNTAX_RESTORE = 15601,
};
