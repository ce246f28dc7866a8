// Shows the help topics (data/help_topics).
#pragma once

namespace quillet {

// Opens the help at topic `number`, 1-based; others can be chosen there. Warns when there are no topics.
void ShowHelp(int number);

}  // namespace quillet
