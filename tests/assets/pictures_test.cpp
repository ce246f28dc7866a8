// The shipped pictures: what the window takes for granted about them, and that what is written over them can
// be read by everybody.

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <set>

#include "store/bitmap_files.h"
#include "store/files.h"
#include "support/testing.h"

namespace quillet {
namespace {

namespace fs = std::filesystem;

constexpr Colour kWhite = 0xFFFFFF, kBlack = 0x000000, kRed = 0xFF0000, kYellow = 0xFFFF00;
constexpr Colour kOvertime = 0xC80000;
constexpr std::array kScales = {1, 2};

// --- Pictures ---

// `path` is relative to assets, with "/" and without extension.
Image Load(const std::string& path, int scale = 1) {
    std::string name = path + (scale == 2 ? "@2x.bmp" : ".bmp");
    std::ranges::replace(name, '/', '\\');
    SetDataFolder(QUILLET_ASSETS);
    auto image = LoadBitmapFile(name);
    EXPECT_TRUE(image) << name;
    return std::move(image).value_or(Image(1, 1));
}

Image Graphics(const std::string& name, int scale = 1) { return Load("Data/Graphics/" + name, scale); }

Strings FoldersIn(const std::string& name) {
    Strings folders;
    for (const auto& entry : fs::directory_iterator(fs::path(QUILLET_ASSETS) / name)) {
        if (entry.is_directory()) folders.push_back(name + "/" + entry.path().filename().string());
    }
    std::ranges::sort(folders);
    return folders;
}

struct Area {
    int left, top, right, bottom;  // right and bottom lie outside
};

Area Whole(const Image& image) { return {0, 0, image.width, image.height}; }

// The area of a picture at scale 1 in the one at that scale.
Area At(int scale, Area area) {
    return {area.left * scale, area.top * scale, area.right * scale, area.bottom * scale};
}

std::vector<Colour> Pixels(const Image& image, Area area) {
    std::vector<Colour> pixels;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) pixels.push_back(image.At(x, y));
    }
    return pixels;
}

// --- Light, as the Web Content Accessibility Guidelines count it ---

double Linear(Colour component) {
    const double c = component / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
    return 0.2126 * Linear(colour >> 16 & 255) + 0.7152 * Linear(colour >> 8 & 255) +
           0.0722 * Linear(colour & 255);
}

double Ratio(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }

// Of each pixel.
std::vector<double> Luminances(const Image& image, Area area) {
    std::vector<double> luminances;
    for (const Colour pixel : Pixels(image, area)) luminances.push_back(Luminance(pixel));
    return luminances;
}

double MeanLuminance(const Image& image, Area area) {
    const auto all = Luminances(image, area);
    return std::accumulate(all.begin(), all.end(), 0.0) / static_cast<double>(all.size());
}

double MeanLuminance(const Image& image) { return MeanLuminance(image, Whole(image)); }

// The least contrast of a colour with any pixel.
double LeastContrast(Colour colour, const Image& image, Area area) {
    const double own = Luminance(colour);
    const auto all = Luminances(image, area);
    return Ratio(own, *std::ranges::min_element(all, {}, [&](double other) { return Ratio(own, other); }));
}

// --- Sizes ---

struct Size {
    const char* name;
    int width, height;
};

constexpr std::array kInterfaceSizes = {
    Size{"info", 215, 150},    Size{"note", 215, 195},  Size{"notes", 215, 140},   Size{"bag1", 96, 56},
    Size{"bag2", 96, 56},      Size{"bag3", 96, 56},    Size{"bag4", 96, 56},      Size{"bagbw", 96, 56},
    Size{"rack", 229, 38},     Size{"mix", 60, 36},     Size{"mixd", 60, 36},      Size{"done", 60, 36},
    Size{"doned", 60, 36},     Size{"move", 60, 36},    Size{"moved", 60, 36},     Size{"movef", 60, 36},
    Size{"tile", 26, 26},      Size{"tiles", 23, 23},   Size{"logo", 225, 46},     Size{"lock", 9, 11},
    Size{"pattbg", 8, 8},      Size{"pattshad", 8, 8},  Size{"pattpop", 8, 8},     Size{"sqbig", 244, 136},
    Size{"sqsmall", 217, 121}, Size{"valbig", 298, 28}, Size{"valsmall", 265, 25}, Size{"splash", 640, 414},
};

const std::array kSquares = {"b201", "b202", "b203", "b204", "b205", "b206", "b207", "b208",
                             "b209", "b301", "b302", "b303", "b304", "b305", "b306"};

Strings SquareFolders() {
    auto folders = FoldersIn("Scenarios");
    folders.emplace_back("Data/Graphics");
    return folders;
}

// The pictures of an opponent, from a folder: one for each mood.
Strings MoodsIn(const std::string& folder) {
    Strings moods;
    for (const char mood : {'1', '2', '3', '4', '5'}) moods.push_back(folder + "/900" + mood);
    return moods;
}

void ExpectSizeAndTwin(const std::string& path, int width, int height) {
    for (const int scale : kScales) {
        const Image image = Load(path, scale);
        EXPECT_EQ(image.width, scale * width) << path << " at scale " << scale;
        EXPECT_EQ(image.height, scale * height) << path << " at scale " << scale;
    }
}

TEST(PicturesTest, EveryPictureHasItsSizeAndATwinOfTwiceTheSize) {
    for (const auto& [name, width, height] : kInterfaceSizes) {
        ExpectSizeAndTwin(std::string("Data/Graphics/") + name, width, height);
    }
    for (const auto& folder : SquareFolders()) {
        for (const std::string square : kSquares) ExpectSizeAndTwin(folder + "/" + square, 26, 26);
    }
    for (const auto& folder : FoldersIn("Opponents")) {
        for (const auto& mood : MoodsIn(folder)) ExpectSizeAndTwin(mood, 215, 150);
    }
}

TEST(PicturesTest, IconsHaveTheSizeOfTheirName) {
    for (const int pixels : {16, 24, 32, 48, 64, 128, 256}) {
        const auto path = fs::path(QUILLET_ASSETS) / "icons" / ("quillet-" + std::to_string(pixels) + ".png");
        std::ifstream file(path, std::ios::binary);
        std::array<char, 24> header{};
        ASSERT_TRUE(file.read(header.data(), header.size())) << path;
        EXPECT_EQ(std::string(header.data() + 1, 3), "PNG");
        for (const std::size_t at : {16U, 20U}) {
            const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(header[at + i]); };
            EXPECT_EQ(byte(2) << 8 | byte(3), pixels) << path;
        }
    }
}

// --- Sheets ---

// A sheet of square cells, with a line of one unit before each.
struct Sheet {
    const char* name;
    int pitch;
    int cells;   // that are used
    int marked;  // of them, those that lie on tiles: letters, or values
};
constexpr std::array kSheets = {Sheet{"sqbig", 27, 36, 27}, Sheet{"sqsmall", 24, 36, 27},
                                Sheet{"valbig", 27, 11, 11}, Sheet{"valsmall", 24, 11, 11}};
constexpr std::string_view kValues = "1332142418513113:11114484:0";  // of A to Z and the blank

// The inside of a cell: what is inked, row by row.
using Ink = std::vector<bool>;

Ink CellInk(const Sheet& sheet, int scale, int cell) {
    const int columns = sheet.cells == 36 ? 9 : 11;
    const int left = cell % columns * sheet.pitch;
    const int top = cell / columns * sheet.pitch;
    const Area inside = At(scale, {left + 1, top + 1, left + sheet.pitch, top + sheet.pitch});
    Ink ink;
    for (const Colour pixel : Pixels(Graphics(sheet.name, scale), inside)) ink.push_back(pixel == kBlack);
    return ink;
}

TEST(PicturesTest, InkPicturesAreBlackAndWhiteAndNothingElse) {
    for (const std::string name : {"sqbig", "sqsmall", "valbig", "valsmall", "lock", "bagbw"}) {
        for (const int scale : kScales) {
            const auto pixels = Graphics(name, scale).pixels;
            EXPECT_EQ(std::set(pixels.begin(), pixels.end()), (std::set{kBlack, kWhite})) << name << scale;
        }
    }
}

// Neither the lines between the cells nor the outermost pixels of what lies on a tile are inked.
TEST(PicturesTest, InkKeepsToItsCellsAndDiffersInEach) {
    for (const Sheet& sheet : kSheets) {
        for (const int scale : kScales) {
            SCOPED_TRACE(std::string(sheet.name) + " at scale " + std::to_string(scale));
            const int size = (sheet.pitch - 1) * scale;
            const auto onRim = [&](int at) { return at < scale || at >= size - scale; };
            std::set<Ink> seen;
            std::ptrdiff_t inked = 0;
            for (int cell = 0; cell < sheet.cells; ++cell) {
                const Ink ink = CellInk(sheet, scale, cell);
                seen.insert(ink);
                inked += std::ranges::count(ink, true);
                for (int i = 0; cell < sheet.marked && i < size * size; ++i) {
                    const bool rim = onRim(i % size) || onRim(i / size);
                    EXPECT_FALSE(rim && ink[static_cast<std::size_t>(i)])
                        << "cell " << cell << " pixel " << i;
                }
            }
            EXPECT_EQ(static_cast<int>(seen.size()), sheet.cells);
            EXPECT_FALSE(seen.contains(Ink(static_cast<std::size_t>(size * size)))) << "an empty cell";
            EXPECT_EQ(std::ranges::count(Graphics(sheet.name, scale).pixels, kBlack), inked) << "outside";
        }
    }
}

TEST(PicturesTest, ValuesStandClearOfTheirLetters) {
    for (const std::size_t big : {0U, 1U}) {
        for (const int scale : kScales) {
            const int size = (kSheets[big].pitch - 1) * scale;
            for (int n = 0; n < 27; ++n) {
                const Ink letter = CellInk(kSheets[big], scale, n);
                const Ink value =
                    CellInk(kSheets[big + 2], scale, kValues[static_cast<std::size_t>(n)] - '0');
                int touching = 0;
                for (int i = size; i < size * (size - 1); ++i) {
                    if (!value[static_cast<std::size_t>(i)]) continue;
                    for (const int side : {0, -1, 1, -size, size})
                        touching += letter[static_cast<std::size_t>(i + side)];
                }
                EXPECT_EQ(touching, 0) << "letter " << n << ", sheet " << big << ", scale " << scale;
            }
        }
    }
}

// --- What lies on the cloth of the window ---

// Where the picture's corner lies in the pattern, and a part of it that nothing covers.
struct OnCloth {
    const char* name;
    int phaseX, phaseY;
    Area bare;
};

TEST(PicturesTest, ClothInThePicturesJoinsTheCloth) {
    for (const auto& [name, phaseX, phaseY, bare] :
         {OnCloth{"bag1", 7, 6, {0, 0, 12, 25}}, OnCloth{"bag2", 7, 6, {0, 0, 12, 25}},
          OnCloth{"bag3", 7, 6, {0, 0, 96, 20}}, OnCloth{"bag4", 7, 6, {0, 0, 96, 20}},
          OnCloth{"logo", 0, 0, {0, 0, 225, 4}}, OnCloth{"logo", 0, 0, {180, 0, 225, 46}}}) {
        for (const int scale : kScales) {
            const Image pattern = Graphics("pattbg", scale);
            const Image image = Graphics(name, scale);
            const Area area = At(scale, bare);
            int wrong = 0;
            for (int y = area.top; y < area.bottom; ++y) {
                for (int x = area.left; x < area.right; ++x) {
                    const Colour cloth = pattern.At((x + phaseX * scale) % pattern.width,
                                                    (y + phaseY * scale) % pattern.height);
                    wrong += image.At(x, y) != cloth;
                }
            }
            EXPECT_EQ(wrong, 0) << name << " at scale " << scale;
        }
    }
}

TEST(PicturesTest, PatternsStandApartFromWhatLiesOnThem) {
    const double cloth = MeanLuminance(Graphics("pattbg"));
    EXPECT_GE(Ratio(cloth, MeanLuminance(Graphics("pattshad"))), 1.5);
    EXPECT_GE(Ratio(MeanLuminance(Graphics("pattpop")), MeanLuminance(Graphics("tile"))), 6);
    EXPECT_GE(Ratio(cloth, MeanLuminance(Graphics("tile"))), 4.5);
}

// --- Text on pictures ---

// Text that the window writes: its colour, where, and the least contrast it needs.
struct Writing {
    const char* picture;
    Colour ink;
    Area area;
    double contrast;
};

TEST(PicturesTest, WritingOnPanelsAndTilesCanBeRead) {
    for (const auto& [picture, ink, area, contrast] :
         {Writing{"info", kYellow, {6, 6, 209, 144}, 4.5}, Writing{"info", kWhite, {6, 6, 209, 144}, 4.5},
          Writing{"note", kBlack, {3, 3, 199, 192}, 10}, Writing{"notes", kBlack, {3, 3, 199, 137}, 10},
          Writing{"note", kOvertime, {13, 152, 77, 179}, 4.5},
          Writing{"notes", kOvertime, {13, 110, 77, 137}, 4.5}, Writing{"tile", kBlack, {1, 1, 23, 23}, 12},
          Writing{"tiles", kBlack, {1, 1, 20, 20}, 12}, Writing{"tile", kRed, {2, 2, 22, 18}, 3},
          Writing{"tiles", kRed, {2, 2, 19, 15}, 3}}) {
        for (const int scale : kScales) {
            EXPECT_GE(LeastContrast(ink, Graphics(picture, scale), At(scale, area)), contrast)
                << picture << " at scale " << scale << ", ink " << std::hex << ink;
        }
    }
}

TEST(PicturesTest, OpponentsLeaveTheLinesOverThemReadableInEveryMood) {
    constexpr Area kText{6, 6, 104, 144}, kFace{104, 6, 209, 144};  // most lines end before the face
    for (const auto& folder : FoldersIn("Opponents")) {
        std::ifstream item(fs::path(QUILLET_ASSETS) / folder / "203.str");
        const std::string colour{std::istreambuf_iterator<char>(item), {}};
        ASSERT_TRUE(colour == "white" || colour == "yellow") << folder;
        const Colour ink = colour == "white" ? kWhite : kYellow;
        std::set<std::vector<Colour>> moods;
        for (const auto& mood : MoodsIn(folder)) {
            moods.insert(Load(mood).pixels);
            for (const int scale : kScales) {
                const Image picture = Load(mood, scale);
                EXPECT_GE(LeastContrast(ink, picture, At(scale, kText)), 4.5) << mood;
                const auto face = Luminances(picture, At(scale, kFace));
                const auto bright = std::ranges::count_if(
                    face, [&](double light) { return Ratio(Luminance(ink), light) < 4.5; });
                EXPECT_LE(static_cast<double>(bright), 0.03 * static_cast<double>(face.size())) << mood;
            }
        }
        EXPECT_EQ(moods.size(), 5U) << folder << ": some are alike";
    }
}

TEST(PicturesTest, ButtonsCanBeReadAndFlashInLightAndDark) {
    constexpr Area kKey{6, 7, 53, 28};
    for (const std::string name : {"mix", "mixd", "done", "doned", "move", "moved", "movef"}) {
        for (const int scale : kScales) {
            const auto [darkest, lightest] =
                std::ranges::minmax(Luminances(Graphics(name, scale), At(scale, kKey)));
            EXPECT_GE(Ratio(darkest, lightest), 7) << name << " at scale " << scale;
        }
    }
    const double up = MeanLuminance(Graphics("move"), kKey);
    const double flashing = MeanLuminance(Graphics("movef"), kKey);
    EXPECT_GT(up, flashing);
    EXPECT_GE(Ratio(up, flashing), 3);
}

// --- Squares ---

// Marks are laid over the bonus squares in white; the lines of the board are white too.
TEST(PicturesTest, SquaresStandOutFromTheirWhiteMarksAndFromTiles) {
    const double tile = MeanLuminance(Graphics("tile"));
    for (const auto& folder : SquareFolders()) {
        for (std::size_t kind = 0; kind < kSquares.size(); ++kind) {
            for (const int scale : kScales) {
                const Image square = Load(folder + "/" + kSquares[kind], scale);
                const double needed = kind == 0 ? 3.2 : kind < 9 ? 4.5 : 3;
                EXPECT_GE(Ratio(1, MeanLuminance(square)), needed) << folder << " kind " << kind;
                EXPECT_GE(Ratio(tile, MeanLuminance(square)), 2.5) << folder << " kind " << kind;
                if (kind < 9) {
                    EXPECT_GE(LeastContrast(kWhite, square, Whole(square)), 3) << folder << " kind " << kind;
                }
            }
        }
    }
}

// So they can be told apart without colours: what counts more is darker, and the sign alone tells a letter's
// bonus from a word's.
TEST(PicturesTest, BonusSquaresGetDarkerWithTheirFactor) {
    for (const auto& folder : SquareFolders()) {
        const auto light = [&](std::size_t kind) {
            return MeanLuminance(Load(folder + "/" + kSquares[kind]));
        };
        EXPECT_GE(Ratio(light(0), light(1)), 1.25) << folder;
        EXPECT_LE(Ratio(light(1), light(2)), 1.15) << folder;
        for (std::size_t kind = 3; kind < 9; ++kind)
            EXPECT_LT(light(kind), light(kind - 2)) << folder << " " << kind;
    }
}

}  // namespace
}  // namespace quillet
