#include "store/bitmap_files.h"

#include "support/temp_folder.h"

namespace quillet {
namespace {

std::string Little(std::uint32_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
    return bytes;
}

// A BMP file; what a case does not name is as most files have it.
struct Bmp {
    int width = 1, height = 1;
    std::uint32_t bits = 24;
    std::string pixels = {};
    std::string colours = {};  // colour table, or the masks of bit fields
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;

    std::string File() const {
        const auto pixelsAt = static_cast<std::uint32_t>(54 + colours.size());
        return "BM" + Little(pixelsAt + static_cast<std::uint32_t>(pixels.size()), 4) + Little(0, 4) +
               Little(pixelsAt, 4) + Little(40, 4) + Little(static_cast<std::uint32_t>(width), 4) +
               Little(static_cast<std::uint32_t>(height), 4) + Little(1, 2) + Little(bits, 2) +
               Little(compression, 4) + std::string(12, '\0') + Little(coloursUsed, 4) + Little(0, 4) +
               colours + pixels;
    }
};

constexpr Colour kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF;
using namespace std::string_literals;
const std::string kTable = "\0\0\0\0\0\0\xFF\0\0\xFF\0\0\xFF\0\0\0"s;  // black, red, green, blue

class BitmapFiles : public TempFolder {
  protected:
    std::optional<Image> Load(const std::string& bytes) {
        WriteFile("a.bmp", bytes);
        return LoadBitmapFile("a.bmp");
    }
    // The picture's rows from the top, a letter for each pixel: "RG/BK".
    std::string Picture(const std::string& bytes) {
        const std::optional<Image> image = Load(bytes);
        std::string rows;
        for (int y = 0; image && y < image->height; ++y) {
            if (y > 0) rows += '/';
            for (int x = 0; x < image->width; ++x) {
                const Colour colour = image->At(x, y);
                const auto bits = (colour & 0x800000) >> 21 | (colour & 0x8000) >> 14 | (colour & 0x80) >> 7;
                rows += std::string_view("KBGCRMYW")[bits];
            }
        }
        return rows;
    }
};

TEST_F(BitmapFiles, EveryFormatGivesItsPixels) {
    const std::string masks = Little(0xF800, 4) + Little(0x07E0, 4) + Little(0x001F, 4);
    const std::string bgrMasks = Little(0xFF, 4) + Little(0xFF00, 4) + Little(0xFF0000, 4);
    struct Case {
        Bmp bmp;
        std::string picture;
    };
    for (const auto& [bmp, picture] :
         {Case{{2, 2, 24, "\xFF\0\0\0\xFF\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0"s}, "RW/BG"},  // from the bottom
          Case{{1, -2, 24, "\0\0\xFF\0\xFF\0\0\0"s}, "R/B"},                           // from the top
          Case{{1, 2, 24, "\0\0\xFF\0\xFF\0\0"s}, "B/R"},  // the last row without padding
          Case{{2, 1, 32, "\0\0\xFF\x7F\xFF\0\0\0"s}, "RB"},
          Case{{2, 1, 32, "\0\0\xFF\0\xFF\0\0\0"s, bgrMasks, 3}, "BR"},
          Case{{3, 1, 16, "\0\x7C\xE0\x03\x1F\0\0\0"s}, "RGB"},
          Case{{2, 1, 16, "\0\xF8\xE0\x07"s, masks, 3}, "RG"},
          Case{{3, 1, 8, "\3\2\1\0"s, kTable, 0, 4}, "BGR"},
          Case{{2, 1, 8, "\1\xC8\0\0"s, kTable}, "RK"},  // a colour behind the table
          Case{{3, 1, 4, "\x12\x30\0\0"s, kTable, 0, 4}, "RGB"},
          Case{{10, 1, 1, "\xA0\x40\0\0"s, kTable.substr(0, 8)}, "RKRKKKKKKR"},
          // A run, literals, a new row, a move, the end; then runs and literals of 4 bits; an overlong run.
          Case{{4, 3, 8, "\4\1\0\0\0\3\1\2\3\0\0\0\0\2\1\0\2\2\0\1"s, kTable, 1}, "KGGK/RGBK/RRRR"},
          Case{{5, 2, 4, "\5\x12\0\0\0\5\x12\x31\x20\0\0\1"s, kTable, 2}, "RGBRG/RGRGR"},
          Case{{2, 1, 8, "\xFF\1\0\1"s, kTable, 1}, "RR"}}) {
        EXPECT_EQ(Picture(bmp.File()), picture) << bmp.bits << " bits, compression " << bmp.compression;
    }
    const std::string oldest = "BM"s + Little(0, 4) + Little(0, 4) + Little(32, 4) + Little(12, 4) +
                               Little(2, 2) + Little(1, 2) + Little(1, 2) + Little(1, 2);
    EXPECT_EQ(Picture(oldest + "\xFF\0\0\0\0\xFF"s + "\x40\0\0\0"s), "BR");
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(BitmapFiles, WhatCannotBeReadIsNamed) {
    const std::string sound = Bmp{1, 1, 24, "1234"}.File();
    const auto patched = [&](std::size_t at, std::uint32_t value) {
        return std::string(sound).replace(at, 4, Little(value, 4));
    };
    const std::pair<const char*, Strings> table[] = {
        {"Could not read bitmap header: a.bmp",
         {"", "BM and so on", sound.substr(0, 14), sound.substr(0, 20), "XY" + sound.substr(2),
          // Pixels inside either header or behind the file; unknown headers, depths and compressions.
          patched(10, 13), patched(10, 53), patched(10, 0xFFFFFFFF), patched(14, 39), patched(14, 0xFFFFFFFF),
          patched(28, 3), patched(30, 1), patched(30, 4),  //
          Bmp{0, 1}.File(), Bmp{-1, 1}.File(), Bmp{1, 0}.File()}},
        {"Not enough memory to load bitmap: a.bmp",
         {Bmp{0x7FFFFFFF, 0x7FFFFFFF}.File(), Bmp{1, -0x7FFFFFFF - 1}.File(), Bmp{4096, 4097}.File()}},
        {"Did not read all of bitmap: a.bmp",
         {Bmp{4096, 4096}.File(), Bmp{2, 2, 24, "12345678abcde"}.File(),
          Bmp{2, 2, 8, "\2\1\0\0"s, kTable, 1}.File()}}};
    for (const auto& [message, files] : table) {
        for (const std::string& file : files) {
            EXPECT_FALSE(Load(file));
            EXPECT_THAT(TakeMessages(), ElementsAre(message));
        }
    }
}

TEST_F(BitmapFiles, SavedFileIsRowsFromTheBottomAndReadsBack) {
    Image image(2, 2);
    image.pixels = {kRed, kGreen, kBlue, 0x123456};
    ASSERT_TRUE(SaveBitmapFile(image, "out.bmp"));
    const std::string expected(
        "BM\x66\0\0\0\0\0\0\0\x36\0\0\0"                          // 54 + 48 bytes
        "\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x30\0\0\0"  // 48 by the width of 8
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "\xFF\0\0\x56\x34\x12\0\0"
        "\0\0\xFF\0\xFF\0\0\0",
        70);
    EXPECT_EQ(ReadFile("out.bmp"), expected + std::string(32, '\0')) << "as long as it says";
    for (int width = 1; width <= 9; ++width) {
        Image random(width, 3);
        for (Colour& pixel : random.pixels)
            pixel = static_cast<Colour>(&pixel - random.pixels.data()) * 0x10203;
        SaveBitmapFile(random, "out.bmp");
        EXPECT_EQ(LoadBitmapFile("out.bmp"), random) << width;
    }
    EXPECT_FALSE(SaveBitmapFile(image, "no\\such.bmp"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't save bitmap file: no\\such.bmp"));
}

TEST_F(BitmapFiles, APictureComesWithATwinOfTwiceItsSize) {
    quillet::Picture picture(Image(2, 3, kRed));
    picture.doubled = Image(4, 6, kGreen);
    ASSERT_FALSE(SavePicture(picture, "a.b\\c.bmp"));
    ASSERT_TRUE(SavePicture(picture, "c.bmp"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Couldn't save bitmap file: a.b\\c.bmp"));
    EXPECT_EQ(LoadPicture("c.bmp")->doubled, Image(4, 6, kGreen));
    EXPECT_EQ(PathOfTwin("a.b\\c"), "a.b\\c@2x");
    for (const auto& [width, height] : {std::pair{4, 5}, {5, 6}, {2, 3}}) {
        SaveBitmapFile(Image(width, height), "c@2x.bmp");
        EXPECT_TRUE(LoadPicture("c.bmp")->image == picture.image && !LoadPicture("c.bmp")->doubled);
    }
    ASSERT_TRUE(SavePicture(Image(1, 1), "c.bmp"));
    EXPECT_EQ(ReadFile("c@2x.bmp"), "<none>") << "the twin of another picture";
    EXPECT_FALSE(LoadPicture("d.bmp")) << "which need not be";
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(LoadGraphicsPicture("d.bmp")) << "which must be";
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not open bitmap file: Data\\Graphics\\d.bmp"));
}

}  // namespace
}  // namespace quillet
