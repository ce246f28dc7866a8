// The user's settings: read once at start-up, each written to its item file the moment it changes.
//
// Owns preferences. Others read it; changes go through FlipPreference and the writers below. The players'
// names and the window's place are kept in the same store, but not in memory here.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "store/item_store.h"

namespace quillet {

struct Preferences {
    bool bigBoard = true;
    bool showComputerLetters = true;  // a computer player's rack is shown face up
    bool showLetterValues = true;
    bool saveStatistics = false;
    bool blinkComputerMoves = true;
    bool playSounds = true;          // master switch of all sounds
    bool canWeTalk = true;           // computer voices
    bool tellComputerToMove = true;  // a computer player waits to be told
    bool rackAbove = true;
    bool allowHints = true;  // hints, undo, redo, letter swapping, looking into the bag
    bool niceLetterMix = false;
    bool playIntroMusic = true;
    bool playTileClicks = true;
    bool playMixPermute = true;
    bool playBingoBonus = true;
    bool playEndGame = true;
    bool playByeBye = true;
    bool showAboutScenario = true;
    bool timerEnabled = false;
    std::int32_t timeLimit = 25;    // minutes for each player
    std::int32_t timePenalty = 10;  // points for each started minute over the limit
    Text<31> wordList = "Words";    // without extension
    Text<31> scenario;              // empty: the first one listed
};

inline Preferences preferences;

// Every use of prefsStore stands between these two. OpenPrefs makes a store without a version anew, with
// the defaults of all items; when its folder cannot be written: Fatal.
void OpenPrefs();
void ClosePrefs();

// From now on the preferences live in memory only, and opening the store does nothing: for programs that
// must not change what the player has chosen.
void DetachPreferences();

// Reads everything in `preferences`; numbers are then -99..99. A missing item is Fatal.
void LoadPreferences();

void FlipPreference(bool Preferences::*preference);

// Each sets the preference and writes its item.
void RememberWordList(std::string_view name);
void RememberScenario(std::string_view name);
void RememberTimer(bool enabled, std::int32_t timeLimit, std::int32_t timePenalty);

// Where the window stood on the screen, in the desktop's units, for each board size.
struct WindowPlace {
    std::int32_t top = 0;
    std::int32_t left = 0;
};
WindowPlace ReadWindowPlace(bool bigBoard);
void WriteWindowPlace(bool bigBoard, const WindowPlace& place);

// The players last chosen, 1 to 4 of them. A single "?" means that none have been chosen yet. Writing fewer
// than before leaves the items of the others.
std::vector<Text<12>> ReadPlayerNames();
void WritePlayerNames(std::span<const Text<12>> names);

}  // namespace quillet
