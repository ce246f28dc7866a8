// Where the terminal companion finds the data that shapes a game.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "words/dict.h"

namespace quillet {

// --data FOLDER. Without it what FindDataFolder finds.
void AddDataOption(CLI::App& app);

// Makes that scenario the one to play.
void LoadScenarioNamed(const std::string& name);

// The list asked for; without one, that which the scenario asks for, or "Words".
std::string WordsToPlayWith(const std::string& words);

// Reads a saved game and plays all its moves. A file that is no game ends the command.
void OpenGame(const std::string& path);

// Adds the option --words, which WordsToPlayWith and LoadWords understand.
void AddWordsOption(CLI::App& command, std::string& words);

// Reads a word list, looked through from end to end: a list of the data folder by its name, or a file by
// its path. What is wrong with it ends the command.
Dict ReadWords(const std::string& nameOrPath);

// Makes such a list the one to play with.
void LoadWords(const std::string& nameOrPath);

// The whole content of a file, by its path in the file system. A file that cannot be read ends the command.
std::string ReadWholeFile(const std::string& path);

// Makes the folder when it is not there yet. What cannot be made ends the command.
void MakeFolder(const std::string& path);

// The path as the file layer takes the file system's own.
std::string SystemPath(const std::string& path);

}  // namespace quillet
