// What the fuzz targets share. A target is one source file: it defines the two functions below, and
// support.cpp calls them for libFuzzer.
//
// Before each input the whole program is as after its start, with a data folder of its own in the temporary
// folder. What the program reads may be damaged in any way: warnings are fine, and so is an end by Fatal.
// Crashes, hangs and whatever Require finds are not.
#pragma once

#include <string>
#include <string_view>

namespace quillet::fuzz {

// --- What a target defines ---

// Once, before the first input: makes folders, and what else all inputs share.
void SetUp();

// Gives one input to the program.
void TryInput(std::string_view input);

// --- What it may use; paths are the file system's, relative to the data folder ---

void MakeFolder(const std::string& path);
void WriteFile(const std::string& path, std::string_view contents);
std::string ReadFile(const std::string& path);

// A small word list as mainDict.
void UseSmallWordList();

// Two computer players, the second of a low level.
void UseComputerPlayers();

// Ends the run with that finding when the condition does not hold.
void Require(bool condition, std::string_view finding);

}  // namespace quillet::fuzz
