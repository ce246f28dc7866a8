// The help: a list of topics and a text for each, in the help folder (docs/formats/help.md).
//
// Owns helpTopics: filled by LoadHelpTopics, read by others. Files in any condition are safe to read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace quillet {

using HelpTopic = Text<63>;

constexpr std::size_t kMostHelpTopics = 97;    // as many as the Help menu has command numbers for
constexpr std::size_t kMostHelpBytes = 32000;  // that are read of any file

// In the order of the menu. One that begins with "-" is a line between topics.
inline std::vector<HelpTopic> helpTopics;

constexpr bool IsSeparator(std::string_view topic) { return topic.starts_with('-'); }

// Reads the list. With a warning, and no topics, when there is none.
void LoadHelpTopics();

// What to show for the topic: its text with its line ends as they stand in the file, without a last one; or
// why there is none.
std::string HelpText(std::string_view topic);

}  // namespace quillet
