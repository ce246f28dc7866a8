// How a game ends: when it is over, what that costs and gives, and who won.
#pragma once

namespace quillet {

// After a computer's or a replayed move: when the game is over, says so in the game and adjusts the scores.
void CheckEndOfGame();

// Takes overtime and the letters left from the scores; who went out gets the letters of all.
void FinalAdjust();

// Sets the winner and names the players with the best score in the status lines.
void ShowWinner();

}  // namespace quillet
