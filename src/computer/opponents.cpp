#include "computer/opponents.h"

#include <algorithm>
#include <string>
#include <vector>

#include "store/item_store.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr ItemId kLexiconItem = 300;
constexpr int kFirstVoice = 8000;

// Entries 1 to count are compared in order; 0 when none has the name.
int OpponentNamed(std::string_view name) {
    for (int i = 1; i <= opponentTable.count; ++i) {
        if (EqualIgnoringCase(opponentTable.entries[static_cast<std::size_t>(i)].name, name)) return i;
    }
    return 0;
}

void LoadOpponent(Opponent& opponent) {
    opponentStore.member = Text<31>(opponent.name.View());
    const std::string folder =
        std::string(ResourceString(opponentStore.folder)) + "\\" + std::string(opponent.name.View());
    if (!FolderExists(folder)) return;
    opponent.lexicon = ReadItemText<31>(opponentStore, kLexiconItem);
    for (int k = 1; k <= kNumVoices; ++k) {
        Text<31>& voice = opponent.voices[k];
        voice = Text<31>(opponent.name.View());
        voice.Append("\\" + std::to_string(kFirstVoice + k) + ".wav");
    }
}

}  // namespace

void PlayerKindFromName(int p) {
    Player& player = game.players[p];
    std::string_view name = player.name;
    const bool endsInDigit = !name.empty() && name.back() >= '0' && name.back() <= '9';
    player.isComputer = endsInDigit;
    player.skill = endsInDigit ? static_cast<std::uint16_t>(name.back() - '0') : std::uint16_t{0};
    player.opponent = 0;
    if (!endsInDigit) return;
    name.remove_suffix(1);
    while (name.ends_with(' ')) name.remove_suffix(1);
    player.opponent = OpponentNamed(name);
}

void ReadPlayerSetUp() {
    const std::vector<PlayerName> names = ReadPlayerNames();
    game.numPlayers = static_cast<std::uint16_t>(names.size());
    for (int p = 1; p <= game.numPlayers; ++p) {
        Player& player = game.players[p];
        player.name = names[static_cast<std::size_t>(p) - 1];
        player.rack = {};
        PlayerKindFromName(p);
    }
    game.currentPlayer = 1;
}

void LoadOpponentData() {
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        if (player.isComputer && player.opponent > 0) {
            LoadOpponent(opponentTable.entries[static_cast<std::size_t>(player.opponent)]);
        }
    }
}

}  // namespace quillet
