#include "play/announcements.h"

#include <algorithm>
#include <cstdint>

#include "base/idle_pump.h"
#include "base/presentation.h"
#include "computer/opponents.h"
#include "game/game_state.h"
#include "platform/ticks.h"
#include "store/preferences.h"

namespace quillet {
namespace {

constexpr std::uint32_t kAnnouncementPause = 1500;  // milliseconds
constexpr int kPleasedMood = 2;
constexpr int kDispleasedMood = 3;
constexpr int kWinnerVoice = 1;
constexpr int kLoserVoice = 2;
constexpr int kFirstPleasedVoice = 3;     // and the one after it
constexpr int kFirstDispleasedVoice = 5;  // and the one after it

// Which of two voices a computer player speaks with next; each player keeps its own place.
struct VoiceTurns {
    int pleased = kFirstPleasedVoice;
    int displeased = kFirstDispleasedVoice;
};
OneBased<VoiceTurns, kMaxPlayers> voiceTurns;

bool IsHushed() { return PlaysOnAlone() && !preferences.playSounds; }

void PlayVoice(const Player& player, int voice) {
    const Opponent& opponent = opponentTable.entries[static_cast<std::size_t>(player.opponent)];
    if (preferences.canWeTalk) PlaySoundFile(false, opponent.voices[voice]);
}

// Plays the voice whose turn it is, of two neighbouring ones.
void PlayNextVoice(int& voice, int first) {
    if (!preferences.canWeTalk) return;
    PlayVoice(game.Current(), voice);
    voice = first + (first + 1) - voice;
}

void PlayPleasedVoice() { PlayNextVoice(voiceTurns[game.currentPlayer].pleased, kFirstPleasedVoice); }
void PlayDispleasedVoice() {
    PlayNextVoice(voiceTurns[game.currentPlayer].displeased, kFirstDispleasedVoice);
}

void PlayEndGameSound(std::string_view name) {
    if (preferences.playEndGame) PlaySoundFile(true, name);
}

struct Announcement {
    std::string_view text;
    std::string_view sound;
};
constexpr Announcement kBingo{"*** BINGO! ***", "bingo.wav"};
constexpr Announcement kBonusWord{"*** BONUS WORD! ***", "bonus.wav"};

void Announce(const Announcement& announcement) {
    const std::uint32_t start = TickCount();
    SetStatusLine(1, announcement.text);
    if (game.Current().isComputer) {
        PlayPleasedVoice();
    } else if (preferences.playBingoBonus) {
        PlaySoundFile(true, announcement.sound);
    }
    if (!IsHushed()) WaitSince(start, kAnnouncementPause);
}

void TellPassOrThrow(std::string_view letters) {
    ClearStatusLines();
    SetStatusLine(2, letters.empty() ? "Pass!" : "Throw back");
    if (!letters.empty()) SetStatusLine(3, letters);
}

}  // namespace

bool PlaysOnAlone() { return AllComputers() && !preferences.tellComputerToMove; }

void ShowBingoBonus(int count) {
    if (count != kRackSize && game.bonusWordsThisMove == 0) return;
    ClearStatusLines();
    if (game.Current().isComputer) ShowOpponentMood(kPleasedMood);
    if (count == kRackSize) Announce(kBingo);
    if (game.bonusWordsThisMove > 0) Announce(kBonusWord);
}

void ShowPassOrThrow(std::string_view letters) {
    TellPassOrThrow(letters);
    ShowOpponentMood(kDispleasedMood);
    if (IsHushed()) return;
    PlayDispleasedVoice();
    WaitSince(TickCount(), kAnnouncementPause);
}

void ShowHintToPassOrThrow(std::string_view letters) {
    TellPassOrThrow(letters);
    WaitSince(TickCount(), kAnnouncementPause);
}

void PlayEndSound() {
    if (game.winner == 0) {
        PlayEndGameSound("tiedgame.wav");
        return;
    }
    const Player& winner = game.players[game.winner];
    if (winner.isComputer) {
        PlayVoice(winner, kWinnerVoice);
        return;
    }
    const auto lastPlayer = game.players.begin() + game.numPlayers;
    const auto loser = std::find_if(game.players.begin(), lastPlayer,
                                    [](const Player& player) { return player.isComputer; });
    if (game.numPlayers == 2 && loser != lastPlayer && preferences.canWeTalk) {
        PlayVoice(*loser, kLoserVoice);
    } else {
        PlayEndGameSound("clapping.wav");
    }
}

void ResetVoiceTurns() { voiceTurns = {}; }

}  // namespace quillet
