// The menus as they stand while the program runs: the lists in them, which items can be chosen, ticks and
// texts.
//
// Owns the listed names. Texts and states follow from the game and the preferences: RefreshMenus brings them
// up to date and is called before the program waits for the next message.
#pragma once

#include <string>
#include <string_view>

namespace quillet {

// Builds the menu bar with the help topics, then the lists of word lists and scenarios.
void BuildMenus();

// Each lists the folder anew. The current name is ticked; when it is not listed the first one becomes
// current. Without any word list the person is asked to make one; without that, or without scenarios: Fatal.
void BuildScenarioMenu();
void BuildWordsMenu();

// The name behind a command of these lists; empty when there is none.
std::string ScenarioOf(int command);
std::string WordListOf(int command);

// Does that scenario's about box still have to be shown in this run? Asking counts as showing.
bool TakeAboutMark(std::string_view scenarioName);

// While a computation, a dialog's work or the board editor goes on, most items cannot be chosen.
void DisableMenus();
void EnableMenus();

// A long operation on text files goes on: the options cannot be changed either.
void SetTextOperation(bool running);

// Is the item one that can be chosen, as things stand now?
bool CanBeChosen(int command);

void RefreshMenus();

// The ticks of Options and Sounds alone: all that may change in the middle of a computation.
void RefreshOptionTicks();

}  // namespace quillet
