#include "refhost/SettingsStore.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kalhost {

namespace {

constexpr BYTE kMagic[8] = {'K', 'A', 'L', 'S', 'T', 'O', 'R', 'E'};
constexpr BYTE kEntryMarker[4] = {'K', 'E', 'N', 'T'};
constexpr std::size_t kFileHeaderSize = 20;
constexpr std::size_t kEntryHeaderSize = 16;
constexpr std::size_t kChecksumSize = 4;
constexpr const char* kTemporaryInfix = ".tmp-";

std::string Reason(int error)
{
    return std::strerror(error);
}

DWORD Crc32(const BYTE* data, std::size_t size)
{
    return StoreChecksum(data, size);
}

} // namespace

// CRC-32 (IEEE 802.3, reflected), the checksum of zip and PNG.
DWORD StoreChecksum(const BYTE* data, std::size_t size)
{
    static const std::array<DWORD, 256> table = [] {
        std::array<DWORD, 256> t{};
        for (DWORD i = 0; i < 256; ++i) {
            DWORD c = i;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    DWORD crc = 0xFFFFFFFFu;
    for (std::size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFu;
}

namespace {

DWORD DwordAt(const BYTE* p)
{
    return DWORD(p[0]) | DWORD(p[1]) << 8 | DWORD(p[2]) << 16 | DWORD(p[3]) << 24;
}

void AppendDword(std::vector<BYTE>& out, DWORD value)
{
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<BYTE>(value >> shift));
}

// ---- Reading ------------------------------------------------------------------

struct EntryHeader {
    UINT id;
    std::size_t payloadLength;
};

// The entry header at `pos`, when its marker and checksum are intact.
std::optional<EntryHeader> EntryHeaderAt(const std::vector<BYTE>& bytes, std::size_t pos)
{
    if (bytes.size() - pos < kEntryHeaderSize || std::memcmp(&bytes[pos], kEntryMarker, sizeof kEntryMarker) != 0)
        return std::nullopt;
    if (Crc32(&bytes[pos], 12) != DwordAt(&bytes[pos + 12]))
        return std::nullopt;
    return EntryHeader{DwordAt(&bytes[pos + 4]), DwordAt(&bytes[pos + 8])};
}

// The first intact entry header after `pos`, or the end.
std::size_t NextEntryHeader(const std::vector<BYTE>& bytes, std::size_t pos)
{
    for (++pos; pos < bytes.size(); ++pos) {
        const void* found = std::memchr(&bytes[pos], kEntryMarker[0], bytes.size() - pos);
        if (!found)
            return bytes.size();
        pos = static_cast<std::size_t>(static_cast<const BYTE*>(found) - bytes.data());
        if (EntryHeaderAt(bytes, pos))
            return pos;
    }
    return bytes.size();
}

std::vector<BYTE> Slice(const std::vector<BYTE>& bytes, std::size_t from, std::size_t to)
{
    return {bytes.begin() + static_cast<std::ptrdiff_t>(from), bytes.begin() + static_cast<std::ptrdiff_t>(to)};
}

// The class name and record of an intact payload; nullopt when it holds no
// class name.
std::optional<StoreEntry> ParsePayload(UINT id, const BYTE* payload, std::size_t size)
{
    CMemFile memory(payload, size);
    CArchive ar(&memory, CArchive::load);
    CString className;
    try {
        ar >> className;
    } catch (const CArchiveException&) {
        return std::nullopt;
    }
    const auto offset = static_cast<std::size_t>(memory.GetPosition());
    return StoreEntry{id, className.ToUtf8(), std::vector<BYTE>(payload + offset, payload + size)};
}

void ReadFormat2(const std::vector<BYTE>& bytes, StoreContents& contents)
{
    const bool headerIntact = Crc32(bytes.data(), 16) == DwordAt(&bytes[16]);
    const DWORD counted = DwordAt(&bytes[12]);
    std::size_t pos = kFileHeaderSize;
    std::size_t found = 0;
    while (pos < bytes.size()) {
        const auto header = EntryHeaderAt(bytes, pos);
        if (!header) {
            // Damage where an entry should start: up to the next intact one.
            const std::size_t next = NextEntryHeader(bytes, pos);
            ++found; // most likely one entry
            contents.damaged.push_back({std::nullopt,
                                        "damaged bytes " + std::to_string(pos) + " to " + std::to_string(next - 1) +
                                            ", where an entry should start (its command is not known)",
                                        Slice(bytes, pos, next)});
            pos = next;
            continue;
        }
        ++found;
        const std::string name = "entry for command " + std::to_string(header->id);
        if (bytes.size() - pos - kEntryHeaderSize < header->payloadLength + kChecksumSize) {
            contents.damaged.push_back(
                {header->id, name + ": the file ends inside it (it was cut short)", Slice(bytes, pos, bytes.size())});
            break;
        }
        const BYTE* payload = &bytes[pos + kEntryHeaderSize];
        const std::size_t end = pos + kEntryHeaderSize + header->payloadLength + kChecksumSize;
        std::optional<StoreEntry> entry;
        if (Crc32(payload, header->payloadLength) == DwordAt(payload + header->payloadLength))
            entry = ParsePayload(header->id, payload, header->payloadLength);
        if (entry)
            contents.entries.push_back(std::move(*entry));
        else
            contents.damaged.push_back(
                {header->id, name + ": damaged (its checksum does not match its bytes)", Slice(bytes, pos, end)});
        pos = end;
    }
    if (headerIntact && counted > found)
        contents.missing = counted - found;
}

// Format 1 has no checksums: entries are read in order until one cannot be,
// and the rest is one damaged part.
void ReadFormat1(const std::vector<BYTE>& bytes, StoreContents& contents)
{
    CMemFile memory(bytes);
    CArchive ar(&memory, CArchive::load);
    std::size_t start = 12;
    try {
        char magicAndFormat[12];
        ar.ReadExact(magicAndFormat, sizeof magicAndFormat);
        const ULONGLONG count = ar.ReadCount();
        start = static_cast<std::size_t>(memory.GetPosition());
        for (ULONGLONG i = 0; i < count; ++i) {
            StoreEntry entry;
            CString className;
            ar >> entry.id >> className;
            entry.className = className.ToUtf8();
            const ULONGLONG length = ar.ReadCount();
            ar.ReadBlocks(length, 1, [&](const BYTE* data, std::size_t n) {
                entry.record.insert(entry.record.end(), data, data + n);
            });
            contents.entries.push_back(std::move(entry));
            start = static_cast<std::size_t>(memory.GetPosition());
        }
    } catch (const CArchiveException& e) {
        contents.damaged.push_back({std::nullopt,
                                    "damaged bytes " + std::to_string(start) + " to " +
                                        std::to_string(bytes.size() - 1) + " of a format 1 store: " + e.what(),
                                    Slice(bytes, start, bytes.size())});
        return;
    }
    if (start < bytes.size())
        contents.damaged.push_back(
            {std::nullopt, "unexpected bytes after the last entry", Slice(bytes, start, bytes.size())});
}

// ---- Files --------------------------------------------------------------------

// A descriptor closed however the scope ends.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return m_fd; }
    // Closes now, reporting the error a delayed write may give.
    int Close()
    {
        const int result = ::close(m_fd);
        m_fd = -1;
        return result;
    }

private:
    int m_fd;
};

const char* KindOf(mode_t mode)
{
    if (S_ISDIR(mode))
        return "a directory";
    if (S_ISFIFO(mode))
        return "a pipe";
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return "a device";
    if (S_ISSOCK(mode))
        return "a socket";
    return "not a regular file";
}

// Reads a regular file; anything else (a directory, a device, a pipe) is
// refused before it is read, so nothing blocks or grows without end.
std::vector<BYTE> ReadWholeFile(const std::filesystem::path& file)
{
    Descriptor fd(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.Get() < 0)
        throw StoreAccessError(file.string() + " cannot be read (" + Reason(errno) + ")");
    struct stat info {};
    if (::fstat(fd.Get(), &info) != 0 || !S_ISREG(info.st_mode))
        throw StoreAccessError(file.string() + " is " + KindOf(info.st_mode) + ", not a settings store");
    std::vector<BYTE> bytes;
    bytes.reserve(static_cast<std::size_t>(info.st_size));
    BYTE buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd.Get(), buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            throw StoreAccessError(file.string() + " cannot be read (" + Reason(errno) + ")");
        if (n == 0)
            break;
        bytes.insert(bytes.end(), buffer, buffer + n);
    }
    return bytes;
}

// The file a save replaces: the target of a symbolic link (of a chain of
// them), so that the link keeps pointing to the store.
std::filesystem::path SaveTarget(const std::filesystem::path& file)
{
    std::filesystem::path target = file;
    std::error_code error;
    for (int hops = 0; hops < 40 && std::filesystem::is_symlink(target, error); ++hops) {
        const std::filesystem::path link = std::filesystem::read_symlink(target, error);
        if (error)
            break;
        target = link.is_absolute() ? link : target.parent_path() / link;
    }
    return target;
}

std::filesystem::path FolderOf(const std::filesystem::path& file)
{
    return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

// A rename is durable once the folder that holds the name is on the disk.
void SyncFolder(const std::filesystem::path& file)
{
    Descriptor folder(::open(FolderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Get() >= 0)
        ::fsync(folder.Get());
}

// The store's lock, held while a save re-reads, merges and replaces it: a
// lock on the store file itself (made empty, an empty store, when there is
// none). A save renames a new file over the one locked, so a lock won on a
// file that is no longer the store is given up and taken again.
class StoreLock {
public:
    explicit StoreLock(const std::filesystem::path& target)
    {
        for (;;) {
            auto fd = std::make_unique<Descriptor>(::open(target.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0666));
            if (fd->Get() < 0)
                throw StoreAccessError(target.string() + " cannot be saved: it cannot be opened to be locked (" +
                                       Reason(errno) + "); check that its folder exists and is writable");
            int result = 0;
            while ((result = ::flock(fd->Get(), LOCK_EX)) != 0 && errno == EINTR) {
            }
            if (result != 0)
                throw StoreAccessError(target.string() + " cannot be saved: it cannot be locked (" + Reason(errno) +
                                       ")");
            struct stat locked {};
            struct stat current {};
            if (::fstat(fd->Get(), &locked) == 0 && ::stat(target.c_str(), &current) == 0 &&
                locked.st_dev == current.st_dev && locked.st_ino == current.st_ino) {
                m_fd = std::move(fd);
                return;
            }
        }
    }

private:
    std::unique_ptr<Descriptor> m_fd;
};

std::filesystem::path AsideName(const std::filesystem::path& file)
{
    std::filesystem::path aside = file.string() + ".unreadable";
    std::error_code error;
    for (int n = 2; std::filesystem::exists(std::filesystem::symlink_status(aside, error)); ++n)
        aside = file.string() + ".unreadable-" + std::to_string(n);
    return aside;
}

} // namespace

std::string EntryName(UINT id, const std::string& className)
{
    return "entry for command " + std::to_string(id) + " (" + className + ")";
}

StoreContents ReadStoreBytes(const std::vector<BYTE>& bytes, const std::string& name)
{
    StoreContents contents;
    if (bytes.empty())
        return contents; // an empty file is an empty store
    const std::size_t magicBytes = std::min(bytes.size(), sizeof kMagic);
    if (std::memcmp(bytes.data(), kMagic, magicBytes) != 0)
        throw StoreError(name + " is not a kalhost settings store (it does not start with KALSTORE)");
    if (bytes.size() < 12) {
        contents.damaged.push_back({std::nullopt, "the file ends inside its header", bytes});
        return contents;
    }
    contents.format = DwordAt(&bytes[8]);
    if (contents.format == 1) {
        ReadFormat1(bytes, contents);
        return contents;
    }
    if (bytes.size() < kFileHeaderSize) {
        contents.damaged.push_back({std::nullopt, "the file ends inside its header", bytes});
        return contents;
    }
    // A format named by an intact header is one of a newer kalhost; a
    // damaged header leaves the entries, which check themselves.
    const bool headerIntact = Crc32(bytes.data(), 16) == DwordAt(&bytes[16]);
    if (contents.format != kStoreFormat && headerIntact)
        throw StoreError(name + " is a settings store of format " + std::to_string(contents.format) +
                         ", which this kalhost (format " + std::to_string(kStoreFormat) +
                         ") cannot read: use the kalhost that wrote it, or another --store");
    contents.format = kStoreFormat;
    ReadFormat2(bytes, contents);
    return contents;
}

StoreContents ReadStoreFile(const std::filesystem::path& file)
{
    return ReadStoreBytes(ReadWholeFile(file), file.string());
}

std::vector<BYTE> EntryBytes(const StoreEntry& entry)
{
    CMemFile memory;
    {
        CArchive ar(&memory, CArchive::store);
        ar << CString::FromUtf8(entry.className);
        if (!entry.record.empty())
            ar.Write(entry.record.data(), entry.record.size());
        ar.Close();
    }
    const std::vector<BYTE> payload = memory.Detach();
    std::vector<BYTE> bytes(std::begin(kEntryMarker), std::end(kEntryMarker));
    bytes.reserve(kEntryHeaderSize + payload.size() + kChecksumSize);
    AppendDword(bytes, entry.id);
    AppendDword(bytes, static_cast<DWORD>(payload.size()));
    AppendDword(bytes, Crc32(bytes.data(), 12));
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    AppendDword(bytes, Crc32(payload.data(), payload.size()));
    return bytes;
}

std::vector<BYTE> StoreBytes(const std::vector<StoreEntry>& entries, const std::vector<DamagedPart>& extra)
{
    std::vector<BYTE> bytes(std::begin(kMagic), std::end(kMagic));
    AppendDword(bytes, kStoreFormat);
    AppendDword(bytes, static_cast<DWORD>(entries.size() + extra.size()));
    AppendDword(bytes, Crc32(bytes.data(), 16));
    for (const auto& entry : entries) {
        const auto frame = EntryBytes(entry);
        bytes.insert(bytes.end(), frame.begin(), frame.end());
    }
    for (const auto& part : extra)
        bytes.insert(bytes.end(), part.bytes.begin(), part.bytes.end());
    return bytes;
}

void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries)
{
    WriteStoreBytes(file, StoreBytes(entries));
}

void WriteStoreBytes(const std::filesystem::path& file, const std::vector<BYTE>& data)
{
    const std::filesystem::path target = SaveTarget(file);
    const std::string name = target.string();
    struct stat old {};
    const bool replacing = ::stat(target.c_str(), &old) == 0;
    if (replacing && !S_ISREG(old.st_mode))
        throw StoreAccessError(name + " cannot be saved: it is " + KindOf(old.st_mode) + ", not a settings store");

    // Write beside the target, push it to the disk, then rename over it: a
    // crash at any point leaves either the old store or the new one.
    const std::filesystem::path temporary = name + kTemporaryInfix + std::to_string(::getpid());
    Descriptor fd(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666));
    if (fd.Get() < 0)
        throw StoreAccessError(name + " cannot be saved: a new file cannot be made beside it (" + Reason(errno) +
                               "); check that its folder exists and is writable");
    std::error_code ignored;
    const auto fail = [&](const std::string& what, int error) {
        fd.Close();
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(name + " cannot be saved: " + what + " (" + Reason(error) +
                               "); the store is left as it was");
    };
    // The new store keeps the owner and the permissions of the one it
    // replaces (changing the owner needs privileges; without them the file
    // is the user's own anyway).
    if (replacing) {
        if (::fchown(fd.Get(), old.st_uid, old.st_gid) != 0 && errno != EPERM)
            fail("its owner cannot be kept", errno);
        if (::fchmod(fd.Get(), old.st_mode & 07777) != 0)
            fail("its permissions cannot be kept", errno);
    }
    std::size_t written = 0;
    while (written < data.size()) {
        const ssize_t n = ::write(fd.Get(), data.data() + written, data.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            fail("the data cannot be written", n < 0 ? errno : ENOSPC);
        written += static_cast<std::size_t>(n);
    }
    if (::fsync(fd.Get()) != 0)
        fail("the data cannot be flushed to the disk", errno);
    if (fd.Close() != 0) {
        const int error = errno;
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(name + " cannot be saved: the data cannot be flushed to the disk (" + Reason(error) +
                               "); the store is left as it was");
    }
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        const int error = errno;
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(name + " cannot be saved: the new file cannot replace it (" + Reason(error) +
                               "); the store is left as it was");
    }
    SyncFolder(target);
}

StoreFileState InspectStoreFile(const std::filesystem::path& file)
{
    const std::filesystem::path target = SaveTarget(file);
    const std::string name = file.string();
    StoreFileState state;
    struct stat info {};
    if (::stat(target.c_str(), &info) != 0) {
        if (errno != ENOENT)
            throw StoreAccessError(name + " cannot be used as the settings store (" + Reason(errno) + ")");
        struct stat folder {};
        if (::stat(FolderOf(target).c_str(), &folder) != 0 || !S_ISDIR(folder.st_mode))
            throw StoreAccessError(name + " cannot be made: its folder " + FolderOf(target).string() +
                                   " does not exist");
        state.writable = ::access(FolderOf(target).c_str(), W_OK | X_OK) == 0;
        return state;
    }
    state.exists = true;
    if (!S_ISREG(info.st_mode))
        throw StoreAccessError(name + " is " + KindOf(info.st_mode) +
                               ", not a settings store: give --store a store, or the name of one to create");
    Descriptor fd(::open(target.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.Get() < 0)
        throw StoreAccessError(name + " cannot be read (" + Reason(errno) + ")");
    BYTE start[sizeof kMagic] = {};
    const ssize_t n = ::read(fd.Get(), start, sizeof start);
    if (n < 0)
        throw StoreAccessError(name + " cannot be read (" + Reason(errno) + ")");
    if (std::memcmp(start, kMagic, static_cast<std::size_t>(n)) != 0)
        throw StoreAccessError(name + " is not a kalhost settings store (it does not start with KALSTORE), so it is "
                                      "left as it is: give --store a store, or the name of one to create");
    // A store nobody may write (every write bit cleared) was made read-only
    // on purpose: it stays as it is even for a user whom the system would
    // let write it anyway.
    const bool markedReadOnly = (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    state.writable =
        !markedReadOnly && ::access(target.c_str(), W_OK) == 0 && ::access(FolderOf(target).c_str(), W_OK | X_OK) == 0;
    return state;
}

void RemoveStaleTemporaries(const std::filesystem::path& file)
{
    const std::filesystem::path target = SaveTarget(file);
    const std::string prefix = target.filename().string() + kTemporaryInfix;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(FolderOf(target), error)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(prefix) || !entry.is_regular_file(error))
            continue;
        const std::string pid = name.substr(prefix.size());
        if (pid.empty() || pid.find_first_not_of("0123456789") != std::string::npos || pid.size() > 9)
            continue;
        // A save still under way belongs to a running process.
        if (::kill(static_cast<pid_t>(std::stol(pid)), 0) == 0 || errno != ESRCH)
            continue;
        std::filesystem::remove(entry.path(), error);
    }
}

std::unique_ptr<CGUIBaseObj> LoadEntry(const StoreEntry& entry)
{
    const CRuntimeClass* runtimeClass = CRuntimeClass::FromName(entry.className.c_str());
    if (!runtimeClass)
        return nullptr;
    const std::string name = EntryName(entry.id, entry.className);
    std::unique_ptr<CObject> object(runtimeClass->CreateObject());
    auto* settings = dynamic_cast<CGUIBaseObj*>(object.get());
    if (!settings)
        throw StoreError(name + ": not a settings class");
    CMemFile memory(entry.record);
    CArchive ar(&memory, CArchive::load);
    ar.SetSchemaFlags(CArchive::namedLists);
    try {
        settings->Serialize(ar);
    } catch (const CException& e) {
        throw StoreError(name + ": " + e.what());
    }
    if (memory.GetPosition() != memory.GetLength())
        throw StoreError(name + ": the record is longer than its settings");
    // A record can be well formed and still describe settings that cannot
    // write their lines (more levels than metrics, say).
    try {
        CLIST<CCmdInfo> lines;
        settings->GetCommandInfoList(lines);
    } catch (const CException& e) {
        throw StoreError(name + ": its lines cannot be written: " + e.what());
    }
    object.release(); // NOLINT(bugprone-unused-return-value): owned by the result below
    return std::unique_ptr<CGUIBaseObj>(settings);
}

StoreEntry SaveEntry(UINT id, CGUIBaseObj& settings)
{
    CMemFile memory;
    {
        CArchive ar(&memory, CArchive::store);
        ar.SetSchemaFlags(CArchive::namedLists);
        settings.Serialize(ar);
        ar.Close();
    }
    return {id, settings.GetRuntimeClass()->m_lpszClassName, memory.Detach()};
}

CGUIBaseObj* SettingsStore::Get(UINT id) const
{
    const auto it = m_objects.find(id);
    return it == m_objects.end() ? nullptr : it->second.get();
}

void SettingsStore::Register(UINT id, CGUIBaseObj* settings)
{
    m_objects[id].reset(settings);
}

void SettingsStore::Clear()
{
    m_objects.clear();
    m_loaded.clear();
    m_touched.clear();
    m_forgotten.clear();
}

SettingsStore::LoadReport SettingsStore::Load(const std::filesystem::path& file, const Check& check)
{
    StoreContents contents = ReadStoreFile(file);
    LoadReport report;
    report.rejected = std::move(contents.damaged);
    report.missing = contents.missing;
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> objects;
    for (auto& entry : contents.entries) {
        const std::string name = EntryName(entry.id, entry.className);
        std::string reason;
        try {
            if (auto settings = LoadEntry(entry)) {
                if (check)
                    check(entry.id, *settings);
                objects[entry.id] = std::move(settings);
                ++report.loaded;
            }
            // An entry of a class this module does not know stays in the
            // file: saves carry it over.
        } catch (const StoreError& e) {
            reason = e.what();
        } catch (const CException& e) {
            reason = name + ": " + e.what();
        }
        if (!reason.empty())
            report.rejected.push_back({entry.id, reason, EntryBytes(entry)});
    }
    m_objects = std::move(objects);
    m_loaded.clear();
    for (const auto& [id, settings] : m_objects)
        m_loaded.insert(id);
    m_touched.clear();
    return report;
}

void SettingsStore::Forget(const std::vector<DamagedPart>& parts)
{
    for (const auto& part : parts)
        m_forgotten.insert(part.bytes);
}

SettingsStore::SaveReport SettingsStore::Save(const std::filesystem::path& file)
{
    const std::filesystem::path target = SaveTarget(file);
    std::error_code error;
    SaveReport report;
    const bool onlyLoaded = std::all_of(m_objects.begin(), m_objects.end(),
                                        [this](const auto& object) { return m_loaded.count(object.first) > 0; });
    if (m_touched.empty() && m_forgotten.empty() && onlyLoaded && std::filesystem::exists(target, error))
        return report; // nothing to write: the file stays untouched

    StoreLock lock(target);
    StoreContents disk;
    if (std::filesystem::exists(target, error))
        disk = ReadStoreFile(target);
    for (auto& part : disk.damaged)
        if (!m_forgotten.count(part.bytes))
            report.setAside.push_back(std::move(part));
    if (!report.setAside.empty())
        report.aside = KeepAside(target, report.setAside);

    // The file's entries in their order, ours in place of those the user
    // confirmed, ours that the file lacks at the end; what was set aside is
    // dropped, and so is a second entry of an id.
    std::vector<StoreEntry> entries;
    std::set<UINT> written;
    for (auto& entry : disk.entries) {
        if (m_forgotten.count(EntryBytes(entry)) || !written.insert(entry.id).second)
            continue;
        const auto mine = m_objects.find(entry.id);
        if (mine != m_objects.end() && m_touched.count(entry.id))
            entries.push_back(SaveEntry(entry.id, *mine->second));
        else
            entries.push_back(std::move(entry));
    }
    for (const auto& [id, settings] : m_objects)
        if (!written.count(id))
            entries.push_back(SaveEntry(id, *settings));
    WriteStoreBytes(target, StoreBytes(entries));
    report.written = true;
    // A later save replaces only what is confirmed after this one.
    for (const auto& [id, settings] : m_objects)
        m_loaded.insert(id);
    m_touched.clear();
    m_forgotten.clear();
    return report;
}

std::filesystem::path KeepAside(const std::filesystem::path& file, const std::vector<DamagedPart>& parts)
{
    std::filesystem::path aside = AsideName(SaveTarget(file));
    WriteStoreBytes(aside, StoreBytes({}, parts));
    return aside;
}

} // namespace kalhost
