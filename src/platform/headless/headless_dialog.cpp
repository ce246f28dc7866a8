#include <algorithm>
#include <cassert>
#include <memory>
#include <utility>

#include "platform/headless/headless_window.h"

namespace quillet {
namespace {

using EventKind = DialogEvent::Kind;

Dialog MakeDialog(const DialogTemplate& dialogTemplate, const DialogHandler& handler) {
    Dialog dialog{.title = std::string(dialogTemplate.title), .controls = {}, .handler = handler};
    for (const ControlTemplate& control : dialogTemplate.controls) {
        if (control.id == 0) continue;
        HeadlessControl& made = dialog.controls[control.id];
        made.kind = control.kind;
        made.text = control.text;
    }
    headlessWindow.dialogsShown.push_back(dialog.title);
    return dialog;
}

void Tell(Dialog& dialog, EventKind kind, int control) {
    if (!dialog.result && dialog.handler) dialog.handler(dialog, {.kind = kind, .control = control});
}

HeadlessControl& Control(Dialog& dialog, int control) { return dialog.controls.at(control); }

bool IsReachable(Dialog& dialog, int control) {
    const HeadlessControl& found = Control(dialog, control);
    return found.shown && found.enabled && !dialog.result;
}

void RunScript(Dialog& dialog) {
    if (headlessWindow.dialogScripts.empty()) return;
    const auto script = std::move(headlessWindow.dialogScripts.front());
    headlessWindow.dialogScripts.pop_front();
    script(dialog);
}

// Each line ended by CR LF, whatever ended it.
std::string WithCrLf(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
        const bool endsLine = text[i] == '\r' || text[i] == '\n';
        lines += endsLine ? std::string("\r\n") : std::string(1, text[i]);
    }
    return lines;
}

std::unique_ptr<Dialog> modelessDialog;

}  // namespace

int RunDialog(const DialogTemplate& dialogTemplate, const DialogHandler& handler) {
    Dialog dialog = MakeDialog(dialogTemplate, handler);
    Tell(dialog, EventKind::Opened, 0);
    if (!dialog.result) RunScript(dialog);
    Tell(dialog, EventKind::Pressed, kCancelId);
    return dialog.result.value_or(kCancelId);
}

void CloseDialog(Dialog& dialog, int result) { dialog.result = result; }

Dialog& OpenModeless(const DialogTemplate& dialogTemplate, DialogHandler handler) {
    assert(modelessDialog == nullptr);
    modelessDialog = std::make_unique<Dialog>(MakeDialog(dialogTemplate, handler));
    headlessWindow.modeless = modelessDialog.get();
    Tell(*modelessDialog, EventKind::Opened, 0);
    RunScript(*modelessDialog);
    return *modelessDialog;
}

void CloseModeless([[maybe_unused]] Dialog& dialog) {
    assert(&dialog == modelessDialog.get());
    modelessDialog.reset();
    headlessWindow.modeless = nullptr;
}

// --- The person's hand ---

void PressControl(Dialog& dialog, int control) {
    const auto found = dialog.controls.find(control);
    if (found == dialog.controls.end()) {
        if (control == kCancelId) Tell(dialog, EventKind::Pressed, control);  // Escape, or the close box
        return;
    }
    if (!IsReachable(dialog, control)) return;
    if (found->second.kind == ControlKind::Check) found->second.checked = !found->second.checked;
    if (found->second.kind == ControlKind::Radio) {
        for (auto& [id, other] : dialog.controls) {
            if (other.kind == ControlKind::Radio) other.checked = id == control;
        }
    }
    Tell(dialog, EventKind::Pressed, control);
}

void TypeText(Dialog& dialog, int control, std::string_view text) {
    if (!IsReachable(dialog, control)) return;
    HeadlessControl& edit = Control(dialog, control);
    dialog.focus = control;
    const std::size_t from = std::min(edit.selectFrom, edit.text.size());
    edit.text.replace(from, std::min(edit.selectCount, edit.text.size() - from), text);
    if (edit.text.size() > edit.limit) edit.text.resize(edit.limit);
    edit.selectFrom = std::min(from + text.size(), edit.text.size());
    edit.selectCount = 0;
    Tell(dialog, EventKind::Changed, control);
}

void ChooseLine(Dialog& dialog, int control, int line) {
    if (!IsReachable(dialog, control)) return;
    Control(dialog, control).choice = line;
    Tell(dialog, EventKind::Changed, control);
}

void StepArrows(Dialog& dialog, int control, bool up) {
    if (IsReachable(dialog, control))
        Tell(dialog, up ? EventKind::SteppedUp : EventKind::SteppedDown, control);
}

// --- Controls ---

std::string ControlText(Dialog& dialog, int control) { return Control(dialog, control).text; }

void SetControlText(Dialog& dialog, int control, std::string_view text) {
    HeadlessControl& changed = Control(dialog, control);
    const bool hasLines = changed.kind == ControlKind::TextBox || changed.kind == ControlKind::ReadOnlyText;
    changed.text = hasLines ? WithCrLf(text) : std::string(text);
    changed.selectFrom = changed.text.size();
    changed.selectCount = 0;
}

void SetProgress(Dialog& dialog, int control, int percent) { Control(dialog, control).percent = percent; }
bool IsChecked(Dialog& dialog, int control) { return Control(dialog, control).checked; }
void SetChecked(Dialog& dialog, int control, bool checked) { Control(dialog, control).checked = checked; }
void SetPicture(Dialog& dialog, int control, const Picture* picture) {
    Control(dialog, control).picture = picture;
}

void SetLines(Dialog& dialog, int control, std::size_t count,
              std::function<std::string(std::size_t)> textOf) {
    HeadlessControl& list = Control(dialog, control);
    list.lineCount = count;
    list.lineText = std::move(textOf);
    list.choice = count == 0 ? -1 : 0;
}

int Choice(Dialog& dialog, int control) { return Control(dialog, control).choice; }
void SetChoice(Dialog& dialog, int control, int line) { Control(dialog, control).choice = line; }
void ShowControl(Dialog& dialog, int control, bool shown) { Control(dialog, control).shown = shown; }
void EnableControl(Dialog& dialog, int control, bool enabled) { Control(dialog, control).enabled = enabled; }
void FocusControl(Dialog& dialog, int control) { dialog.focus = control; }

void SelectText(Dialog& dialog, int control, std::size_t from, std::size_t count) {
    HeadlessControl& edit = Control(dialog, control);
    edit.selectFrom = std::min(from, edit.text.size());
    edit.selectCount = std::min(count, edit.text.size() - edit.selectFrom);
}

void LimitText(Dialog& dialog, int control, std::size_t characters) {
    Control(dialog, control).limit = characters;
}

}  // namespace quillet
