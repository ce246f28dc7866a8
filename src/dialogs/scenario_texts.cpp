#include "dialogs/scenario_texts.h"

#include <algorithm>
#include <array>

#include "data/scenarios.h"
#include "dialogs/edit_boxes.h"
#include "resources/dialog_templates.h"
#include "store/preferences.h"

namespace quillet {
namespace {

using EventKind = DialogEvent::Kind;

constexpr std::size_t kMostAboutText = 255;

std::optional<Objection> TakeScenarioName(std::string_view typed) {
    const NewScenarioFault fault = CreateScenario(typed);
    if (fault == NewScenarioFault::None) return std::nullopt;
    const bool tooLong = fault == NewScenarioFault::NameTooLong;
    return Objection{.warning = TextOf(fault), .selectFrom = tooLong ? ScenarioName::capacity() : 0};
}

struct PartButton {
    int control;
    ScenarioPart part;
};
constexpr std::array kPartButtons{PartButton{EditScenarioControls::kBoard, ScenarioPart::BoardPart},
                                  PartButton{EditScenarioControls::kLetters, ScenarioPart::LettersPart},
                                  PartButton{EditScenarioControls::kAboutText, ScenarioPart::AboutPart},
                                  PartButton{EditScenarioControls::kBonusWords, ScenarioPart::BonusPart},
                                  PartButton{kCancelId, ScenarioPart::None}};

}  // namespace

bool NewScenarioDialog() {
    return CheckScenariosFolder() && AskForName(NameControls::kNewScenario, TakeScenarioName);
}

ScenarioPart ChooseScenarioPart() {
    const int result =
        RunDialog(EditScenarioControls::kTemplate, [](Dialog& dialog, const DialogEvent& event) {
            if (event.kind == EventKind::Pressed) CloseDialog(dialog, event.control);
        });
    return std::ranges::find(kPartButtons, result, &PartButton::control)->part;
}

void EditAboutText() {
    using Controls = EditAboutTextControls;
    const auto text = ReadAboutText();
    if (!text) return;
    std::string edited;
    const int result = RunDialog(Controls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == EventKind::Opened) {
            LimitText(dialog, Controls::kText, kMostAboutText);
            SetControlText(dialog, Controls::kText, *text);
            FocusControl(dialog, Controls::kText);
            SelectText(dialog, Controls::kText, text->size(), 0);
        } else if (event.kind == EventKind::Pressed) {
            edited = ControlText(dialog, Controls::kText);
            CloseDialog(dialog, event.control);
        }
    });
    if (result == kOkId) SaveAboutText(edited);
}

void ShowAboutScenario() {
    using Controls = AboutScenarioControls;
    const auto text = ReadAboutText();
    if (!text) return;
    RunDialog(Controls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == EventKind::Opened) {
            SetControlText(dialog, Controls::kText, *text);
            SetChecked(dialog, Controls::kAutoShow, preferences.showAboutScenario);
            FocusControl(dialog, kOkId);
        } else if (event.kind == EventKind::Pressed && event.control == Controls::kAutoShow) {
            FlipPreference(&Preferences::showAboutScenario);
        } else if (event.kind == EventKind::Pressed) {
            CloseDialog(dialog, event.control);
        }
    });
}

}  // namespace quillet
