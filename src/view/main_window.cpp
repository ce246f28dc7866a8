#include "view/main_window.h"

#include <array>

#include "base/messages.h"
#include "store/preferences.h"
#include "view/graphics.h"
#include "view/palette.h"
#include "view/render.h"
#include "view/view_state.h"

namespace quillet {
namespace {

Size ClientInDesktopUnits() {
    const Size client = SizeInfo(view.layout.bigBoard).client;
    return {client.width * view.zoom, client.height * view.zoom};
}

Point PlaceForWindow() {
    const WindowPlace remembered = ReadWindowPlace(view.layout.bigBoard);
    return ClientCorner(CurrentDisplay(), ClientInDesktopUnits(), {remembered.left, remembered.top});
}

void UseBoardSize(bool bigBoard) {
    view.layout.bigBoard = bigBoard;
    view.layout.pitch = SizeInfo(bigBoard).pitch;
    view.layout.client = SizeInfo(bigBoard).client;
    view.colourDisplay = CurrentDisplay().bitsPerPixel > 4;
}

}  // namespace

void ChooseBoardSize(std::optional<int> zoom) {
    const Display display = CurrentDisplay();
    BuildPalette(display);
    view.zoom = zoom.value_or(ComfortableZoom(display));
    view.bigBoardAllowed = BigBoardFits(display, view.zoom);
    if (!view.bigBoardAllowed) preferences.bigBoard = false;
    UseBoardSize(preferences.bigBoard);
}

void OpenMainWindow() {
    CreateMainWindow(ResourceString(StringId::ProgramTitle), view.layout.client, view.zoom, PlaceForWindow());
    PaintNow();
    LoadGraphics();
    view.layout = ComputeLayout(view.layout.bigBoard, preferences.rackAbove, SizesOfPictures());
}

void RememberWindowPlace() {
    const Point place = ClientPlace();
    WriteWindowPlace(view.layout.bigBoard, {.top = place.y, .left = place.x});
}

void ArrangeWindow() {
    view.layout = ComputeLayout(view.layout.bigBoard, preferences.rackAbove, SizesOfPictures());
    InvalidateWindow();
}

void SwitchBoardSize() {
    if (!view.bigBoardAllowed) return;
    RememberWindowPlace();
    FlipPreference(&Preferences::bigBoard);
    UseBoardSize(preferences.bigBoard);
    ArrangeWindow();
    ResizeMainWindow(view.layout.client, PlaceForWindow());
}

}  // namespace quillet
