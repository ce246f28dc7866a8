#include "store/user_data.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace quillet {
namespace {

namespace fs = std::filesystem;

// What the program may change, and what it only reads.
constexpr std::array kCopied{"Scenarios", "Word Lists", "Opponents", "Statistics", "Data/Prefs"};
constexpr std::array kLinked{"Data/Graphics", "Data/Sounds", "Data/Help", "Definitions"};

constexpr const char* kListName = ".shipped";
constexpr const char* kListTitle = "Quillet's shipped files, 1";
constexpr const char* kLockName = ".lock";
constexpr const char* kIncoming = ".incoming-";  // a copy that is not yet in its place

// What was shipped at a path of the tree when that was last looked at.
struct ShippedFile {
    std::uint64_t hash = 0;
    std::string stamp;  // of the shipped file: as long as it is the same, so is the file
};
using ShippedFiles = std::map<std::string, ShippedFile>;  // by the path below the tree

struct Plan {
    std::vector<std::string> copies;
    std::vector<std::string> removals;
    ShippedFiles shipped;
};

[[noreturn]] void Fail(const std::error_code& error, const fs::path& path) {
    throw fs::filesystem_error("", path, error);
}
[[noreturn]] void FailWithErrno(const fs::path& path) { Fail({errno, std::generic_category()}, path); }

// --- Files ---

// FNV-1a over all bytes; none for what is not a readable plain file.
std::optional<std::uint64_t> HashOf(const fs::path& path) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    std::uint64_t hash = 0xCBF29CE484222325;
    std::array<char, 1 << 16> buffer;
    while (file) {
        file.read(buffer.data(), buffer.size());
        for (std::streamsize i = 0; i < file.gcount(); ++i) {
            hash = (hash ^ static_cast<unsigned char>(buffer[static_cast<std::size_t>(i)])) * 0x100000001B3;
        }
    }
    return file.eof() ? std::optional(hash) : std::nullopt;
}

// The time of the last change of any kind, which a packaged file's own date does not tell.
std::string StampOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) FailWithErrno(path);
    std::ostringstream text;
    text << status.st_ino << ':' << status.st_size << ':' << status.st_ctim.tv_sec << '.'
         << status.st_ctim.tv_nsec;
    return std::move(text).str();
}

// A file that is being written. Unlike the library's streams it tells why writing failed.
class NewFile {
  public:
    // Takes the place of what is there. It may always be written to.
    explicit NewFile(const fs::path& place)
        : path(place), handle(open(place.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644)) {
        if (handle < 0) FailWithErrno(path);
    }
    ~NewFile() { close(handle); }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = write(handle, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR) FailWithErrno(path);
            if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    void PutOnDisk() {
        if (fsync(handle) != 0) FailWithErrno(path);
    }

  private:
    fs::path path;
    int handle;
};

void CopyBytes(const fs::path& from, const fs::path& to) {
    std::ifstream source(from, std::ios::binary);
    if (!source) FailWithErrno(from);
    NewFile copy(to);
    std::array<char, 1 << 16> buffer;
    while (source) {
        source.read(buffer.data(), buffer.size());
        copy.Write({buffer.data(), static_cast<std::size_t>(source.gcount())});
    }
    if (!source.eof()) Fail(std::make_error_code(std::errc::io_error), from);
}

bool Exists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(path, ignored));
}

// --- The list of what was shipped ---

// A list that is damaged, or none at all, tells nothing: then every file that is there counts as the user's
// unless it is as shipped.
ShippedFiles ReadList(const fs::path& own) {
    std::ifstream file(own / kListName, std::ios::binary);
    std::string line;
    if (!std::getline(file, line) || line != kListTitle) return {};
    ShippedFiles files;
    while (std::getline(file, line)) {
        const std::size_t first = line.find(' ');
        const std::size_t second = first == std::string::npos ? first : line.find(' ', first + 1);
        if (second == std::string::npos) return {};
        ShippedFile entry;
        const auto [end, error] = std::from_chars(line.data(), line.data() + first, entry.hash, 16);
        const fs::path path = line.substr(second + 1);
        const bool leadsOut = path.is_absolute() || path.lexically_normal().string().starts_with("..");
        if (error != std::errc{} || end != line.data() + first || leadsOut) return {};
        entry.stamp = line.substr(first + 1, second - first - 1);
        files[path.string()] = std::move(entry);
    }
    return files;
}

void WriteList(const fs::path& own, const ShippedFiles& files) {
    std::ostringstream text;
    text << kListTitle << '\n' << std::hex;
    for (const auto& [path, entry] : files) text << entry.hash << ' ' << entry.stamp << ' ' << path << '\n';
    const fs::path temporary = own / (std::string(kIncoming) + "list");
    NewFile file(temporary);
    file.Write(text.str());
    file.PutOnDisk();  // a list that the power cut off would bring back what was thrown away
    fs::rename(temporary, own / kListName);
}

// Of a folder that is gone as a whole nothing is known any more, so it comes again: without it there is
// nothing to play.
void ForgetLostFolders(const fs::path& own, ShippedFiles& files) {
    for (const char* folder : kCopied) {
        if (fs::is_directory(own / folder)) continue;
        std::erase_if(files, [prefix = std::string(folder) + '/'](const auto& file) {
            return file.first.starts_with(prefix);
        });
    }
}

// --- The plan ---

bool IsHidden(const fs::path& path) { return path.filename().string().starts_with('.'); }

std::vector<std::string> ListShipped(const fs::path& shipped) {
    std::vector<std::string> paths;
    for (const char* folder : kCopied) {
        if (!fs::is_directory(shipped / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(shipped / folder)) {
            if (!entry.is_regular_file() || IsHidden(entry.path())) continue;
            std::string path = entry.path().lexically_relative(shipped).string();
            if (path.find('\n') == std::string::npos) paths.push_back(std::move(path));
        }
    }
    return paths;
}

bool HoldsFiles(const ShippedFiles& files, const std::string& prefix) {
    const auto first = files.lower_bound(prefix);
    return first != files.end() && first->first.starts_with(prefix);
}

// Has the user thrown away the folder that a newly shipped file belongs to?
bool IsInFolderThrownAway(const fs::path& own, const std::string& path, const ShippedFiles& before) {
    const fs::path folder = fs::path(path).parent_path();
    return HoldsFiles(before, folder.string() + '/') && !Exists(own / folder);
}

// Is the shipped file, which is not the one that was shipped before, to take its place in the user's tree?
bool IsToBeCopied(const fs::path& own, const std::string& path, const ShippedFiles& before) {
    const auto known = before.find(path);
    if (known != before.end()) return HashOf(own / path) == known->second.hash;
    return !Exists(own / path) && !IsInFolderThrownAway(own, path, before);
}

// Does the file belong to a scenario or an opponent that is no longer shipped and in which the user changed
// something? That stays whole.
bool IsKeptForTheUser(const fs::path& own, const fs::path& path, const ShippedFiles& before,
                      const ShippedFiles& now) {
    const fs::path folder = path.parent_path();
    if (!folder.has_parent_path() || HoldsFiles(now, folder.string() + '/')) return false;
    return std::ranges::any_of(fs::directory_iterator(own / folder), [&](const auto& entry) {
        const auto known = before.find((folder / entry.path().filename()).string());
        return known == before.end() || HashOf(entry.path()) != known->second.hash;
    });
}

Plan MakePlan(const fs::path& shipped, const fs::path& own, const ShippedFiles& before) {
    Plan plan;
    for (const std::string& path : ListShipped(shipped)) {
        ShippedFile now{.stamp = StampOf(shipped / path)};
        const auto known = before.find(path);
        if (known != before.end() && known->second.stamp == now.stamp) {
            plan.shipped[path] = known->second;
            continue;
        }
        const auto hash = HashOf(shipped / path);
        if (!hash) Fail(std::make_error_code(std::errc::io_error), shipped / path);
        now.hash = *hash;
        const bool isTheSame = known != before.end() && known->second.hash == now.hash;
        if (!isTheSame && IsToBeCopied(own, path, before)) plan.copies.push_back(path);
        plan.shipped[path] = std::move(now);
    }
    for (const auto& [path, entry] : before) {
        if (plan.shipped.contains(path) || HashOf(own / path) != entry.hash) continue;
        if (!IsKeptForTheUser(own, path, before, plan.shipped)) plan.removals.push_back(path);
    }
    return plan;
}

// --- Carrying it out ---

fs::path IncomingPath(const fs::path& target) {
    return target.parent_path() / (kIncoming + target.filename().string());
}

// Copies everything to a place beside its own. As long as one of these lives, what it copied and the folders
// that it made are taken away again, unless they were put in place.
class Copies {
  public:
    ~Copies() {
        std::error_code ignored;
        for (const fs::path& target : targets) fs::remove(IncomingPath(target), ignored);
        // A folder that is not empty stays.
        for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder) fs::remove(*folder, ignored);
    }
    Copies() = default;
    Copies(const Copies&) = delete;
    Copies& operator=(const Copies&) = delete;

    void MakeFolder(const fs::path& folder) {
        if (fs::is_directory(folder)) return;
        if (folder.has_parent_path()) MakeFolder(folder.parent_path());
        fs::create_directory(folder);
        folders.push_back(folder);
    }

    void Add(const fs::path& from, const fs::path& target) {
        MakeFolder(target.parent_path());
        targets.push_back(target);
        const fs::path incoming = IncomingPath(target);
        CopyBytes(from, incoming);
    }

    // All of it is on the disk before the first takes its place.
    void PutInPlace(const fs::path& own) {
        const int handle = open(own.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (handle >= 0 && !targets.empty()) syncfs(handle);
        if (handle >= 0) close(handle);
        for (const fs::path& target : targets) fs::rename(IncomingPath(target), target);
        targets.clear();
        folders.clear();
    }

  private:
    std::vector<fs::path> targets;
    std::vector<fs::path> folders;  // outer ones first
};

// Removes a file, and the folders that it leaves empty.
void RemoveWithFolders(const fs::path& own, const fs::path& path) {
    std::error_code error;
    fs::remove(own / path, error);
    for (fs::path folder = path.parent_path(); folder.has_parent_path(); folder = folder.parent_path()) {
        if (!fs::remove(own / folder, error)) return;
    }
}

void SetLink(const fs::path& target, const fs::path& link) {
    std::error_code ignored;
    if (!fs::is_directory(target, ignored)) return;
    if (Exists(link) && (!fs::is_symlink(link) || fs::read_symlink(link) == target)) return;
    const fs::path incoming = IncomingPath(link);
    fs::remove(incoming, ignored);
    fs::create_directory_symlink(target, incoming);
    fs::rename(incoming, link);
}

void Refresh(const fs::path& shipped, const fs::path& own) {
    Copies copies;
    ShippedFiles before = ReadList(own);
    ForgetLostFolders(own, before);
    const Plan plan = MakePlan(shipped, own, before);
    for (const char* folder : kCopied) copies.MakeFolder(own / folder);
    for (const std::string& path : plan.copies) copies.Add(shipped / path, own / path);
    copies.PutInPlace(own);
    for (const std::string& path : plan.removals) RemoveWithFolders(own, path);
    for (const char* folder : kLinked) SetLink(shipped / folder, own / folder);
    const auto sameEntry = [](const auto& a, const auto& b) {
        return a.first == b.first && a.second.hash == b.second.hash && a.second.stamp == b.second.stamp;
    };
    if (!std::equal(before.begin(), before.end(), plan.shipped.begin(), plan.shipped.end(), sameEntry)) {
        WriteList(own, plan.shipped);
    }
}

// Keeps two programs that start together from working on the tree at once.
struct TreeLock {
    explicit TreeLock(const fs::path& own)
        : handle(open((own / kLockName).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644)) {
        if (handle < 0) FailWithErrno(own / kLockName);
        constexpr int kTries = 200;
        constexpr useconds_t kPause = 50'000;  // microseconds
        for (int i = 0; flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; ++i) {
            if (i == kTries) GiveUp();
            usleep(kPause);
        }
    }
    ~TreeLock() { close(handle); }
    TreeLock(const TreeLock&) = delete;
    TreeLock& operator=(const TreeLock&) = delete;

    [[noreturn]] void GiveUp() {
        close(handle);
        Fail(std::make_error_code(std::errc::device_or_resource_busy), kLockName);
    }

    int handle;
};

}  // namespace

std::string RefreshUserData(const fs::path& shipped, const fs::path& own) {
    try {
        fs::create_directories(own);
        const TreeLock lock(own);
        Refresh(fs::canonical(shipped), fs::canonical(own));
        return {};
    } catch (const fs::filesystem_error& error) {
        return "The shipped files could not be copied to " + own.string() + ": " + error.code().message() +
               ".";
    }
}

}  // namespace quillet
