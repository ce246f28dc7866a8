// Somebody who clicks, types, drags and chooses at random, while the game's tiles and scores must go on
// adding up. QUILLET_MONKEY_STEPS sets how much of it (a long run: 300000).
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "game/consistency.h"
#include "game/game_state.h"
#include "resources/menus.h"
#include "store/preferences.h"
#include "support/running_program.h"
#include "view/view_state.h"

namespace quillet {
namespace {

class Monkey : public RunningProgram {
  protected:
    int Below(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }

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
        return likely[static_cast<std::size_t>(Below(std::size(likely)))];
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
        for (int i = Below(6); i >= 0; --i) {
            TypeText(kKeys.substr(static_cast<std::size_t>(Below(static_cast<int>(kKeys.size()))), 1));
        }
        if (OneIn(3)) PressKey(static_cast<Key>(1 + Below(5)));
    }

    void UseMenus() {
        const HeadlessMenuItem& item = headlessWindow.menuItems[static_cast<std::size_t>(
            Below(static_cast<int>(headlessWindow.menuItems.size())))];
        constexpr int kQuit = 9;
        if (item.command != kQuit && item.command != 0) ChooseMenuItem(item.command);
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
            auto control = dialog.controls.begin();
            std::advance(control, Below(static_cast<int>(dialog.controls.size())));
            const int id = control->first;
            switch (control->second.kind) {
                case ControlKind::Edit:
                case ControlKind::TextBox:
                    TypeText(dialog, id, kTexts[Below(std::size(kTexts))]);
                    break;
                case ControlKind::DropDown:
                case ControlKind::List:
                    if (control->second.lineCount > 0)
                        ChooseLine(
                            dialog, id,
                            Below(static_cast<int>(std::min<std::size_t>(control->second.lineCount, 1000))));
                    break;
                case ControlKind::Arrows:
                    StepArrows(dialog, id, OneIn(2));
                    break;
                case ControlKind::Label:
                case ControlKind::Picture:
                    break;
                default:
                    PressControl(dialog, id);
                    break;
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
        if (OneIn(2)) headlessWindow.fileAnswers.push_back((root / files[Below(4)]).string());
        headless.answers.assign({OneIn(2), OneIn(2), OneIn(2)});
        headless.messages.clear();
        headless.questions.clear();
        headlessWindow.textsDrawn.clear();
        headlessWindow.sounds.clear();
        headlessWindow.dialogsShown.clear();
    }

    void Step() {
        Prepare();
        switch (Below(8)) {
            case 0:
                UseMenus();
                break;
            case 1:
                UseWindowControls();
                break;
            case 2:
            case 3:
                UseKeys();
                break;
            default:
                UseMouse();
                break;
        }
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
