#include "shell/commands.h"

#include <algorithm>
#include <functional>

#include "base/messages.h"
#include "base/presentation.h"
#include "computer/move_choice.h"
#include "data/saved_game.h"
#include "data/scenarios.h"
#include "dialogs/about.h"
#include "dialogs/choose_file.h"
#include "dialogs/define_word.h"
#include "dialogs/edit_bonus_words.h"
#include "dialogs/edit_word_list.h"
#include "dialogs/new_word_list.h"
#include "dialogs/scenario_texts.h"
#include "dialogs/timer_settings.h"
#include "editors/board_editor.h"
#include "editors/letters_editor.h"
#include "game/validation.h"
#include "platform/message_box.h"
#include "platform/window.h"
#include "play/history.h"
#include "play/rack_tools.h"
#include "play/turns.h"
#include "resources/menus.h"
#include "shell/help.h"
#include "shell/menus.h"
#include "store/files.h"
#include "store/preferences.h"
#include "view/main_window.h"
#include "view/render.h"
#include "view/typing.h"
#include "words/word_list_editing.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

std::string gameFileName;  // of the current game, without its folder; empty: it has none yet

// The menus are disabled as long as one of these lives.
struct MenusDisabled {
    MenusDisabled() { DisableMenus(); }
    ~MenusDisabled() { EnableMenus(); }
    MenusDisabled(const MenusDisabled&) = delete;
    MenusDisabled& operator=(const MenusDisabled&) = delete;
};

bool GameHasMoves() { return game.IsRunning() && game.history.movesCount > 0; }

// May the running game be given up?
bool ConfirmCancel() { return !GameHasMoves() || AskYesNo(false, "Cancel the current game?"); }

void UseScenario(std::string_view name) {
    SetCurrentScenario(name);
    LoadScenario();
}

// --- File ---

void NewGameCommand() {
    if (ConfirmCancel()) NewGame(true);
}

void OpenGameCommand() {
    const auto path = ChooseFileToOpen(SavedGameFiles(), gameFileName);
    if (!path) return;
    gameFileName = FileTitle(*path);
    OpenGameFile(*path);
}

// False when the game does not stand in a file.
bool SaveGameAs() {
    const std::string proposed = gameFileName.empty() ? "untitled.qlg" : gameFileName;
    const auto path = ChooseFileToSave(SavedGameFiles(), proposed);
    if (!path) return false;
    gameFileName = FileTitle(*path);
    return SaveGame(*path);
}

void SaveGameCommand() { SaveGameAs(); }

void ChoosePlayersCommand() {
    if (ConfirmCancel() && ChoosePlayers()) NewGame(true);
}

// --- Edit ---

// A computer that is now to move must not move again at once.
void LetComputerWait() {
    MakeComputerWait();
    ShowMoveButtonPlainly();
}

void UndoCommand() {
    const int moves = game.history.movesCount;
    UndoMove();
    if (game.history.movesCount != moves) LetComputerWait();
}

void RedoCommand() {
    const int undone = game.history.redoCount;
    RedoMove();
    if (game.history.redoCount != undone && game.history.redoCount != 0 && !game.gameOver) LetComputerWait();
}

// --- Scenario ---

void NewScenarioCommand() {
    if (!ConfirmCancel() || !NewScenarioDialog()) return;
    BuildScenarioMenu();
    LoadScenario();
    NewGame(true);
    FollowScenarioWordList();
    OpenBoardEditor();
}

void EditScenarioCommand() {
    switch (ChooseScenarioPart()) {
        case ScenarioPart::BoardPart:
            if (ConfirmCancel()) OpenBoardEditor();
            return;
        case ScenarioPart::LettersPart:
            if (ConfirmCancel() && EditLetterInfo()) NewGame(true);
            return;
        case ScenarioPart::AboutPart:
            return EditAboutText();
        case ScenarioPart::BonusPart:
            EditBonusWords();
            return RedrawPanels();
        case ScenarioPart::None:
            return;
    }
}

void ChooseScenario(const std::string& name) {
    if (EqualIgnoringCase(name, CurrentScenario()) || !ConfirmCancel()) return;
    UseScenario(name);
    NewGame(true);
    RedrawWindow();
    if (preferences.showAboutScenario && TakeAboutMark(name)) ShowAboutScenario();
}

// --- Options ---

void FlipAndArrange() {
    FlipPreference(&Preferences::rackAbove);
    ArrangeWindow();
    PaintNow();
}

template <bool Preferences::*preference>
void Flip() {
    FlipPreference(preference);
}

void FlipShowLetters() {
    FlipPreference(&Preferences::showComputerLetters);
    if (game.gameStarted && game.Current().isComputer) RedrawRack();
}

void FlipTellComputer() {
    FlipPreference(&Preferences::tellComputerToMove);
    ShowMoveButtonPlainly();
}

void SwitchSaveStatistics() {
    const std::string folder(ResourceString(StringId::StatisticsFolder));
    if (!preferences.saveStatistics && !FolderExists(folder)) {
        return Warning("The ", folder, " folder is missing!");
    }
    FlipPreference(&Preferences::saveStatistics);
    if (!preferences.saveStatistics) return;
    ShowMessageBox(BoxKind::Information, ResourceString(StringId::ProgramTitle),
                   "Game statistics will be saved in a file called \"" + std::string(MatchName().View()) +
                       "\" in the " + folder + " folder.");
}

void FlipHints() {
    FlipPreference(&Preferences::allowHints);
    RedrawHintLock();
}

// --- Letters ---

void Hint(int level) {
    const MenusDisabled disabled;
    ShowHint(level);
}

// --- Words ---

void NewWordListCommand() {
    if (!NewWordListDialog()) return;
    wordList.fromScenario = false;
    BuildWordsMenu();
}

void SaveListAsCommand() {
    SaveWordListAsDialog();
    BuildWordsMenu();
}

void TextOperation(void (*operation)(std::string_view path), const std::optional<std::string>& path) {
    if (!path) return;
    SetTextOperation(true);
    {
        const MenusDisabled disabled;
        operation(*path);
    }
    SetTextOperation(false);
    RefreshMenus();
}

void AddFromTextCommand() { TextOperation(AddFromTextFile, ChooseFileToOpen(TextFiles(), "")); }

void DumpToTextCommand() {
    if (!HasWordsToDump()) return;
    const std::string proposed = SystemName(std::string(wordList.current) + ".txt");
    TextOperation(DumpToTextFile, ChooseFileToSave(TextFiles(), proposed));
}

void DefineRemembered() {
    if (!formedWords.remembered.empty()) DefineWord(formedWords.remembered);
}

void ChooseWordList(const std::string& name) {
    if (EqualIgnoringCase(name, wordList.current)) return;
    OfferToSaveWordList();
    if (SelectWordList(true, name)) wordList.fromScenario = false;
}

struct Command {
    int number;
    void (*run)();
};
constexpr Command kCommands[] = {
    {1, NewGameCommand},
    {2, OpenGameCommand},
    {3, SaveGameCommand},
    {5, ChoosePlayersCommand},
    {9, RequestClose},
    {101, UndoCommand},
    {102, RedoCommand},
    {104, CopySquarePicture},
    {105, PasteSquarePicture},
    {201, NewScenarioCommand},
    {202, ShowAboutScenario},
    {203, EditScenarioCommand},
    {303, FlipAndArrange},
    {304, Flip<&Preferences::niceLetterMix>},
    {305, FlipShowLetters},
    {306, Flip<&Preferences::blinkComputerMoves>},
    {307, FlipTellComputer},
    {308, FlipHints},
    {309, SwitchSaveStatistics},
    {311, ShowTimerSettings},
    {401, ThrowAllBack},
    {403, RestoreTiles},
    {404, Permute},
    {406, [] { Hint(kHighestScoringLevel); }},
    {407, [] { Hint(kStrategicLevel); }},
    {501, NewWordListCommand},
    {503, EditWordList},
    {504, RevertWordList},
    {505, SaveCurrentWordList},
    {506, SaveListAsCommand},
    {508, AddFromTextCommand},
    {509, DumpToTextCommand},
    {511, [] { DefineWord(""); }},
    {512, DefineRemembered},
    {601, ShowAboutBox},
    {1001, Flip<&Preferences::playSounds>},
    {1002, Flip<&Preferences::playIntroMusic>},
    {1003, Flip<&Preferences::canWeTalk>},
    {1004, Flip<&Preferences::playTileClicks>},
    {1005, Flip<&Preferences::playMixPermute>},
    {1006, Flip<&Preferences::playBingoBonus>},
    {1007, Flip<&Preferences::playEndGame>},
    {1008, Flip<&Preferences::playByeBye>},
};

}  // namespace

void DispatchCommand(int number) {
    const auto command = std::ranges::find(kCommands, number, &Command::number);
    if (command != std::end(kCommands)) return command->run();
    if (const std::string name = ScenarioOf(number); !name.empty()) return ChooseScenario(name);
    if (const std::string name = WordListOf(number); !name.empty()) return ChooseWordList(name);
    if (number >= kFirstTopicCommand && number / 100 == kHelpMenu) {
        return ShowHelp(number - kFirstTopicCommand + 1);
    }
    Beep();
}

void FinishTurnFromWindow() {
    const MenusDisabled disabled;
    FinishTurn();
}

void HandleTypedCharacter(char character) {
    if (!game.gameStarted) return;
    const bool humanIsToMove = !game.gameOver && !game.Current().isComputer;
    switch (character) {
        case '0':
            return FinishTurnFromWindow();
        case '8':
        case '9':
            if (humanIsToMove) Hint(character - '0');
            return;
        case ' ':
            return MixRack();
        case '.':
            return Permute();
        default:
            return TypeCharacter(character, PointerPosition());
    }
}

bool GoOnWithGame(const std::string& path) {
    if (!LoadGame(path)) return false;
    OpenGameReplay();
    BuildScenarioMenu();
    FollowScenarioWordList();
    return true;
}

bool OpenGameFile(const std::string& path) {
    if (!GoOnWithGame(path)) return false;
    gameFileName = FileTitle(path);
    return true;
}

bool OfferToSaveGame() { return !GameHasMoves() || !AskYesNo(true, "Save current game?") || SaveGameAs(); }

void FollowScenarioWordList() {
    // The list may have come into the folder since the menu was built.
    if (ApplyScenarioWordList(scenario.requestedWordList)) BuildWordsMenu();
}

}  // namespace quillet
