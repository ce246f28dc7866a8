#include "store/bitmap_files.h"

#include <gmock/gmock.h>

#include <random>

#include "support/temp_folder.h"

namespace quillet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

constexpr Colour R = 0xFF0000, G = 0x00FF00, B = 0x0000FF, W = 0xFFFFFF, K = 0;
const std::string kFourColours("\0\0\0\0\0\0\xFF\0\0\xFF\0\0\xFF\0\0\0", 16);  // K R G B

class BitmapFiles : public TempFolder {
  protected:
    std::optional<Image> Load(const std::string& bytes) {
        WriteFile("a.bmp", bytes);
        return LoadBitmapFile("a.bmp");
    }
};

TEST_F(BitmapFiles, EveryFormatGivesItsPixels) {
    const std::string masks565 = Little(0xF800, 4) + Little(0x07E0, 4) + Little(0x001F, 4);
    const std::string masksBgr = Little(0xFF, 4) + Little(0xFF00, 4) + Little(0xFF0000, 4);
    struct Case {
        std::string name, file;
        int width;
        std::vector<Colour> pixels;  // from the top
    };
    using namespace std::string_literals;
    for (const Case& c : {
             Case{"24 bits, rows from the bottom",
                  Bmp{2, 2, 24, "\xFF\0\0\0\xFF\0\0\0\0\0\xFF\xFF\xFF\xFF\0\0"s}.File(),
                  2,
                  {R, W, B, G}},
             Case{"24 bits, rows from the top", Bmp{1, -2, 24, "\0\0\xFF\0\xFF\0\0\0"s}.File(), 1, {R, B}},
             Case{"last row without padding", Bmp{1, 2, 24, "\0\0\xFF\0\xFF\0\0"s}.File(), 1, {B, R}},
             Case{"32 bits", Bmp{2, 1, 32, "\0\0\xFF\x7F\xFF\0\0\0"s}.File(), 2, {R, B}},
             Case{
                 "32 bits with masks", Bmp{2, 1, 32, "\0\0\xFF\0\xFF\0\0\0"s, masksBgr, 3}.File(), 2, {B, R}},
             Case{"16 bits", Bmp{3, 1, 16, "\0\x7C\xE0\x03\x1F\0\0\0"s}.File(), 3, {R, G, B}},
             Case{"16 bits with masks", Bmp{2, 1, 16, "\0\xF8\xE0\x07"s, masks565, 3}.File(), 2, {R, G}},
             Case{"8 bits", Bmp{3, 1, 8, "\3\2\1\0"s, kFourColours, 0, 4}.File(), 3, {B, G, R}},
             Case{"8 bits, colour behind the table",
                  Bmp{2, 1, 8, "\1\xC8\0\0"s, kFourColours}.File(),
                  2,
                  {R, K}},
             Case{"4 bits", Bmp{3, 1, 4, "\x12\x30\0\0"s, kFourColours, 0, 4}.File(), 3, {R, G, B}},
             Case{"1 bit",
                  Bmp{10, 1, 1, "\xA0\x40\0\0"s, kFourColours.substr(0, 8)}.File(),
                  10,
                  {R, K, R, K, K, K, K, K, K, R}},
             Case{"runs of 8 bits: run, literals, next row, move, end",
                  Bmp{4, 3, 8, "\4\1\0\0\0\3\1\2\3\0\0\0\0\2\1\0\2\2\0\1"s, kFourColours, 1}.File(),
                  4,
                  {K, G, G, K, R, G, B, K, R, R, R, R}},
             Case{"runs of 4 bits",
                  Bmp{5, 2, 4, "\5\x12\0\0\0\5\x12\x31\x20\0\0\1"s, kFourColours, 2}.File(),
                  5,
                  {R, G, B, R, G, R, G, R, G, R}},
             Case{"runs beyond the row are dropped",
                  Bmp{2, 1, 8, "\xFF\1\0\1"s, kFourColours, 1}.File(),
                  2,
                  {R, R}},
             Case{"the oldest header",
                  "BM"s + Little(0, 4) + Little(0, 4) + Little(32, 4) + Little(12, 4) + Little(2, 2) +
                      Little(1, 2) + Little(1, 2) + Little(1, 2) + "\xFF\0\0\0\0\xFF"s + "\x40\0\0\0"s,
                  2,
                  {B, R}},
         }) {
        const std::optional<Image> image = Load(c.file);
        ASSERT_TRUE(image) << c.name;
        EXPECT_EQ(image->width, c.width) << c.name;
        EXPECT_EQ(image->pixels, c.pixels) << c.name;
    }
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(BitmapFiles, WhatCannotBeReadIsNamed) {
    const std::string header = "Could not read bitmap header: a.bmp";
    const std::string memory = "Not enough memory to load bitmap: a.bmp";
    const std::string rest = "Did not read all of bitmap: a.bmp";
    const auto patched = [](std::size_t at, std::uint32_t value) {
        return Bmp{1, 1, 24, "1234"}.File().replace(at, 4, Little(value, 4));
    };
    struct Case {
        std::string file, message;
    };
    for (const Case& c : {
             Case{"", header},
             Case{"BM and so on", header},
             Case{Bmp{}.File().substr(0, 20), header},
             Case{"XY" + Bmp{}.File().substr(2), header},
             Case{patched(10, 13), header},          // pixels inside the file header
             Case{patched(10, 53), header},          // pixels inside the information header
             Case{patched(10, 0xFFFFFFFF), header},  // pixels behind the file
             Case{patched(14, 39), header},          // an unknown information header
             Case{patched(14, 0xFFFFFFFF), header},
             Case{patched(28, 3), header},  // bits
             Case{patched(30, 1), header},  // runs of 24 bits
             Case{patched(30, 4), header},  // a JPEG
             Case{Bmp{0, 1}.File(), header},
             Case{Bmp{-1, 1}.File(), header},
             Case{Bmp{1, 0}.File(), header},
             Case{Bmp{0x7FFFFFFF, 0x7FFFFFFF}.File(), memory},
             Case{Bmp{1, -0x7FFFFFFF - 1}.File(), memory},
             Case{Bmp{4096, 4097}.File(), memory},
             Case{Bmp{4096, 4096}.File(), rest},
             Case{Bmp{2, 2, 24,
                      "12345678"
                      "12345"}
                      .File(),
                  rest},
             Case{Bmp{2, 2, 8, std::string("\2\1\0\0", 4), kFourColours, 1}.File(), rest},
         }) {
        EXPECT_FALSE(Load(c.file)) << c.message;
        EXPECT_THAT(TakeMessages(), ElementsAre(c.message));
    }
}

TEST_F(BitmapFiles, OnlyAnInterfacePictureMustExist) {
    EXPECT_FALSE(LoadBitmapFile("Opponents\\Bo\\9001.bmp"));
    EXPECT_THAT(TakeMessages(), IsEmpty());
    EXPECT_FALSE(LoadGraphicsBitmap("Tiles.bmp"));
    EXPECT_THAT(TakeMessages(), ElementsAre("Could not open bitmap file: Data\\Graphics\\Tiles.bmp"));
    WriteFile("Data/Graphics/Tiles.bmp", Bmp{1, 1, 24, std::string("\0\0\xFF\0", 4)}.File());
    EXPECT_EQ(LoadGraphicsBitmap("tiles.bmp"), Image(1, 1, R));
}

TEST_F(BitmapFiles, SavedFileIsRowsFromTheBottomAndReadsBack) {
    Image image(2, 2);
    image.pixels = {R, G, B, 0x123456};
    ASSERT_TRUE(SaveBitmapFile(image, "out.bmp"));
    const std::string expected(
        "BM\x66\0\0\0\0\0\0\0\x36\0\0\0"                          // 54 + 48 bytes
        "\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x30\0\0\0"  // 48 by the width of 8
        "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
        "\xFF\0\0\x56\x34\x12\0\0"
        "\0\0\xFF\0\xFF\0\0\0",
        70);
    EXPECT_EQ(ReadFile("out.bmp"), expected);
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

// Whatever stands in the file: a picture of the size that it says, or one warning.
TEST_F(BitmapFiles, RandomDamageIsSurvived) {
    std::mt19937 random(7);
    const auto junk = [&](std::size_t size) {
        std::string bytes;
        while (bytes.size() < size) bytes += static_cast<char>(random() % 3 == 0 ? random() % 4 : random());
        return bytes;
    };
    for (int round = 0; round < 800; ++round) {
        constexpr std::pair<std::uint32_t, std::uint32_t> kFormats[] = {
            {1, 0}, {4, 0}, {4, 2}, {8, 0}, {8, 1}, {16, 0}, {16, 3}, {24, 0}, {32, 3}};
        const auto [bits, compression] = kFormats[random() % std::size(kFormats)];
        std::string file = Bmp{1 + static_cast<int>(random() % 20),
                               7 - static_cast<int>(random() % 12),
                               bits,
                               junk(random() % 900),
                               junk(4 * (random() % 20)),
                               compression,
                               static_cast<std::uint32_t>(random() % 20)}
                               .File();
        for (auto damage = random() % 4; damage > 0; --damage) {
            file[random() % std::min<std::size_t>(file.size(), 60)] = junk(1)[0];
        }
        file.resize(file.size() - random() % 3 * (random() % file.size()) / 2);
        const std::optional<Image> image = Load(file);
        EXPECT_EQ(TakeMessages().size(), image ? 0U : 1U);
        if (image) {
            EXPECT_EQ(image->pixels.size(),
                      static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height));
        }
    }
}

}  // namespace
}  // namespace quillet
