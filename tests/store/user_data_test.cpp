#include "store/user_data.h"

#include <gmock/gmock.h>

#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

// A small shipped folder, and the user's tree beside it.
class UserData : public TempFolder {
  protected:
    UserData() {
        Ship("Scenarios/Classic/8300.str", "values");
        Ship("Scenarios/Classic/8301.str", "counts");
        Ship("Scenarios/Kitchen/8300.str", "kitchen");
        Ship("Word Lists/Words.qld", "words");
        Ship("Opponents/Pip/203.str", "pip");
        Ship("Statistics/.gitkeep", "");
        Ship("Data/Sounds/start.wav", "wave");
        Ship("Data/Graphics/sqbig.bmp", "picture");
        Ship("Definitions/A.txt", "A letter");
    }
    void Ship(const std::string& path, const std::string& contents) {
        WriteFile("shipped/" + path, contents);
    }
    void Edit(const std::string& path, const std::string& contents) { WriteFile("own/" + path, contents); }
    void Discard(const std::string& path) { fs::remove_all(root / "own" / path); }
    std::string Own(const std::string& path) { return ReadFile("own/" + path); }
    std::string Start() { return RefreshUserData(root / "shipped", root / "own"); }
    // Every file below a folder with its contents, links not followed.
    std::map<std::string, std::string> Everything(const std::string& folder) {
        std::map<std::string, std::string> files;
        if (!fs::exists(root / folder)) return files;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            const std::string path = entry.path().lexically_relative(root).string();
            if (!path.ends_with(".lock")) files[path] = entry.is_directory() ? "<folder>" : ReadFile(path);
        }
        return files;
    }
};

TEST_F(UserData, FirstStartCopiesWhatMayChangeAndLinksWhatIsOnlyRead) {
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Own("Scenarios/Classic/8300.str"), "values");
    EXPECT_EQ(Own("Word Lists/Words.qld"), "words");
    EXPECT_EQ(Own("Opponents/Pip/203.str"), "pip");
    EXPECT_EQ(Own("Data/Sounds/start.wav"), "wave");
    for (const char* folder : {"Data/Sounds", "Data/Graphics", "Definitions"})
        EXPECT_TRUE(fs::is_symlink(root / "own" / folder)) << folder;
    for (const char* folder : {"Data/Prefs", "Statistics"})
        EXPECT_TRUE(fs::is_directory(root / "own" / folder)) << folder;
    EXPECT_EQ(Own("Statistics/.gitkeep"), "<none>");
    const auto before = Everything("own");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Everything("own"), before);
}

TEST_F(UserData, ReadOnlyShippedFilesMayBeChangedInTheTree) {
    fs::permissions(root / "shipped/Word Lists/Words.qld", fs::perms::owner_read);
    fs::permissions(root / "shipped/Scenarios/Kitchen", fs::perms::owner_read | fs::perms::owner_exec);
    Start();
    for (const char* path : {"own/Word Lists/Words.qld", "own/Scenarios/Kitchen"}) {
        EXPECT_NE(fs::status(root / path).permissions() & fs::perms::owner_write, fs::perms::none) << path;
    }
}

TEST_F(UserData, UpgradeReplacesOnlyWhatTheUserLeftAlone) {
    Start();
    Edit("Scenarios/Classic/8301.str", "mine");
    Edit("Scenarios/My Board/8300.str", "board");
    Edit("Data/Prefs/1000.str", "T");
    Discard("Scenarios/Kitchen");
    Ship("Scenarios/Classic/8300.str", "VALUES");
    Ship("Scenarios/Classic/8301.str", "COUNTS");
    Ship("Scenarios/Classic/8302.str", "new");
    Ship("Scenarios/Kitchen/8300.str", "KITCHEN");
    Ship("Scenarios/Kitchen/8301.str", "new");
    Ship("Scenarios/My Board/8300.str", "shipped");
    Ship("Scenarios/Duel/8300.str", "duel");
    fs::remove(root / "shipped/Word Lists/Words.qld");
    fs::remove_all(root / "shipped/Opponents/Pip");
    Edit("Opponents/Pip/300.str", "Words");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Own("Scenarios/Classic/8300.str"), "VALUES");
    EXPECT_EQ(Own("Scenarios/Classic/8301.str"), "mine");
    EXPECT_EQ(Own("Scenarios/Classic/8302.str"), "new");
    EXPECT_FALSE(fs::exists(root / "own/Scenarios/Kitchen"));
    EXPECT_EQ(Own("Scenarios/My Board/8300.str"), "board");
    EXPECT_EQ(Own("Scenarios/Duel/8300.str"), "duel");
    EXPECT_EQ(Own("Data/Prefs/1000.str"), "T");
    EXPECT_EQ(Own("Word Lists/Words.qld"), "<none>");
    EXPECT_EQ(Own("Opponents/Pip/203.str"), "pip") << "stays whole";
    EXPECT_EQ(Own("Opponents/Pip/300.str"), "Words");
    // What was kept back stays so at the upgrades to come.
    Ship("Scenarios/Classic/8301.str", "COUNTS 2");
    Ship("Scenarios/Kitchen/8302.str", "newer");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Own("Scenarios/Classic/8301.str"), "mine");
    EXPECT_FALSE(fs::exists(root / "own/Scenarios/Kitchen"));
}

TEST_F(UserData, FilesNoLongerShippedGoWithTheirFolderUnlessChanged) {
    Start();
    fs::remove_all(root / "shipped/Scenarios/Kitchen");
    fs::remove(root / "shipped/Word Lists/Words.qld");
    Edit("Word Lists/Words.qld", "words of mine");
    EXPECT_EQ(Start(), "");
    EXPECT_FALSE(fs::exists(root / "own/Scenarios/Kitchen"));
    EXPECT_EQ(Own("Word Lists/Words.qld"), "words of mine");
}

TEST_F(UserData, ChangedFileOfTheSameSizeAndDateIsNoticed) {
    Start();
    const fs::path path = root / "shipped/Word Lists/Words.qld";
    const auto date = fs::last_write_time(path);
    Ship("Word Lists/Words.qld", "WORDS");
    fs::last_write_time(path, date);
    Start();
    EXPECT_EQ(Own("Word Lists/Words.qld"), "WORDS");
}

TEST_F(UserData, FolderThatIsGoneAsAWholeComesAgain) {
    Start();
    const auto before = Everything("own");
    Discard("Scenarios");
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Everything("own"), before);
    // As a shell's "*" does it, which leaves the list behind.
    for (const char* folder : {"Scenarios", "Word Lists", "Opponents", "Statistics", "Data", "Definitions"})
        Discard(folder);
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Everything("own"), before);
}

TEST_F(UserData, DamagedListCostsNothing) {
    for (const std::string list : {"", "nonsense", "Quillet's shipped files, 1\nzz 1:2 Scenarios/x\n",
                                   "Quillet's shipped files, 1\n1 2 ../shipped/Word Lists/Words.qld\n"}) {
        Start();
        Edit("Scenarios/Classic/8301.str", "mine");
        WriteFile("own/.shipped", list);
        EXPECT_EQ(Start(), "") << list;
        EXPECT_EQ(Own("Scenarios/Classic/8301.str"), "mine") << list;
        EXPECT_EQ(Own("Word Lists/Words.qld"), "words") << list;
        EXPECT_EQ(ReadFile("shipped/Word Lists/Words.qld"), "words") << list;
    }
}

TEST_F(UserData, LinksFollowTheProgramAndARealFolderStays) {
    Start();
    fs::rename(root / "shipped", root / "moved");
    fs::remove(root / "own/Definitions");
    Edit("Definitions/A.txt", "my own");
    EXPECT_EQ(RefreshUserData(root / "moved", root / "own"), "");
    EXPECT_EQ(Own("Data/Sounds/start.wav"), "wave");
    EXPECT_EQ(Own("Definitions/A.txt"), "my own");
    EXPECT_EQ(ReadFile("moved/Definitions/A.txt"), "A letter");
}

TEST_F(UserData, FullDiskIsToldOnceAndCostsNothing) {
    Ship("Word Lists/Big.qld", std::string(100'000, 'w'));
    {
        const FullDisk disk(50'000);
        EXPECT_THAT(Start(), AllOf(HasSubstr((root / "own").string()), HasSubstr("File too large")));
    }
    EXPECT_THAT(Everything("own"), testing::IsEmpty());
    EXPECT_EQ(Start(), "");
    const auto before = Everything("own");
    Ship("Scenarios/Classic/8300.str", "VALUES");
    Ship("Scenarios/Zoo/8300.str", std::string(100'000, 'z'));
    {
        const FullDisk disk(50'000);
        EXPECT_NE(Start(), "");
    }
    EXPECT_EQ(Everything("own"), before);
    EXPECT_EQ(Start(), "");
    EXPECT_EQ(Own("Scenarios/Classic/8300.str"), "VALUES");
}

TEST_F(UserData, TreeThatCannotBeMadeIsTold) {
    WriteFile("own", "a file in its place");
    EXPECT_THAT(Start(), HasSubstr((root / "own").string()));
    EXPECT_EQ(ReadFile("own"), "a file in its place");
}

}  // namespace
}  // namespace quillet
