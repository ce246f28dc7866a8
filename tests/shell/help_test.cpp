#include "shell/help.h"

#include "data/help_topics.h"
#include "resources/dialog_templates.h"
#include "support/temp_folder.h"
#include "support/window.h"

namespace quillet {
namespace {

using Help = TempFolder;

TEST_F(Help, ShowsTheTopicsTextAndThoseOfOthers) {
    const FreshWindow window;
    helpTopics.clear();
    ShowHelp(1);
    EXPECT_THAT(TakeMessages(), ElementsAre("No help topics!"));
    helpTopics = {"Playing", "-", "Scoring"};
    WriteFile("Data/Help/Playing.txt", "Lay tiles.\r\n");
    bool wasShown = false;
    headlessWindow.dialogScripts = {[&](Dialog& dialog) {
        const auto shown = [&] {
            return LineText(dialog, HelpControls::kTopic) + ": " + ControlText(dialog, HelpControls::kText);
        };
        EXPECT_EQ(shown(), "Scoring: Help file not found!");
        ChooseLine(dialog, HelpControls::kTopic, 0);
        EXPECT_EQ(shown(), "Playing: Lay tiles.");
        ChooseLine(dialog, HelpControls::kTopic, 1);  // a line between topics
        EXPECT_EQ(shown(), "Playing: Lay tiles.");
        PressControl(dialog, kOkId);
        wasShown = dialog.result.has_value();
    }};
    ShowHelp(3);
    EXPECT_TRUE(wasShown);
}

}  // namespace
}  // namespace quillet
