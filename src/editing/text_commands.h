// Commands on the text of the code editor.
#pragma once

void indentCommand();     // CMD_INDENT
void unindentCommand();   // CMD_UNINDENT
void commentCommand();    // CMD_COMMENT
void uncommentCommand();  // CMD_UNCOMMENT
void uppercaseCommand();  // CMD_UPPERCASE
void lowercaseCommand();  // CMD_LOWERCASE
void textTabCommand();    // CMD_TEXT_TAB
void textCutCommand();    // CMD_TEXT_CUT
void textCopyCommand();   // CMD_TEXT_COPY
void textPasteCommand();  // CMD_TEXT_PASTE
void textDeleteCommand(); // CMD_TEXT_DELETE
void textUndoCommand();   // CMD_TEXT_UNDO
void textRedoCommand();   // CMD_TEXT_REDO

void codeChangedCommand(); // CMD_CODE_CHANGED
void caretMovedCommand();  // CMD_CODE_SELECT
