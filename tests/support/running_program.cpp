#include "support/running_program.h"

#include "base/idle_pump.h"
#include "game/validation.h"
#include "shell/main_loop.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

const fs::path kAssets = QUILLET_ASSETS;

}  // namespace

RunningProgram::RunningProgram() {
    ResetHeadlessWindow();
    pump = {};
    preferences = {};
    wordList = {};
    formedWords = {};
    view = {};
    for (const char* folder :
         {"Data/Prefs", "Word Lists", "Statistics", "Scenarios", "Opponents", "Definitions"}) {
        MakeFolder(folder);
    }
    for (const char* folder : {"Data/Graphics", "Data/Sounds"})
        fs::create_directory_symlink(kAssets / folder, root / folder);
    for (const char* list : {"Word Lists/Words.qld", "Word Lists/Common.qld"}) {
        fs::copy_file(kAssets / "Word Lists/Common.qld", root / list);
    }
    for (const char* folder :
         {"Scenarios/Classic", "Scenarios/Quick Nine", "Opponents/Pip", "Opponents/Strix"}) {
        fs::copy(kAssets / folder, root / folder);
    }
    WriteFile("Data/Help/HELPITEMS.txt", "Tips\r\n");
    WriteFile("Data/Help/Tips.txt", "Play well.");
}

RunningProgram::~RunningProgram() {
    ResetHeadlessWindow();
    pump = {};
    game = FreshGameState();
}

void RunningProgram::Start(const std::string& savedGame) {
    StartProgram({.savedGame = savedGame, .zoom = 1});
    if (preferences.playTileClicks) FlipPreference(&Preferences::playTileClicks);
    Run(3);
    headless.messages.clear();
    headlessWindow.sounds.clear();
}

void RunningProgram::StartGame(std::initializer_list<std::string_view> names) {
    RememberScenario("Classic");
    WritePlayerNames(std::vector<PlayerName>(names.begin(), names.end()));
    Start();
    Choose(1);
    // Whoever begins by lot: the seats turn until it is the first player.
    while (game.currentPlayer != 1 && !game.Current().isComputer) Choose(1);
}

void RunningProgram::Run(int times) {
    for (int i = 0; i < times && !hasEnded; ++i) hasEnded = !RunOnce();
}

void RunningProgram::ClickAt(Point at, int held, bool rightButton) {
    Click(at, held, rightButton);
    Run();
}

void RunningProgram::DragTo(Point from, Point to, int held) {
    Drag(from, to, held);
    Run();
}

void RunningProgram::Type(std::string_view characters) {
    TypeText(characters);
    Run();
}

void RunningProgram::Choose(int command) {
    ChooseMenuItem(command);
    Run();
}

void Press(Point at, int held, bool rightButton) {
    PostEvent({.kind = Message::Kind::ButtonDown,
               .at = at,
               .rightButton = rightButton,
               .shift = (held & kShift) != 0,
               .control = (held & kControl) != 0});
}

void Release(Point at, std::uint32_t delay) { PostEvent({.kind = Message::Kind::ButtonUp, .at = at}, delay); }

void Click(Point at, int held, bool rightButton) {
    Press(at, held, rightButton);
    Release(at);
}

void Drag(Point from, Point to, int held) {
    Press(from, held);
    PostEvent({.kind = Message::Kind::PointerMoved, .at = {(from.x + to.x) / 2, (from.y + to.y) / 2}});
    PostEvent({.kind = Message::Kind::PointerMoved, .at = to});
    Release(to);
}

void TypeText(std::string_view characters) {
    for (char character : characters) PostEvent({.kind = Message::Kind::Character, .character = character});
}

void PressKey(Key key) { PostEvent({.kind = Message::Kind::KeyDown, .key = key}); }

Point MiddleOf(const Rect& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }
Point MiddleOfSquare(int row, int col) { return MiddleOf(view.layout.SquareRect(row, col)); }
Point MiddleOfSlot(int slot) { return MiddleOf(view.layout.RackSlotRect(slot)); }

bool WasDrawn(std::string_view text) { return std::ranges::count(headlessWindow.textsDrawn, text) > 0; }

}  // namespace quillet
