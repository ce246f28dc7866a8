#include "platform/menu.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <algorithm>
#include <map>
#include <vector>

#include "platform/qt/desktop.h"
#include "platform/shared/message_queue.h"

namespace quillet {
namespace {

struct Item {
    QAction* action;  // owned by its menu
    bool checked = false;
};

struct MenuState {
    QPointer<QMenuBar> bar;     // owned by the main window as soon as there is one
    std::vector<QMenu*> menus;  // of the bar, owned by it
    std::map<int, Item> items;  // by command
    std::vector<Accelerator> accelerators;
};
MenuState state;

QList<QKeySequence> KeysOf(const Accelerator& accelerator) {
    switch (accelerator.key) {
        case AcceleratorKey::ControlAnd:
            return {QKeySequence(Qt::CTRL | static_cast<Qt::Key>(accelerator.character))};
        case AcceleratorKey::Return:
            return {QKeySequence(Qt::Key_Return), QKeySequence(Qt::KeypadModifier | Qt::Key_Enter)};
        case AcceleratorKey::KeypadPeriod:
            // In some countries the key types a comma.
            return {QKeySequence(Qt::KeypadModifier | Qt::Key_Period),
                    QKeySequence(Qt::KeypadModifier | Qt::Key_Comma)};
        case AcceleratorKey::F1:
            return {QKeySequence(Qt::Key_F1)};
    }
    return {};
}

QList<QKeySequence> KeysOfCommand(int command) {
    QList<QKeySequence> keys;
    for (const Accelerator& accelerator : state.accelerators) {
        if (accelerator.command == command) keys += KeysOf(accelerator);
    }
    return keys;
}

// The desktop shows the key of an item in its own words.
void SetText(QAction& action, std::string_view text) {
    if (!action.shortcuts().isEmpty()) text = text.substr(0, text.find('\t'));
    action.setText(ToQString(text));
}

void Choose(int command) {
    const Item& item = state.items.at(command);
    // The toolkit flips the mark; what is marked is the program's to say.
    if (item.action->isCheckable()) item.action->setChecked(item.checked);
    PostMessage({.kind = Message::Kind::Command, .command = command});
}

void Append(QMenu& menu, const MenuItem& item) {
    if (!item.submenu.empty()) {
        QMenu* submenu = menu.addMenu(ToQString(item.text));
        for (const MenuItem& inner : item.submenu) Append(*submenu, inner);
        return;
    }
    if (item.command == 0) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(QString());
    action->setMenuRole(QAction::NoRole);
    action->setData(item.command);
    action->setShortcuts(KeysOfCommand(item.command));
    SetText(*action, item.text);
    const int command = item.command;
    QObject::connect(action, &QAction::triggered, action, [command] { Choose(command); });
    state.items[command] = {.action = action};
}

Item* Find(int command) {
    const auto item = state.items.find(command);
    return item == state.items.end() || state.bar == nullptr ? nullptr : &item->second;
}

}  // namespace

QMenuBar* CurrentMenuBar() { return state.bar; }

bool IsAcceleratorKey(int keyAndModifiers) {
    const QKeySequence pressed(keyAndModifiers);
    return state.bar != nullptr &&
           std::ranges::any_of(state.accelerators, [&](const Accelerator& accelerator) {
               return KeysOf(accelerator).contains(pressed);
           });
}

void BuildMenuBar(std::span<const Menu> menus, std::span<const Accelerator> accelerators) {
    delete state.bar;
    state = {};
    state.accelerators.assign(accelerators.begin(), accelerators.end());
    state.bar = new QMenuBar;
    for (const Menu& menu : menus) {
        state.menus.push_back(state.bar->addMenu(ToQString(menu.title)));
        for (const MenuItem& item : menu.items) Append(*state.menus.back(), item);
    }
    AttachMenuBar();
}

void AppendMenuItem(int menu, int command, std::string_view text) {
    if (state.bar == nullptr || menu < 0 || menu >= static_cast<int>(state.menus.size())) return;
    Append(*state.menus[static_cast<std::size_t>(menu)], {.command = command, .text = text});
}

bool RemoveMenuItem(int command) {
    const Item* item = Find(command);
    if (item == nullptr) return false;
    delete item->action;
    state.items.erase(command);
    return true;
}

void SetMenuText(int command, std::string_view text) {
    if (const Item* item = Find(command)) SetText(*item->action, text);
}

void EnableMenuItem(int command, bool enabled) {
    if (const Item* item = Find(command)) item->action->setEnabled(enabled);
}

void CheckMenuItem(int command, bool checked) {
    Item* item = Find(command);
    if (item == nullptr) return;
    item->checked = checked;
    item->action->setCheckable(true);
    item->action->setChecked(checked);
}

}  // namespace quillet
