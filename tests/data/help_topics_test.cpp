#include "data/help_topics.h"

#include "support/temp_folder.h"

namespace quillet {
namespace {

using Help = TempFolder;

TEST_F(Help, ListsTheLinesOfTheListInTheirOrder) {
    WriteFile("Data/Help/HELPITEMS.txt",
              "Playing\r\n-\r\n" + std::string(70, 'x') + "\r\nScoring\rTips\r\nnot ended");
    LoadHelpTopics();
    EXPECT_THAT(helpTopics, ElementsAre("Playing", "-", std::string(63, 'x'), "Scoring", "Tips"));
    EXPECT_TRUE(IsSeparator("-") && !IsSeparator("Playing"));
    std::string lines;
    for (int i = 0; i < 200; ++i) lines += "x\r\n";
    WriteFile("Data/Help/HELPITEMS.txt", lines);
    LoadHelpTopics();
    EXPECT_THAT(helpTopics, SizeIs(97));
    Remove("Data/Help/HELPITEMS.txt");
    LoadHelpTopics();
    EXPECT_THAT(helpTopics, IsEmpty());
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not open help items: Data\\Help\\HELPITEMS.txt"));
}

TEST_F(Help, ShowsATextAsItStandsButForALastLineEnd) {
    const std::pair<std::string, std::string> cases[] = {
        {"One.\r\nTwo.\r\n", "One.\r\nTwo."},
        {"One.\r\nTwo.", "One.\r\nTwo."},
        {"One.\n", "One.\n"},
        {"\r\n", ""},
        {"\n", "\n"},
        {"", ""},
        {std::string(40'000, 'x'), std::string(32'000, 'x')},
        {std::string(31'998, 'x') + "\r\n\r\n", std::string(31'998, 'x')},
    };
    for (const auto& [contents, shown] : cases) {
        WriteFile("Data/Help/Playing.txt", contents);
        EXPECT_EQ(HelpText("Playing"), shown);
    }
    for (const char* missing : {"Scoring", "..\\Prefs\\1000", "", "."}) {
        EXPECT_EQ(HelpText(missing), "Help file not found!") << missing;
    }
    EXPECT_EQ(HelpText(std::string(63, 'x')), "Help file not found!");
}

}  // namespace
}  // namespace quillet
