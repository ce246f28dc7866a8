// Choosing who plays, as the person does it in a dialog: what can be chosen, what is wrong with a choice, and
// making it the game's.
//
// Owns nothing; changes the players of the game, the preferences and the opponents' word lists.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "computer/opponents.h"

namespace quillet {

// The kinds of player in the order in which they are offered: none, a human, a heading that is no choice, and
// the opponents.
constexpr int kNoPlayer = 0;
constexpr int kHumanPlayer = 1;
constexpr int kComputersHeading = 2;
constexpr int kFirstOpponentKind = 3;

constexpr int OpponentOfKind(int kind) { return kind - kFirstOpponentKind + 1; }
std::vector<std::string> PlayerKinds();  // their names

constexpr int kNumSkills = 10;
constexpr int SkillOfChoice(int choice) { return 9 - choice; }  // the highest is offered first

struct PlayerChoice {
    int kind = kNoPlayer;
    std::string name;                // of a human
    int skillChoice = 5;             // of a computer player
    std::size_t wordListChoice = 0;  // of WordListChoices
};

// The choice that gives player 1..4 as the game has it; none beyond the number of players.
PlayerChoice ChoiceOfPlayer(int player, const std::vector<std::string>& wordLists);

enum class PlayerFault : std::uint8_t { None, NoName, NameTooLong, NoPlayers };

struct PlayersFault {
    PlayerFault fault = PlayerFault::None;
    std::size_t row = 0;  // 0-based, where it is
};

// What is wrong with the choices, if anything: names that are missing before those that are too long.
PlayersFault FindPlayersFault(std::span<const PlayerChoice> choices);

// What to tell the person about it.
std::string_view TextOf(PlayerFault fault);

// Makes these the players, in which nothing is wrong; rows without a player close up. The game with them is
// to be started next.
void InstallPlayers(std::span<const PlayerChoice> choices, const std::vector<std::string>& wordLists);

// Replaces a single player in the running game.
void ReplacePlayer(int player, const PlayerChoice& choice, const std::vector<std::string>& wordLists);

}  // namespace quillet
