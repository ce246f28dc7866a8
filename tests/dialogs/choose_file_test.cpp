#include "dialogs/choose_file.h"

#include "support/dialog_test.h"

namespace quillet {
namespace {

using ChooseFile = DialogTest;

TEST_F(ChooseFile, StartsWhereTheLastFileWasChosen) {
    headlessWindow.fileAnswers = {"/root/a/game.qlg", std::nullopt, "/words.txt"};
    EXPECT_EQ(ChooseFileToOpen(SavedGameFiles(), "old.qlg"), "/root/a/game.qlg");
    EXPECT_EQ(ChooseFileToSave(TextFiles(), "Words.txt"), std::nullopt);
    EXPECT_EQ(ChooseFileToOpen(TextFiles(), ""), "/words.txt");
    EXPECT_EQ(ChooseFileToSave(SavedGameFiles(), "untitled.qlg"), std::nullopt);
    Strings asked;
    for (const auto& [title, description, extension, folder, name] : headlessWindow.fileRequests) {
        asked.push_back(std::string(title) + "|" + std::string(description) + "|" + std::string(extension) +
                        "|" + folder + "|" + name);
    }
    EXPECT_THAT(asked, ElementsAre(StartsWith("Open Game|Quillet Game|qlg|"),
                                   "Dump to Text File|Text files|txt|/root/a|Words.txt",
                                   "Add from Text File|Text files|txt|/root/a|",
                                   "Save Game|Quillet Game|qlg|/|untitled.qlg"));
}

TEST_F(ChooseFile, TitleIsTheNameWithoutItsFolder) {
    EXPECT_EQ(FileTitle("/a.b/game.qlg"), "game.qlg");
    EXPECT_EQ(FileTitle("game.qlg"), "game.qlg");
    EXPECT_EQ(FileTitle("/" + std::string(300, 'x')).size(), 220U);
}

}  // namespace
}  // namespace quillet
