// The pictures that are shipped, one function each; README.md tells how they want to look. All take the
// scale, 1 or 2, and give a picture of scale times the size named here.
#pragma once

#include <QImage>
#include <array>
#include <string_view>

namespace quillet {

// The pitch of squares on the two boards; a square picture is one less.
constexpr int kBigPitch = 27, kSmallPitch = 24;

// --- Patterns, 8 x 8, that join on all sides ---
QImage DrawCloth(int scale);
QImage DrawShadow(int scale);
QImage DrawPopupGround(int scale);

// --- Tiles and sheets, for a pitch ---
QImage DrawTile(int pitch, int scale);         // pitch - 1 in both directions
QImage DrawLetterSheet(int pitch, int scale);  // 9 x 5 cells between lines
QImage DrawValueSheet(int pitch, int scale);   // 11 cells between lines

// --- Squares, 26 x 26 ---
constexpr int kSquareKindCount = 15;
constexpr int kFirstBlocked = 9;
// As the scenario of that name has it; empty for a new one.
QImage DrawSquare(int kind, std::string_view scenario, int scale);

// --- Panels ---
QImage DrawInfoPanel(int scale);                 // 215 x 150
QImage DrawNotePanel(bool bigBoard, int scale);  // 215 x 195 or 140
QImage DrawRack(int scale);                      // 229 x 38
QImage DrawLock(int scale);                      // 9 x 11, ink
enum class ButtonState { Up, Pressed, Flashing };
QImage DrawButton(const char* text, ButtonState state, int scale);  // 60 x 36

// --- Bag, 96 x 56: 1 full to 4 empty ---
QImage DrawBag(int fill, int scale);
QImage DrawBagInk(int scale);  // ink on white

// --- The program's name ---
QImage DrawLogo(int scale);       // 225 x 46
QImage DrawSplash(int scale);     // 640 x 414
QImage DrawIcon(int pixels);      // on a clear ground
QImage DrawAboutIcon(int scale);  // 64 x 64, the icon on cloth

// --- Opponents, 215 x 150 ---
constexpr int kMoodCount = 5;  // normal, pleased, displeased, winner, loser
QImage DrawOpponent(std::string_view name, int mood, int scale);  // mood from 1

}  // namespace quillet
