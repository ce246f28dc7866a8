#include "computer/player_choice.h"

#include <algorithm>

namespace quillet {
namespace {

const Opponent& OpponentAt(int index) { return opponentTable.entries[static_cast<std::size_t>(index)]; }

// Where no opponents were found, one without a character is offered.
int NumOffered() { return std::max(opponentTable.numOpponents, 1); }

bool IsOpponent(const PlayerChoice& choice) { return choice.kind >= kFirstOpponentKind; }

PlayerName NameOf(const PlayerChoice& choice) {
    if (!IsOpponent(choice)) return std::string_view(choice.name);
    PlayerName name(OpponentAt(OpponentOfKind(choice.kind)).name);
    name.Append(' ');
    name.Append(static_cast<char>('0' + SkillOfChoice(choice.skillChoice)));
    return name;
}

void SaveLexicon(const PlayerChoice& choice, const std::vector<std::string>& wordLists) {
    if (!IsOpponent(choice)) return;
    SaveOpponentLexicon(OpponentOfKind(choice.kind), wordLists, choice.wordListChoice);
}

}  // namespace

std::vector<std::string> PlayerKinds() {
    std::vector<std::string> kinds{"No player", "Human", "Computer players..."};
    for (int i = 1; i <= NumOffered(); ++i) kinds.emplace_back(OpponentAt(i).name.View());
    return kinds;
}

PlayerChoice ChoiceOfPlayer(int p, const std::vector<std::string>& wordLists) {
    PlayerChoice choice;
    if (p > game.numPlayers) return choice;
    const Player& player = game.players[p];
    if (!player.isComputer) {
        choice.kind = kHumanPlayer;
        choice.name = player.name.View();
        return choice;
    }
    const bool isListed = player.opponent >= 1 && player.opponent <= opponentTable.numOpponents;
    const int opponent = isListed ? player.opponent : 1;
    choice.kind = kFirstOpponentKind + opponent - 1;
    choice.skillChoice = 9 - player.skill;
    choice.wordListChoice = WordListChoiceOf(opponent, wordLists);
    return choice;
}

PlayersFault FindPlayersFault(std::span<const PlayerChoice> choices) {
    const auto find = [&](PlayerFault fault, auto&& isFaulty) {
        const auto found = std::ranges::find_if(choices, isFaulty);
        if (found == choices.end()) return PlayersFault{};
        return PlayersFault{fault, static_cast<std::size_t>(found - choices.begin())};
    };
    const auto isHuman = [](const PlayerChoice& choice) { return choice.kind == kHumanPlayer; };
    PlayersFault fault = find(PlayerFault::NoName, [&](const PlayerChoice& choice) {
        return isHuman(choice) && choice.name.empty();
    });
    if (fault.fault != PlayerFault::None) return fault;
    fault = find(PlayerFault::NameTooLong, [&](const PlayerChoice& choice) {
        return isHuman(choice) && choice.name.size() > PlayerName::capacity();
    });
    const bool isEmpty =
        std::ranges::all_of(choices, [](const PlayerChoice& choice) { return choice.kind == kNoPlayer; });
    return isEmpty ? PlayersFault{PlayerFault::NoPlayers, 0} : fault;
}

std::string_view TextOf(PlayerFault fault) {
    switch (fault) {
        case PlayerFault::NoName:
            return "Type in name of human player.";
        case PlayerFault::NameTooLong:
            return "Sorry, but that name is too long.";
        case PlayerFault::NoPlayers:
            return "There must be at least one player.";
        default:
            return {};
    }
}

void InstallPlayers(std::span<const PlayerChoice> choices, const std::vector<std::string>& wordLists) {
    game.numPlayers = 0;
    for (const PlayerChoice& choice : choices) {
        if (choice.kind == kNoPlayer) continue;
        Player& player = game.players[++game.numPlayers];
        player.name = NameOf(choice);
        player.score = 0;
        player.turns = 0;
        PlayerKindFromName(game.numPlayers);
    }
    SavePlayers();
    for (const PlayerChoice& choice : choices) SaveLexicon(choice, wordLists);
    LoadOpponentData();
}

void ReplacePlayer(int player, const PlayerChoice& choice, const std::vector<std::string>& wordLists) {
    game.players[player].name = NameOf(choice);
    PlayerKindFromName(player);
    SavePlayers();
    SaveLexicon(choice, wordLists);
    LoadOpponentData();
}

}  // namespace quillet
