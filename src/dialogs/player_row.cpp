#include "dialogs/player_row.h"

#include <array>

#include "dialogs/edit_boxes.h"
#include "platform/message_box.h"

namespace quillet {
namespace {

using Controls = PlayersControls;

constexpr std::array kOfHumans{Controls::kNameLabel, Controls::kName};
constexpr std::array kOfComputers{Controls::kSkillLabel, Controls::kSkill, Controls::kWordListLabel,
                                  Controls::kWordList, Controls::kPicture};

constexpr int kNormalMood = 1;

// A list or drop-down of these lines.
void SetTexts(Dialog& dialog, int control, const std::vector<std::string>& lines) {
    SetLines(dialog, control, lines.size(), [lines](std::size_t line) { return lines[line]; });
}

bool IsComputer(const PlayerRow& row) { return row.choice.kind >= kFirstOpponentKind; }

void ShowRow(Dialog& dialog, const PlayerRow& row) {
    for (const auto control : kOfHumans) {
        ShowControl(dialog, row.Id(control), row.choice.kind == kHumanPlayer);
    }
    for (const auto control : kOfComputers) ShowControl(dialog, row.Id(control), IsComputer(row));
}

void ShowOpponent(Dialog& dialog, PlayerRow& row) {
    row.picture.reset();
    if (IsComputer(row)) row.picture = LoadOpponentPicture(OpponentOfKind(row.choice.kind), kNormalMood);
    SetPicture(dialog, row.Id(Controls::kPicture), row.picture ? &*row.picture : nullptr);
    SetChoice(dialog, row.Id(Controls::kSkill), row.choice.skillChoice);
    ShowWordListChoice(dialog, row);
}

bool TakeKind(Dialog& dialog, PlayerRow& row, bool mayBeNobody, const std::vector<std::string>& wordLists) {
    const int kind = Choice(dialog, row.Id(Controls::kKind));
    if (kind < 0 || kind == kComputersHeading || (kind == kNoPlayer && !mayBeNobody)) {
        SetChoice(dialog, row.Id(Controls::kKind), row.choice.kind);
        Beep();
        return false;
    }
    row.choice.kind = kind;
    if (IsComputer(row)) {
        row.choice.wordListChoice = WordListChoiceOf(OpponentOfKind(kind), wordLists);
        ShowOpponent(dialog, row);
    }
    ShowRow(dialog, row);
    if (kind == kHumanPlayer) FocusAll(dialog, row.Id(Controls::kName));
    return IsComputer(row);
}

}  // namespace

void OpenPlayerRow(Dialog& dialog, PlayerRow& row, const std::vector<std::string>& wordLists) {
    static const std::vector<std::string> kSkills = [] {
        std::vector<std::string> skills;
        for (int choice = 0; choice < kNumSkills; ++choice) {
            skills.push_back(std::to_string(SkillOfChoice(choice)));
        }
        return skills;
    }();
    SetTexts(dialog, row.Id(Controls::kKind), PlayerKinds());
    SetTexts(dialog, row.Id(Controls::kSkill), kSkills);
    SetTexts(dialog, row.Id(Controls::kWordList), wordLists);
    SetChoice(dialog, row.Id(Controls::kKind), row.choice.kind);
    SetControlText(dialog, row.Id(Controls::kName), row.choice.name);
    ShowOpponent(dialog, row);
    ShowRow(dialog, row);
}

void FocusPlayerRow(Dialog& dialog, const PlayerRow& row) {
    if (row.choice.kind == kHumanPlayer) return FocusAll(dialog, row.Id(Controls::kName));
    FocusControl(dialog, row.Id(Controls::kKind));
}

bool TakePlayerRow(Dialog& dialog, const DialogEvent& event, PlayerRow& row, bool mayBeNobody,
                   const std::vector<std::string>& wordLists) {
    if (event.kind != DialogEvent::Kind::Changed) return false;
    if (event.control == row.Id(Controls::kKind)) return TakeKind(dialog, row, mayBeNobody, wordLists);
    if (event.control == row.Id(Controls::kSkill)) row.choice.skillChoice = Choice(dialog, event.control);
    if (event.control != row.Id(Controls::kWordList)) return false;
    row.choice.wordListChoice = static_cast<std::size_t>(Choice(dialog, event.control));
    return true;
}

void ShowWordListChoice(Dialog& dialog, const PlayerRow& row) {
    SetChoice(dialog, row.Id(Controls::kWordList), static_cast<int>(row.choice.wordListChoice));
}

void ReadPlayerName(Dialog& dialog, PlayerRow& row) {
    row.choice.name = ControlText(dialog, row.Id(Controls::kName));
}

void CorrectPlayerName(Dialog& dialog, const PlayerRow& row, PlayerFault fault) {
    const std::size_t from = fault == PlayerFault::NameTooLong ? PlayerName::capacity() : 0;
    FocusControl(dialog, row.Id(Controls::kName));
    SelectText(dialog, row.Id(Controls::kName), from);
}

}  // namespace quillet
