// The menu bar and the accelerator keys. A command's number is 100 times its group and its place in the menu;
// the groups are those of MenuGroup. Scenarios, word lists and help topics are added when the program runs.
#pragma once

#include <span>

#include "platform/menu.h"

namespace quillet {

enum MenuGroup {
    kFileMenu,
    kEditMenu,
    kScenarioMenu,
    kOptionsMenu,
    kLettersMenu,
    kWordsMenu,
    kHelpMenu,
    kSoundsMenu = 10
};

constexpr int kFirstScenarioCommand = 205;
constexpr int kFirstWordListCommand = 514;
constexpr int kFirstTopicCommand = 603;

std::span<const Menu> MenuBar();  // the groups File to Help, in order; Sounds within Options
std::span<const Accelerator> Accelerators();

}  // namespace quillet
