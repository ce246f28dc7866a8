// Never lose a game: the running game is kept in a file among the preferences after every move, so that a
// start after a crash, or after the power went, can go on with it. At a proper end the file goes.
//
// Owns which file this run keeps its game in, and the lock on it. Programs that run at the same time each
// have a file of their own, and none takes a file that another holds.
#pragma once

namespace quillet {

// Takes a file for this run. When one is there that a run left behind, and a game may be offered, asks
// whether to go on with it: yes opens it, no gives it up. A file that cannot be opened is left for another
// start, and the next one is offered.
void StartKeepingGame(bool mayOffer);

// To be called often: writes the running game if it is not the one last written, with the moves that were
// taken back, and removes the file when there is nothing to lose. A game that was lost because another file
// could not be opened comes back. Warns once a run when the game cannot be written, and then goes on trying.
void KeepRunningGame();

// At a proper end. The file goes, unless the game is in no other place.
void EndKeepingGame(bool gameIsSafe);

}  // namespace quillet
