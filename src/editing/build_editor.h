// Making the widgets of the code editor.
#pragma once

// Fills the docking pane of handle `pane` and joins the editor to the hooks. Once, at start-up.
void buildCodeEditor(int pane);
