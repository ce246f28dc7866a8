#include "view/graphics.h"

#include <charconv>
#include <string>
#include <string_view>
#include <utility>

#include "base/messages.h"
#include "base/presentation.h"
#include "data/scenarios.h"
#include "store/bitmap_files.h"
#include "view/palette.h"

namespace quillet {
namespace {

constexpr int kSheetColumns = 9;
constexpr int kSheetRows = 5;
constexpr int kMarkRow = 3;
constexpr int kValues = 11;

struct PictureFile {
    std::string_view file;
    Picture& picture;
};

Picture LoadOrEnd(std::string_view file) {
    std::optional<Picture> picture = LoadGraphicsPicture(file);
    if (!picture) Fatal("No ", file, "!");
    FitToPalette(*picture);
    return std::move(*picture);
}

void CheckSize(const Picture& sheet, std::string_view file, std::string_view kind, int pitch, int columns,
               int rows) {
    const bool fits = sheet.Width() == columns * pitch + 1 && sheet.Height() == rows * pitch + 1;
    if (!fits) Fatal(kind, " bitmap is wrong size: ", file);
}

Rect Cell(int pitch, int row, int column) {
    return Rect::At({column * pitch + 1, row * pitch + 1}, {pitch - 1, pitch - 1});
}

Size SizeOf(const Picture& picture) { return {picture.Width(), picture.Height()}; }

}  // namespace

void LoadGraphics() {
    Graphics& g = graphics;
    const PictureFile files[] = {
        {"info.bmp", g.info},
        {"bag1.bmp", g.bag[1]},
        {"bag2.bmp", g.bag[2]},
        {"bag3.bmp", g.bag[3]},
        {"bag4.bmp", g.bag[4]},
        {"bagbw.bmp", g.bagBlackAndWhite},
        {"rack.bmp", g.rack},
        {"note.bmp", g.note},
        {"notes.bmp", g.smallNote},
        {"mix.bmp", g.mix},
        {"mixd.bmp", g.mixPressed},
        {"done.bmp", g.done},
        {"doned.bmp", g.donePressed},
        {"move.bmp", g.move},
        {"moved.bmp", g.movePressed},
        {"movef.bmp", g.moveFlashing},
        {"tile.bmp", g.big.tile},
        {"tiles.bmp", g.small.tile},
        {"logo.bmp", g.logo},
        {"lock.bmp", g.lock},
        {"pattbg.bmp", g.background},
        {"pattshad.bmp", g.shadow},
        {"pattpop.bmp", g.popUp},
        {"sqbig.bmp", g.big.letters},
        {"sqsmall.bmp", g.small.letters},
        {"valbig.bmp", g.big.values},
        {"valsmall.bmp", g.small.values},
    };
    for (const PictureFile& entry : files) entry.picture = LoadOrEnd(entry.file);
    const auto checkLetters = [](const Picture& sheet, std::string_view file, int pitch) {
        CheckSize(sheet, file, "Tile", pitch, kSheetColumns, kSheetRows);
    };
    const auto checkValues = [](const Picture& sheet, std::string_view file, int pitch) {
        CheckSize(sheet, file, "Value", pitch, kValues, 1);
    };
    checkLetters(g.big.letters, "sqbig.bmp", kBigBoard.pitch);
    checkLetters(g.small.letters, "sqsmall.bmp", kSmallBoard.pitch);
    checkValues(g.big.values, "valbig.bmp", kBigBoard.pitch);
    checkValues(g.small.values, "valsmall.bmp", kSmallBoard.pitch);
}

PictureSizes SizesOfPictures() {
    const Graphics& g = graphics;
    return {.info = SizeOf(g.info),
            .note = SizeOf(g.note),
            .smallNote = SizeOf(g.smallNote),
            .bag = SizeOf(g.bag[1]),
            .rack = SizeOf(g.rack),
            .logo = SizeOf(g.logo),
            .done = SizeOf(g.done),
            .mix = SizeOf(g.mix)};
}

Rect GlyphCell(int pitch, LetterCode code) {
    const int index = static_cast<int>(LetterIndex(code));
    return Cell(pitch, index / kSheetColumns, index % kSheetColumns);
}

Rect StartMarkCell(int pitch) { return Cell(pitch, kMarkRow, 0); }

Rect KindMarkCell(int pitch, SquareKind kind) { return Cell(pitch, kMarkRow, kind); }

Rect ValueCell(int pitch, int value) { return Cell(pitch, 0, value); }

Font PanelFont() {
    const std::string_view size = ResourceString(StringId::PanelFontSize);
    int points = 10;
    std::from_chars(size.data(), size.data() + size.size(), points);
    return {ResourceString(StringId::PanelFontFace), points};
}

Colour PanelColour() { return ColourNamed(ResourceString(StringId::PanelColour)); }

// --- What the scenarios ask for ---

void LoadSquarePictures(std::string_view scenarioFolder) {
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
        const std::string path = std::string(scenarioFolder) + "\\" + SquarePictureName(kind);
        graphics.squares[kind] = LoadPicture(path);
        if (graphics.squares[kind]) FitToPalette(*graphics.squares[kind]);
    }
}

void SaveSquarePictures(std::string_view scenarioFolder) {
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
        const std::string path = std::string(scenarioFolder) + "\\" + SquarePictureName(kind);
        if (graphics.squares[kind]) SavePicture(*graphics.squares[kind], path);
    }
}

}  // namespace quillet
