#include "dialogs/choose_file.h"

#include <gmock/gmock.h>

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
    std::string asked;
    for (const FileRequest& request : headlessWindow.fileRequests) {
        asked += std::string(request.title) + "|" + std::string(request.description) + "|" +
                 std::string(request.extension) + "|" + request.folder + "|" + request.name + "\n";
    }
    EXPECT_EQ(asked.substr(asked.find('\n') + 1),
              "Dump to Text File|Text files|txt|/root/a|Words.txt\n"
              "Add from Text File|Text files|txt|/root/a|\n"
              "Save Game|Quillet Game|qlg|/|untitled.qlg\n");
    EXPECT_TRUE(asked.starts_with("Open Game|Quillet Game|qlg|")) << asked;
}

TEST_F(ChooseFile, TitleIsTheNameWithoutItsFolder) {
    EXPECT_EQ(FileTitle("/a.b/game.qlg"), "game.qlg");
    EXPECT_EQ(FileTitle("game.qlg"), "game.qlg");
    EXPECT_EQ(FileTitle("/" + std::string(300, 'x')).size(), 220U);
}

}  // namespace
}  // namespace quillet
