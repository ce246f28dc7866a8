// Makes new word lists: empty ones, and the current one under another name.
#pragma once

namespace quillet {

// Asks for a name and makes that the current list, empty; offers to save the old one before. False when there
// is no new list.
bool NewWordListDialog();

// Asks for a name and saves the current list under it too. The current list stays what it is.
void SaveWordListAsDialog();

}  // namespace quillet
