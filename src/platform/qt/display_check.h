// Is there a display that answers? Asked before the toolkit starts, which without one ends the program with
// a crash, or waits for ever for one that is dead.
#pragma once

#include <span>
#include <string>

namespace quillet {

using DisplayFault = std::string;  // a sentence for the person who started the program; empty: none

DisplayFault FindDisplayFault(std::span<char*> commandLine);

}  // namespace quillet
