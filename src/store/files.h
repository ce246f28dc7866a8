// Files and folders: the one place where the program's paths meet the file system.
//
// Paths are the program's own: relative to the data folder, written with "\", in Latin-1, at most 63
// characters; one that leads out of the data folder ("..") finds nothing. A name that is not found as
// written is found without regard to case. A path that begins with "/" is the system's own, as a file
// dialog or the command line gives it, and is taken as it stands.
//
// Writing is safe: what is written goes to a temporary file beside the target, and CloseFile puts it in the
// target's place only when every write succeeded, so neither a crash nor a full disk costs the old file.
//
// Owns the data folder's place and the table of open files (at most 10).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace quillet {

constexpr std::size_t kMaxPath = 63;
// Room for one character more than a path may have: a path that was cut is still too long, and so finds
// nothing rather than some other file.
using FilePath = Text<kMaxPath + 1>;

// An open file. Owned by whoever opened it; CloseFile ends it. Dropping it instead leaves the file that was
// there before the writing began.
struct File;
struct FileDeleter {
    void operator()(File* file) const;
};
using FileRef = std::unique_ptr<File, FileDeleter>;

// The folder that holds the data folders; the current folder until someone sets it. In the file system's
// own notation.
void SetDataFolder(const std::string& folder);
const std::string& DataFolder();

// The file system's own name for a path; none for one that cannot lie anywhere. Nothing need be there.
std::optional<std::string> SystemPath(std::string_view path);
std::string SystemName(std::string_view name);  // likewise for a name without a folder

bool FolderExists(std::string_view path);
bool FileExists(std::string_view path);
bool IsWritable(std::string_view path);  // a file that exists and may be changed

// False when there still is such a file afterwards.
bool RemoveFile(std::string_view path);

// Makes a folder in one that exists. False when that cannot be done, or when it is already there.
bool CreateFolder(std::string_view path);

// Tells one state of a file from another: a file whose stamp is the same has not been changed. None when
// there is no such file.
struct FileStamp {
    std::uint64_t node = 0;
    std::int64_t size = 0;
    std::int64_t changedAt = 0;  // nanoseconds

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};
std::optional<FileStamp> StampOf(std::string_view path);

// Opening gives none on failure and reports nothing; errno then says why. Only plain files are opened.
FileRef OpenForReading(std::string_view path);
FileRef CreateForWriting(std::string_view path);
FileRef OpenForAppending(std::string_view path);  // at the end of an existing file, or creates it

// The next byte, CR LF read as one CR; false at the end of the file or on a read error.
bool ReadChar(File& file, char& character);

// True only if the whole buffer was filled.
bool ReadBlock(File& file, std::span<std::byte> buffer);

std::uint32_t FileSize(File& file);  // bytes

// Moves to that byte, counted from the start.
void SeekTo(File& file, std::uint32_t position);

// Writing. The first failure on a file is reported as a warning, later ones are silent.
void WriteChar(File& file, char character);  // CR is written as CR LF
void WriteBlock(File& file, std::span<const std::byte> bytes);
void WriteText(File& file, std::string_view text);  // through WriteChar, up to the first NUL

// True when what was written, if anything, now stands whole in its place. When it does not, the warning has
// been given and the old file is as it was.
bool CloseFile(FileRef file);

// The names in a folder, sorted without regard to case; names that Latin-1 cannot express are left out.
// Subfolders that are marked read-only or whose names begin with "." are left out too. None when the folder
// cannot be listed.
std::optional<std::vector<std::string>> ListSubfolders(std::string_view folder);
// Files with that extension (".qld"), in any case; the names come without it.
std::vector<std::string> ListFiles(std::string_view folder, std::string_view extension);

}  // namespace quillet
