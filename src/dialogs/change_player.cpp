// Changes a player of the running game, for those who ask through base/presentation.h.
#include "base/messages.h"
#include "base/presentation.h"
#include "dialogs/player_row.h"
#include "platform/message_box.h"

namespace quillet {
namespace {

// False when the name has to be corrected first.
bool TakePlayer(Dialog& dialog, PlayerRow& row) {
    ReadPlayerName(dialog, row);
    const PlayerFault fault = FindPlayersFault({&row.choice, 1}).fault;
    if (fault == PlayerFault::None) return true;
    if (fault == PlayerFault::NoName) {
        Beep();
    } else {
        Warning(TextOf(fault));
    }
    CorrectPlayerName(dialog, row, fault);
    return false;
}

}  // namespace

bool ChangeOnePlayer(int player) {
    const std::vector<std::string> wordLists = WordListChoices();
    PlayerRow row{.choice = ChoiceOfPlayer(player, wordLists)};
    const int result =
        RunDialog(PlayersControls::kChangePlayer, [&](Dialog& dialog, const DialogEvent& event) {
            if (event.kind == DialogEvent::Kind::Opened) {
                OpenPlayerRow(dialog, row, wordLists);
                FocusPlayerRow(dialog, row);
            }
            TakePlayerRow(dialog, event, row, false, wordLists);
            if (event.kind != DialogEvent::Kind::Pressed) return;
            if (event.control == kCancelId || TakePlayer(dialog, row)) CloseDialog(dialog, event.control);
        });
    if (result != kOkId) return false;
    ReplacePlayer(player, row.choice, wordLists);
    return true;
}

}  // namespace quillet
