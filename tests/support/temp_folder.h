// A data folder of a test's own, empty at first and gone at its end, with a fresh headless desktop.
//
// Paths given to its verbs are the file system's, relative to the folder.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/headless/headless.h"
#include "store/files.h"
#include "support/testing.h"

namespace quillet {

class TempFolder : public testing::Test {
  protected:
    TempFolder() {
        headless = {};
        std::string pattern = (std::filesystem::temp_directory_path() / "quillet-XXXXXX").string();
        root = mkdtemp(pattern.data());
        SetDataFolder(root.string());
    }
    ~TempFolder() override {
        SetDataFolder(".");
        std::error_code error;
        std::filesystem::remove_all(root, error);
    }

    void MakeFolder(const std::string& path) { std::filesystem::create_directories(root / path); }

    void WriteFile(const std::string& path, const std::string& contents) {
        std::filesystem::create_directories((root / path).parent_path());
        std::ofstream(root / path, std::ios::binary) << contents;
    }

    // "<none>" when there is no such file.
    std::string ReadFile(const std::string& path) {
        std::ifstream file(root / path, std::ios::binary);
        if (!file) return "<none>";
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void SetByte(const std::string& path, std::size_t offset, char byte) {
        std::string contents = ReadFile(path);
        contents.at(offset) = byte;
        WriteFile(path, contents);
    }

    // The items of a store's folder, each with "|" behind it.
    std::string ReadItems(const std::string& folder, std::initializer_list<int> ids) {
        std::string text;
        for (int id : ids) text += ReadFile(folder + "/" + std::to_string(id) + ".str") + "|";
        return text;
    }

    // A folder as it is shipped.
    void CopyAssets(const std::string& folder) {
        std::filesystem::copy(std::filesystem::path(QUILLET_ASSETS) / folder, root / folder,
                              std::filesystem::copy_options::recursive);
    }

    void Remove(const std::string& path) { std::filesystem::remove(root / path); }

    // Files and folders, hidden ones too.
    std::size_t CountEntries(const std::string& path) {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(root / path), {}));
    }

    // What was shown since the last call.
    static Strings TakeMessages() {
        Strings texts;
        for (const ShownMessage& message : headless.messages) texts.push_back(message.text);
        headless.messages.clear();
        return texts;
    }

    std::filesystem::path root;
};

}  // namespace quillet
