// Chooses the players of a new game, for those who ask through base/presentation.h.
#include <algorithm>
#include <array>

#include "base/messages.h"
#include "base/presentation.h"
#include "dialogs/player_row.h"

namespace quillet {
namespace {

using Rows = std::array<PlayerRow, kMaxPlayers>;

struct PlayersDialog {
    Rows rows{};
    std::vector<std::string> wordLists = WordListChoices();

    PlayersDialog() {
        for (int r = 1; r <= kMaxPlayers; ++r) {
            PlayerRow& row = rows[static_cast<std::size_t>(r) - 1];
            row.number = r;
            row.choice = ChoiceOfPlayer(r, wordLists);
        }
        const bool nobodyChosen = game.numPlayers == 1 && game.players[1].name == "?";
        if (nobodyChosen) rows[0].choice = {.kind = kHumanPlayer, .name = "type name here"};
    }

    std::array<PlayerChoice, kMaxPlayers> Choices() const {
        std::array<PlayerChoice, kMaxPlayers> choices;
        std::ranges::transform(rows, choices.begin(), &PlayerRow::choice);
        return choices;
    }
};

// An opponent has one word list: a row that took another opponent takes over the list of a row that has it
// already, and one that took another list gives it to those.
void ShareWordList(Dialog& dialog, Rows& rows, PlayerRow& changed, bool takesOver) {
    for (PlayerRow& row : rows) {
        if (&row == &changed || row.choice.kind != changed.choice.kind) continue;
        PlayerRow& taker = takesOver ? changed : row;
        taker.choice.wordListChoice = (takesOver ? row : changed).choice.wordListChoice;
        ShowWordListChoice(dialog, taker);
    }
}

void TakeChange(Dialog& dialog, const DialogEvent& event, PlayersDialog& players) {
    for (PlayerRow& row : players.rows) {
        if (!TakePlayerRow(dialog, event, row, true, players.wordLists)) continue;
        ShareWordList(dialog, players.rows, row, event.control == row.Id(PlayersControls::kKind));
    }
}

// False when something has to be corrected first.
bool TakePlayers(Dialog& dialog, PlayersDialog& players) {
    for (PlayerRow& row : players.rows) ReadPlayerName(dialog, row);
    const PlayersFault found = FindPlayersFault(players.Choices());
    if (found.fault == PlayerFault::None) return true;
    Warning(TextOf(found.fault));
    if (found.fault != PlayerFault::NoPlayers) {
        CorrectPlayerName(dialog, players.rows[found.row], found.fault);
    }
    return false;
}

}  // namespace

bool ChoosePlayers() {
    PlayersDialog players;
    const int result =
        RunDialog(PlayersControls::kChoosePlayers, [&](Dialog& dialog, const DialogEvent& event) {
            if (event.kind == DialogEvent::Kind::Opened) {
                for (PlayerRow& row : players.rows) OpenPlayerRow(dialog, row, players.wordLists);
                FocusPlayerRow(dialog, players.rows[0]);
            }
            TakeChange(dialog, event, players);
            if (event.kind != DialogEvent::Kind::Pressed) return;
            if (event.control == kCancelId || TakePlayers(dialog, players)) {
                CloseDialog(dialog, event.control);
            }
        });
    if (result != kOkId) return false;
    InstallPlayers(players.Choices(), players.wordLists);
    return true;
}

}  // namespace quillet
