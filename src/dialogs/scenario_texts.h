// The dialogs about scenarios, but for their editors: new ones, which part to edit, and what a scenario says
// about itself.
#pragma once

#include <cstdint>

namespace quillet {

// Asks for a name and creates a scenario of that name, which is then the current one; it is not loaded yet.
// False when there is none.
bool NewScenarioDialog();

enum class ScenarioPart : std::uint8_t { None, BoardPart, LettersPart, AboutPart, BonusPart };

// Asks which part of the current scenario to edit.
ScenarioPart ChooseScenarioPart();

void EditAboutText();

// Shows it, with the switch for showing it whenever a scenario is chosen.
void ShowAboutScenario();

}  // namespace quillet
