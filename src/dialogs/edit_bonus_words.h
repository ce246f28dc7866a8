// The editor of the scenario's bonus words.
#pragma once

namespace quillet {

// Lets the person change the bonus words, what they count and whether they count, and saves that in the
// scenario.
void EditBonusWords();

}  // namespace quillet
