#include "store/files.h"

#include <unistd.h>

#include <cerrno>

#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::Optional;

using Files = TempFolder;

std::string ReadCharacters(const std::string& path) {
    FileRef file = OpenForReading(path);
    std::string text;
    for (char character = 0; ReadChar(*file, character);) text += character;
    CloseFile(std::move(file));
    return text;
}

bool WriteWhole(const std::string& path, std::string_view text) {
    FileRef file = CreateForWriting(path);
    WriteText(*file, text);
    return CloseFile(std::move(file));
}

TEST_F(Files, ReadCharFoldsCrLfAndNothingElse) {
    WriteFile("text", "a\r\nb\nc\r\r\nd\re\r\n\n\xFF\x1A");
    EXPECT_EQ(ReadCharacters("text"), "a\rb\nc\r\rd\re\r\n\xFF\x1A");
}

TEST_F(Files, WriteTextEndsLinesWithCrLfAndStopsAtNul) {
    EXPECT_TRUE(WriteWhole("text", std::string_view("one\rtwo\r\0three", 14)));
    EXPECT_EQ(ReadFile("text"), "one\r\ntwo\r\n");
}

TEST_F(Files, DroppingAFileKeepsTheOldOne) {
    WriteFile("kept", "old");
    WriteText(*CreateForWriting("kept"), "new");
    EXPECT_EQ(ReadFile("kept"), "old");
    EXPECT_EQ(CountEntries("."), 1U) << "the temporary file is gone";
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

// The disk fills in the middle of the writing, or only when the last bytes leave the buffer.
TEST_F(Files, FullDiskKeepsTheOldFileAndWarnsOnce) {
    WriteFile("kept", "old");
    for (const auto open : {CreateForWriting, OpenForAppending}) {
        for (const std::size_t size : {std::size_t{10}, std::size_t{100000}}) {
            const FullDisk full(8);
            FileRef file = open("kept");
            WriteText(*file, std::string(size, 'x'));
            SeekTo(*file, 0);
            EXPECT_FALSE(CloseFile(std::move(file)));
            EXPECT_THAT(TakeMessages(),
                        ElementsAre("Write operation failed: error = " + std::to_string(EFBIG)));
        }
    }
    EXPECT_EQ(ReadFile("kept"), "old");
    EXPECT_EQ(CountEntries("."), 1U);
}

TEST_F(Files, WritingKeepsPermissionsAndFollowsLinks) {
    WriteFile("real", "old");
    std::filesystem::permissions(root / "real", std::filesystem::perms(0640));
    std::filesystem::create_symlink("real", root / "link");
    WriteWhole("link", "new");
    EXPECT_EQ(ReadFile("real"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(root / "link"));
    EXPECT_EQ(std::filesystem::status(root / "real").permissions(), std::filesystem::perms(0640));
}

TEST_F(Files, FoldersDevicesAndMissingPlacesAreNeverOpened) {
    MakeFolder("folder");
    std::filesystem::create_symlink("/dev/null", root / "device");
    for (const char* path : {"folder", "device", "none\\file", ""}) {
        EXPECT_FALSE(CreateForWriting(path)) << path;
        EXPECT_FALSE(OpenForAppending(path)) << path;
    }
    EXPECT_FALSE(OpenForReading("folder"));
    EXPECT_FALSE(OpenForReading("device")) << "it might never end";
    EXPECT_EQ(CountEntries("."), 2U);
}

TEST_F(Files, ReadOnlyFileIsNotReplaced) {
    if (geteuid() == 0) GTEST_SKIP() << "nothing is read-only to root";
    WriteFile("kept", "old");
    std::filesystem::permissions(root / "kept", std::filesystem::perms(0444));
    EXPECT_FALSE(IsWritable("kept") || CreateForWriting("kept"));
}

TEST_F(Files, NamesAreFoundWithoutRegardToCase) {
    WriteFile("Word Lists/Words.qld", "words");
    WriteFile("word.txt", "lower");
    WriteFile("WORD.TXT", "upper");
    WriteFile("Z\xC3\x9CRICH/x", "umlaut");  // UTF-8 on the disk
    EXPECT_EQ(ReadCharacters("WORD LISTS\\words.QLD"), "words");
    EXPECT_EQ(ReadCharacters("WORD.TXT"), "upper") << "a name found as written comes first";
    EXPECT_EQ(ReadCharacters("z\xFCrich\\X"), "umlaut") << "Latin-1 in the program";
    WriteWhole("WORD LISTS\\WORDS.qld", "again");
    EXPECT_EQ(ReadFile("Word Lists/Words.qld"), "again");
    EXPECT_EQ(CountEntries("Word Lists"), 1U);
    EXPECT_TRUE(FolderExists("word lists") && !FileExists("word lists"));
}

TEST_F(Files, PathsCannotLeaveTheDataFolder) {
    WriteFile("data/inside", "x");
    WriteFile("outside", "secret");
    SetDataFolder((root / "data").string());
    EXPECT_TRUE(OpenForReading("inside"));
    for (const char* path : {"..\\outside", "../outside", "none\\..\\..\\outside"}) {
        EXPECT_FALSE(OpenForReading(path)) << path;
    }
    EXPECT_TRUE(OpenForReading((root / "outside").string())) << "a path of the system's own";
}

TEST_F(Files, TooLongPathFindsNothingRatherThanAnotherFile) {
    const std::string longest(kMaxPath, 'n');
    WriteFile(longest, "longest");
    WriteFile(longest + "x", "too long");
    FilePath path(longest);
    EXPECT_TRUE(OpenForReading(path));
    path.Append("xyz");
    EXPECT_FALSE(OpenForReading(path) || CreateForWriting(path));
}

TEST_F(Files, EleventhOpenFileIsUsableButNotTracked) {
    WriteFile("x", "x");
    std::vector<FileRef> files(10);
    for (FileRef& file : files) file = OpenForReading("x");
    EXPECT_EQ(ReadCharacters("x"), "x");
    EXPECT_THAT(TakeMessages(), ElementsAre("Too many open files!", "Path not found!"));
    CloseFile(std::move(files[0]));
    files[1].reset();  // dropping a file frees its place too
    files[0] = OpenForReading("x");
    files[1] = OpenForReading("x");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Files, ListsAreSortedAndLeaveOutWhatIsNotForThePlayer) {
    for (const std::string name :
         {"Zebra", "apple", "Apple pie", "Locked", ".hidden", "\xC5\x81\xC3\xB3", "d.qld"})
        MakeFolder("Mixed/" + name);
    std::filesystem::permissions(root / "Mixed/Locked", std::filesystem::perms(0555));
    for (const std::string name : {"Words.qld", "words 2.QLD", "Large.qld", ".qld", "notes.txt", "qld"})
        WriteFile("Mixed/" + name, "");
    FileRef unfinished = CreateForWriting("Mixed\\New.qld");
    EXPECT_THAT(ListSubfolders("mixed"), Optional(ElementsAre("apple", "Apple pie", "d.qld", "Zebra")));
    EXPECT_THAT(ListFiles("Mixed", ".qld"), ElementsAre("", "Large", "Words", "words 2"));
    EXPECT_EQ(ListSubfolders("none"), std::nullopt);
}

}  // namespace
}  // namespace quillet
