#include "shell/kept_game.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
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

constexpr int kSlots = 9;                        // programs that can run at once and all keep their games
constexpr std::size_t kRoomForGame = 64 * 1024;  // bytes; more than any game takes

// What a file holds: a fingerprint, or
constexpr std::uint64_t kNothing = 0;
constexpr std::uint64_t kUnknown = 1;

struct Keeping {
    int slot = 0;                   // 1..kSlots; 0: none
    int lock = -1;                  // of the slot
    std::uint64_t kept = kNothing;  // what the file holds
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

// Takes the slot if no program holds it and it has a game, or has none, as asked for.
bool TakeIf(int slot, bool withGame) {
    const auto isRight = [&] { return FileExists(GamePath(slot)) == withGame; };
    return isRight() && Take(slot) && isRight();
}

void TakeEmpty() {
    for (int slot = 1; slot <= kSlots; ++slot) {
        if (TakeIf(slot, false)) return;
    }
    Release();
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
    std::uint64_t Value() const { return std::max(hash, kUnknown + 1); }

  private:
    void AddByte(unsigned char byte) { hash = (hash ^ byte) * 0x100000001B3; }

    std::uint64_t hash = 0xCBF29CE484222325;
};

// What was taken back can be played again, and so is kept too.
int MovesToKeep() { return game.history.movesCount + game.history.redoCount; }

// A move counts as a turn when its record is complete.
bool MoveIsBeingRecorded() {
    int turns = 0;
    for (int p = 1; p <= game.numPlayers; ++p) turns += game.players[p].turns;
    return game.IsRunning() && turns != game.history.movesCount;
}

std::uint64_t FingerprintOfGame() {
    if (!game.IsRunning() || MovesToKeep() == 0) return kNothing;
    Fingerprint fingerprint;
    fingerprint.Add(CurrentScenario());
    for (int p = 1; p <= game.numPlayers; ++p) {
        fingerprint.Add(game.players[p].name);
        fingerprint.Add(game.startRacks[p]);
    }
    for (int n = 1; n <= MovesToKeep(); ++n) {
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

// Would writing succeed? Tries it, without a message.
bool CanBeWritten(const std::string& path) {
    if (CreateForWriting(path) == nullptr) return false;
    const std::optional<std::string> trial = SystemPath(PathOf(keeping.slot, ".trial"));
    const int handle = trial ? open(trial->c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644) : -1;
    if (handle < 0) return false;
    const std::string bytes(kRoomForGame, ' ');
    const ssize_t written = write(handle, bytes.data(), bytes.size());
    const bool isOnDisk = written == static_cast<ssize_t>(bytes.size()) && fsync(handle) == 0;
    close(handle);
    unlink(trial->c_str());
    return isOnDisk;
}

bool SaveAllMoves(const std::string& path) {
    MoveHistory& history = game.history;
    const int present = std::exchange(history.movesCount, MovesToKeep());
    const bool isSaved = SaveGame(path);
    history.movesCount = present;
    return isSaved;
}

bool WriteRunningGame() {
    if (keeping.slot == 0) TakeEmpty();
    if (keeping.slot == 0) {
        WarnOnce("The running game cannot be kept in case the program stops.");
        return false;
    }
    const std::string path = GamePath(keeping.slot);
    if (keeping.warned && !CanBeWritten(path)) return false;
    if (SaveAllMoves(path)) return true;
    keeping.warned = true;
    return false;
}

// Opens the game of the slot held, which then is the running one. False, and another slot is held, when
// that fails: the file is left for another start.
bool GoOnWithKept() {
    if (GoOnWithGame(GamePath(keeping.slot))) {
        keeping.kept = kUnknown;
        return true;
    }
    keeping.kept = kNothing;
    TakeEmpty();
    return false;
}

// When another file could not be opened, the game that was on the screen is gone without an end.
bool GameWasLost() { return keeping.kept != kNothing && !game.gameStarted; }

}  // namespace

void StartKeepingGame(bool mayOffer) {
    Release();
    keeping = {};
    for (int slot = 1; mayOffer && slot <= kSlots; ++slot) {
        if (!TakeIf(slot, true)) continue;
        if (!AskYesNo(true, "The last game was not ended properly.  Go on with it?")) {
            RemoveFile(GamePath(slot));
            return;
        }
        if (GoOnWithKept()) return;
    }
    TakeEmpty();
}

void KeepRunningGame() {
    if (game.editorActive || MoveIsBeingRecorded() || (GameWasLost() && GoOnWithKept())) return;
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
    if (!gameIsSafe) KeepRunningGame();
    if (keeping.slot != 0 && gameIsSafe) RemoveFile(GamePath(keeping.slot));
    Release();
    keeping = {};
}

}  // namespace quillet
