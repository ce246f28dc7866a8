#include "editors/letters_editor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/messages.h"
#include "data/scenarios.h"
#include "game/game_state.h"
#include "platform/dialog.h"
#include "platform/message_box.h"
#include "store/numbers.h"

namespace quillet {
namespace {

constexpr int kSaveId = 1;
constexpr int kTotalId = 3;
constexpr int kBonusId = 4;
// Of the controls of a tile code: its own number is added.
constexpr int kValueArrows = 10;
constexpr int kCountArrows = 50;
constexpr int kValueDisplay = 154;
constexpr int kCountDisplay = 181;

constexpr int kMostValue = 10;
constexpr int kMostCount = 50;
constexpr int kMostBonus = 999;
constexpr int kRowsInBlock = 9;  // the codes stand in three blocks side by side
constexpr int kColumnsInBlock = 5;

int IndexOf(LetterCode code) { return static_cast<int>(LetterIndex(code)); }

// --- The template ---

void AddHeadings(std::vector<ControlTemplate>& controls, int firstColumn) {
    int column = firstColumn;
    for (std::string_view heading : {"Letter", "Value", "Count"}) {
        controls.push_back({.text = heading, .cell = {.row = 0, .column = column}});
        column += column == firstColumn ? 1 : 2;
    }
}

void AddCode(std::vector<ControlTemplate>& controls, LetterCode code) {
    static constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const int index = IndexOf(code);
    const int row = 1 + index % kRowsInBlock;
    const int column = index / kRowsInBlock * kColumnsInBlock;
    const std::string_view name =
        code == kBlank ? std::string_view("blank") : kLetters.substr(static_cast<std::size_t>(index), 1);
    const auto add = [&](int id, ControlKind kind, std::string_view text, int place) {
        controls.push_back(
            {.id = id, .kind = kind, .text = text, .cell = {.row = row, .column = column + place}});
    };
    add(0, ControlKind::Label, name, 0);
    add(kValueDisplay + index, ControlKind::Label, "00", 1);
    add(kValueArrows + index, ControlKind::Arrows, name, 2);
    add(kCountDisplay + index, ControlKind::Label, "00", 3);
    add(kCountArrows + index, ControlKind::Arrows, name, 4);
}

void AddNotes(std::vector<ControlTemplate>& controls, int row) {
    for (std::string_view note :
         {"Notes:", "- Values = 0 to 10.", "- Counts = 0 to 50.", "- Blank count = 0 to 5.",
          "- Total letters = 28 to 200.", "- 7 letter bonus = 0 to 999."}) {
        controls.push_back({.text = note, .cell = {.row = row++, .column = 8, .columns = 7}});
    }
}

std::vector<ControlTemplate> MakeControls() {
    std::vector<ControlTemplate> controls;
    for (int block = 0; block < 3; ++block) AddHeadings(controls, block * kColumnsInBlock);
    for (LetterCode code = 'A'; code <= kBlank; ++code) AddCode(controls, code);
    const int row = kRowsInBlock + 1;
    controls.push_back({.text = "Total letters =", .cell = {.row = row, .column = 0, .columns = 4}});
    controls.push_back({.id = kTotalId, .text = "000", .cell = {.row = row, .column = 4, .columns = 3}});
    controls.push_back({.text = "&7 letter bonus =", .cell = {.row = row + 1, .column = 0, .columns = 4}});
    controls.push_back({.id = kBonusId,
                        .kind = ControlKind::Edit,
                        .cell = {.row = row + 1, .column = 4, .columns = 3},
                        .width = 4});
    AddNotes(controls, row);
    controls.push_back({.id = kSaveId,
                        .kind = ControlKind::DefaultButton,
                        .text = "Save",
                        .cell = {.row = kButtonRow, .column = 0}});
    controls.push_back({.id = kCancelId,
                        .kind = ControlKind::Button,
                        .text = "Cancel",
                        .cell = {.row = kButtonRow, .column = 1}});
    return controls;
}

// --- What the dialog works on ---

struct LettersDraft {
    LetterValues values;
    LetterCounts counts;
    int total = 0;
};

void ShowCode(Dialog& dialog, const LettersDraft& draft, LetterCode code) {
    SetControlText(dialog, kValueDisplay + IndexOf(code), std::to_string(draft.values[code]));
    SetControlText(dialog, kCountDisplay + IndexOf(code), std::to_string(draft.counts[code]));
    SetControlText(dialog, kTotalId, std::to_string(draft.total));
}

bool StepValue(LettersDraft& draft, LetterCode code, int step) {
    std::int32_t& value = draft.values[code];
    if (step < 0 ? value <= 0 : value >= kMostValue) return false;
    value += step;
    return true;
}

bool StepCount(LettersDraft& draft, LetterCode code, int step) {
    std::int16_t& count = draft.counts[code];
    const int most = code == kBlank ? kMaxBlanks : kMostCount;
    if (step < 0 && (count < 1 || draft.total <= kMinTiles)) return false;
    if (step > 0 && (count >= most || draft.total >= kMaxTiles)) return false;
    count = static_cast<std::int16_t>(count + step);
    draft.total += step;
    return true;
}

void Step(Dialog& dialog, LettersDraft& draft, int control, int step) {
    const bool isCount = control >= kCountArrows;
    const auto code = static_cast<LetterCode>('A' + control - (isCount ? kCountArrows : kValueArrows));
    if (!(isCount ? StepCount : StepValue)(draft, code, step)) return Beep();
    ShowCode(dialog, draft, code);
}

std::optional<std::int32_t> ReadBonus(Dialog& dialog) {
    constexpr std::size_t kMostCharacters = 7;
    const auto bonus = ParseInteger(ControlText(dialog, kBonusId).substr(0, kMostCharacters));
    return bonus && *bonus >= 0 && *bonus <= kMostBonus ? bonus : std::nullopt;
}

void Save(Dialog& dialog, const LettersDraft& draft) {
    const std::optional<std::int32_t> bonus = ReadBonus(dialog);
    if (!bonus) {
        Warning("7 letter bonus must be from 0 to ", std::to_string(kMostBonus), ".");
        FocusControl(dialog, kBonusId);
        return SelectText(dialog, kBonusId);
    }
    game.settings.sevenLetterBonus = *bonus;
    game.settings.letterValues = draft.values;
    game.settings.letterCounts = draft.counts;
    game.bag.totaltiles = static_cast<std::uint16_t>(draft.total);
    SaveScenarioLetters();
    CloseDialog(dialog, kSaveId);
}

void Open(Dialog& dialog, const LettersDraft& draft) {
    SetControlText(dialog, kBonusId, std::to_string(game.settings.sevenLetterBonus));
    for (LetterCode code = 'A'; code <= kBlank; ++code) ShowCode(dialog, draft, code);
    FocusControl(dialog, kCancelId);
}

}  // namespace

bool EditLetterInfo() {
    static const std::vector<ControlTemplate> kControls = MakeControls();
    LettersDraft draft{game.settings.letterValues, game.settings.letterCounts, game.bag.totaltiles};
    const int result = RunDialog({.title = "Edit Letter Info", .controls = kControls},
                                 [&](Dialog& dialog, const DialogEvent& event) {
                                     using Kind = DialogEvent::Kind;
                                     if (event.kind == Kind::Opened) Open(dialog, draft);
                                     if (event.kind == Kind::SteppedDown)
                                         Step(dialog, draft, event.control, -1);
                                     if (event.kind == Kind::SteppedUp) Step(dialog, draft, event.control, 1);
                                     if (event.kind != Kind::Pressed) return;
                                     if (event.control == kSaveId) return Save(dialog, draft);
                                     if (event.control == kCancelId) CloseDialog(dialog, kCancelId);
                                 });
    return result == kSaveId;
}

}  // namespace quillet
