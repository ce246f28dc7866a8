#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QIcon>
#include <cstdio>
#include <memory>

#include "platform/qt/desktop.h"
#include "platform/qt/display_check.h"
#include "platform/qt/qt_platform.h"
#include "platform/window.h"

namespace quillet {
namespace {

std::unique_ptr<QApplication> application;

// Where the desktop's font is not installed and nothing like it is known, the toolkit may take a
// typewriter's.
void AvoidTypewriterFont() {
    const QFont wanted = QApplication::font();
    const QFontInfo found(wanted);
    if (!found.fixedPitch() || found.family() == wanted.family()) return;
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(found.pointSizeF());
    QApplication::setFont(font);
}

}  // namespace

bool StartPlatform(int& argumentCount, char** arguments) {
    const DisplayFault fault = FindDisplayFault({arguments, static_cast<std::size_t>(argumentCount)});
    if (!fault.empty()) {
        std::fprintf(stderr, "quillet: %s\n", fault.c_str());
        return false;
    }
    // A unit is a whole number of pixels on every display.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Round);
    application = std::make_unique<QApplication>(argumentCount, arguments);
    QApplication::setApplicationName(QStringLiteral("quillet"));
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QApplication::setQuitOnLastWindowClosed(false);
    AvoidTypewriterFont();
    return true;
}

void SetProgramIcon(const std::string& folder) {
    QIcon icon;
    const QDir pictures(QFile::decodeName(QByteArray::fromStdString(folder)));
    for (const QString& file : pictures.entryList({QStringLiteral("*.png")}, QDir::Files)) {
        icon.addFile(pictures.filePath(file));
    }
    QApplication::setWindowIcon(icon);
}

void EndPlatform() {
    DestroyMainWindow();
    EndSounds();
    application.reset();
}

}  // namespace quillet
