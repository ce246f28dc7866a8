// The view of a player's moves: a list that scrolls while the pointer rests on its ends, and from which a
// move can be chosen.
#include <algorithm>
#include <string>

#include "platform/window.h"
#include "play/history.h"
#include "store/preferences.h"
#include "view/graphics.h"
#include "view/pop_up.h"
#include "view/view_state.h"
#include "view/views.h"

namespace quillet {
namespace {

constexpr int kHeadRows = 2;  // above the moves
constexpr int kFewestLines = 4;
constexpr int kHighest = 2;  // where the view's top may be
constexpr int kLeftMargin = 6;
constexpr int kMarkColumn = 4;
constexpr std::uint32_t kScrollPause = 50;  // milliseconds for each line

const Layout& At() { return view.layout; }

struct HistoryList {
    int player = 1;
    int lines = 0;    // of the history
    int visible = 0;  // of them, as many as fit
    int above = 0;    // that have scrolled out at the top
    Rect rect{};
    Rect trigger{};
    FontMetrics metrics{};
    int picked = 0;  // line under the pointer, 1-based; 0 none

    int Below() const { return lines - visible - above; }
    bool HasTime() const { return preferences.timerEnabled && lines > 0; }
    // The line shown in that place of the list (1..visible); 0 where a triangle tells of more.
    int LineAt(int place) const {
        const bool more = (place == 1 && above > 0) || (place == visible && Below() > 0);
        return more ? 0 : above + place;
    }
    Rect PlaceRect(int place) const {
        const int top = rect.top + (kHeadRows + place - 1) * metrics.height + metrics.descent;
        return {rect.left + 1, top, rect.right - 2, top + metrics.height};
    }
    int PlaceAt(Point p) const {
        for (int place = 1; place <= visible; ++place) {
            if (PlaceRect(place).Contains(p)) return place;
        }
        return 0;
    }
};

HistoryList MakeList(int player) {
    HistoryList list{.player = player, .lines = HistoryLineCount(player), .metrics = MetricsOf(kViewFont)};
    list.visible = list.lines;
    const Rect& row = At().playerRow[player];
    const int width = (28 + (list.HasTime() ? 12 : 0)) * list.metrics.averageWidth + 2 * kLeftMargin;
    const int bottom = row.top - 2;
    int top = bottom - (list.lines + kHeadRows) * list.metrics.height - 2 * list.metrics.descent;
    while (top < kHighest && list.visible > kFewestLines) {
        --list.visible;
        ++list.above;
        top += list.metrics.height;
    }
    list.rect = {row.left + 3, top, row.left + 3 + width, bottom};
    list.trigger = {row.right - 15, row.top, row.right, row.bottom};
    return list;
}

void DrawPlace(const HistoryList& list, int place) {
    Canvas& canvas = WindowCanvas();
    const Rect box = list.PlaceRect(place);
    canvas.Fill(box, kWhite);
    const int line = list.LineAt(place);
    if (line == 0) {
        const int middle = (box.top + box.bottom) / 2;
        const bool up = place == 1;
        canvas.Triangle({box.left + 10, up ? middle - 2 : middle + 2}, 5, up, kBlack);
        return;
    }
    std::string text = HistoryLine(list.player, line);
    const int baseline = list.rect.top + (kHeadRows + place) * list.metrics.height;
    if (text.size() > kMarkColumn && text[kMarkColumn] == kNextMark) {
        text[kMarkColumn] = ' ';
        const int left = list.rect.left + kLeftMargin + 1 + kMarkColumn * list.metrics.averageWidth;
        canvas.Disc(Rect::At({left, baseline - 6}, {5, 5}), kBlack);
    }
    const ClipTo clip(canvas, list.rect.Shrunk(1));
    canvas.DrawText(kViewFont, {list.rect.left + kLeftMargin, baseline}, text, kBlack);
    if (line == list.picked) canvas.Invert(box);
}

void DrawPlaces(const HistoryList& list) {
    for (int place = 1; place <= list.visible; ++place) DrawPlace(list, place);
}

void DrawList(const HistoryList& list) {
    DrawTextFrame(list.rect);
    DrawPressedBox(list.trigger);
    const TextGrid grid(list.rect, kViewFont);
    grid.Write(1, 1, "History for " + std::string(game.players[list.player].name.View()) + ".");
    std::string heading = "Move  Letters used     Score";
    if (list.HasTime()) heading += "   Time left";
    grid.Write(1, 2, list.lines == 0 ? "No moves." : heading);
    DrawPlaces(list);
}

// Scrolls by a line when the pointer rests where there is more; true when it did.
bool ScrollAt(HistoryList& list, int place) {
    if (place == 1 && list.above > 0) {
        --list.above;
    } else if (place != 0 && place == list.visible && list.Below() > 0) {
        ++list.above;
    } else {
        return false;
    }
    return true;
}

std::uint32_t Follow(HistoryList& list, Point p) {
    const int place = list.PlaceAt(p);
    const bool scrolled = ScrollAt(list, place);
    const int picked = place == 0 ? 0 : list.LineAt(place);
    if (scrolled || picked != list.picked) {
        list.picked = picked;
        DrawPlaces(list);
    }
    return scrolled ? kScrollPause : kForever;
}

}  // namespace

void ShowHistoryView(int player) {
    if (!game.gameStarted) return;
    HistoryList list = MakeList(player);
    DrawList(list);
    const bool byHand = WaitUntilClosed([&](Point p) { return Follow(list, p); });
    CloseView(list.rect, list.trigger);
    if (byHand && list.picked != 0) GoToMove(HistoryRecord(player, list.picked));
}

}  // namespace quillet
