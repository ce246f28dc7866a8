// The presentation that writes down what the rules asked of it, and answers as a test has told it to. It has
// a file for each part of the program that answers in earnest: a test of that part leaves the file out.
#pragma once

#include <deque>
#include <map>
#include <sstream>

#include "support/testing.h"

namespace quillet {

struct RecordedPresentation {
    Strings calls;                                 // "DrawBoardTile 8 8 A", in order
    std::deque<std::optional<char>> blankLetters;  // answers to AskBlankLetter; cancelled when it runs out
    bool playersChosen = false;                    // the answer of ChoosePlayers
    bool pointerOverStatistics = false;
    std::map<std::string, void (*)()> whenCalled;  // lets a test act in the middle, by the call's first word

    // How many recorded calls begin with that text.
    int Count(const std::string& beginning) const;
};

inline RecordedPresentation recorded;

// Writes down a call, and does what a test has asked for then.
template <typename... Values>
void Record(const char* function, const Values&... values) {
    std::ostringstream call;
    call << function;
    ((call << ' ' << values), ...);
    recorded.calls.push_back(call.str());
    const auto action = recorded.whenCalled.find(function);
    if (action != recorded.whenCalled.end()) action->second();
}

}  // namespace quillet
