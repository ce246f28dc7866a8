#include <QApplication>
#include <cstdio>
#include <memory>

#include "platform/qt/desktop.h"
#include "platform/qt/display_check.h"
#include "platform/qt/qt_platform.h"
#include "platform/window.h"

namespace quillet {
namespace {

std::unique_ptr<QApplication> application;

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
    QApplication::setQuitOnLastWindowClosed(false);
    return true;
}

void EndPlatform() {
    DestroyMainWindow();
    EndSounds();
    application.reset();
}

}  // namespace quillet
