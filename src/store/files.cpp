#include "store/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <optional>
#include <utility>

#include "base/messages.h"

namespace quillet {

struct File {
    std::FILE* stream = nullptr;
    std::filesystem::path target{};     // where CloseFile puts what was written
    std::filesystem::path temporary{};  // where it is written; empty for a file opened for reading
    bool writeFailed = false;

    bool IsWritten() const { return !temporary.empty(); }
};

namespace {

namespace fs = std::filesystem;

constexpr char kCarriageReturn = '\r';
constexpr char kLineFeed = '\n';

std::string dataFolder = ".";
std::array<const File*, 10> openFileTable{};

// --- Names: Latin-1 inside, UTF-8 in the file system ---

std::string Utf8FromLatin1(std::string_view text) {
    std::string utf8;
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code < 0x80) {
            utf8 += character;
        } else {
            utf8 += static_cast<char>(0xC0 | (code >> 6));
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

// None when the text is not UTF-8 or holds a character that Latin-1 lacks.
std::optional<std::string> Latin1FromUtf8(std::string_view utf8) {
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto code = static_cast<unsigned char>(utf8[i]);
        if (code < 0x80) {
            text += utf8[i];
            continue;
        }
        if ((code != 0xC2 && code != 0xC3) || i + 1 == utf8.size()) return std::nullopt;
        const auto next = static_cast<unsigned char>(utf8[++i]);
        if ((next & 0xC0) != 0x80) return std::nullopt;
        text += static_cast<char>(((code & 0x03) << 6) | (next & 0x3F));
    }
    return text;
}

// --- Paths ---

using Names = std::vector<std::string>;

// The names in a folder, in the order of their bytes; none when it cannot be listed.
std::optional<Names> NamesIn(const fs::path& folder) {
    Names names;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    if (error) return std::nullopt;
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        if (auto name = Latin1FromUtf8(entry->path().filename().string())) names.push_back(*std::move(name));
    }
    std::ranges::sort(names);
    return names;
}

// The entry of a folder as written, or else without regard to case, or else where it would be made.
fs::path EntryOf(const fs::path& folder, std::string_view name) {
    fs::path asWritten = folder / Utf8FromLatin1(name);
    std::error_code error;
    if (fs::exists(fs::symlink_status(asWritten, error))) return asWritten;
    const Names names = NamesIn(folder).value_or(Names{});
    const auto found =
        std::ranges::find_if(names, [&](const std::string& other) { return EqualIgnoringCase(other, name); });
    return found == names.end() ? asWritten : folder / Utf8FromLatin1(*found);
}

// Where a path of the program's lies in the file system; none, with errno set, when it cannot lie anywhere.
std::optional<fs::path> Locate(std::string_view path) {
    errno = ENOENT;
    if (path.empty() || path.find('\0') != std::string_view::npos) return std::nullopt;
    if (path.front() == '/') return fs::path(path);
    errno = ENAMETOOLONG;
    if (path.size() > kMaxPath) return std::nullopt;
    fs::path place = dataFolder;
    while (!path.empty()) {
        const std::size_t length = std::min(path.find_first_of("\\/"), path.size());
        const std::string_view name = path.substr(0, length);
        path.remove_prefix(std::min(length + 1, path.size()));
        errno = EACCES;
        if (name == "..") return std::nullopt;
        if (!name.empty()) place = EntryOf(place, name);
    }
    return place;
}

fs::file_status StatusOf(std::string_view path) {
    const std::optional<fs::path> place = Locate(path);
    std::error_code error;
    return place ? fs::status(*place, error) : fs::file_status(fs::file_type::not_found);
}

// The file that writing to the path is to replace or create; none, with errno set, when that is forbidden.
// Writing through a link replaces what the link leads to; a folder or a device is never replaced.
std::optional<fs::path> LocateForWriting(std::string_view path) {
    std::optional<fs::path> place = Locate(path);
    std::error_code error;
    if (!place || !fs::exists(*place, error)) return place;
    const bool isFolder = fs::is_directory(*place, error);
    if (isFolder || !fs::is_regular_file(*place, error)) {
        errno = isFolder ? EISDIR : EINVAL;
        return std::nullopt;
    }
    if (access(place->c_str(), W_OK) != 0) return std::nullopt;
    return fs::canonical(*place, error);
}

// --- Open files ---

FileRef TakeIn(FileRef file) {
    const auto slot = std::ranges::find(openFileTable, nullptr);
    if (slot != openFileTable.end()) {
        *slot = file.get();
    } else {
        Warning("Too many open files!");
    }
    return file;
}

// Creates a file beside the target under a name that nothing else has and that no listing shows.
int CreateTemporary(const fs::path& target, fs::path& temporary) {
    static unsigned count = 0;
    for (;;) {
        const std::string name = ".quillet-" + std::to_string(getpid()) + "-" + std::to_string(++count);
        temporary = target.parent_path() / name;
        const int handle = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (handle >= 0 || errno != EEXIST) return handle;
    }
}

enum class OldContents { Drop, Keep };

FileRef OpenForWriting(std::string_view path, OldContents oldContents) {
    std::optional<fs::path> target = LocateForWriting(path);
    if (!target) return nullptr;
    fs::path temporary;
    const int handle = CreateTemporary(*target, temporary);
    if (handle < 0) return nullptr;
    std::FILE* stream = fdopen(handle, "wb");
    FileRef file(new File{.stream = stream, .target = *std::move(target), .temporary = std::move(temporary)});
    if (stream == nullptr) {
        close(handle);
        return nullptr;
    }
    struct stat old {};
    if (stat(file->target.c_str(), &old) != 0) return TakeIn(std::move(file));
    fchmod(handle, old.st_mode & 07777);
    if (oldContents == OldContents::Keep) {
        std::error_code error;
        fs::copy_file(file->target, file->temporary, fs::copy_options::overwrite_existing, error);
        errno = error.value();
        if (error || std::fseek(stream, 0, SEEK_END) != 0) return nullptr;
    }
    return TakeIn(std::move(file));
}

void ReportWriteFailure(File& file) {
    const int error = errno;
    if (!std::exchange(file.writeFailed, true)) {
        Warning("Write operation failed: error = ", std::to_string(error));
    }
}

void WriteBytes(File& file, const void* bytes, std::size_t size) {
    if (size > 0 && std::fwrite(bytes, 1, size, file.stream) != size) ReportWriteFailure(file);
}

// Hands what is buffered to the system; false, with the report made, when that fails.
bool Flush(File& file) {
    if (file.IsWritten() && std::fflush(file.stream) != 0) ReportWriteFailure(file);
    return !file.writeFailed;
}

// Puts a written file in its target's place, once it is safely on the disk.
bool PutInPlace(File& file) {
    if (!Flush(file)) return false;
    if (fsync(fileno(file.stream)) != 0 || std::rename(file.temporary.c_str(), file.target.c_str()) != 0) {
        ReportWriteFailure(file);
        return false;
    }
    file.temporary.clear();
    return true;
}

void SortNames(Names& names) {
    std::ranges::stable_sort(
        names, [](const std::string& a, const std::string& b) { return CompareIgnoringCase(a, b) < 0; });
}

}  // namespace

void FileDeleter::operator()(File* file) const {
    const int error = errno;  // why an opening failed outlives the clearing up
    std::ranges::replace(openFileTable, static_cast<const File*>(file), nullptr);
    if (file->stream != nullptr) std::fclose(file->stream);
    if (file->IsWritten()) unlink(file->temporary.c_str());
    delete file;
    errno = error;
}

void SetDataFolder(const std::string& folder) { dataFolder = folder; }

const std::string& DataFolder() { return dataFolder; }

std::optional<std::string> SystemPath(std::string_view path) {
    const std::optional<fs::path> place = Locate(path);
    return place ? std::optional(place->string()) : std::nullopt;
}

std::string SystemName(std::string_view name) { return Utf8FromLatin1(name); }

bool FolderExists(std::string_view path) { return fs::is_directory(StatusOf(path)); }

bool FileExists(std::string_view path) {
    const fs::file_status status = StatusOf(path);
    return fs::exists(status) && !fs::is_directory(status);
}

bool IsWritable(std::string_view path) { return FileExists(path) && LocateForWriting(path); }

std::optional<FileStamp> StampOf(std::string_view path) {
    const std::optional<fs::path> place = Locate(path);
    struct stat status {};
    if (!place || stat(place->c_str(), &status) != 0) return std::nullopt;
    return FileStamp{status.st_ino, status.st_size,
                     status.st_ctim.tv_sec * std::int64_t{1'000'000'000} + status.st_ctim.tv_nsec};
}

bool RemoveFile(std::string_view path) {
    if (!FileExists(path)) return true;
    std::error_code error;
    return fs::remove(*Locate(path), error);
}

bool CreateFolder(std::string_view path) {
    const std::optional<fs::path> place = Locate(path);
    std::error_code error;
    return place && fs::create_directory(*place, error);
}

FileRef OpenForReading(std::string_view path) {
    const std::optional<fs::path> place = Locate(path);
    if (!place) return nullptr;
    std::error_code error;
    // A pipe or a device could keep the program waiting, or feed it, for ever.
    const fs::file_status status = fs::status(*place, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        errno = fs::is_directory(status) ? EISDIR : EINVAL;
        return nullptr;
    }
    std::FILE* stream = std::fopen(place->c_str(), "rbe");
    return stream == nullptr ? nullptr : TakeIn(FileRef(new File{.stream = stream}));
}

FileRef CreateForWriting(std::string_view path) { return OpenForWriting(path, OldContents::Drop); }

FileRef OpenForAppending(std::string_view path) { return OpenForWriting(path, OldContents::Keep); }

bool ReadChar(File& file, char& character) {
    const int byte = std::getc(file.stream);
    if (byte == EOF) return false;
    character = static_cast<char>(byte);
    if (character == kCarriageReturn) {
        const int next = std::getc(file.stream);
        if (next != kLineFeed && next != EOF && std::ungetc(next, file.stream) == EOF) {
            Warning("SetFilePointer failed to back up!");
        }
    }
    return true;
}

bool ReadBlock(File& file, std::span<std::byte> buffer) {
    return buffer.empty() || std::fread(buffer.data(), 1, buffer.size(), file.stream) == buffer.size();
}

std::uint32_t FileSize(File& file) {
    constexpr auto kLargest = std::numeric_limits<std::uint32_t>::max();
    Flush(file);
    struct stat status {};
    if (fstat(fileno(file.stream), &status) != 0) return 0;
    return static_cast<std::uint32_t>(
        std::min<std::uintmax_t>(static_cast<std::uintmax_t>(status.st_size), kLargest));
}

void SeekTo(File& file, std::uint32_t position) {
    if (!Flush(file)) return;
    if (fseeko(file.stream, static_cast<off_t>(position), SEEK_SET) != 0) Warning("SetFilePointer failed!");
}

void WriteChar(File& file, char character) {
    constexpr std::array kLineEnd{kCarriageReturn, kLineFeed};
    if (character == kCarriageReturn) {
        WriteBytes(file, kLineEnd.data(), kLineEnd.size());
    } else {
        WriteBytes(file, &character, 1);
    }
}

void WriteBlock(File& file, std::span<const std::byte> bytes) {
    WriteBytes(file, bytes.data(), bytes.size());
}

void WriteText(File& file, std::string_view text) {
    for (const char character : text.substr(0, text.find('\0'))) WriteChar(file, character);
}

bool CloseFile(FileRef file) {
    if (std::ranges::find(openFileTable, file.get()) == openFileTable.end()) Warning("Path not found!");
    return !file->IsWritten() || PutInPlace(*file);
}

std::optional<std::vector<std::string>> ListSubfolders(std::string_view folder) {
    const std::optional<fs::path> place = Locate(folder);
    std::optional<Names> names = place ? NamesIn(*place) : std::nullopt;
    if (!names) return std::nullopt;
    std::erase_if(*names, [&](const std::string& name) {
        std::error_code error;
        const fs::file_status status = fs::status(*place / Utf8FromLatin1(name), error);
        const bool readOnly = (status.permissions() & fs::perms::owner_write) == fs::perms::none;
        return name.starts_with('.') || !fs::is_directory(status) || readOnly;
    });
    SortNames(*names);
    return names;
}

std::vector<std::string> ListFiles(std::string_view folder, std::string_view extension) {
    const std::optional<fs::path> place = Locate(folder);
    if (!place) return {};
    Names names;
    for (std::string& name : NamesIn(*place).value_or(Names{})) {
        if (name.size() < extension.size()) continue;
        const std::size_t length = name.size() - extension.size();
        std::error_code error;
        if (!EqualIgnoringCase(std::string_view(name).substr(length), extension)) continue;
        if (fs::is_directory(*place / Utf8FromLatin1(name), error)) continue;
        names.push_back(name.substr(0, length));
    }
    SortNames(names);
    return names;
}

}  // namespace quillet
