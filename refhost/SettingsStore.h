// The settings store: one settings object per command id, owned here, and
// its file, which keeps them between kalhost runs.
//
//   "KALSTORE", DWORD version 1, the entry count (archive count form);
//   per entry: DWORD command id, the settings class name (CString), the
//   record length (count form) and the record: the object's Serialize in
//   an archive with the named-lists schema, so variable names survive.
//
// Files are replaced atomically (temporary file, flush, rename): the new
// file takes the old one's permissions, a symbolic link keeps pointing to
// it, and temporary files that an interrupted save left behind are removed
// on the next start. Entries of classes the loaded module does not know are
// carried over unchanged; an entry that cannot be used is set aside on its
// own and the others load.
#pragma once

#include "framework/GUIBaseObj.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace kalhost {

// The file's contents are not a store (or not one this module can read).
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The file cannot be read or written at all (permissions, a directory, an
// I/O error): nothing is known about its contents, so it is never moved.
class StoreAccessError : public StoreError {
public:
    using StoreError::StoreError;
};

struct StoreEntry {
    UINT id = 0;
    std::string className;
    std::vector<BYTE> record;
};

// Throws StoreError naming the file and what is wrong.
std::vector<StoreEntry> ReadStoreFile(const std::filesystem::path& file);
std::vector<StoreEntry> ReadStoreBytes(const std::vector<BYTE>& bytes, const std::string& name);
void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries);
std::vector<BYTE> StoreBytes(const std::vector<StoreEntry>& entries);

// A settings object from its entry: created by class name, loaded from the
// record, which it must use up, and able to write its lines. Null when the
// class is not registered. Throws StoreError when the record does not fit
// the class or its lines cannot be written.
std::unique_ptr<CGUIBaseObj> LoadEntry(const StoreEntry& entry);
StoreEntry SaveEntry(UINT id, CGUIBaseObj& settings);

class SettingsStore {
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    CGUIBaseObj* Get(UINT id) const;
    // Takes ownership; an object already registered under `id` is dropped.
    void Register(UINT id, CGUIBaseObj* settings);
    const std::map<UINT, std::unique_ptr<CGUIBaseObj>>& Objects() const { return m_objects; }
    // Settings objects' code lives in the module: clear before unloading it.
    void Clear();

    // An entry that could not be used, and why.
    struct Rejected {
        StoreEntry entry;
        std::string reason;
    };
    // Tries a loaded entry as its dialog would use it; throws (StoreError or
    // the framework's CException) when the entry cannot be used.
    using Check = std::function<void(UINT id, CGUIBaseObj& settings)>;
    // Loads every usable entry of `file` and returns the others. When the
    // file as a whole cannot be read, nothing is kept and StoreError (or
    // StoreAccessError) is thrown.
    std::vector<Rejected> Load(const std::filesystem::path& file, const Check& check = {});
    void Save(const std::filesystem::path& file) const;

private:
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> m_objects;
    std::vector<StoreEntry> m_foreign; // classes the module does not know
};

// Renames an unreadable store out of the way ("<name>.unreadable", then
// ".unreadable-2", ...) and returns the new name.
std::filesystem::path KeepAside(const std::filesystem::path& file);
// Writes entries that could not be used into a store of their own beside
// `file`, named as KeepAside names, and returns its name.
std::filesystem::path KeepAside(const std::filesystem::path& file, const std::vector<StoreEntry>& entries);
// Removes the temporary files that saves of `file` by processes no longer
// running left behind.
void RemoveStaleTemporaries(const std::filesystem::path& file);

} // namespace kalhost
