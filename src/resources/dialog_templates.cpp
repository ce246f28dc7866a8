#include "resources/dialog_templates.h"

#include <array>

namespace quillet {
namespace {

using Kind = ControlKind;

constexpr ControlTemplate Label(std::string_view text, GridCell cell) { return {.text = text, .cell = cell}; }
constexpr ControlTemplate Button(int id, std::string_view text, GridCell cell) {
    return {.id = id, .kind = Kind::Button, .text = text, .cell = cell};
}
constexpr ControlTemplate Check(int id, std::string_view text, GridCell cell) {
    return {.id = id, .kind = Kind::Check, .text = text, .cell = cell};
}
constexpr ControlTemplate Edit(int id, GridCell cell, int characters) {
    return {.id = id, .kind = Kind::Edit, .cell = cell, .width = characters};
}

// The buttons at the bottom.
constexpr ControlTemplate Ok(std::string_view text = "OK") {
    return {.id = kOkId, .kind = Kind::DefaultButton, .text = text, .cell = {.row = kButtonRow, .column = 0}};
}
constexpr ControlTemplate Cancel() { return Button(kCancelId, "Cancel", {.row = kButtonRow, .column = 1}); }

constexpr int kLongestName = 31;
constexpr int kLongestPlayerName = 12;
constexpr int kTextWidth = 60;  // of a text to read

// --- Help ---

constexpr std::array kHelp{
    Label("&Topic:", {0, 0}),
    ControlTemplate{
        .id = HelpControls::kTopic, .kind = Kind::DropDown, .cell = {1, 0}, .width = kLongestName},
    Label("Te&xt:", {2, 0}),
    ControlTemplate{
        .id = HelpControls::kText, .kind = Kind::ReadOnlyText, .cell = {3, 0}, .width = 80, .height = 24},
    Ok(),
};

// --- Players ---

using Players = PlayersControls;

// The controls of a row in the grid's row below the one of that number. The name takes the place of the
// skill.
constexpr std::array<ControlTemplate, 9> ControlsOfPlayer(int row, std::string_view label) {
    const auto id = [row](Players::Id control) { return Players::InRow(control, row); };
    const auto hiddenLabel = [&](Players::Id control, std::string_view text, int column) {
        return ControlTemplate{.id = id(control), .text = text, .cell = {row, column}};
    };
    return {
        Label(label, {row, 0}),
        ControlTemplate{.id = id(Players::kKind), .kind = Kind::DropDown, .cell = {row, 1}, .width = 20},
        hiddenLabel(Players::kNameLabel, "&Name:", 2),
        Edit(id(Players::kName), {row, 3}, kLongestPlayerName + 2),
        hiddenLabel(Players::kSkillLabel, "S&kill:", 2),
        ControlTemplate{.id = id(Players::kSkill), .kind = Kind::DropDown, .cell = {row, 3}, .width = 3},
        hiddenLabel(Players::kWordListLabel, "&Word list:", 4),
        ControlTemplate{.id = id(Players::kWordList), .kind = Kind::DropDown, .cell = {row, 5}, .width = 20},
        ControlTemplate{
            .id = id(Players::kPicture), .kind = Kind::Picture, .cell = {row, 6}, .width = 86, .height = 60},
    };
}

template <std::size_t N, std::size_t... Sizes>
constexpr auto Joined(const std::array<ControlTemplate, N>& first,
                      const std::array<ControlTemplate, Sizes>&... others) {
    std::array<ControlTemplate, (N + ... + Sizes)> joined{};
    std::size_t at = 0;
    const auto append = [&](const auto& controls) {
        for (const ControlTemplate& control : controls) joined[at++] = control;
    };
    append(first);
    (append(others), ...);
    return joined;
}

constexpr auto kChoosePlayersControls =
    Joined(std::array{Label("Choose from 1 to 4 players.", {0, 0, 1, 7})},  //
           ControlsOfPlayer(1, "Player &1:"), ControlsOfPlayer(2, "Player &2:"),
           ControlsOfPlayer(3, "Player &3:"), ControlsOfPlayer(4, "Player &4:"),
           std::array{Label("Note:  Computer players have a skill level ranging from 9 (expert) down to 0 "
                            "(novice).",
                            {5, 0, 1, 7}),
                      Ok("New Game"), Cancel()});

constexpr auto kChangePlayerControls =
    Joined(std::array{Label("Change this player (without starting a new game).", {0, 0, 1, 7})},
           ControlsOfPlayer(1, "&Player:"), std::array{Ok(), Cancel()});

// --- Words ---

constexpr std::array kBlankLetter{
    Label("Type in a &letter for the selected blank.", {0, 0}),
    Edit(BlankLetterControls::kLetter, {1, 0}, 2),
    Ok(),
    Cancel(),
};

constexpr std::array kDefineWord{
    Label("&Word:", {0, 0}),
    Edit(DefineWordControls::kWord, {0, 1}, kLongestName),
    ControlTemplate{.id = kOkId, .kind = Kind::DefaultButton, .text = "&Define", .cell = {0, 2}},
    Label("&Meaning:", {1, 0, 1, 3}),
    ControlTemplate{.id = DefineWordControls::kText,
                    .kind = Kind::ReadOnlyText,
                    .cell = {2, 0, 1, 3},
                    .width = kTextWidth,
                    .height = 7},
    Cancel(),
};

constexpr ControlTemplate StatusLabel(int line) {
    return {.id = StatusControls::kLine1 + line - 1, .cell = {line - 1, 0}, .width = kTextWidth};
}

// The bar takes the place of line 4.
constexpr std::array kStatus{
    StatusLabel(1),
    StatusLabel(2),
    StatusLabel(3),
    StatusLabel(4),
    ControlTemplate{
        .id = StatusControls::kProgress, .kind = Kind::Progress, .cell = {3, 0}, .width = kTextWidth},
    Cancel(),
};

constexpr std::array<ControlTemplate, 4> AskForName(std::string_view prompt, std::string_view button) {
    return {Label(prompt, {0, 0}), Edit(NameControls::kName, {1, 0}, kLongestName), Ok(button), Cancel()};
}
constexpr auto kNewWordListControls = AskForName("Enter a &name for the new word list:", "Create");
constexpr auto kSaveWordListAsControls = AskForName("Save the &current word list as:", "Save");
constexpr auto kNewScenarioControls = AskForName("Enter a &name for the new scenario:", "Create");

// The word box with its buttons beside the list, from the grid's row `row` on. Enter finds the word.
constexpr std::array<ControlTemplate, 7> WordAndList(int row) {
    using Editor = WordEditorControls;
    return {
        Label("&Word:", {row, 0}),
        Edit(Editor::kWord, {row, 1}, 17),
        Button(Editor::kAdd, "&Add", {row + 1, 1}),
        ControlTemplate{
            .id = Editor::kFind, .kind = Kind::DefaultButton, .text = "&Find", .cell = {row + 2, 1}},
        Button(Editor::kDelete, "&Delete", {row + 3, 1}),
        Label("&List:", {0, 2}),
        ControlTemplate{.id = Editor::kList,
                        .kind = Kind::List,
                        .cell = {1, 2, row + 4, 1},
                        .width = 17,
                        .height = 12,
                        .fixedPitch = true},
    };
}

constexpr auto kEditWordList =
    Joined(std::array{Label("Total words =", {0, 0}),
                      ControlTemplate{.id = WordEditorControls::kTotal, .cell = {0, 1}}},
           WordAndList(1),
           std::array{Button(WordEditorControls::kDefine, "D&efine", {5, 1}),
                      Button(kOkId, "&OK", {.row = kButtonRow, .column = 0}), Cancel()});

constexpr auto kEditBonusWords =
    Joined(std::array{Check(WordEditorControls::kEnabled, "&Enabled", {0, 0, 1, 2}),
                      Label("Bonus &points =", {1, 0}), Edit(WordEditorControls::kPoints, {1, 1}, 8),
                      Label("Bonus words =", {2, 0}),
                      ControlTemplate{.id = WordEditorControls::kTotal, .cell = {2, 1}}},
           WordAndList(3), std::array{Button(kOkId, "&Save", {.row = kButtonRow, .column = 0}), Cancel()});

// --- Timer ---

constexpr std::array kTimer{
    Check(TimerControls::kEnabled, "Timer &enabled", {0, 0, 1, 3}),
    Label("Time &limit:", {1, 0}),
    Edit(TimerControls::kTimeLimit, {1, 1}, 7),
    Label("minutes", {1, 2}),
    Label("&Penalty:", {2, 0}),
    Edit(TimerControls::kTimePenalty, {2, 1}, 7),
    Label("points per minute", {2, 2}),
    Ok(),
    Cancel(),
};

// --- Scenarios ---

constexpr std::array kAboutScenario{
    Label("&Text:", {0, 0}),
    ControlTemplate{.id = AboutScenarioControls::kText,
                    .kind = Kind::ReadOnlyText,
                    .cell = {1, 0},
                    .width = kTextWidth,
                    .height = 7},
    Check(AboutScenarioControls::kAutoShow, "&Auto show", {2, 0}),
    Ok(),
};

constexpr std::array kEditAboutText{
    Label("&Text:", {0, 0}),
    ControlTemplate{.id = EditAboutTextControls::kText,
                    .kind = Kind::TextBox,
                    .cell = {1, 0},
                    .width = kTextWidth,
                    .height = 7},
    Button(kOkId, "&Save", {.row = kButtonRow, .column = 0}),
    Cancel(),
};

constexpr std::array kEditScenario{
    ControlTemplate{.id = EditScenarioControls::kBoard,
                    .kind = Kind::DefaultButton,
                    .text = "Edit &Board...",
                    .cell = {0, 0}},
    Button(EditScenarioControls::kLetters, "Edit &Letters...", {1, 0}),
    Button(EditScenarioControls::kAboutText, "Edit &About Text...", {2, 0}),
    Button(EditScenarioControls::kBonusWords, "Edit Bonus &Words...", {3, 0}),
    Cancel(),
};

// --- The program ---

constexpr std::array kAbout{
    ControlTemplate{
        .id = AboutControls::kIcon, .kind = Kind::Picture, .cell = {0, 0}, .width = 64, .height = 64},
    Label("Quillet 1.0", {0, 1}),
    Ok(),
};

}  // namespace

constexpr DialogTemplate HelpControls::kTemplate{"Quillet Help", kHelp};
constexpr DialogTemplate PlayersControls::kChoosePlayers{"Choose Players", kChoosePlayersControls};
constexpr DialogTemplate PlayersControls::kChangePlayer{"Change One Player", kChangePlayerControls};
constexpr DialogTemplate BlankLetterControls::kTemplate{"Quillet", kBlankLetter};
constexpr DialogTemplate TimerControls::kTemplate{"Timer Settings", kTimer};
constexpr DialogTemplate DefineWordControls::kTemplate{"Define Word", kDefineWord};
constexpr DialogTemplate StatusControls::kTemplate{"Status", kStatus};
constexpr DialogTemplate NameControls::kNewWordList{"New Word List", kNewWordListControls};
constexpr DialogTemplate NameControls::kSaveWordListAs{"Save As", kSaveWordListAsControls};
constexpr DialogTemplate NameControls::kNewScenario{"New Scenario", kNewScenarioControls};
constexpr DialogTemplate WordEditorControls::kWordList{"", kEditWordList};
constexpr DialogTemplate WordEditorControls::kBonusWords{"Edit Bonus Words", kEditBonusWords};
constexpr DialogTemplate AboutScenarioControls::kTemplate{"About Scenario", kAboutScenario};
constexpr DialogTemplate EditAboutTextControls::kTemplate{"Edit About Text", kEditAboutText};
constexpr DialogTemplate EditScenarioControls::kTemplate{"Edit Scenario", kEditScenario};
constexpr DialogTemplate AboutControls::kTemplate{"About Quillet", kAbout};

}  // namespace quillet
