#include "editors/board_editor.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/messages.h"
#include "base/presentation.h"
#include "computer/opponents.h"
#include "data/scenarios.h"
#include "game/game_state.h"
#include "platform/clipboard.h"
#include "platform/message_box.h"
#include "platform/ticks.h"
#include "platform/window_controls.h"
#include "play/turns.h"
#include "view/board_drawing.h"
#include "view/graphics.h"
#include "view/palette.h"
#include "view/render.h"
#include "view/view_state.h"

namespace quillet {
namespace {

constexpr int kSaveButton = 1;
constexpr int kCancelButton = 2;
constexpr int kRowsList = 3;
constexpr int kColumnsList = 4;

constexpr int kFewestRows = 5;
constexpr std::array<std::string_view, 6> kCounts{"5", "7", "9", "11", "13", "15"};
constexpr int kPictureSize = 26;
constexpr std::array kHints{StringId::BoardEditorHint1, StringId::BoardEditorHint2,
                            StringId::BoardEditorHint3};

struct BoardEditor {
    SquareKind selectedKind = 0;
    bool picturesChanged = false;
    GameState before{};  // as it was when the editor was opened
};
BoardEditor editor;

// --- Places ---

Rect PanelRect() { return {5, 5, 168, view.layout.client.height - 2}; }

Rect PaletteBox(SquareKind kind) {
    const int pitch = view.layout.pitch;
    return Rect::At({178, 5 + kind * (pitch + 3)}, {pitch + 1, pitch + 1});
}

constexpr Rect kRowsRect{15, 85, 75, 107};
constexpr Rect kColumnsRect{95, 85, 155, 107};

std::optional<SquareKind> PaletteKindAt(Point p) {
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) {
        if (PaletteBox(kind).Contains(p)) return kind;
    }
    return std::nullopt;
}

// --- Drawing ---

// Writes the text in lines no wider than the rectangle, the first with its top at the rectangle's; the bottom
// of the last is returned.
int DrawWrapped(const Rect& rect, std::string_view text) {
    const int lineHeight = MetricsOf(kTextFont).height;
    int bottom = rect.top;
    while (!text.empty()) {
        std::size_t length = text.size();
        while (TextWidth(kTextFont, text.substr(0, length)) > rect.Width()) {
            const std::size_t space = text.substr(0, length).rfind(' ');
            if (space == std::string_view::npos) break;
            length = space;
        }
        bottom += lineHeight;
        const int baseline = bottom - MetricsOf(kTextFont).descent;
        WindowCanvas().DrawText(kTextFont, {rect.left, baseline}, text.substr(0, length), kBlack);
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return bottom;
}

void DrawCentred(const Rect& below, std::string_view text) {
    const int left = below.left + (below.Width() - TextWidth(kTextFont, text)) / 2;
    WindowCanvas().DrawText(kTextFont, {left, below.top - 4}, text, kBlack);
}

void DrawPanel() {
    constexpr Colour kLightGrey = 0xD3D3D3;
    Canvas& canvas = WindowCanvas();
    const Rect panel = PanelRect();
    canvas.Fill(panel, kLightGrey);
    canvas.Frame(panel, kBlack);
    Region shadow(panel.Moved(3, 3));
    shadow.Subtract(panel);
    for (const Rect& strip : shadow.rects) {
        if (view.colourDisplay) {
            canvas.Tile(strip, graphics.shadow);
        } else {
            canvas.Fill(strip, kBlack);
        }
    }
    DrawCentred(kRowsRect, "Rows");
    DrawCentred(kColumnsRect, "Columns");
    int top = panel.top + 140;
    for (StringId hint : kHints) {
        top = DrawWrapped({panel.left + 10, top, panel.right - 10, panel.bottom}, ResourceString(hint)) + 20;
    }
}

void DrawPaletteBox(SquareKind kind) {
    Canvas& canvas = WindowCanvas();
    const Rect box = PaletteBox(kind);
    DrawSquareKind(box.Shrunk(1), kind);
    canvas.Frame(box, kBlack);
    if (kind != editor.selectedKind) return;
    canvas.Frame(box.Shrunk(-1), kBlack);
    canvas.Frame(box.Shrunk(-2), kBlack);
}

void DrawEditor() {
    DrawPanel();
    for (SquareKind kind = 0; kind < kSquareKinds.size(); ++kind) DrawPaletteBox(kind);
}

void InvalidatePaletteBox(SquareKind kind) { Invalidate(PaletteBox(kind).Shrunk(-2)); }

// --- Opening and closing ---

int LineOf(int count) { return (count - kFewestRows) / 2; }

void ShowControls() {
    const Rect panel = PanelRect();
    const WindowControl controls[] = {
        {kCancelButton, ControlKind::Button, Rect::At({15, 15}, {60, 22}), "Cancel"},
        {kSaveButton, ControlKind::Button, Rect::At({panel.right - 73, panel.top + 10}, {60, 22}), "Save"},
        {kRowsList, ControlKind::DropDown, kRowsRect, "Rows", kCounts},
        {kColumnsList, ControlKind::DropDown, kColumnsRect, "Columns", kCounts},
    };
    ShowWindowControls(controls);
    SetWindowControlChoice(kRowsList, LineOf(game.settings.boardRows));
    SetWindowControlChoice(kColumnsList, LineOf(game.settings.boardCols));
}

void CloseEditor() {
    game.editorActive = false;
    HideWindowControls();
    ShowEditorPanel({});
    RedrawWindow();
}

// --- Saving and cancelling ---

void StartGameOnBoard() {
    ReadPlayerSetUp();
    LoadOpponentData();
    BeginGame(false);
}

void Save() {
    if (!game.bounds.Contains(game.settings.startRow, game.settings.startCol)) {
        return Warning("There is no starting square!");
    }
    SaveScenarioBoard(editor.picturesChanged);
    StartGameOnBoard();
    CloseEditor();
}

void Cancel() {
    if (editor.picturesChanged) ReloadSquarePictures();
    game = editor.before;
    CloseEditor();
}

void ChangeCount(std::int16_t GameSettings::*count, int list) {
    const int chosen = 2 * WindowControlChoice(list) + kFewestRows;
    if (game.settings.*count == chosen) return;
    InvalidateBoard();
    game.settings.*count = static_cast<std::int16_t>(chosen);
    ComputeBounds();
    InvalidateBoard();
    PaintNow();
}

// --- Clicks ---

bool IsStart(BoardPosition at) {
    return at.row == game.settings.startRow && at.col == game.settings.startCol;
}

void PaintKind(BoardPosition at) {
    Square& square = game.board[at.row][at.col];
    if (!IsPlayable(editor.selectedKind) && IsStart(at)) return Beep();
    SetSquareKind(square, square.kind == editor.selectedKind ? SquareKind{0} : editor.selectedKind);
    DrawSquare(at.row, at.col);
}

void MoveStart(BoardPosition at) {
    if (!IsPlayable(game.board[at.row][at.col].kind)) return Beep();
    if (IsStart(at)) return;
    const BoardPosition old{game.settings.startRow, game.settings.startCol};
    game.settings.startRow = at.row;
    game.settings.startCol = at.col;
    if (game.bounds.Contains(old.row, old.col)) DrawSquare(old.row, old.col);
    DrawSquare(at.row, at.col);
}

void SelectKind(SquareKind kind) {
    if (kind == editor.selectedKind) return;
    InvalidatePaletteBox(editor.selectedKind);
    editor.selectedKind = kind;
    InvalidatePaletteBox(kind);
    PaintNow();
}

// The picture with each side made as long as that, whole rows and columns dropped or repeated.
Image Stretched(const Image& image, int size) {
    Image result(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            result.At(x, y) = image.At(x * image.width / size, y * image.height / size);
        }
    }
    return result;
}

}  // namespace

void OpenBoardEditor() {
    editor = {.before = game};
    game.editorActive = true;
    for (auto& row : game.board) {
        for (Square& square : row) SetSquareKind(square, square.kind);
    }
    ShowEditorPanel({PanelRect(), DrawEditor});
    ShowControls();
    RedrawWindow();
}

void ClickInBoardEditor(const Message& click) {
    if (!view.layout.boardFrame.Contains(click.at)) {
        if (const auto kind = PaletteKindAt(click.at)) SelectKind(*kind);
        return;
    }
    const std::optional<BoardPosition> at = SquareAt(view.layout, click.at);
    if (!at) return;
    if (click.control) {
        MoveStart(*at);
    } else {
        PaintKind(*at);
    }
}

void HandleBoardEditorControl(const Message& event) {
    switch (event.command) {
        case kSaveButton:
            return Save();
        case kCancelButton:
            return Cancel();
        case kRowsList:
            return ChangeCount(&GameSettings::boardRows, kRowsList);
        case kColumnsList:
            return ChangeCount(&GameSettings::boardCols, kColumnsList);
        default:
            return;
    }
}

void CopySquarePicture() {
    constexpr std::uint32_t kWaitAtLeast = 100;  // milliseconds: the person shall see that something happens
    const std::optional<Picture>& picture = graphics.squares[editor.selectedKind];
    if (!game.editorActive || !picture) return Beep();
    const std::uint32_t start = TickCount();
    ShowWaitCursor();
    PutPictureOnClipboard(picture->image);
    const std::uint32_t taken = TickCount() - start;
    if (taken < kWaitAtLeast) Pause(kWaitAtLeast - taken);
    ShowArrowCursor();
}

void PasteSquarePicture() {
    if (!game.editorActive) return Beep();
    const std::optional<Image> pasted = ClipboardPicture();
    if (!pasted || pasted->pixels.empty()) return Warning("Nothing to paste!");
    Picture picture(Stretched(*pasted, kPictureSize));
    FitToPalette(picture);
    graphics.squares[editor.selectedKind] = picture;
    editor.picturesChanged = true;
    InvalidatePaletteBox(editor.selectedKind);
    InvalidateBoard();
    PaintNow();
}

}  // namespace quillet
