#include "shell/kept_game.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/messages.h"
#include "data/saved_game.h"
#include "data/scenarios.h"
#include "game/game_state.h"
#include "shell/commands.h"
#include "store/files.h"

namespace quillet {
namespace {

constexpr int kSlots = 9;                           // programs that can run at once and all keep their games
constexpr std::uintmax_t kRoomForGame = 64 * 1024;  // bytes; more than any game takes
constexpr std::uint64_t kNothing = 0;

struct Keeping {
    int slot = 0;                   // 1..kSlots; 0: none
    int lock = -1;                  // of the slot
    std::uint64_t kept = kNothing;  // the fingerprint of what the file holds
    bool warned = false;
};
Keeping keeping;

std::string PathOf(int slot, std::string_view extension) {
    std::string path(ResourceString(StringId::PrefsFolder));
    path += "\\Running";
    if (slot > 1) path += ' ' + std::to_string(slot);
    return path.append(extension);
}

std::string GamePath(int slot) { return PathOf(slot, ".qlg"); }

// --- Locks ---

void Release() {
    if (keeping.lock >= 0) close(keeping.lock);
    keeping.lock = -1;
    keeping.slot = 0;
}

// False when another program holds the slot, or nothing can be written there. The lock ends with the process,
// however that ends.
bool Take(int slot) {
    Release();
    const std::optional<std::string> path = SystemPath(PathOf(slot, ".lock"));
    const int lock = path ? open(path->c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644) : -1;
    if (lock < 0) return false;
    if (flock(lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(lock);
        return false;
    }
    keeping.lock = lock;
    keeping.slot = slot;
    return true;
}

// Takes the first slot that no program holds and that has a game, or has none, as asked for.
bool TakeFirst(bool withGame) {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (FileExists(GamePath(slot)) == withGame && Take(slot)) {
            if (FileExists(GamePath(slot)) == withGame) return true;
        }
    }
    Release();
    return false;
}

// --- What is kept ---

// Tells one state of the records from another.
class Fingerprint {
  public:
    void Add(std::string_view text) {
        for (const char character : text) AddByte(static_cast<unsigned char>(character));
        AddByte(0);
    }
    void Add(std::int64_t number) {
        for (int shift = 0; shift < 64; shift += 8) AddByte(static_cast<unsigned char>(number >> shift));
    }
    std::uint64_t Value() const { return hash == kNothing ? 1 : hash; }

  private:
    void AddByte(unsigned char byte) { hash = (hash ^ byte) * 0x100000001B3; }

    std::uint64_t hash = 0xCBF29CE484222325;
};

std::uint64_t FingerprintOfGame() {
    if (!game.IsRunning() || game.editorActive || game.history.movesCount == 0) return kNothing;
    Fingerprint fingerprint;
    fingerprint.Add(CurrentScenario());
    for (int p = 1; p <= game.numPlayers; ++p) {
        fingerprint.Add(game.players[p].name);
        fingerprint.Add(game.startRacks[p]);
    }
    for (int n = 1; n <= game.history.movesCount; ++n) {
        const MoveRecord& record = game.history.records[n];
        fingerprint.Add(record.player);
        fingerprint.Add(record.letters);
        for (int i = 1; i <= record.numTiles; ++i) {
            fingerprint.Add(record.coords[i].row);
            fingerprint.Add(record.coords[i].col);
        }
        fingerprint.Add(record.newLetters);
        fingerprint.Add(record.score);
        fingerprint.Add(record.time);
    }
    return fingerprint.Value();
}

void WarnOnce(std::string_view text) {
    if (!std::exchange(keeping.warned, true)) Warning(text);
}

// Would writing succeed? Looks without a message.
bool CanBeWritten(const std::string& path) {
    std::error_code error;
    const auto space = std::filesystem::space(DataFolder(), error);
    return (error || space.available >= kRoomForGame) && CreateForWriting(path) != nullptr;
}

bool WriteRunningGame() {
    if (keeping.slot == 0 && !TakeFirst(false)) {
        WarnOnce("The running game cannot be kept in case the program stops.");
        return false;
    }
    const std::string path = GamePath(keeping.slot);
    if (keeping.warned && !CanBeWritten(path)) return false;
    if (SaveGame(path)) return true;
    keeping.warned = true;
    return false;
}

}  // namespace

void StartKeepingGame(bool mayOffer) {
    Release();
    keeping = {};
    if (mayOffer && TakeFirst(true)) {
        const std::string path = GamePath(keeping.slot);
        if (!AskYesNo(true, "The last game was not ended properly.  Go on with it?")) {
            RemoveFile(path);
            return;
        }
        if (GoOnWithGame(path)) {
            keeping.kept = FingerprintOfGame();
            return;
        }
    }
    TakeFirst(false);
}

void KeepRunningGame() {
    const std::uint64_t now = FingerprintOfGame();
    if (now == keeping.kept) return;
    if (now == kNothing) {
        RemoveFile(GamePath(keeping.slot));
        keeping.kept = kNothing;
    } else if (WriteRunningGame()) {
        keeping.kept = now;
    }
}

void EndKeepingGame(bool gameIsSafe) {
    if (keeping.slot != 0 && gameIsSafe) RemoveFile(GamePath(keeping.slot));
    Release();
    keeping = {};
}

}  // namespace quillet
