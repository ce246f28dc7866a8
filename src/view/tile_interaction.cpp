#include "view/tile_interaction.h"

#include "base/presentation.h"
#include "platform/message_box.h"
#include "platform/ticks.h"
#include "play/end_of_game.h"
#include "play/rack_tools.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "view/board_drawing.h"
#include "view/drag.h"
#include "view/main_window.h"
#include "view/panels.h"
#include "view/render.h"
#include "view/tile_groups.h"
#include "view/typing.h"
#include "view/view_state.h"
#include "view/views.h"

namespace quillet {
namespace {

constexpr std::uint32_t kPressPause = 50;  // milliseconds
constexpr int kTriggerWidth = 15;          // of a player's row, at its right end

const Layout& At() { return view.layout; }

bool HumanIsToMove() { return game.IsRunning() && !game.Current().isComputer; }

// Follows the pointer while the button is held: true when it is let go inside.
bool TrackButton(const Rect& rect, void (*draw)(bool pressed)) {
    bool pressed = false;
    const auto show = [&](bool inside) {
        if (inside == pressed) return;
        pressed = inside;
        draw(inside);
        if (inside) Pause(kPressPause);
    };
    show(true);
    CapturePointer();
    PointerState pointer{.at = rect.Corner(), .buttonDown = true};
    while (pointer.buttonDown && pointer.active) {
        pointer = WaitForPointer(kForever);
        show(rect.Contains(pointer.at));
    }
    ReleasePointer();
    const bool inside = pressed && pointer.active;
    show(false);
    return inside;
}

bool TrackDoneButton() {
    view.moveFlashes = false;
    return TrackButton(At().doneButton, DrawDoneButton);
}

void ChangePlayer(int player) {
    if (!ChangeOnePlayer(player)) return;
    RestoreTiles();
    InvalidatePlayerRow(player);
    if (game.IsRunning() && player == game.currentPlayer) StartTurn();
    if (game.gameOver) ShowWinner();
    InvalidateButtons();
    InvalidateRack();
    PaintNow();
}

// Carries a group from where it was picked up to where it is dropped.
void CarryGroup(const TileGroup& group, Point start) {
    EraseOrigins(group);
    DropGroup(group, DragGroup(group, start));
    UpdateScorePreview();
}

void ClickRack(const Message& click) {
    const int slot = RackSlotAt(At(), click.at);
    const bool taken = game.gameStarted && game.Current().rack.positions[slot] != 0;
    if (click.rightButton) {
        if (game.bag.tilesleft == 0 || game.gameOver) return Beep();
        if (taken) ShowSwapView(slot, click.at);
        return;
    }
    if (HumanIsToMove() && taken) CarryGroup(PickUpFromRack(slot, click.shift, click.control), click.at);
}

void ClickBoard(const Message& click) {
    const std::optional<BoardPosition> at = SquareAt(At(), click.at);
    if (!at) return;
    const Square& square = game.board[at->row][at->col];
    if (square.IsPlaced()) {
        CarryGroup(PickUpFromBoard(*at, click.shift, click.control), click.at);
    } else if (!square.IsEmpty()) {
        Beep();
    }
}

void ClickOnMove(const Message& click) {
    const bool onBag = At().lettersLeftBox.Contains(click.at) || At().bagRect.Contains(click.at);
    if (onBag && !game.thrownBack.empty()) return ReturnThrownLetter();
    ClickBoard(click);
}

int PlayerRowAt(Point p) {
    for (int player = 1; player <= game.numPlayers; ++player) {
        if (At().playerRow[player].Contains(p)) return player;
    }
    return 0;
}

// What Control and a click switch or open; false when it is an ordinary click after all.
bool ClickWithControl(Point p) {
    if (At().infoPanel.Contains(p)) {
        SwitchBoardSize();
        return true;
    }
    if (At().lettersLeftBox.Contains(p)) {
        FlipPreference(&Preferences::showLetterValues);
        RedrawTiles();
        return true;
    }
    const int player = game.gameStarted ? PlayerRowAt(p) : 0;
    if (player == 0) return false;
    ChangePlayer(player);
    return true;
}

void ClickPlayerRow(int player, Point p) {
    if (p.x >= At().playerRow[player].right - kTriggerWidth) ShowHistoryView(player);
}

}  // namespace

ClickResult HandleClick(const Message& click) {
    const Point p = click.at;
    if (DoneButtonShows() && At().doneButton.Contains(p)) {
        return TrackDoneButton() ? ClickResult::FinishTurn : ClickResult::Done;
    }
    if (click.control && ClickWithControl(p)) return ClickResult::Done;
    if (At().rackTileStrip.Contains(p)) {
        ClickRack(click);
    } else if (At().statisticsBox.Contains(p)) {
        ShowStatisticsView();
    } else if (At().bonusWordsBox.Contains(p)) {
        if (click.control) {
            ShowPaletteView();
        } else if (BonusWordsShow()) {
            ShowBonusWordsView();
        }
    } else if (At().BagViewTrigger().Contains(p)) {
        ShowBagView();
    } else if (MixButtonShows() && At().mixButton.Contains(p)) {
        if (TrackButton(At().mixButton, DrawMixButton)) MixRack();
    } else if (const int player = PlayerRowAt(p); player != 0) {
        ClickPlayerRow(player, p);
    } else if (HumanIsToMove()) {
        ClickOnMove(click);
    }
    return ClickResult::Done;
}

void HandleArrow(Key key) {
    switch (key) {
        case Key::Left:
            return TypeArrow(Direction::Left);
        case Key::Right:
            return TypeArrow(Direction::Right);
        case Key::Up:
            return TypeArrow(Direction::Up);
        case Key::Down:
            return TypeArrow(Direction::Down);
        default:
            return;
    }
}

}  // namespace quillet
