#include "resources/menus.h"

#include <array>

namespace quillet {
namespace {

constexpr MenuItem kSeparator{};

constexpr std::array kFile{
    MenuItem{1, "&New Game\tCtrl+N"},
    MenuItem{2, "&Open Game...\tCtrl+O"},
    MenuItem{3, "&Save Game...\tCtrl+S"},
    kSeparator,
    MenuItem{5, "Choose &Players...\tCtrl+P"},
    kSeparator,
    MenuItem{9, "&Quit\tCtrl+Q"},
};
constexpr std::array kEdit{
    MenuItem{101, "&Undo Move\tCtrl+Z"}, MenuItem{102, "&Redo Move\tCtrl+D"}, kSeparator,
    MenuItem{104, "&Copy\tCtrl+C"},      MenuItem{105, "&Paste\tCtrl+V"},
};
constexpr std::array kScenario{
    MenuItem{201, "&New Scenario..."},
    MenuItem{202, "&About Scenario..."},
    MenuItem{203, "&Edit Scenario..."},
    kSeparator,
};
constexpr std::array kSounds{
    MenuItem{1001, "&All Off"},     MenuItem{1002, "&Starting Music"}, MenuItem{1003, "&Computer Voices"},
    MenuItem{1004, "&Tile Clicks"}, MenuItem{1005, "&Mix + Permute"},  MenuItem{1006, "&Bingo + Bonus"},
    MenuItem{1007, "&End of Game"}, MenuItem{1008, "B&ye Bye"},
};
constexpr std::array kOptions{
    MenuItem{0, "&Sounds", kSounds},         kSeparator,
    MenuItem{303, "&Rack Above Board"},      MenuItem{304, "&Nice Letters"},
    MenuItem{305, "Show Computer &Letters"}, MenuItem{306, "&Blink Computer Moves"},
    MenuItem{307, "Tell Computer to &Move"}, MenuItem{308, "&Allow Hints"},
    MenuItem{309, "Sa&ve Statistics"},       kSeparator,
    MenuItem{311, "&Timer...\tCtrl+T"},
};
constexpr std::array kLetters{
    MenuItem{401, "&Throw All Back"},
    kSeparator,
    MenuItem{403, "&Return to Rack\tReturn"},
    MenuItem{404, "&Permute\tPeriod"},
    kSeparator,
    MenuItem{406, "&Highest Scoring Move\tCtrl+8"},
    MenuItem{407, "&Best Strategic Move\tCtrl+9"},
};
constexpr std::array kWords{
    MenuItem{501, "&New Word List..."},
    kSeparator,
    MenuItem{503, "&Edit wordlist\tCtrl+E"},
    MenuItem{504, "&Revert wordlist"},
    MenuItem{505, "&Save wordlist"},
    MenuItem{506, "Save &As..."},
    kSeparator,
    MenuItem{508, "Add from &Text File..."},
    MenuItem{509, "Dump to Text &File..."},
    kSeparator,
    MenuItem{511, "Define &Word..."},
    MenuItem{512, "&Define ?\tCtrl+F"},
    kSeparator,
};
constexpr std::array kHelp{
    MenuItem{601, "&About Quillet..."},
    kSeparator,
};

constexpr std::array kMenus{
    Menu{"&File", kFile},       Menu{"&Edit", kEdit},       Menu{"&Scenario", kScenario},
    Menu{"&Options", kOptions}, Menu{"&Letters", kLetters}, Menu{"&Words", kWords},
    Menu{"&Help", kHelp},
};

constexpr Accelerator Control(char character, int command) {
    return {AcceleratorKey::ControlAnd, character, command};
}

constexpr std::array kAccelerators{
    Control('N', 1),
    Control('O', 2),
    Control('S', 3),
    Control('P', 5),
    Control('Q', 9),
    Control('Z', 101),
    Control('D', 102),
    Control('C', 104),
    Control('V', 105),
    Control('T', 311),
    Accelerator{AcceleratorKey::Return, 0, 403},
    Accelerator{AcceleratorKey::KeypadPeriod, 0, 404},
    Control('8', 406),
    Control('9', 407),
    Control('E', 503),
    Control('F', 512),
    Accelerator{AcceleratorKey::F1, 0, 601},
};

}  // namespace

std::span<const Menu> MenuBar() { return kMenus; }
std::span<const Accelerator> Accelerators() { return kAccelerators; }

}  // namespace quillet
