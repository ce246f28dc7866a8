#include "pieces.h"

#include <algorithm>
#include <array>

#include "levels.h"

namespace quillet {
namespace {

// The notes by name, for StrikeBar and PluckString.
enum Pitch {
    G2 = 43,
    D3 = 50,
    G3 = 55,
    A3 = 57,
    D4 = 62,
    E4 = 64,
    G4 = 67,
    A4 = 69,
    B4 = 71,
    D5 = 74,
    E5 = 76,
    G5 = 79,
    B5 = 83,
    D6 = 86
};

struct Note {
    double at;
    Pitch pitch;
    double force = 1;
    double side = 0;
};

void Strike(Track& track, std::initializer_list<Note> notes) {
    for (const Note& note : notes) StrikeBar(track, note.pitch, {note.at, note.force, note.side});
}

void Pluck(Track& track, std::initializer_list<Note> notes) {
    for (const Note& note : notes) PluckString(track, note.pitch, {note.at, note.force, note.side});
}

// A quill writes a flourish; the bars answer with a rising tune and a warm chord.
void PlayStart(Track& track) {
    Chance chance(1);
    DrawQuill(track, 0.13, {0.0, 0.5, -0.4}, chance);
    DrawQuill(track, 0.09, {0.15, 0.4, -0.2}, chance);
    DrawQuill(track, 0.24, {0.26, 0.6, 0.1}, chance);
    Pluck(track, {{0.5, G2, 0.8}, {0.95, D3, 0.6}, {1.4, G2, 0.9}, {1.41, D3, 0.5}});
    Strike(track, {{0.5, G3, 0.8, -0.3},
                   {0.65, D4, 0.8, -0.2},
                   {0.8, G4, 0.85, -0.1},
                   {0.95, B4, 0.9},
                   {1.1, A4, 0.75, 0.1},
                   {1.25, D5, 0.9, 0.2}});
    Strike(track,
           {{1.4, G4, 0.8, -0.3}, {1.43, B4, 0.75, -0.1}, {1.46, D5, 0.75, 0.1}, {1.5, G5, 0.85, 0.3}});
}

// The tune goes home, the book is shut, and the last two tiles go back into the box.
void PlayQuit(Track& track) {
    Chance chance(2);
    Strike(track, {{0, D5, 0.8, 0.2},
                   {0.14, B4, 0.75, 0.1},
                   {0.28, A4, 0.7},
                   {0.42, G4, 0.85, -0.1},
                   {0.43, D4, 0.6, -0.2}});
    Pluck(track, {{0.42, G2, 0.8}, {0.425, D3, 0.4}});
    StirPaper(track, 0.2, {0.72, 0.35, 0.1}, chance);
    SetTile(track, 1.3, {0.93, 0.3, -0.2});
    SetTile(track, 1.15, {1.03, 0.22, 0.2});
}

void PlayTile(Track& track) { SetTile(track, 1, {0}); }

// A hand goes through the tiles on the rack.
void PlayMix(Track& track) {
    Chance chance(3);
    StirPaper(track, 0.36, {0, 0.3, 0}, chance);
    constexpr int kTiles = 9;
    for (int i = 0; i < kTiles; ++i) {
        const double at = 0.01 + 0.042 * i + chance.Between(-0.008, 0.012);
        SetTile(track, chance.Between(0.85, 1.25), {at, chance.Between(0.3, 0.9), chance.Between(-0.6, 0.6)});
    }
}

// Seven notes for seven letters, and what they were worth.
void PlayBingo(Track& track) {
    constexpr std::array kLetters = {G4, A4, B4, D5, E5, G5, B5};
    double at = 0;
    for (const Pitch pitch : kLetters) {
        StrikeBar(track, pitch, {at, 0.65 + at / 2, at - 0.25});
        at += 0.068;
    }
    Strike(track, {{at, D5, 0.85, -0.2}, {at, G5, 0.85, 0.1}, {at, D6, 0.9, 0.3}});
    Pluck(track, {{0, G3, 0.5}, {at, G2, 0.8}, {at, D3, 0.6}, {at, G3, 0.6}});
}

// Something was found: a grace and a twinkle.
void PlayBonus(Track& track) {
    Strike(track, {{0, D5, 0.7, -0.2},
                   {0.06, G5, 0.8, -0.1},
                   {0.2, B5, 0.8, 0.1},
                   {0.3, D6, 0.85, 0.2},
                   {0.4, B5, 0.5, -0.1},
                   {0.48, D6, 0.55, 0.2},
                   {0.56, B5, 0.35, -0.1},
                   {0.64, D6, 0.4, 0.2}});
    Pluck(track, {{0.06, G3, 0.6}, {0.2, D4, 0.6, -0.1}, {0.3, G4, 0.5, 0.1}});
}

// Two players on either side say the same, meet, and leave it open.
void PlayTie(Track& track) {
    Strike(track, {{0, D4, 0.85, -0.7},
                   {0.15, G4, 0.8, -0.6},
                   {0.34, D4, 0.85, 0.7},
                   {0.49, G4, 0.8, 0.6},
                   {0.72, A4, 0.8, -0.5},
                   {0.72, A4, 0.8, 0.5},
                   {0.735, D4, 0.7},
                   {0.75, E5, 0.75}});
    Pluck(track, {{0, G3, 0.4, -0.4}, {0.34, G3, 0.4, 0.4}, {0.72, D3, 0.9}});
}

// A small hall: each listener claps in a beat of their own and stops when the others do.
void PlayClapping(Track& track) {
    Chance chance(4);
    constexpr int kListeners = 34;
    for (int listener = 0; listener < kListeners; ++listener) {
        const double hands = chance.Between(0, 1), side = chance.Between(-0.9, 0.9);
        const double near = chance.Between(0.25, 1), beat = chance.Between(0.17, 0.27);
        const double stops = chance.Between(1.3, 2.3);
        for (double at = chance.Between(0.01, 0.45); at < stops; at += beat * chance.Between(0.9, 1.1)) {
            const double tired = at > stops - 0.5 ? 0.4 + (stops - at) * 1.2 : 1;
            Clap(track, hands, {at, near * tired * chance.Between(0.7, 1), side}, chance);
        }
    }
}

constexpr double kUsual = -20, kOften = -25, kAlways = -30;

constexpr std::array kPieces = {
    Piece{"start", 2.45, kUsual, 2, 0.3, PlayStart}, Piece{"quit", 1.4, kUsual, 2, 0.3, PlayQuit},
    Piece{"tile", 0.05, kAlways, 1, 0, PlayTile},    Piece{"mix", 0.5, kOften, 2, 0.15, PlayMix},
    Piece{"bingo", 1.2, kUsual, 2, 0.3, PlayBingo},  Piece{"bonus", 1.1, kUsual, 2, 0.3, PlayBonus},
    Piece{"tiedgame", 1.5, kUsual, 2, 0.3, PlayTie}, Piece{"clapping", 2.45, kUsual, 2, 0.35, PlayClapping},
};

}  // namespace

std::span<const Piece> Pieces() { return kPieces; }

Wave MakeWave(const Piece& piece) {
    Track track(piece.seconds);
    piece.play(track);
    if (piece.room > 0) AddRoom(track, piece.room);
    Wave wave = WaveOf(track, piece.channels);
    Fade(wave, 0.0005, std::min(piece.seconds / 3, 0.35));
    SetLoudness(wave, piece.loudness);
    return wave;
}

}  // namespace quillet
