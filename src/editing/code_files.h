// The code editor and the outside: inserting a file, printing, help on the word under the caret.
#pragma once

void insertFileCommand(); // CMD_INSERT_FILE
void printCodeCommand();  // CMD_PRINT_CODE
void codeHelpCommand();   // CMD_CODE_HELP
