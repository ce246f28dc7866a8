// Taking moves back and playing them again: undo, redo, opening a saved game, and each player's list of
// moves. The records tell everything; no random number is used, so a replayed game is the recorded one.
//
// Changes game. Undo, redo and the list of moves work only while the player allows hints.
//
// Replaying checks no words and no rules of placement. Records that cannot have been played (a saved game may
// hold anything) end in a Fatal that begins "Bug".
#pragma once

#include <string>

namespace quillet {

// Takes the last move back, also the one that ended the game; its player is then to move.
void UndoMove();

// Plays the next undone move again.
void RedoMove();

// Goes to the position before record t, 1..movesCount + redoCount + 1. A computer player that would then
// replay at once is told to wait.
void GoToMove(int t);

// When a computer is to move and would do so by itself, makes computers wait to be told.
void MakeComputerWait();

// Applies record n to the game, which must stand just before it.
void ReplayMove(int n);

// Plays all moves of a saved game that LoadGame has read.
void OpenGameReplay();

// A player's history has a line for each of the player's records, undone ones too, and one more when the
// game is over or moves were undone. Lines are numbered from 1.
int HistoryLineCount(int player);

// The record that a line stands for; for the closing line movesCount + redoCount + 1.
int HistoryRecord(int player, int line);

// The line's text in columns of a fixed-pitch font, column 0 first: the record's number from 0; at 4 the mark
// of an undone record (the bullet kNextMark for the one to be redone next, then "+"); the letters from 6; the
// score, whose end is where column 28 begins; with the timer on the time left, likewise with 40. Without
// blanks at its end.
std::string HistoryLine(int player, int line);

constexpr char kNextMark = '\xB7';

}  // namespace quillet
