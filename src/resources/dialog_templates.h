// The dialogs as constant data: each one's template, and the numbers by which its controls are known. What
// they do stands in src/dialogs.
#pragma once

#include "platform/dialog.h"

namespace quillet {

constexpr int kOkId = 1;  // the button that Enter presses, whatever its text; kCancelId is the other

struct HelpControls {
    enum Id { kTopic = 10, kText };
    static const DialogTemplate kTemplate;
};

// A row for each player; of a row the controls for a human are shown, or those for a computer player, or
// neither. Row r is 1..4.
struct PlayersControls {
    enum Id { kKind = 10, kNameLabel, kName, kSkillLabel, kSkill, kWordListLabel, kWordList, kPicture };
    static constexpr int InRow(Id control, int row) { return 10 * (row - 1) + control; }
    static const DialogTemplate kChoosePlayers;
    static const DialogTemplate kChangePlayer;  // row 1 only
};

struct BlankLetterControls {
    enum Id { kLetter = 10 };
    static const DialogTemplate kTemplate;
};

struct TimerControls {
    enum Id { kEnabled = 10, kTimeLimit, kTimePenalty };
    static const DialogTemplate kTemplate;
};

struct DefineWordControls {
    enum Id { kWord = 10, kText };  // "Define" is kOkId
    static const DialogTemplate kTemplate;
};

struct StatusControls {
    enum Id { kLine1 = 10, kProgress = 20 };  // lines 1 to 4 are numbered on
    static const DialogTemplate kTemplate;
};

// A question for one name.
struct NameControls {
    enum Id { kName = 10 };
    static const DialogTemplate kNewWordList;
    static const DialogTemplate kSaveWordListAs;
    static const DialogTemplate kNewScenario;
};

// The word list's editor, and that of the bonus words.
struct WordEditorControls {
    enum Id { kTotal = 10, kWord, kAdd, kFind, kDelete, kDefine, kList, kEnabled, kPoints };
    static const DialogTemplate kWordList;  // its title is the editor's to make
    static const DialogTemplate kBonusWords;
};

struct AboutScenarioControls {
    enum Id { kText = 10, kAutoShow };
    static const DialogTemplate kTemplate;
};

struct EditAboutTextControls {
    enum Id { kText = 10 };
    static const DialogTemplate kTemplate;
};

// Buttons that name what to edit.
struct EditScenarioControls {
    enum Id { kBoard = 10, kLetters, kAboutText, kBonusWords };
    static const DialogTemplate kTemplate;
};

struct AboutControls {
    enum Id { kIcon = 10 };
    static const DialogTemplate kTemplate;
};

}  // namespace quillet
