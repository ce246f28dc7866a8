#include "store/files.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>

#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Files : public TempFolder {
  protected:
    std::string ReadCharacters(const std::string& path) {
        FileRef file = OpenForReading(path);
        std::string text;
        for (char character = 0; ReadChar(*file, character);) text += character;
        CloseFile(std::move(file));
        return text;
    }
};

// While one lives, no file of this process can grow beyond that size: a disk that is full.
struct FullDisk {
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &old);
        oldHandler = signal(SIGXFSZ, SIG_IGN);
        const rlimit low{bytes, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &low);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &old);
        signal(SIGXFSZ, oldHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    rlimit old{};
    sighandler_t oldHandler = nullptr;
};

TEST_F(Files, ReadCharFoldsCrLfAndNothingElse) {
    struct Case {
        std::string stored, read;
    };
    for (const Case& c : {Case{"a\r\nb\r\n", "a\rb\r"}, Case{"a\nb\n", "a\nb\n"}, Case{"a\r\r\nb", "a\r\rb"},
                          Case{"a\rb\r", "a\rb\r"}, Case{"\r\n\n", "\r\n"}, Case{"\xFF\x1A", "\xFF\x1A"}}) {
        WriteFile("text", c.stored);
        EXPECT_EQ(ReadCharacters("text"), c.read) << testing::PrintToString(c.stored);
    }
}

TEST_F(Files, WriteTextEndsLinesWithCrLfAndStopsAtNul) {
    FileRef file = CreateForWriting("text");
    WriteText(*file, std::string_view("one\rtwo\r\0three", 14));
    EXPECT_TRUE(CloseFile(std::move(file)));
    EXPECT_EQ(ReadFile("text"), "one\r\ntwo\r\n");
}

TEST_F(Files, AppendingCanAlsoRewriteTheStart) {
    WriteFile("log", "head 1\nline\n");
    FileRef file = OpenForAppending("log");
    WriteText(*file, "more\n");
    SeekTo(*file, 5);
    WriteText(*file, "2");
    SeekTo(*file, FileSize(*file));
    WriteText(*file, "end\n");
    EXPECT_EQ(ReadFile("log"), "head 1\nline\n") << "nothing is in place before the file is closed";
    EXPECT_TRUE(CloseFile(std::move(file)));
    EXPECT_EQ(ReadFile("log"), "head 2\nline\nmore\nend\n");
}

TEST_F(Files, DroppingAFileKeepsTheOldOne) {
    WriteFile("kept", "old");
    {
        FileRef file = CreateForWriting("kept");
        WriteText(*file, "new");
    }
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
    FileRef file = CreateForWriting("link");
    WriteText(*file, "new");
    CloseFile(std::move(file));
    EXPECT_EQ(ReadFile("real"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(root / "link"));
    EXPECT_EQ(std::filesystem::status(root / "real").permissions(), std::filesystem::perms(0640));
}

TEST_F(Files, FoldersDevicesAndMissingPlacesAreNeverWritten) {
    MakeFolder("folder");
    std::filesystem::create_symlink("/dev/null", root / "device");
    for (const char* path : {"folder", "device", "none\\file", ""}) {
        EXPECT_FALSE(CreateForWriting(path)) << path;
        EXPECT_FALSE(OpenForAppending(path)) << path;
    }
    EXPECT_FALSE(OpenForReading("folder"));
    EXPECT_EQ(errno, EISDIR);
    EXPECT_FALSE(CreateForWriting("none\\file"));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(CountEntries("."), 2U);
}

TEST_F(Files, ReadOnlyFileIsNotReplaced) {
    if (geteuid() == 0) GTEST_SKIP() << "nothing is read-only to root";
    WriteFile("kept", "old");
    std::filesystem::permissions(root / "kept", std::filesystem::perms(0444));
    EXPECT_FALSE(IsWritable("kept"));
    EXPECT_FALSE(CreateForWriting("kept"));
    EXPECT_EQ(errno, EACCES);
}

TEST_F(Files, NamesAreFoundWithoutRegardToCase) {
    WriteFile("Word Lists/Words.qld", "words");
    WriteFile("word.txt", "lower");
    WriteFile("WORD.TXT", "upper");
    WriteFile("Z\xC3\x9CRICH/x", "umlaut");  // UTF-8 on the disk
    EXPECT_EQ(ReadCharacters("WORD LISTS\\words.QLD"), "words");
    EXPECT_EQ(ReadCharacters("WORD.TXT"), "upper") << "a name found as written comes first";
    EXPECT_EQ(ReadCharacters("z\xFCrich\\X"), "umlaut") << "Latin-1 in the program";
    FileRef file = CreateForWriting("WORD LISTS\\WORDS.qld");
    WriteText(*file, "again");
    CloseFile(std::move(file));
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
    EXPECT_TRUE(OpenForReading((root / "outside").string()))
        << "a path of the system's own is taken as it is";
}

TEST_F(Files, TooLongPathFindsNothingRatherThanAnotherFile) {
    const std::string longest(kMaxPath, 'n');
    WriteFile(longest, "longest");
    WriteFile(longest + "x", "too long");
    FilePath path(longest);
    EXPECT_TRUE(OpenForReading(path));
    path.Append("xyz");
    EXPECT_FALSE(OpenForReading(path));
    EXPECT_FALSE(CreateForWriting(path));
    EXPECT_EQ(errno, ENAMETOOLONG);
}

TEST_F(Files, EleventhOpenFileIsUsableButNotTracked) {
    WriteFile("x", "x");
    std::vector<FileRef> files;
    for (int i = 0; i < 10; ++i) files.push_back(OpenForReading("x"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    FileRef extra = OpenForReading("x");
    EXPECT_THAT(TakeMessages(), ElementsAre("Too many open files!"));
    char character = 0;
    EXPECT_TRUE(ReadChar(*extra, character));
    CloseFile(std::move(extra));
    EXPECT_THAT(TakeMessages(), ElementsAre("Path not found!"));

    CloseFile(std::move(files.back()));
    files.pop_back();
    files.front().reset();  // dropping a file frees its place too
    files.push_back(OpenForReading("x"));
    files.push_back(OpenForReading("x"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Files, SubfoldersThatAreHiddenOrReadOnlyAreNotListed) {
    for (const char* name : {"Zebra", "apple", "Apple pie", "Locked", ".hidden",
                             "\xC5\x81\xC3\xB3"
                             "d\xC5\xBA"}) {
        MakeFolder(std::string("Scenarios/") + name);
    }
    WriteFile("Scenarios/file", "");
    std::filesystem::permissions(root / "Scenarios/Locked", std::filesystem::perms(0555));
    EXPECT_THAT(ListSubfolders("scenarios"), ElementsAre("apple", "Apple pie", "Zebra"));
    EXPECT_THAT(ListSubfolders("none"), IsEmpty());
}

TEST_F(Files, ListsFilesOfOneExtensionByName) {
    for (const char* name : {"Words.qld", "words 2.QLD", "Large.qld", ".qld", "notes.txt", "qld"}) {
        WriteFile(std::string("Word Lists/") + name, "");
    }
    MakeFolder("Word Lists/folder.qld");
    FileRef unfinished = CreateForWriting("Word Lists\\New.qld");
    EXPECT_THAT(ListFiles("Word Lists", ".qld"), ElementsAre("", "Large", "Words", "words 2"));
}

}  // namespace
}  // namespace quillet
