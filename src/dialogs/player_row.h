// A row of controls that chooses a player, as the dialogs about players share it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "computer/player_choice.h"
#include "platform/dialog.h"
#include "resources/dialog_templates.h"

namespace quillet {

struct PlayerRow {
    int number = 1;  // of the row in its dialog
    PlayerChoice choice;
    std::optional<Picture> picture{};  // of the opponent chosen

    int Id(PlayersControls::Id control) const { return PlayersControls::InRow(control, number); }
};

// Fills the row's controls from its choice, and shows those that it needs.
void OpenPlayerRow(Dialog& dialog, PlayerRow& row, const std::vector<std::string>& wordLists);

// Gives the focus to what of the row is to be changed first.
void FocusPlayerRow(Dialog& dialog, const PlayerRow& row);

// Takes over what the person did to a control of the row; a kind that is no choice is put back with a beep.
// True when the row now plays another opponent, or with another word list.
bool TakePlayerRow(Dialog& dialog, const DialogEvent& event, PlayerRow& row, bool mayBeNobody,
                   const std::vector<std::string>& wordLists);

// Shows the row's word list.
void ShowWordListChoice(Dialog& dialog, const PlayerRow& row);

// Reads the name that is typed in the row.
void ReadPlayerName(Dialog& dialog, PlayerRow& row);

// Lets the person correct the row's name: what is too much of it is selected.
void CorrectPlayerName(Dialog& dialog, const PlayerRow& row, PlayerFault fault);

}  // namespace quillet
