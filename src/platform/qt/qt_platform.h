// Starting and ending the desktop of Qt: for main.cpp, and for tests that run on it.
#pragma once

#include <string>

namespace quillet {

// Comes before anything else that is asked of the desktop. Takes the toolkit's own arguments out of the
// command line; both must live as long as the platform. False when there is no display that answers: a line
// on standard error has said so.
bool StartPlatform(int& argumentCount, char** arguments);

// The pictures in that folder, of whatever sizes, stand for the program in the desktop's lists.
void SetProgramIcon(const std::string& folder);

// Comes last: the window, if there still is one, the sounds and the toolkit end.
void EndPlatform();

}  // namespace quillet
