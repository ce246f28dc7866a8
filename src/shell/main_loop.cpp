#include "shell/main_loop.h"

#include <utility>

#include "base/idle_pump.h"
#include "base/messages.h"
#include "base/presentation.h"
#include "computer/opponents.h"
#include "data/help_topics.h"
#include "data/scenarios.h"
#include "editors/board_editor.h"
#include "game/bag.h"
#include "platform/message_box.h"
#include "platform/ticks.h"
#include "platform/window.h"
#include "play/announcements.h"
#include "play/clock.h"
#include "play/turns.h"
#include "shell/commands.h"
#include "shell/kept_game.h"
#include "shell/menus.h"
#include "store/preferences.h"
#include "view/graphics.h"
#include "view/main_window.h"
#include "view/palette.h"
#include "view/render.h"
#include "view/tile_interaction.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

constexpr std::uint32_t kSplashTime = 2000;  // milliseconds
constexpr std::uint32_t kPumpInterval = 10;

struct Shell {
    bool dispatchesWhileBusy = false;  // a message that came in the middle of a computation
    bool redrawOnActivate = false;     // the desktop's colours have changed
    bool ended = false;
};
Shell shell;

// --- The way out ---

void Close() {
    if (shell.dispatchesWhileBusy || game.editorActive) return Beep();
    const bool gameIsSafe = OfferToSaveGame();
    OfferToSaveWordList();
    EndKeepingGame(gameIsSafe);
    if (preferences.playByeBye) PlaySoundFile(true, "quit.wav");
    RememberWindowPlace();
    DestroyMainWindow();
    shell.ended = true;
}

// --- Messages ---

void UseNewColours() {
    BuildPalette(CurrentDisplay());
    LoadGraphics();
    LoadOpponentData();
    ReloadSquarePictures();
    shell.redrawOnActivate = true;
}

void HandleActivation(bool active) {
    if (!active || !shell.redrawOnActivate) return;
    shell.redrawOnActivate = false;
    RedrawWindow();
}

void HandleButton(const Message& message) {
    if (game.editorActive) {
        ClickInBoardEditor(message);
    } else if (!shell.dispatchesWhileBusy && HandleClick(message) == ClickResult::FinishTurn) {
        FinishTurnFromWindow();
    }
}

void HandleEditorControl(const Message& message) {
    if (!game.editorActive) return;
    HandleBoardEditorControl(message);
    if (!game.editorActive) EnableMenus();
}

void Dispatch(const Message& message) {
    using Kind = Message::Kind;
    const bool takesKeys = !shell.dispatchesWhileBusy && !game.editorActive;
    switch (message.kind) {
        case Kind::Paint:
            return PaintNow();
        case Kind::Timer:  // the splash has been seen
            return InvalidateWindow();
        case Kind::Character:
            if (takesKeys) HandleTypedCharacter(message.character);
            return;
        case Kind::KeyDown:
            if (takesKeys) HandleArrow(message.key);
            return;
        case Kind::ButtonDown:
            return HandleButton(message);
        case Kind::Command:
            // What was chosen while another message waited may no longer be open to choice.
            if (CanBeChosen(message.command)) DispatchCommand(message.command);
            return;
        case Kind::ControlEvent:
            return HandleEditorControl(message);
        case Kind::Activated:
        case Kind::Deactivated:
            return HandleActivation(message.kind == Kind::Activated);
        case Kind::ColoursChanged:
            return UseNewColours();
        case Kind::CloseRequest:
            return Close();
        case Kind::None:
        case Kind::ButtonUp:
        case Kind::PointerMoved:
            return;
    }
}

// Handles one message in the middle of a computation, and lets Escape stop that.
void IdlePump() {
    if (preferences.timerEnabled) ClockTick();
    KeepRunningGame();  // computers may play a whole game without coming back to the loop
    if (const std::optional<Message> message = PeekMessage()) {
        if (message->kind == Message::Kind::KeyDown && message->key == Key::Escape) {
            pump.abortRequested = true;
            pump.nextPumpTick = 0;
            return;
        }
        const bool before = std::exchange(shell.dispatchesWhileBusy, true);
        Dispatch(*message);
        shell.dispatchesWhileBusy = before;
        RefreshOptionTicks();
    }
    pump.nextPumpTick = TickCount() + kPumpInterval;
}

bool ComputerIsToMove() {
    return game.IsRunning() && !game.editorActive && game.Current().isComputer &&
           !preferences.tellComputerToMove;
}

// --- The start ---

void StartModules() {
    SeedRandomFromClock();
    LoadPreferences();
    SetCurrentScenario(preferences.scenario);
    wordList.current = preferences.wordList;
    ListOpponents();
    LoadHelpTopics();
}

void ShowSplashForAWhile() {
    while (!StartTimer(kSplashTime)) {
        if (!ShowRetryBox(ResourceString(StringId::ProgramTitle), "Too many clocks or timers!"))
            throw ProgramEnd{};
    }
}

// Only a file with the saved games' extension is opened.
bool IsSavedGame(std::string_view path) {
    constexpr std::size_t kMostCharacters = 260;
    const std::size_t dot = path.rfind('.');
    return dot != std::string_view::npos && path.size() <= kMostCharacters &&
           EqualIgnoringCase(path.substr(dot), ".qlg");
}

void LoadPreferredWordList() {
    // The menu made it the first one listed when the preferred one is gone.
    if (!SelectWordList(true, wordList.current)) Fatal("Sorry, but a word list could not be loaded.");
    FollowScenarioWordList();
}

}  // namespace

void StartProgram(const RunOptions& options) {
    shell = {};
    game = FreshGameState();
    StartModules();
    ChooseBoardSize(options.zoom);
    BuildMenus();
    LoadScenario();
    OpenMainWindow();
    ResetVoiceTurns();
    if (preferences.playIntroMusic) StartSoundFile(true, "start.wav");
    ShowWaitCursor();
    ShowSplashForAWhile();
    pump.idleHook = IdlePump;
    const bool isOpen = IsSavedGame(options.savedGame) && OpenGameFile(options.savedGame);
    StartKeepingGame(!isOpen);
    if (!wordList.loaded) LoadPreferredWordList();
}

bool RunOnce() {
    while (const std::optional<Message> message = PeekMessage()) {
        Dispatch(*message);
        if (shell.ended) return false;
        KeepRunningGame();
    }
    BlinkTick();
    if (preferences.timerEnabled) ClockTick();
    KeepRunningGame();
    if (ComputerIsToMove()) {
        FinishTurnFromWindow();
        return true;
    }
    RefreshMenus();
    DescribeGame();
    WaitForMessage(MillisecondsToNextTick());
    return true;
}

void RunLoop() {
    while (RunOnce()) {
    }
}

void RunProgram(const RunOptions& options) {
    try {
        StartProgram(options);
        RunLoop();
    } catch (const ProgramEnd&) {
        DestroyMainWindow();
    }
}

}  // namespace quillet
