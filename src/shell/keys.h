// Which command a key sends, by where the input is. The rows stand in the command table; here they are bound: the keys
// of the forms on the forms, the hierarchy and the bars, those of the text on the code editor's text, and the few that
// hold in fields, cells, lists and the log for the whole program.
#pragma once

void bindKeys();              // all anew: a command, a preference or a form has changed
void bindKey(int key);        // one of them
void bindKeysOn(int window);  // the keys of the forms on a window of one, by its handle
void parkKeys(bool dialogue); // while a dialogue has the input no command has its key

int keyCommand(int key, unsigned where); // KeyMode; 0 when the key sends nothing there
