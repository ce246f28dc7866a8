// The views that pop up over the window: what they show, what they do, and when they close.

#include "data/statistics.h"
#include "play/history.h"
#include "support/running_program.h"
#include "view/graphics.h"
#include "view/render.h"

namespace quillet {
namespace {

// The smallest rectangle around all pixels in which two canvases differ.
Rect Difference(const Canvas& a, const Canvas& b) {
    Rect found;
    for (int y = 0; y < a.Extent().height; ++y) {
        for (int x = 0; x < a.Extent().width; ++x) {
            if (a.At({x, y}) != b.At({x, y})) found = found.Union({x, y, x + 1, y + 1});
        }
    }
    return found;
}

class Views : public RunningProgram {
  protected:
    // A game in which the human Ann is to move; from then on every wait of a view is seen.
    void Begin() {
        StartGame({"Ann", "Bob"});
        headless.beeps = 0;
        headlessWindow.onPointerWait = [this] {
            frames.push_back(headlessWindow.canvas);
            texts.push_back(std::exchange(headlessWindow.textsDrawn, {}));
        };
    }
    static void Move(Point at, std::uint32_t delay) {
        PostEvent({.kind = Message::Kind::PointerMoved, .at = at}, delay);
    }
    // Opens a view with a click that is held on for a while, goes to that point and lets go there. What
    // the window looked like before is kept.
    void Open(Point trigger, Point letGoAt, int held = kNothing, bool rightButton = false) {
        frames.clear();
        texts.clear();
        Run(2);
        before = headlessWindow.canvas;
        headlessWindow.textsDrawn.clear();
        Press(trigger, held, rightButton);
        Move(letGoAt, 10);
        Release(letGoAt, 400);
        Run(4);
    }
    Rect Shown() const { return frames.empty() ? Rect{} : Difference(before, frames.front()); }

    Canvas before;
    std::vector<Canvas> frames;  // the window at each wait
    std::vector<Strings> texts;  // what was written between two waits
};

TEST_F(Views, StayAfterAQuickClickAndCloseOnReleaseOtherwise) {
    using Kind = Message::Kind;
    using Events = std::vector<std::pair<Kind, std::uint32_t>>;  // with the time since the press
    const std::tuple<const char*, Events, std::size_t> cases[] = {
        // what was done, and how often the view waits until it closes
        {"quick",
         {{Kind::ButtonUp, 299},
          {Kind::PointerMoved, 900},
          {Kind::ButtonDown, 950},
          {Kind::ButtonUp, 960},
          {Kind::PointerMoved, 990}},
         3},
        {"held", {{Kind::PointerMoved, 100}, {Kind::ButtonUp, 300}, {Kind::PointerMoved, 990}}, 2},
        {"left", {{Kind::Deactivated, 100}, {Kind::PointerMoved, 980}, {Kind::Activated, 990}}, 1},
    };
    Begin();
    const Point trigger = MiddleOf(view.layout.BagViewTrigger());
    for (const auto& [name, events, waits] : cases) {
        frames.clear();
        Press(trigger);
        for (const auto& [kind, delay] : events) PostEvent({.kind = kind, .at = trigger}, delay);
        Run(8);
        EXPECT_EQ(frames.size(), waits) << name;
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Views, TheBagsViewHasARowForEachTwentyTilesOfTheFullSet) {
    Begin();
    const Point trigger = MiddleOf(view.layout.BagViewTrigger());
    const Rect box = view.layout.lettersLeftBox;
    for (const auto& [total, rows] : {std::pair{100, 5}, {101, 6}}) {
        SCOPED_TRACE(total);
        game.bag.totaltiles = static_cast<std::uint16_t>(total);
        Open(trigger, {5, 5});
        EXPECT_EQ(Shown().top, box.top + 1) << "the trigger is pressed";
        EXPECT_EQ(Shown().bottom, box.bottom + rows * 24 + 2);
        EXPECT_EQ(Shown().right, box.left + 20 * 24 + 1);
        EXPECT_TRUE(Difference(before, headlessWindow.canvas).IsEmpty()) << "taken away";
    }
    preferences.allowHints = false;
    Open(trigger, {5, 5});
    EXPECT_THAT(TakeMessages(), ElementsAre("To see letters in the bag, tick the \"Allow Hints\" option."));
    LeaveInBag("");
    Open(trigger, {5, 5});
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_THAT(frames, IsEmpty());
}

// --- Swapping ---

// Where the swap's view shows the first tile of that kind.
Point PlaceInSwapView(LetterCode code) {
    int place = 0;
    for (LetterCode other = 'A'; other < code; ++other) place += game.settings.letterCounts[other];
    const int pitch = view.layout.pitch;
    const int height = (game.bag.totaltiles + 19) / 20 * pitch + 1;
    const Rect& strip = view.layout.rackTileStrip;
    const int top = preferences.rackAbove ? strip.bottom + 3 : strip.top - 3 - height;
    return {strip.left - 8 * pitch + place % 20 * pitch + pitch / 2, top + place / 20 * pitch + pitch / 2};
}

TEST_F(Views, ATileOfTheRackIsSwappedForTheOneItIsDroppedOn) {
    Begin();
    GiveRack(1, "CATSDOG");
    GiveRack(2, "Z");
    game.startRacks[1] = "CATSDOG";
    GiveScore(1, 0);
    UndoMove();
    const std::tuple<const char*, LetterCode, bool, const char*> cases[] = {
        // where the D is dropped, which letter of the bag that is, whether it is allowed, and the rack then
        {"beside the tiles", 0, true, "CATSDOG"},  {"where a drawn tile was", 'Z', true, "CATSDOG"},
        {"the same letter", 'D', true, "CATSDOG"}, {"not allowed", 'V', false, "CATSDOG"},
        {"another letter", 'V', true, "CATSVOG"},
    };
    for (const auto& [name, letter, allowed, rack] : cases) {
        SCOPED_TRACE(name);
        preferences.allowHints = allowed;
        const Point target = letter == 0 ? Point{3, 3} : PlaceInSwapView(letter);
        Open(MiddleOfSlot(5), target, kNothing, true);
        EXPECT_EQ(RackOf(1), rack);
        EXPECT_EQ(game.startRacks[1], rack);
        EXPECT_EQ(game.history.redoCount, RackOf(1) == "CATSDOG" ? 1 : 0);
        ExpectConsistent();
    }
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Letter swapping is only allowed after you tick the \"Allow Hints\" option."));
    LeaveInBag("");
    Open(MiddleOfSlot(5), {3, 3}, kNothing, true);
    EXPECT_EQ(headless.beeps, 1);
}

// --- History ---

class HistoryView : public Views {
  protected:
    static Point Trigger(int player) {
        const Rect& row = view.layout.playerRow[player];
        return {row.right - 5, MiddleOf(row).y};
    }
    // The middle of one of so many lines that the view of player 1 shows.
    static Point PlaceOf(int place, int visible) {
        const FontMetrics metrics = MetricsOf(kViewFont);
        const Rect& row = view.layout.playerRow[1];
        const int top = row.top - 2 - (visible + 2) * metrics.height - 2 * metrics.descent;
        return {row.left + 20, top + (place + 1) * metrics.height + metrics.descent + metrics.height / 2};
    }
    // So many lines for each of the two players.
    static void GiveLines(int lines) {
        for (int i = 0; i < 2 * lines; ++i) GiveScore(i % 2 + 1, 1);
    }
};

TEST_F(HistoryView, ChoosingALineGoesToItsMove) {
    Begin();
    GiveRack(1, "CATSDOG");
    GiveRack(2, "SEAEIOU");
    game.startRacks[1] = "CATSDOG";
    game.startRacks[2] = "SEAEIOU";
    Move(MiddleOfSquare(8, 7), 0);
    Type("cat0");
    Move(MiddleOfSquare(8, 10), 0);
    Type("s0");
    headless.answers = {true};
    Type("0");  // passes
    ASSERT_EQ(game.history.movesCount, 3);

    Open(Trigger(1), PlaceOf(2, 2));
    EXPECT_THAT(texts.front(), Contains("History for Ann."));
    EXPECT_THAT(texts.front(), Contains("Move  Letters used     Score"));
    EXPECT_EQ(game.history.movesCount, 2);
    preferences.allowHints = false;
    Open(Trigger(1), PlaceOf(1, 3));
    EXPECT_EQ(game.history.movesCount, 2);
    EXPECT_THAT(TakeMessages(),
                ElementsAre("Undo/redo is only allowed after you tick the \"Allow Hints\" option."));
    preferences.allowHints = true;
    Open(Trigger(1), PlaceOf(1, 3));
    EXPECT_EQ(game.history.movesCount, 0);
    EXPECT_EQ(RackOf(1), "CATSDOG");
    Open(Trigger(1), PlaceOf(3, 3));  // the closing line
    EXPECT_EQ(game.history.movesCount, 3);
    Open(Trigger(1), {5, 5});
    EXPECT_EQ(game.history.movesCount, 3) << "beside the lines";
    ExpectConsistent();
}

TEST_F(HistoryView, ScrollsALineAtATimeWhileThePointerRestsOnAnEnd) {
    Begin();
    constexpr int kLines = 90;
    GiveLines(kLines);
    const FontMetrics metrics = MetricsOf(kViewFont);
    const int visible = (view.layout.playerRow[1].top - 4 - 2 * metrics.descent) / metrics.height - 2;
    const auto line = [](int number) { return HistoryLine(1, number); };
    const int oldest = kLines - visible + 1;  // its place shows the triangle
    Press(Trigger(1));
    Move(PlaceOf(1, visible), 10);
    Move(PlaceOf(2, visible), 130);  // after three steps
    Move(PlaceOf(visible, visible), 500);
    Move({5, 5}, 540);  // after one
    Release({5, 5}, 600);
    headlessWindow.textsDrawn.clear();
    Run(4);
    ASSERT_GE(texts.size(), 6U);
    EXPECT_THAT(texts[0], Contains(line(kLines)));
    EXPECT_THAT(texts[0], Contains(line(oldest + 1)));
    EXPECT_THAT(texts[0], Not(Contains(line(oldest))));
    EXPECT_THAT(texts[1], Contains(line(oldest)));
    EXPECT_THAT(texts[1], Not(Contains(line(kLines - 1)))) << "more below";
    EXPECT_THAT(texts[1], Contains(line(kLines - 2)));
    EXPECT_THAT(texts[3], Contains(line(oldest - 2)));
    EXPECT_THAT(texts[3], Not(Contains(line(oldest - 3))));
    EXPECT_THAT(texts[5], Contains(line(kLines - 3)));
    EXPECT_EQ(game.history.movesCount, 2 * kLines);
}

TEST_F(HistoryView, ShowsAtLeastFourLinesHoweverHighItsRowStands) {
    Begin();
    GiveLines(30);
    view.layout.playerRow[1] = view.layout.playerRow[1].MovedTo({view.layout.playerRow[1].left, 20});
    Open(Trigger(1), {5, 400});
    ASSERT_FALSE(texts.empty());
    EXPECT_THAT(texts[0], Contains(HistoryLine(1, 28)));
    EXPECT_THAT(texts[0], Not(Contains(HistoryLine(1, 27))));
    EXPECT_EQ(game.history.movesCount, 60);
}

// --- Statistics and bonus words ---

TEST_F(Views, StatisticsNeedAFileOfThesePlayers) {
    Begin();
    const Point trigger = MiddleOf(view.layout.statisticsBox);
    Open(trigger, {5, 5});
    EXPECT_THAT(TakeMessages(),
                ElementsAre(StartsWith("There is no statistics file for the current players.  Tick ")));
    WriteFile("Statistics/Ann vs Bob", "nonsense");
    Open(trigger, {5, 5});
    EXPECT_EQ(TakeMessages().back(), "Could not load statistics!");
    Remove("Statistics/Ann vs Bob");
    Remove("Statistics");
    Open(trigger, {5, 5});
    EXPECT_THAT(TakeMessages(), ElementsAre("The Statistics folder is missing!"));
    EXPECT_TRUE(frames.empty());

    MakeFolder("Statistics");
    game.players[1].score = 300;
    game.players[1].turns = 8;
    game.players[2].score = 250;
    RecordGameStatistics();
    game.players[2].score = 300;
    RecordGameStatistics();
    Open(trigger, {5, 5});
    ASSERT_FALSE(texts.empty());
    for (const char* text : {"Statistics for:", "Ann", "2 (1 drawn)", "1 (50.0%)", "37.5", "275.0", "-"})
        EXPECT_THAT(texts[0], Contains(text));
    const FontMetrics metrics = MetricsOf(kViewFont);
    EXPECT_EQ(Shown().left, view.layout.playerRow[1].left + 3);
    EXPECT_EQ(Shown().top, view.layout.statisticsBox.top - 2 - (8 * metrics.height + 4));
}

TEST_F(Views, BonusWordsStandInColumnsOfTwenty) {
    Begin();
    const Rect box = view.layout.bonusWordsBox;
    const FontMetrics metrics = MetricsOf(kSmallViewFont);
    const std::tuple<int, int, int> cases[] = {
        // words, columns, rows
        {1, 2, 2}, {19, 2, 20}, {20, 2, 21}, {40, 2, 21}, {41, 3, 21}, {60, 3, 21}, {61, 4, 21}};
    for (const auto& [count, columns, rows] : cases) {
        SCOPED_TRACE(count);
        Strings words;
        for (int i = 0; i < count; ++i)
            words.push_back({static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)});
        SetBonusWords(words, 25);
        InvalidateWindow();
        Open(MiddleOf(box), {5, 5});
        EXPECT_THAT(texts.at(0), Contains("Bonus words: " + std::to_string(count)));
        EXPECT_THAT(texts.at(0), Contains("Bonus pts: 25"));
        EXPECT_THAT(texts.at(0), Contains(words.back()));
        const int right = view.layout.playerRow[1].left + 15 + 16 * metrics.averageWidth * columns;
        EXPECT_EQ(Shown().top, box.top - 2 - (rows * metrics.height + 4));
        EXPECT_EQ(Shown().right, std::max(std::min(right, view.layout.client.width), box.right));
    }
    Open(MiddleOf(box), {5, 5}, kControl);
    EXPECT_EQ(headless.beeps, 1) << "no palette";
    game.settings.bonusWordsEnabled = false;
    Open(MiddleOf(box), {5, 5});
    EXPECT_THAT(frames, IsEmpty());
}

}  // namespace
}  // namespace quillet
