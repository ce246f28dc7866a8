// What the files of this folder share: the text conversion at the platform's edge, showing what was drawn,
// sleeping, and where dialogs stand.
//
// The main window and its canvas are owned by window.cpp; the others ask here.
#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/geometry.h"
#include "platform/image.h"

class QDialog;
class QImage;
class QMenuBar;

namespace quillet {

// --- Text: Latin-1 on the program's side ---

QString ToQString(std::string_view text);
// Characters that Latin-1 lacks come as what looks most like them, at worst as "?".
std::string FromQString(const QString& text);
QString InLatin1(const QString& text);  // the same, still as the toolkit's text

// --- Waiting ---

// Shows on the screen what was drawn on the canvas since the last time.
void ShowChanges();

// Takes in what has happened and returns.
void TakeInEvents();

// Takes in what happens next; returns when it did or when the time is up. Sleeps until then.
void SleepUntil(const QDeadlineTimer& deadline);

// Naps until the time is up or isOver() says true; the window is shown as it stands meanwhile, and what the
// person does waits.
template <typename Condition>
void NapUntil(const QDeadlineTimer& deadline, Condition isOver);
void Nap(const QDeadlineTimer& deadline);  // at most a few milliseconds

QDeadlineTimer DeadlineIn(std::uint32_t milliseconds);  // kForever never comes

// --- Dialogs and boxes ---

// The window that a dialog is to stand in front of; none before the main window exists.
QWidget* DialogParent();

// Moves a dialog over the middle of the client area, or over that point of it (units), or, without a window,
// to the middle of the screen; all of it on the screen.
void MoveToMiddle(QWidget& dialog, std::optional<Point> middle = {});

// Runs a modal dialog of the toolkit to its end, with the window shown as it stands; then the window behind
// it is active again. The result is the toolkit's.
int RunModal(QDialog& dialog);

// A dialog of the toolkit that opens there.
template <typename Dialog>
class InTheMiddle : public Dialog {
  public:
    using Dialog::Dialog;
    std::optional<Point> middle;

  protected:
    void showEvent(QShowEvent* event) override {
        Dialog::showEvent(event);
        if (!wasShown) MoveToMiddle(*this, middle);
        wasShown = true;
    }

  private:
    bool wasShown = false;
};

// The events of the modeless dialogs (dialog.cpp) reach their handlers when the program takes messages.
bool ModelessEventsWait();
void DeliverModelessEvents();

// --- The rest ---

QWidget* MainCanvas();  // of the main window; none before there is one

// Gives the main window, if there is one, the menu bar of menu.cpp.
void AttachMenuBar();
QMenuBar* CurrentMenuBar();  // none before one is built; owned by the main window while there is one
bool IsAcceleratorKey(int keyAndModifiers);

QImage ToQImage(const Image& image);
int UnitSize();  // of the main window, in the desktop's units; 1 before there is one
void EndSounds();

template <typename Condition>
void NapUntil(const QDeadlineTimer& deadline, Condition isOver) {
    ShowChanges();
    while (!deadline.hasExpired() && !isOver()) Nap(deadline);
}

}  // namespace quillet
