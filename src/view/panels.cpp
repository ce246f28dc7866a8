#include "view/panels.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "computer/opponents.h"
#include "game/game_state.h"
#include "store/preferences.h"
#include "view/graphics.h"
#include "view/palette.h"
#include "view/view_state.h"
#include "words/dict.h"

namespace quillet {
namespace {

constexpr int kRowBaseline = 10;  // below the top of a row of text
constexpr int kTriangleLines = 5;
constexpr int kWinnerMood = 4;
constexpr int kLoserMood = 5;

const Layout& At() { return view.layout; }

void DrawTextEndingAt(int right, int baseline, std::string_view text, Colour colour = kBlack) {
    WindowCanvas().DrawText(kTextFont, {right - TextWidth(kTextFont, text), baseline}, text, colour);
}

// --- The information panel ---

struct Featured {
    const Opponent* opponent = nullptr;  // none: no computer player is featured
    int mood = 1;
};

Featured FeaturedAs(const Player& player, int mood) {
    return {&opponentTable.entries[static_cast<std::size_t>(player.opponent)], mood};
}

Featured FeaturedOpponent() {
    if (game.IsRunning()) {
        const Player& player = game.Current();
        return player.isComputer ? FeaturedAs(player, view.opponentMood) : Featured{};
    }
    if (!game.gameStarted || game.winner == 0) return {};
    const Player& winner = game.players[game.winner];
    if (winner.isComputer) return FeaturedAs(winner, kWinnerMood);
    const Player& other = game.players[3 - std::min<int>(game.winner, 2)];
    return game.numPlayers == 2 && other.isComputer ? FeaturedAs(other, kLoserMood) : Featured{};
}

// What lies behind the status lines; what comes back is the colour to write them in.
Colour DrawInfoBackground() {
    Canvas& canvas = WindowCanvas();
    const Rect& panel = At().infoPanel;
    const Featured featured = FeaturedOpponent();
    if (featured.opponent != nullptr) {
        const std::optional<Picture>& picture = featured.opponent->pictures[featured.mood];
        if (!picture) {
            canvas.Fill(panel, kBlack);
            return kWhite;
        }
        Picture fitted = *picture;
        FitToPalette(fitted);
        canvas.Draw(fitted, panel);
        return featured.opponent->textColour;
    }
    if (view.colourDisplay) {
        canvas.Draw(graphics.info, panel);
        return PanelColour();
    }
    canvas.Fill(At().infoTextArea, kBlack);
    for (int ring = 0; ring < 6; ++ring) canvas.Frame(panel.Shrunk(ring), kWhite);  // all around the text
    return kWhite;
}

void WriteStatusLine(int line, std::string_view text, Colour colour) {
    if (text.empty()) return;
    const Rect box = At().StatusLineBox(line);
    const ClipTo clip(WindowCanvas(), box);
    WindowCanvas().DrawText(PanelFont(), {box.left + 4, box.top + 15}, text, colour);
}

// --- The table of the players ---

void DrawHeadings() {
    const Rect box = At().playerRow[1].Moved(0, -20);
    const ClipTo clip(WindowCanvas(), box);
    const int baseline = box.top + kRowBaseline;
    WindowCanvas().DrawText(kTextFont, {box.left + 10, baseline}, "Players", kBlack);
    DrawTextEndingAt(box.right - 63, baseline, "Moves");
    DrawTextEndingAt(box.right - 23, baseline, "Scores");
}

void DrawClipped(const Rect& box, int baseline, std::string_view text) {
    const ClipTo clip(WindowCanvas(), box);
    WindowCanvas().DrawText(kTextFont, {box.left, baseline}, text, kBlack);
}

void DrawPlayerRow(int number) {
    const Player& player = game.players[number];
    const Rect& row = At().playerRow[number];
    Canvas& canvas = WindowCanvas();
    const ClipTo clip(canvas, row);
    const int baseline = row.top + kRowBaseline;
    const std::string turns = std::to_string(player.turns);
    const Rect nameBox{row.left + 10, row.top, row.right - 67 - TextWidth(kTextFont, turns), row.bottom};
    DrawClipped(nameBox, baseline, player.name);
    // The mark of the player to move: a bullet as high as a small letter.
    if (number == game.currentPlayer) canvas.Disc(Rect::At({row.left + 1, baseline - 6}, {5, 5}), kBlack);
    DrawTextEndingAt(row.right - 64, baseline, turns);
    DrawTextEndingAt(row.right - 24, baseline, std::to_string(player.score));
    canvas.Triangle({row.right - 8, row.top + 4}, kTriangleLines, true, kBlack);
}

void DrawLabel(const Rect& box, std::string_view text) {
    DrawTextEndingAt(box.left - 8, box.top + kRowBaseline, text);
    WindowCanvas().Triangle({box.right - 8, box.top + 4}, kTriangleLines, true, kBlack);
}

void DrawClock() {
    if (!preferences.timerEnabled) return;
    const Rect& row = At().clockRow;
    const int remaining = game.timeLimit * 60 - game.Current().timeUsed - game.turnSeconds;
    const int seconds = std::abs(remaining);
    const std::string digits =
        std::to_string(seconds / 60) + (seconds % 60 < 10 ? ":0" : ":") + std::to_string(seconds % 60);
    const Colour colour = remaining < 0 ? kDarkRed : kBlack;
    const std::string_view label = remaining < 0 ? "Overtime" : "Time left";
    WindowCanvas().DrawText(kTextFont, {row.left + 10, row.top + 10}, label, colour);
    WindowCanvas().DrawText(kTextFont, {row.left + 10, row.top + 24}, digits, colour);
}

void DrawNotePicture() {
    WindowCanvas().Draw(At().bigBoard ? graphics.note : graphics.smallNote, At().visibleNote);
}

int BagPicture() {
    const int left = game.bag.tilesleft;
    const int total = game.bag.totaltiles;
    if (!view.colourDisplay) return 1;
    if (left == 0) return 4;
    if (left <= total / 4) return 3;
    return left > total / 2 ? 1 : 2;
}

}  // namespace

void DrawLettersLeft() {
    Canvas& canvas = WindowCanvas();
    const Rect& box = At().lettersLeftBox;
    canvas.Fill(box.Shrunk(1), kWhite);
    canvas.Frame(box, kBlack);
    std::string text = "Letters left:  " + std::to_string(game.bag.tilesleft);
    if (!game.thrownBack.empty()) {
        text = "Replace " + std::string(game.thrownBack.View());
        std::ranges::replace(text, kBlank, '?');
    }
    {
        const ClipTo clip(canvas, {box.left, box.top, box.right - 15, box.bottom});
        canvas.DrawText(kTextFont, {box.left + 6, box.top + 13}, text, kBlack);
    }
    if (game.bag.tilesleft == 0) return;
    canvas.VerticalLine(box.right - 15, box.top, box.top + 18, kBlack);
    const bool opensDown = box.top < 200;
    if (!preferences.allowHints) {
        canvas.And(graphics.lock, {box.right - 11, box.top + 4});
    } else {
        canvas.Triangle({box.right - 8, opensDown ? box.top + 11 : box.top + 7}, kTriangleLines, !opensDown,
                        kBlack);
    }
}

void DrawBag() {
    view.bagPicture = BagPicture();
    WindowCanvas().Draw(view.colourDisplay ? graphics.bag[view.bagPicture] : graphics.bagBlackAndWhite,
                        At().bagRect);
}

void DrawInfoPanel() {
    const Colour colour = DrawInfoBackground();
    for (int line = 1; line <= kStatusLines; ++line) WriteStatusLine(line, game.statusLines[line], colour);
}

void DrawStatusLine(int line, std::string_view text) {
    const ClipTo clip(WindowCanvas(), At().StatusLineBox(line));
    WriteStatusLine(line, text, DrawInfoBackground());
}

bool BonusWordsShow() { return game.settings.bonusWordsEnabled && bonusDict.numwords > 0; }

void DrawNotePanel() {
    DrawNotePicture();
    if (!game.gameStarted) return;
    DrawHeadings();
    for (int player = 1; player <= game.numPlayers; ++player) DrawPlayerRow(player);
    DrawClock();
    if (BonusWordsShow()) DrawLabel(At().bonusWordsBox, "Bonus words");
    DrawLabel(At().statisticsBox, "Statistics");
}

void DrawClockDigits() {
    const Rect& row = At().clockRow;
    const ClipTo clip(WindowCanvas(), {row.left, row.top + 14, row.right, row.bottom});
    DrawNotePicture();
    DrawClock();
}

bool MixButtonShows() { return game.IsRunning(); }

bool DoneButtonShows() {
    return game.IsRunning() && (!game.Current().isComputer || preferences.tellComputerToMove);
}

void DrawMixButton(bool pressed) {
    WindowCanvas().Draw(pressed ? graphics.mixPressed : graphics.mix, At().mixButton);
}

void DrawDoneButton(bool pressed) {
    const bool isMove = game.Current().isComputer;
    const Picture& up = !isMove ? graphics.done : view.moveFlashes ? graphics.moveFlashing : graphics.move;
    const Picture& down = isMove ? graphics.movePressed : graphics.donePressed;
    WindowCanvas().Draw(pressed ? down : up, At().doneButton);
}

}  // namespace quillet
