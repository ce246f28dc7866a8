// An open dialog: its window, its controls by their ids, and the events that its handler is still to hear.
#pragma once

#include <QDialog>
#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <optional>

#include "platform/dialog.h"
#include "platform/qt/desktop.h"

namespace quillet {

class DialogWindow : public InTheMiddle<QDialog> {
  public:
    DialogWindow(Dialog& shownDialog, QWidget* parent);
    void reject() override;  // Escape and the close box

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;  // of the edits

  private:
    Dialog& dialog;
};

struct OpenControl {
    QWidget* widget = nullptr;  // owned by the window
    std::string text;           // of labels and buttons, as it was set
};

struct Dialog {
    bool isModal = true;
    DialogHandler handler{};
    std::map<int, OpenControl> controls{};
    std::deque<DialogEvent> waiting{};
    bool isTold = false;           // the handler is at work
    bool isSet = false;            // by the program: what changes now is not the person's doing
    std::optional<int> result{};   // set once it is closed
    std::exception_ptr failure{};  // what the handler threw: it must not pass through the toolkit
    std::unique_ptr<DialogWindow> window{};
};

// Tells the handler, as soon as it may hear it.
void Tell(Dialog& dialog, DialogEvent::Kind kind, int control);

// While it lives, what changes in a dialog is the program's doing.
class Setting {
  public:
    explicit Setting(Dialog& dialog) : isSet(dialog.isSet), before(dialog.isSet) { isSet = true; }
    ~Setting() { isSet = before; }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

  private:
    bool& isSet;
    bool before;
};

}  // namespace quillet
