#include "platform/dialog.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpacerItem>
#include <QTimer>
#include <algorithm>
#include <list>
#include <utility>

#include "platform/qt/controls.h"
#include "platform/qt/open_dialog.h"

namespace quillet {
namespace {

using EventKind = DialogEvent::Kind;

std::list<std::shared_ptr<Dialog>> modelessDialogs;

void TellAll(Dialog& dialog) {
    dialog.isTold = true;
    while (!dialog.waiting.empty() && !dialog.result) {
        const DialogEvent event = dialog.waiting.front();
        dialog.waiting.pop_front();
        try {
            if (dialog.handler) dialog.handler(dialog, event);
        } catch (...) {
            dialog.failure = std::current_exception();
            dialog.result = kCancelId;
        }
    }
    dialog.isTold = false;
    ShowChanges();  // what the handler drew on the window
    if (dialog.failure && dialog.window) dialog.window->done(QDialog::Rejected);
}

// Those of a modeless dialog wait until the program takes messages.
void TellWaiting(Dialog& dialog) {
    if (dialog.isModal && !dialog.isTold) TellAll(dialog);
}

void RethrowFailure(Dialog& dialog) {
    if (dialog.failure) std::rethrow_exception(std::exchange(dialog.failure, nullptr));
}

// --- What the person does ---

void ConnectList(Dialog& dialog, LineList& list, int id) {
    QObject::connect(list.selectionModel(), &QItemSelectionModel::currentChanged, dialog.window.get(),
                     [&dialog, id] { Tell(dialog, EventKind::Changed, id); });
    QObject::connect(&list, &QListView::doubleClicked, dialog.window.get(),
                     [&dialog, id] { Tell(dialog, EventKind::Chosen, id); });
    list.onSameLine = [&dialog, id] { Tell(dialog, EventKind::Changed, id); };
    list.onChosen = [&dialog, id] { Tell(dialog, EventKind::Chosen, id); };
}

void Connect(Dialog& dialog, QWidget& widget, int id) {
    const auto changed = [&dialog, id] { Tell(dialog, EventKind::Changed, id); };
    DialogWindow* window = dialog.window.get();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        QObject::connect(button, &QAbstractButton::clicked, window,
                         [&dialog, id] { Tell(dialog, EventKind::Pressed, id); });
    } else if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        QObject::connect(edit, &QLineEdit::textEdited, window, changed);
        edit->installEventFilter(window);
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(&widget)) {
        QObject::connect(area, &QPlainTextEdit::textChanged, window, changed);
    } else if (auto* dropDown = qobject_cast<QComboBox*>(&widget)) {
        QObject::connect(dropDown, &QComboBox::currentIndexChanged, window, changed);
    } else if (auto* list = dynamic_cast<LineList*>(&widget)) {
        ConnectList(dialog, *list, id);
    } else if (auto* arrows = dynamic_cast<ArrowPair*>(&widget)) {
        arrows->onStep = [&dialog, id](bool up) {
            Tell(dialog, up ? EventKind::SteppedUp : EventKind::SteppedDown, id);
        };
    }
}

// --- Building ---

bool IsLabelled(ControlKind kind) {
    return kind == ControlKind::Edit || kind == ControlKind::TextBox || kind == ControlKind::ReadOnlyText ||
           kind == ControlKind::DropDown || kind == ControlKind::List;
}

bool GrowsDownwards(ControlKind kind) {
    return kind == ControlKind::TextBox || kind == ControlKind::ReadOnlyText || kind == ControlKind::List;
}

// A label names the control that follows it: for its access key and for assistive technology.
void NameAfter(QWidget& label, QWidget& widget) {
    auto& text = static_cast<QLabel&>(label);
    text.setBuddy(&widget);
    widget.setAccessibleName(text.text().remove(QLatin1Char('&')));
}

struct Rows {
    QGridLayout* grid;
    QHBoxLayout* buttons;
};

Rows MakeRows(QDialog& window) {
    auto* whole = new QVBoxLayout(&window);
    // Wide enough for the title beside the buttons of its bar.
    constexpr int kTitleButtons = 120;
    const int titleWidth = window.fontMetrics().horizontalAdvance(window.windowTitle());
    whole->addItem(new QSpacerItem(titleWidth + kTitleButtons, 0, QSizePolicy::Minimum, QSizePolicy::Fixed));
    const Rows rows{.grid = new QGridLayout, .buttons = new QHBoxLayout};
    whole->addLayout(rows.grid);
    whole->addLayout(rows.buttons);
    rows.buttons->addStretch();
    return rows;
}

void Place(const Rows& rows, const ControlTemplate& control, QWidget* widget) {
    const GridCell& cell = control.cell;
    if (cell.row == kButtonRow) return rows.buttons->addWidget(widget);
    // Narrow controls stand at the left of their cell instead of in its middle.
    const bool isNarrow = widget->maximumWidth() < QWIDGETSIZE_MAX && control.kind != ControlKind::Picture;
    rows.grid->addWidget(widget, cell.row, cell.column, cell.rows, cell.columns,
                         isNarrow ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
    if (GrowsDownwards(control.kind)) rows.grid->setRowStretch(cell.row + cell.rows - 1, 1);
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

void AddControls(Dialog& dialog, std::span<const ControlTemplate> controls) {
    DialogWindow& window = *dialog.window;
    const Rows rows = MakeRows(window);
    const bool hasDefault =
        std::ranges::count(controls, ControlKind::DefaultButton, &ControlTemplate::kind) > 0;
    QButtonGroup* radios = nullptr;  // of the run of radio buttons that is being made
    QWidget* label = nullptr;        // when it stands right before the control
    for (const ControlTemplate& control : controls) {
        QWidget* widget = MakeWidget(control, &window);
        if (label != nullptr && IsLabelled(control.kind)) NameAfter(*label, *widget);
        // Beside something high it names the first line of it.
        if (label != nullptr && GrowsDownwards(control.kind)) rows.grid->setAlignment(label, Qt::AlignTop);
        label = control.kind == ControlKind::Label ? widget : nullptr;
        if (control.kind != ControlKind::Radio) {
            radios = nullptr;
        } else {
            if (radios == nullptr) radios = new QButtonGroup(&window);
            radios->addButton(static_cast<QAbstractButton*>(widget));
        }
        if (auto* button = qobject_cast<QPushButton*>(widget)) {
            button->setAutoDefault(hasDefault);
            if (control.kind == ControlKind::DefaultButton) button->setDefault(true);
        }
        Place(rows, control, widget);
        if (control.id == 0) continue;
        dialog.controls[control.id] = {.widget = widget, .text = std::string(control.text)};
        Connect(dialog, *widget, control.id);
    }
    const bool grows = std::ranges::any_of(controls, GrowsDownwards, &ControlTemplate::kind);
    if (!grows) window.layout()->setSizeConstraint(QLayout::SetFixedSize);
}

// Left alone, the toolkit would shrink what is high to a part of the screen.
void TakeWantedSize(DialogWindow& window) {
    window.ensurePolished();
    QLayout& layout = *window.layout();
    layout.activate();
    QSize wanted = layout.totalSizeHint();
    if (layout.hasHeightForWidth()) {
        wanted.setHeight(std::max(wanted.height(), layout.totalHeightForWidth(wanted.width())));
    }
    window.resize(wanted.boundedTo(window.screen()->availableSize()));
}

void Open(Dialog& dialog, const DialogTemplate& dialogTemplate) {
    const Setting setting(dialog);
    dialog.window = std::make_unique<DialogWindow>(dialog, DialogParent());
    dialog.window->setWindowTitle(ToQString(dialogTemplate.title));
    dialog.window->middle = dialogTemplate.middle;
    AddControls(dialog, dialogTemplate.controls);
}

// The handler fills the controls; what it throws is the caller's.
void TellOpened(Dialog& dialog) {
    dialog.waiting.push_back({.kind = EventKind::Opened});
    TellAll(dialog);
    RethrowFailure(dialog);
    TakeWantedSize(*dialog.window);
}

}  // namespace

void Tell(Dialog& dialog, EventKind kind, int control) {
    if (dialog.result || dialog.isSet) return;
    dialog.waiting.push_back({.kind = kind, .control = control});
    TellWaiting(dialog);
}

DialogWindow::DialogWindow(Dialog& shownDialog, QWidget* parent)
    : InTheMiddle<QDialog>(parent), dialog(shownDialog) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void DialogWindow::reject() {
    const auto cancel = dialog.controls.find(kCancelId);
    if (cancel != dialog.controls.end() && !cancel->second.widget->isEnabled()) return;
    Tell(dialog, EventKind::Pressed, kCancelId);
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    // Without a default button Enter presses the button that has the focus.
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && button != nullptr && !button->autoDefault()) return button->click();
    QDialog::keyPressEvent(event);
}

bool DialogWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool hasLeft = event->type() == QEvent::FocusOut && !dialog.isSet;
    if (!hasLeft) return InTheMiddle<QDialog>::eventFilter(watched, event);
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool isBack = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
                        reason == Qt::MenuBarFocusReason;
    for (const auto& [id, control] : dialog.controls) {
        if (control.widget != watched || isBack) continue;
        // Told before anything else happens, but not yet: the focus is still on its way, and the handler may
        // want to send it elsewhere.
        dialog.waiting.push_back({.kind = EventKind::FocusLeft, .control = id});
        QTimer::singleShot(0, this, [this] { TellWaiting(dialog); });
    }
    return false;
}

int RunDialog(const DialogTemplate& dialogTemplate, const DialogHandler& handler) {
    Dialog dialog{.isModal = true, .handler = handler};
    Open(dialog, dialogTemplate);
    TellOpened(dialog);
    if (!dialog.result) RunModal(*dialog.window);
    RethrowFailure(dialog);
    return dialog.result.value_or(kCancelId);
}

void CloseDialog(Dialog& dialog, int result) {
    dialog.result = result;
    dialog.window->done(QDialog::Accepted);
}

Dialog& OpenModeless(const DialogTemplate& dialogTemplate, DialogHandler handler) {
    const auto dialog = std::make_shared<Dialog>();
    dialog->isModal = false;
    dialog->handler = std::move(handler);
    Open(*dialog, dialogTemplate);
    TellOpened(*dialog);
    modelessDialogs.push_back(dialog);
    dialog->window->show();
    return *dialog;
}

void CloseModeless(Dialog& dialog) {
    dialog.result = kCancelId;
    std::erase_if(modelessDialogs, [&](const auto& other) { return other.get() == &dialog; });
}

bool ModelessEventsWait() {
    return std::ranges::any_of(
        modelessDialogs, [](const auto& dialog) { return !dialog->waiting.empty() && !dialog->isTold; });
}

void DeliverModelessEvents() {
    const auto dialogs = modelessDialogs;  // a handler may close its dialog, or another
    for (const auto& dialog : dialogs) {
        const bool isOpen = std::ranges::count(modelessDialogs, dialog) > 0;
        if (!isOpen || dialog->isTold || dialog->waiting.empty()) continue;
        TellAll(*dialog);
        RethrowFailure(*dialog);
    }
}

}  // namespace quillet
