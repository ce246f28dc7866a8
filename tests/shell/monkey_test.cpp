// Somebody who clicks, types, drags and chooses at random, while the game's tiles and scores must go on
// adding up. QUILLET_MONKEY_STEPS sets how much of it (a long run: 300000).

#include <cstdlib>
#include <random>

#include "game/consistency.h"
#include "resources/menus.h"
#include "support/running_program.h"

namespace quillet {
namespace {

class Monkey : public RunningProgram {
  protected:
    int Below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }
    const auto& OneOf(const auto& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    Point SomePoint() {
        const Layout& at = view.layout;
        const Point likely[] = {
            MiddleOfSlot(1 + Below(8)),    MiddleOfSquare(1 + Below(15), 1 + Below(15)),
            MiddleOf(at.bagRect),          MiddleOf(at.doneButton),
            MiddleOf(at.mixButton),        MiddleOf(at.lettersLeftBox),
            MiddleOf(at.statisticsBox),    MiddleOf(at.bonusWordsBox),
            MiddleOf(at.BagViewTrigger()), {at.playerRow[1].right - 5, at.playerRow[1 + Below(4)].top + 5},
            {178 + Below(20), Below(400)}};
        if (OneIn(4)) return {Below(700) - 20, Below(500) - 20};
        return OneOf(likely);
    }
    int SomeHeld() { return OneIn(3) ? Below(4) : 0; }

    void UseMouse() {
        if (OneIn(2)) return Click(SomePoint(), SomeHeld(), OneIn(4));
        const Point from = SomePoint();
        const Point to = SomePoint();
        Press(from, SomeHeld(), OneIn(6));
        PostEvent({.kind = Message::Kind::PointerMoved, .at = to}, static_cast<std::uint32_t>(Below(400)));
        if (OneIn(20)) PostEvent({.kind = Message::Kind::Deactivated});
        Release(to, static_cast<std::uint32_t>(400 + Below(200)));
        if (OneIn(3)) Click(SomePoint());
        PostEvent({.kind = Message::Kind::Activated}, 1000);
    }

    void UseKeys() {
        static constexpr std::string_view kKeys = "ABCDEFGHIJKLMNOPQRSTUVWXYZaeinrst..  0089\b\b\x1b\xE9";
        for (int i = Below(6); i >= 0; --i) TypeText({&OneOf(kKeys), 1});
        if (OneIn(3)) PressKey(static_cast<Key>(1 + Below(5)));
    }

    void UseMenus() {
        constexpr int kQuit = 9;
        const int command = OneOf(headlessWindow.menuItems).command;
        if (command != kQuit && command != 0) ChooseMenuItem(command);
    }

    void UseWindowControls() {
        for (const auto& [id, choice] : headlessWindow.windowControls) {
            if (!OneIn(3)) continue;
            if (id < 3) return PressWindowControl(id);
            return ChooseWindowControlLine(id, Below(6));
        }
    }

    // What happens in a dialog: a few controls are used, then perhaps its button is pressed.
    void PlayDialog(Dialog& dialog) {
        static constexpr const char* kTexts[] = {
            "", "7", "Ann", "a name that is much too long for anything", "CAT", "x\xE9z", "99"};
        for (int i = Below(6); i > 0 && !dialog.result; --i) {
            const auto& [id, control] =
                *std::next(dialog.controls.begin(), Below(static_cast<int>(dialog.controls.size())));
            const auto lines = static_cast<int>(std::min<std::size_t>(control.lineCount, 1000));
            using enum ControlKind;
            if (control.kind == Edit || control.kind == TextBox) {
                TypeText(dialog, id, OneOf(kTexts));
            } else if (control.kind == DropDown || control.kind == List) {
                if (lines > 0) ChooseLine(dialog, id, Below(lines));
            } else if (control.kind == Arrows) {
                StepArrows(dialog, id, OneIn(2));
            } else if (control.kind != Label && control.kind != ControlKind::Picture) {
                PressControl(dialog, id);
            }
        }
        if (!dialog.result && OneIn(2)) PressControl(dialog, 1);
    }

    void Prepare() {
        // Computers alone would play game after game while the pointer rests on the statistics' box.
        if (view.layout.statisticsBox.Contains(headlessWindow.pointer)) headlessWindow.pointer = {1, 1};
        if (AllComputers()) preferences.saveStatistics = false;
        headlessWindow.dialogScripts.assign(4, [this](Dialog& dialog) { PlayDialog(dialog); });
        headlessWindow.fileAnswers.clear();
        const char* files[] = {"game.qlg", "words.txt", "none.qlg", "game2.qlg"};
        if (OneIn(2)) headlessWindow.fileAnswers.push_back((root / OneOf(files)).string());
        headless.answers.assign({OneIn(2), OneIn(2), OneIn(2)});
        headless.messages.clear();
        headless.questions.clear();
        headlessWindow.textsDrawn.clear();
        headlessWindow.sounds.clear();
        headlessWindow.dialogsShown.clear();
    }

    void Step() {
        Prepare();
        using Deed = void (Monkey::*)();
        static constexpr Deed kDeeds[] = {&Monkey::UseMenus, &Monkey::UseWindowControls, &Monkey::UseKeys,
                                          &Monkey::UseKeys,  &Monkey::UseMouse,          &Monkey::UseMouse,
                                          &Monkey::UseMouse, &Monkey::UseMouse};
        (this->*OneOf(kDeeds))();
        Run(1 + Below(2));
        if (OneIn(50)) headless.tick += static_cast<std::uint32_t>(Below(100'000));
    }

    std::mt19937 random{20};
};

int TurnsTaken() {
    int turns = 0;
    for (int p = 1; p <= game.numPlayers; ++p) turns += game.players[p].turns;
    return turns;
}

TEST_F(Monkey, NeverBringsTheGameOutOfStep) {
    WriteFile("words.txt", "cat dog zebra quilt");
    StartGame({"Ann", "Pip 3"});
    const char* wanted = std::getenv("QUILLET_MONKEY_STEPS");
    const int steps = wanted != nullptr ? std::atoi(wanted) : 3000;
    for (int step = 0; step < steps; ++step) {
        ASSERT_NO_THROW(Step()) << step << ": "
                                << (headless.messages.empty() ? "" : headless.messages.back().text);
        ASSERT_FALSE(hasEnded);
        if (game.editorActive) continue;
        const auto problem = FindInconsistency(game);
        ASSERT_FALSE(problem.has_value()) << "after step " << step << ": " << *problem;
        // A game in which this did not hold would not be kept.
        ASSERT_TRUE(!game.IsRunning() || TurnsTaken() == game.history.movesCount) << "after step " << step;
    }
}

}  // namespace
}  // namespace quillet
