// The settings store: one settings object per command id, owned here, and
// its file, which keeps them between kalhost runs.
//
//   "KALSTORE", DWORD version 1, the entry count (archive count form);
//   per entry: DWORD command id, the settings class name (CString), the
//   record length (count form) and the record: the object's Serialize in
//   an archive with the named-lists schema, so variable names survive.
//
// Files are replaced atomically (temporary file, flush, rename). Entries
// of classes the loaded module does not know are carried over unchanged.
#pragma once

#include "framework/GUIBaseObj.h"

#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace kalhost {

class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct StoreEntry {
    UINT id = 0;
    std::string className;
    std::vector<BYTE> record;
};

// Throws StoreError naming the file and what is wrong.
std::vector<StoreEntry> ReadStoreFile(const std::filesystem::path& file);
void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries);

// A settings object from its entry: created by class name, loaded from the
// record, which it must use up. Null when the class is not registered.
// Throws StoreError when the record does not fit the class.
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

    // Loads every entry of `file`; on any failure nothing is kept and
    // StoreError is thrown.
    void Load(const std::filesystem::path& file);
    void Save(const std::filesystem::path& file) const;

private:
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> m_objects;
    std::vector<StoreEntry> m_foreign; // classes the module does not know
};

// Renames an unreadable store out of the way ("<name>.unreadable", then
// ".unreadable-2", ...) and returns the new name.
std::filesystem::path KeepAside(const std::filesystem::path& file);

} // namespace kalhost
