// The board editor: the current scenario's board, changed in place in the main window.
//
// Owns the state of the editor while game.editorActive is set: what was there before, the kind chosen in the
// palette. Saving writes the scenario and starts a new game; cancelling puts everything back, a game in
// progress too.
#pragma once

#include "platform/window.h"

namespace quillet {

void OpenBoardEditor();

// A click in the window, a button or list of the editor; both only while it is open.
void ClickInBoardEditor(const Message& click);
void HandleBoardEditorControl(const Message& event);

// Pictures of the chosen square kind, from and to other programs.
void CopySquarePicture();
void PasteSquarePicture();

}  // namespace quillet
