// The commands of quillet-cli: each adds itself to the command line, with its options and its help.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace quillet {

// Ends a command: the line for standard error. The exit code is then 2.
struct CommandFailed {
    std::string message;
};

void AddSelfplayCommand(CLI::App& app);
void AddMovesCommand(CLI::App& app);
void AddAnalyseCommand(CLI::App& app);
void AddShowCommand(CLI::App& app);
void AddCheckCommand(CLI::App& app);
void AddWordListCommands(CLI::App& app);

}  // namespace quillet
