// The list of help topics, and a topic's text: read and shown.
#include "data/help_topics.h"

#include <algorithm>

#include "support.h"

namespace quillet::fuzz {

void SetUp() { MakeFolder("Data/Help"); }

void TryInput(std::string_view input) {
    WriteFile("Data/Help/HELPITEMS.txt", input);
    WriteFile("Data/Help/Topic.txt", input);
    LoadHelpTopics();
    Require(helpTopics.size() <= kMostHelpTopics, "more topics than the menu has room for");
    for (const HelpTopic& topic : helpTopics) HelpText(topic);
    const std::string text = HelpText("Topic");
    const std::size_t most = std::min(input.size(), kMostHelpBytes);
    Require(text.size() == most || text.size() + 2 == most, "a text is shown in part");
}

}  // namespace quillet::fuzz
