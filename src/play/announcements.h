// What a game says of its moves: bingos and bonus words, passes and exchanges, and the sounds of its end.
//
// Owns whose voice comes next: computer players speak with two voices in turn.
#pragma once

#include <string_view>

namespace quillet {

// A computer game that plays by itself.
bool PlaysOnAlone();

// Announces a placement of that many tiles by the current player, when it used all seven or formed bonus
// words, and waits a moment.
void ShowBingoBonus(int count);

// Announces a computer's pass (no letters) or exchange, and waits a moment.
void ShowPassOrThrow(std::string_view letters);

// Shows that a hint advises to pass or to exchange, and waits a moment.
void ShowHintToPassOrThrow(std::string_view letters);

// The sound for the winner, the loser or a tie.
void PlayEndSound();

// Every player begins again with the first of its voices.
void ResetVoiceTurns();

}  // namespace quillet
