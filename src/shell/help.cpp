#include "shell/help.h"

#include "base/messages.h"
#include "data/help_topics.h"
#include "platform/dialog.h"
#include "resources/dialog_templates.h"

namespace quillet {
namespace {

void FillHelp(Dialog& dialog, int topic) {
    SetLines(dialog, HelpControls::kTopic, helpTopics.size(),
             [](std::size_t line) { return std::string(helpTopics[line]); });
    SetChoice(dialog, HelpControls::kTopic, topic);
}

void ShowTopic(Dialog& dialog, int topic) {
    SetControlText(dialog, HelpControls::kText, HelpText(helpTopics[static_cast<std::size_t>(topic)]));
}

// Takes over the topic chosen in the list, unless that is a line between topics.
void ChangeTopic(Dialog& dialog, int& topic) {
    const int chosen = Choice(dialog, HelpControls::kTopic);
    if (chosen < 0 || IsSeparator(helpTopics[static_cast<std::size_t>(chosen)])) {
        SetChoice(dialog, HelpControls::kTopic, topic);
        return;
    }
    topic = chosen;
    ShowTopic(dialog, topic);
}

}  // namespace

void ShowHelp(int number) {
    if (helpTopics.empty()) {
        Warning("No help topics!");
        return;
    }
    int topic = number - 1;  // 0-based, as the list's lines
    RunDialog(HelpControls::kTemplate, [&](Dialog& dialog, const DialogEvent& event) {
        if (event.kind == DialogEvent::Kind::Opened) {
            FillHelp(dialog, topic);
            ShowTopic(dialog, topic);
        } else if (event.kind == DialogEvent::Kind::Changed) {
            ChangeTopic(dialog, topic);
        } else if (event.kind == DialogEvent::Kind::Pressed) {
            CloseDialog(dialog, event.control);
        }
    });
}

}  // namespace quillet
