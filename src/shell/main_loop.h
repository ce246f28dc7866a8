// The program's run: start-up in its order, the loop that takes messages and does idle work between them, and
// the way out.
//
// Owns how far the run has come: whether a message is being handled from within a computation, and whether
// the program is to end.
#pragma once

#include <optional>
#include <string>

namespace quillet {

struct RunOptions {
    std::string savedGame;    // a path in the file system; empty: none
    std::optional<int> zoom;  // of the window; as is comfortable when it is not given
};

// From the start to the end of the program. Needs the platform; the data folder must be set.
void RunProgram(const RunOptions& options);

// --- The pieces, for tests ---

void StartProgram(const RunOptions& options);
// Handles every waiting message and does what is to be done when none waits; false once the program is to
// end.
bool RunOnce();
// Until the program ends.
void RunLoop();

}  // namespace quillet
