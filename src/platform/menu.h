// The menu bar and its accelerator keys. Items are known by their command number; choosing one, or pressing
// its key, makes a Command message. An item that is disabled answers to neither.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quillet {

struct MenuItem {
    int command = 0;        // 0 with a text: a submenu; 0 without: a separator
    std::string_view text;  // "&" before the access key; after a tab the accelerator as it is shown
    std::span<const MenuItem> submenu{};
};

struct Menu {
    std::string_view title;
    std::span<const MenuItem> items;
};

enum class AcceleratorKey : std::uint8_t { ControlAnd, Return, KeypadPeriod, F1 };

struct Accelerator {
    AcceleratorKey key;
    char character;  // the letter or digit pressed with Control
    int command;
};

// Replaces the whole menu bar.
void BuildMenuBar(std::span<const Menu> menus, std::span<const Accelerator> accelerators);

// At the end of menu `menu` (0-based). A command of 0 appends a separator.
void AppendMenuItem(int menu, int command, std::string_view text);
// False when there is no such item.
bool RemoveMenuItem(int command);

void SetMenuText(int command, std::string_view text);
void EnableMenuItem(int command, bool enabled);
void CheckMenuItem(int command, bool checked);

}  // namespace quillet
