// Draws all pictures that the game ships and writes them into the folders of assets/:
//
//   make_pictures ASSETS [CONTACT-SHEET]
//
// The contact sheet is a PNG file with all of them. Run it by tools/make_pictures.
#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <cstdio>
#include <functional>
#include <vector>

#include "brush.h"
#include "contact_sheet.h"
#include "pictures.h"

namespace quillet {
namespace {

// A picture by its path in assets/, without extension.
struct Picture {
    QString path;
    std::function<QImage(int scale)> draw;
};

std::vector<Picture> InterfacePictures() {
    using enum ButtonState;
    const auto button = [](const char* text, ButtonState state) {
        return [=](int scale) { return DrawButton(text, state, scale); };
    };
    std::vector<Picture> pictures = {
        {"info", DrawInfoPanel},
        {"bagbw", DrawBagInk},
        {"rack", DrawRack},
        {"note", [](int scale) { return DrawNotePanel(true, scale); }},
        {"notes", [](int scale) { return DrawNotePanel(false, scale); }},
        {"mix", button("MIX", Up)},
        {"mixd", button("MIX", Pressed)},
        {"done", button("DONE", Up)},
        {"doned", button("DONE", Pressed)},
        {"move", button("MOVE", Up)},
        {"moved", button("MOVE", Pressed)},
        {"movef", button("MOVE", Flashing)},
        {"tile", [](int scale) { return DrawTile(kBigPitch, scale); }},
        {"tiles", [](int scale) { return DrawTile(kSmallPitch, scale); }},
        {"logo", DrawLogo},
        {"icon", DrawAboutIcon},
        {"lock", DrawLock},
        {"pattbg", DrawCloth},
        {"pattshad", DrawShadow},
        {"pattpop", DrawPopupGround},
        {"sqbig", [](int scale) { return DrawLetterSheet(kBigPitch, scale); }},
        {"sqsmall", [](int scale) { return DrawLetterSheet(kSmallPitch, scale); }},
        {"valbig", [](int scale) { return DrawValueSheet(kBigPitch, scale); }},
        {"valsmall", [](int scale) { return DrawValueSheet(kSmallPitch, scale); }},
    };
    for (int fill = 1; fill <= 4; ++fill) {
        pictures.push_back({QString("bag%1").arg(fill), [=](int scale) { return DrawBag(fill, scale); }});
    }
    for (Picture& picture : pictures) picture.path.prepend("Data/Graphics/");
    return pictures;
}

// The square pictures of a scenario, or of new ones when the name is empty.
void AddSquares(std::vector<Picture>& pictures, const QString& folder, const std::string& scenario) {
    for (int kind = 0; kind < kSquareKindCount; ++kind) {
        const int number = kind < kFirstBlocked ? 201 + kind : 292 + kind;
        pictures.push_back({QString("%1/b%2").arg(folder).arg(number),
                            [=](int scale) { return DrawSquare(kind, scenario, scale); }});
    }
}

void AddMoods(std::vector<Picture>& pictures, const QString& folder, const std::string& opponent) {
    for (int mood = 1; mood <= kMoodCount; ++mood) {
        pictures.push_back({QString("%1/%2").arg(folder).arg(9000 + mood),
                            [=](int scale) { return DrawOpponent(opponent, mood, scale); }});
    }
}

std::vector<Picture> AllPictures(const QDir& assets) {
    std::vector<Picture> pictures = InterfacePictures();
    AddSquares(pictures, "Data/Graphics", {});
    pictures.push_back({"Data/Graphics/splash", DrawSplash});
    const auto foldersOf = [&](const char* name) {
        return QDir(assets.filePath(name)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    };
    for (const QString& name : foldersOf("Scenarios")) {
        AddSquares(pictures, "Scenarios/" + name, name.toStdString());
    }
    for (const QString& name : foldersOf("Opponents")) {
        AddMoods(pictures, "Opponents/" + name, name.toStdString());
    }
    return pictures;
}

bool Save(const QImage& picture, const QString& path, const char* format) {
    if (QDir().mkpath(QFileInfo(path).path()) && picture.save(path, format)) return true;
    std::fprintf(stderr, "Could not write %s\n", qPrintable(path));
    return false;
}

bool MakePictures(const QDir& assets, const QString& contactSheet) {
    const std::vector<Picture> pictures = AllPictures(assets);
    std::vector<ShownPicture> shown;
    bool saved = true;
    for (const Picture& picture : pictures) {
        for (const int scale : {1, 2}) {
            const QImage image = picture.draw(scale).convertToFormat(QImage::Format_RGB32);
            const QString path = assets.filePath(picture.path + (scale == 2 ? "@2x.bmp" : ".bmp"));
            saved = Save(image, path, "BMP") && saved;
            if (scale == 1) shown.push_back({picture.path, image});
        }
    }
    for (const int pixels : {16, 24, 32, 48, 64, 128, 256}) {
        const QString path = QString("icons/quillet-%1").arg(pixels);
        const QImage icon = DrawIcon(pixels);
        saved = Save(icon, assets.filePath(path + ".png"), "PNG") && saved;
        shown.push_back({path, icon});
    }
    if (!contactSheet.isEmpty()) saved = Save(ContactSheet(shown), contactSheet, "PNG") && saved;
    if (saved) std::printf("%zu pictures\n", shown.size());
    return saved;
}

bool HasFonts() {
    for (const Face face : {Face::Sans, Face::SerifBold}) {
        const QFont font = PixelFont(face, 12);
        if (QFontInfo(font).family() == font.family()) continue;
        std::fprintf(stderr, "The font %s is missing: please install fonts-liberation.\n",
                     qPrintable(font.family()));
        return false;
    }
    return true;
}

}  // namespace
}  // namespace quillet

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", QUILLET_FONTS_CONF);
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3 || !QDir(arguments[1] + "/Scenarios").exists()) {
        std::fprintf(stderr, "usage: make_pictures ASSETS [CONTACT-SHEET]\n");
        return 2;
    }
    return quillet::HasFonts() && quillet::MakePictures(QDir(arguments[1]), arguments.value(2)) ? 0 : 1;
}
