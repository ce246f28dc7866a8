// quillet-cli: self-play, move lists and word-list work from a terminal, on the same core as the game.
#include <cstdio>

#include "base/messages.h"
#include "command.h"
#include "data.h"
#include "platform/headless/headless.h"
#include "store/preferences.h"

namespace {

constexpr int kFailure = 2;

int Fail(const std::string& message) {
    std::fprintf(stderr, "quillet-cli: %s\n", message.c_str());
    return kFailure;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace quillet;
    CLI::App app{"Quillet from the terminal: games between computer players, move lists, word lists."};
    app.name("quillet-cli");
    app.set_version_flag("--version", "quillet-cli " QUILLET_VERSION);
    app.require_subcommand(1);
    app.option_defaults()->always_capture_default();
    DetachPreferences();
    AddDataOption(app);
    AddSelfplayCommand(app);
    AddMovesCommand(app);
    AddAnalyseCommand(app);
    AddShowCommand(app);
    AddCheckCommand(app);
    AddWordListCommands(app);
    try {
        app.parse(argc, argv);
        return std::fflush(stdout) == 0 ? 0 : Fail("could not write the output");
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error);  // help
        if (argc > 1 && argv[1][0] != '-' && app.get_subcommands().empty()) {
            return Fail("there is no command \"" + std::string(argv[1]) + "\" (--help lists them)");
        }
        return Fail(std::string(error.what()) + " (--help tells more)");
    } catch (const CommandFailed& failure) {
        return Fail(failure.message);
    } catch (const ProgramEnd&) {
        return Fail(headless.messages.back().text);
    }
}
