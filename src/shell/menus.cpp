#include "shell/menus.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "base/messages.h"
#include "data/help_topics.h"
#include "data/scenarios.h"
#include "dialogs/new_word_list.h"
#include "game/game_state.h"
#include "game/validation.h"
#include "platform/clipboard.h"
#include "platform/menu.h"
#include "resources/menus.h"
#include "store/preferences.h"
#include "words/dict.h"
#include "words/word_list_file.h"

namespace quillet {
namespace {

// A name as the text of an item, in which a single "&" would mark an access key.
std::string ItemText(std::string_view name) {
    std::string text;
    for (char character : name) text.append(character == '&' ? 2 : 1, character);
    return text;
}

// A menu's list of names, with commands from `firstCommand` on; one of them is the current one.
struct NameList {
    MenuGroup group;
    int firstCommand;
    std::vector<std::string> names{};

    int CommandOf(std::size_t index) const { return firstCommand + static_cast<int>(index); }

    void Replace(std::vector<std::string> newNames) {
        for (std::size_t i = names.size(); i-- > 0;) {
            if (!RemoveMenuItem(CommandOf(i))) Warning("RemoveMenu failed!");
        }
        names = std::move(newNames);
        for (std::size_t i = 0; i < names.size(); ++i)
            AppendMenuItem(group, CommandOf(i), ItemText(names[i]));
    }

    std::string NameOf(int command) const {
        const int index = command - firstCommand;
        const bool listed = index >= 0 && index < static_cast<int>(names.size());
        return listed ? names[static_cast<std::size_t>(index)] : std::string();
    }

    // Ticks that name alone.
    void Check(std::string_view current) const {
        for (std::size_t i = 0; i < names.size(); ++i) {
            CheckMenuItem(CommandOf(i), EqualIgnoringCase(names[i], current));
        }
    }

    bool Lists(std::string_view name) const {
        return std::ranges::any_of(names, [&](const std::string& n) { return EqualIgnoringCase(n, name); });
    }
};

struct MenuState {
    NameList scenarios{kScenarioMenu, kFirstScenarioCommand};
    NameList wordLists{kWordsMenu, kFirstWordListCommand};
    std::set<std::string> aboutShown;
    bool disabled = false;
    bool textOperation = false;
};
MenuState menus;

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// --- Which items can be chosen ---

bool HumanIsToMove() { return !game.editorActive && game.IsRunning() && !game.Current().isComputer; }

bool ListHasChanges() { return !game.editorActive && (mainDict.numAdded != 0 || mainDict.numDeleted != 0); }

bool WordIsRemembered() { return !formedWords.remembered.empty(); }

// Items that depend on more than whether their menu is disabled.
struct EnablingRule {
    int command;
    bool (*canBeChosen)();
};
constexpr EnablingRule kEnablingRules[] = {
    {3, [] { return game.gameStarted && !game.editorActive; }},
    {101, [] { return !game.editorActive && game.history.movesCount > 0; }},
    {102, [] { return !game.editorActive && !game.gameOver && game.history.redoCount > 0; }},
    {104, [] { return game.editorActive; }},
    {105, [] { return game.editorActive && ClipboardHoldsPicture(); }},
    {401, [] { return HumanIsToMove() && game.bag.tilesleft >= kRackSize; }},
    {403, HumanIsToMove},
    {404, HumanIsToMove},
    {406, HumanIsToMove},
    {407, HumanIsToMove},
    {503, [] { return !game.editorActive; }},
    {504, ListHasChanges},
    {505, ListHasChanges},
    {512, [] { return !game.editorActive && WordIsRemembered(); }},
};

// --- Ticks and texts ---

struct TickRule {
    int command;
    bool Preferences::*preference;
    bool inverted = false;
};
constexpr TickRule kTickRules[] = {
    {303, &Preferences::rackAbove},           {304, &Preferences::niceLetterMix},
    {305, &Preferences::showComputerLetters}, {306, &Preferences::blinkComputerMoves},
    {307, &Preferences::tellComputerToMove},  {308, &Preferences::allowHints},
    {309, &Preferences::saveStatistics},      {1001, &Preferences::playSounds, true},
    {1002, &Preferences::playIntroMusic},     {1003, &Preferences::canWeTalk},
    {1004, &Preferences::playTileClicks},     {1005, &Preferences::playMixPermute},
    {1006, &Preferences::playBingoBonus},     {1007, &Preferences::playEndGame},
    {1008, &Preferences::playByeBye},
};

void RefreshListTicks() {
    menus.scenarios.Check(CurrentScenario());
    menus.wordLists.Check(wordList.current);
}

void RefreshTexts() {
    const std::string list = Quoted(ItemText(wordList.current));
    SetMenuText(503, "&Edit " + list + "...\tCtrl+E");
    SetMenuText(504, "&Revert " + list);
    SetMenuText(505, "&Save " + list);
    const std::string word = WordIsRemembered() ? Quoted(formedWords.remembered) : "?";
    SetMenuText(512, "&Define " + word + "\tCtrl+F");
}

template <typename Visit>
void ForEachCommand(Visit visit) {
    for (const Menu& menu : MenuBar()) {
        for (const MenuItem& item : menu.items) {
            if (item.command != 0) visit(item.command);
            for (const MenuItem& inner : item.submenu) visit(inner.command);
        }
    }
    for (const NameList* list : {&menus.scenarios, &menus.wordLists}) {
        for (std::size_t i = 0; i < list->names.size(); ++i) visit(list->CommandOf(i));
    }
}

void AppendHelpTopics() {
    int command = kFirstTopicCommand;
    for (const auto& topic : helpTopics) {
        AppendMenuItem(kHelpMenu, IsSeparator(topic) ? 0 : command, ItemText(topic));
        ++command;
    }
}

}  // namespace

void BuildMenus() {
    menus = {};
    BuildMenuBar(MenuBar(), Accelerators());
    AppendHelpTopics();
    BuildWordsMenu();
    BuildScenarioMenu();
    RefreshMenus();
}

void BuildScenarioMenu() {
    menus.scenarios.Replace(ListScenarios());
    menus.aboutShown.clear();
    if (!menus.scenarios.Lists(CurrentScenario())) SetCurrentScenario(menus.scenarios.names.front());
}

void BuildWordsMenu() {
    std::vector<std::string> names = ListWordLists();
    if (names.empty()) {
        if (!NewWordListDialog()) Fatal("Sorry, but there are no word lists!");
        names.emplace_back(wordList.current);
    }
    menus.wordLists.Replace(std::move(names));
    if (!menus.wordLists.Lists(wordList.current))
        wordList.current = WordListName(menus.wordLists.names.front());
}

std::string ScenarioOf(int command) { return menus.scenarios.NameOf(command); }
std::string WordListOf(int command) { return menus.wordLists.NameOf(command); }

bool TakeAboutMark(std::string_view scenarioName) { return menus.aboutShown.emplace(scenarioName).second; }

void DisableMenus() {
    menus.disabled = true;
    RefreshMenus();
}

void EnableMenus() {
    menus.disabled = false;
    RefreshMenus();
}

void SetTextOperation(bool running) { menus.textOperation = running; }

bool CanBeChosen(int command) {
    const int group = command / 100;
    if (group == kHelpMenu) return true;
    if (group == kOptionsMenu || group == kSoundsMenu) return !game.editorActive && !menus.textOperation;
    const auto rule = std::ranges::find(kEnablingRules, command, &EnablingRule::command);
    const bool allowed = rule == std::end(kEnablingRules) || rule->canBeChosen();
    // In the board editor its own commands, copying and pasting pictures, are all there is.
    if (game.editorActive) return rule != std::end(kEnablingRules) && allowed;
    return !menus.disabled && allowed;
}

void RefreshOptionTicks() {
    for (const TickRule& rule : kTickRules) {
        CheckMenuItem(rule.command, preferences.*rule.preference != rule.inverted);
    }
}

void RefreshMenus() {
    RefreshTexts();
    RefreshOptionTicks();
    RefreshListTicks();
    ForEachCommand([](int command) { EnableMenuItem(command, CanBeChosen(command)); });
}

}  // namespace quillet
