// The editor of the current word list.
#pragma once

namespace quillet {

// Changes are the list's at once, but unsaved; Cancel offers to take them back.
void EditWordList();

}  // namespace quillet
