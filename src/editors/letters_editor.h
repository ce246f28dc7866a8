// The dialog in which a scenario's letters are changed: what each is worth, how many there are, and the bonus
// for using all seven.
//
// Works on copies; Save puts them into the game's settings and the scenario.
#pragma once

namespace quillet {

// True when it was left with Save; a new game must then be started.
bool EditLetterInfo();

}  // namespace quillet
