// The settings store: one settings object per command id, owned here, and
// its file, which keeps them between kalhost runs (docs/settings-store.md).
//
//   header: "KALSTORE", DWORD format 2, DWORD entry count, DWORD CRC-32 of
//           the 16 bytes before it;
//   entry:  "KENT", DWORD command id, DWORD payload length, DWORD CRC-32 of
//           those 12 bytes; the payload (the settings class name as a
//           CString, then the record: the object's Serialize in an archive
//           with the named-lists schema); DWORD CRC-32 of the payload.
//
// Every entry checks itself, so damage costs the damaged entry only: the
// reader keeps each intact entry and hands back each damaged stretch byte for
// byte. An entry's header checks itself apart from its payload, so after a
// damaged header the reader finds the next entry by its marker. Stores of
// format 1 (no checksums) are still read and are written as format 2.
//
// Files are replaced atomically (temporary file, flush, rename, folder
// sync): the new file keeps the old one's owner and permissions, a symbolic
// link keeps pointing to it, and temporary files that an interrupted save
// left behind are removed on the next start. Saves of several sessions on
// one store are serialised by a lock file and merged: a save re-reads the
// store under the lock and replaces only the entries whose dialogs this
// session confirmed.
#pragma once

#include "framework/GUIBaseObj.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace kalhost {

// The file is not a store this program can use; nothing was changed.
class StoreError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The file cannot be read or written at all (permissions, not a regular
// file, an I/O error): nothing is known about its contents, so it is never
// moved.
class StoreAccessError : public StoreError {
public:
    using StoreError::StoreError;
};

struct StoreEntry {
    UINT id = 0;
    std::string className;
    std::vector<BYTE> record;
};

// A stretch of a store file that is not an intact entry (or an intact entry
// that cannot be used), kept byte for byte so that it can be set aside.
struct DamagedPart {
    std::optional<UINT> id; // the command id its intact header names
    std::string reason;     // "entry for command 2008 (CAnovaTabData): ..."
    std::vector<BYTE> bytes;
};

struct StoreContents {
    DWORD format = 0;
    std::vector<StoreEntry> entries;
    std::vector<DamagedPart> damaged;
    // Entries the header counts that the file does not hold (cut short).
    std::size_t missing = 0;
};

inline constexpr DWORD kStoreFormat = 2;

// The checksum of the file's header and of each entry: CRC-32 (IEEE).
DWORD StoreChecksum(const BYTE* data, std::size_t size);

// Reads what is intact. Throws StoreError only when the bytes are not a
// store (no magic header) or one of a newer format.
StoreContents ReadStoreBytes(const std::vector<BYTE>& bytes, const std::string& name);
StoreContents ReadStoreFile(const std::filesystem::path& file);
// A store of `entries` (format 2); `extra` is appended byte for byte and
// counted as `extraCount` entries (damaged parts set aside).
std::vector<BYTE> StoreBytes(const std::vector<StoreEntry>& entries, const std::vector<DamagedPart>& extra = {});
std::vector<BYTE> EntryBytes(const StoreEntry& entry);
void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries);
void WriteStoreBytes(const std::filesystem::path& file, const std::vector<BYTE>& bytes);

// What kind of file a --store names.
struct StoreFileState {
    bool exists = false;
    bool writable = true;
};
// Accepts a regular file that starts as a store does (an empty file is an
// empty store) or a name that does not exist yet in an existing folder;
// throws StoreAccessError, saying what to do, for anything else.
StoreFileState InspectStoreFile(const std::filesystem::path& file);

// A settings object from its entry: created by class name, loaded from the
// record, which it must use up, and able to write its lines. Null when the
// class is not registered. Throws StoreError when the record does not fit
// the class or its lines cannot be written.
std::unique_ptr<CGUIBaseObj> LoadEntry(const StoreEntry& entry);
StoreEntry SaveEntry(UINT id, CGUIBaseObj& settings);
std::string EntryName(UINT id, const std::string& className);

class SettingsStore {
public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    CGUIBaseObj* Get(UINT id) const;
    // Takes ownership; an object already registered under `id` is dropped.
    void Register(UINT id, CGUIBaseObj* settings);
    // The user confirmed the settings of `id`: a save writes them over what
    // another session may have saved meanwhile. Settings never confirmed
    // are saved only where the file has none for their id.
    void Touch(UINT id) { m_touched.insert(id); }
    const std::map<UINT, std::unique_ptr<CGUIBaseObj>>& Objects() const { return m_objects; }
    // Settings objects' code lives in the module: clear before unloading it.
    void Clear();

    // Tries a loaded entry as its dialog would use it; throws (StoreError or
    // the framework's CException) when the entry cannot be used.
    using Check = std::function<void(UINT id, CGUIBaseObj& settings)>;

    struct LoadReport {
        std::vector<DamagedPart> rejected; // damaged, or refused by the check
        std::size_t missing = 0;
        std::size_t loaded = 0;
    };
    // Loads every usable entry of `file`. Throws StoreError when the file is
    // not a store at all, StoreAccessError when it cannot be read.
    LoadReport Load(const std::filesystem::path& file, const Check& check = {});
    // Parts that were set aside: a save drops them from the store.
    void Forget(const std::vector<DamagedPart>& parts);

    struct SaveReport {
        bool written = false;
        // Damage another session's file showed at the save, set aside in
        // `aside` (when not empty) and dropped from the store.
        std::vector<DamagedPart> setAside;
        std::filesystem::path aside;
    };
    // Under the store's lock: re-reads the file, replaces the entries this
    // session changed and writes it. Throws StoreAccessError.
    SaveReport Save(const std::filesystem::path& file);

private:
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> m_objects;
    std::set<UINT> m_loaded;
    std::set<UINT> m_touched;
    std::set<std::vector<BYTE>> m_forgotten;
};

// Writes parts that could not be used into a store of their own beside
// `file` ("<name>.unreadable", then ".unreadable-2", ...), byte for byte,
// and returns its name. Throws StoreAccessError.
std::filesystem::path KeepAside(const std::filesystem::path& file, const std::vector<DamagedPart>& parts);
// Removes the temporary files that saves of `file` by processes no longer
// running left behind.
void RemoveStaleTemporaries(const std::filesystem::path& file);

} // namespace kalhost
