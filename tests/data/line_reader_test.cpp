#include "data/line_reader.h"

#include <gmock/gmock.h>

#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LineReading : public TempFolder {
  protected:
    LineReader Reader(const std::string& contents) {
        WriteFile("file", contents);
        return {OpenForReading("file"), "Games\\file"};
    }
};

TEST_F(LineReading, EachKindOfValueIsReadFromItsLine) {
    LineReader reader = Reader(
        "% a comment\r\nwhatever =\t one \"two words\" \"\" th\1ee \"\" \r\nn=-7 65535 rest\r\nsquares = . D "
        "\r\nstart = true\r\n");
    reader.BeginLine();
    EXPECT_EQ(reader.ReadWord<12>(), "one");
    EXPECT_EQ(reader.ReadWord<5>(), "two w") << "the rest of a long word is skipped";
    EXPECT_EQ(reader.ReadWord<12>(), "");
    EXPECT_EQ(reader.ReadWord<12>(), "th\"ee");
    EXPECT_FALSE(reader.AtLineEnd());
    reader.EndLine();
    reader.BeginLine();
    EXPECT_EQ(reader.ReadInteger(), -7);
    EXPECT_EQ(reader.ReadCardinal(), 65535);
    reader.EndLine();
    reader.BeginLine();
    EXPECT_EQ(reader.ReadCharacters(4), ". D ");
    reader.BeginLine();
    EXPECT_TRUE(reader.ReadBoolean());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(LineReading, FirstFaultIsReportedWithItsLine) {
    struct Case {
        std::string contents;
        void (*read)(LineReader&);
        std::string message;
    };
    const auto nothing = [](LineReader&) {};
    const auto integer = [](LineReader& reader) { reader.ReadInteger(); };
    const auto cardinal = [](LineReader& reader) { reader.ReadCardinal(); };
    const auto boolean = [](LineReader& reader) { reader.ReadBoolean(); };
    const auto many = [](LineReader& reader) { reader.ReadCharacters(100); };
    for (const Case& c : {Case{"% one\r\n\r\n", nothing, "Missing \"=\" sign on line 2 of Games\\file"},
                          Case{"a = \"x\r\n", integer, "Missing end quote on line 1 of Games\\file"},
                          Case{"a = 1x\r\n", integer, "Bad integer on line 1 of Games\\file"},
                          Case{"a =\r\n", integer, "Bad integer on line 1 of Games\\file"},
                          Case{"% x\r\na = 65536\r\n", cardinal, "Bad cardinal on line 2 of Games\\file"},
                          Case{"a = -1\r\n", cardinal, "Bad cardinal on line 1 of Games\\file"},
                          Case{"a = yes\r\n", boolean, "Bad boolean on line 1 of Games\\file"},
                          Case{"a = 12", integer, "Unexpected end to file: Games\\file"},
                          Case{"a = 1\nb = 2\n", many, "Unexpected end to file: Games\\file"},
                          Case{"% only a comment", nothing, "Unexpected end to file: Games\\file"},
                          Case{"", nothing, "Unexpected end to file: Games\\file"}}) {
        LineReader reader = Reader(c.contents);
        EXPECT_THROW(
            {
                reader.BeginLine();
                c.read(reader);
            },
            BadFile)
            << c.contents;
        EXPECT_THAT(TakeMessages(), ElementsAre(c.message));
    }
}

}  // namespace
}  // namespace quillet
