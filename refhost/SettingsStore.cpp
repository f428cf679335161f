#include "refhost/SettingsStore.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kalhost {

namespace {

constexpr char kMagic[8] = {'K', 'A', 'L', 'S', 'T', 'O', 'R', 'E'};
constexpr DWORD kVersion = 1;
constexpr const char* kTemporaryInfix = ".tmp-";

std::string Reason(int error)
{
    return std::strerror(error);
}

std::vector<BYTE> ReadWholeFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored))
        throw StoreAccessError(file.string() + ": cannot be read: it is a directory");
    std::FILE* f = std::fopen(file.c_str(), "rb");
    if (!f)
        throw StoreAccessError(file.string() + ": cannot be read: " + Reason(errno));
    std::vector<BYTE> bytes;
    BYTE buffer[65536];
    std::size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, f)) > 0)
        bytes.insert(bytes.end(), buffer, buffer + n);
    const bool failed = std::ferror(f) != 0;
    const int error = errno;
    std::fclose(f);
    if (failed)
        throw StoreAccessError(file.string() + ": cannot be read: " + Reason(error));
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

std::string EntryName(const StoreEntry& entry)
{
    return "entry for command " + std::to_string(entry.id) + " (" + entry.className + ")";
}

} // namespace

std::vector<StoreEntry> ReadStoreBytes(const std::vector<BYTE>& bytes, const std::string& name)
{
    CMemFile memory(bytes);
    CArchive ar(&memory, CArchive::load);
    std::vector<StoreEntry> entries;
    try {
        char magic[sizeof kMagic];
        ar.ReadExact(magic, sizeof magic);
        DWORD version = 0;
        ar >> version;
        if (std::memcmp(magic, kMagic, sizeof magic) != 0)
            throw StoreError(name + ": not a kalhost settings store");
        if (version != kVersion)
            throw StoreError(name + ": settings store version " + std::to_string(version) + " is unknown");
        const ULONGLONG count = ar.ReadCount();
        for (ULONGLONG i = 0; i < count; ++i) {
            StoreEntry entry;
            CString className;
            ar >> entry.id >> className;
            entry.className = className.ToUtf8();
            const ULONGLONG length = ar.ReadCount();
            ar.ReadBlocks(length, 1, [&](const BYTE* data, std::size_t n) {
                entry.record.insert(entry.record.end(), data, data + n);
            });
            entries.push_back(std::move(entry));
        }
    } catch (const CArchiveException& e) {
        throw StoreError(name + ": " + e.what());
    }
    if (memory.GetPosition() != memory.GetLength())
        throw StoreError(name + ": unexpected data after the last entry");
    return entries;
}

std::vector<StoreEntry> ReadStoreFile(const std::filesystem::path& file)
{
    return ReadStoreBytes(ReadWholeFile(file), file.string());
}

std::vector<BYTE> StoreBytes(const std::vector<StoreEntry>& entries)
{
    CMemFile memory;
    {
        CArchive ar(&memory, CArchive::store);
        ar.Write(kMagic, sizeof kMagic);
        ar << kVersion;
        ar.WriteCount(entries.size());
        for (const auto& entry : entries) {
            ar << entry.id << CString::FromUtf8(entry.className);
            ar.WriteCount(entry.record.size());
            ar.Write(entry.record.data(), entry.record.size());
        }
        ar.Close();
    }
    return memory.Detach();
}

void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries)
{
    const std::vector<BYTE> data = StoreBytes(entries);
    const std::filesystem::path target = SaveTarget(file);
    std::error_code ignored;
    if (std::filesystem::is_directory(target, ignored))
        throw StoreAccessError(target.string() + ": cannot be written: it is a directory");
    // The new store keeps the permissions of the one it replaces.
    struct stat old {};
    const bool replacing = ::stat(target.c_str(), &old) == 0;

    // Write beside the target, push it to the disk, then rename over it: a
    // crash at any point leaves either the old store or the new one.
    const std::filesystem::path temporary = target.string() + kTemporaryInfix + std::to_string(::getpid());
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0)
        throw StoreAccessError(target.string() + ": cannot be written: " + Reason(errno));
    const auto fail = [&](const std::string& what, int error) {
        ::close(fd);
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(target.string() + ": " + what + ": " + Reason(error));
    };
    if (replacing && ::fchmod(fd, old.st_mode & 07777) != 0)
        fail("cannot keep its permissions", errno);
    std::size_t written = 0;
    while (written < data.size()) {
        const ssize_t n = ::write(fd, data.data() + written, data.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            fail("cannot be written", n < 0 ? errno : ENOSPC);
        written += static_cast<std::size_t>(n);
    }
    if (::fsync(fd) != 0)
        fail("cannot be flushed", errno);
    if (::close(fd) != 0) {
        const int error = errno;
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(target.string() + ": cannot be flushed: " + Reason(error));
    }
    std::error_code renameError;
    std::filesystem::rename(temporary, target, renameError);
    if (renameError) {
        std::filesystem::remove(temporary, ignored);
        throw StoreAccessError(target.string() + ": cannot be replaced: " + renameError.message());
    }
}

void RemoveStaleTemporaries(const std::filesystem::path& file)
{
    const std::filesystem::path target = SaveTarget(file);
    const std::string prefix = target.filename().string() + kTemporaryInfix;
    std::error_code error;
    const std::filesystem::path folder = target.has_parent_path() ? target.parent_path() : ".";
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
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
    std::unique_ptr<CObject> object(runtimeClass->CreateObject());
    auto* settings = dynamic_cast<CGUIBaseObj*>(object.get());
    if (!settings)
        throw StoreError(EntryName(entry) + ": not a settings class");
    CMemFile memory(entry.record);
    CArchive ar(&memory, CArchive::load);
    ar.SetSchemaFlags(CArchive::namedLists);
    try {
        settings->Serialize(ar);
    } catch (const CException& e) {
        throw StoreError(EntryName(entry) + ": " + e.what());
    }
    if (memory.GetPosition() != memory.GetLength())
        throw StoreError(EntryName(entry) + ": the record is longer than its settings");
    // A record can be well formed and still describe settings that cannot
    // write their lines (more levels than metrics, say).
    try {
        CLIST<CCmdInfo> lines;
        settings->GetCommandInfoList(lines);
    } catch (const CException& e) {
        throw StoreError(EntryName(entry) + ": its lines cannot be written: " + e.what());
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
    std::erase_if(m_foreign, [id](const StoreEntry& e) { return e.id == id; });
}

void SettingsStore::Clear()
{
    m_objects.clear();
    m_foreign.clear();
}

std::vector<SettingsStore::Rejected> SettingsStore::Load(const std::filesystem::path& file, const Check& check)
{
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> objects;
    std::vector<StoreEntry> foreign;
    std::vector<Rejected> rejected;
    for (auto& entry : ReadStoreFile(file)) {
        try {
            if (auto settings = LoadEntry(entry)) {
                if (check)
                    check(entry.id, *settings);
                objects[entry.id] = std::move(settings);
            } else {
                foreign.push_back(std::move(entry));
            }
        } catch (const StoreError& e) {
            rejected.push_back({std::move(entry), e.what()});
        } catch (const CException& e) {
            const std::string reason = EntryName(entry) + ": its lines cannot be written: " + e.what();
            rejected.push_back({std::move(entry), reason});
        }
    }
    m_objects = std::move(objects);
    m_foreign = std::move(foreign);
    return rejected;
}

void SettingsStore::Save(const std::filesystem::path& file) const
{
    std::vector<StoreEntry> entries = m_foreign;
    for (const auto& [id, settings] : m_objects)
        entries.push_back(SaveEntry(id, *settings));
    WriteStoreFile(file, entries);
}

namespace {

std::filesystem::path AsideName(const std::filesystem::path& file)
{
    std::filesystem::path aside = file.string() + ".unreadable";
    for (int n = 2; std::filesystem::exists(aside); ++n)
        aside = file.string() + ".unreadable-" + std::to_string(n);
    return aside;
}

} // namespace

std::filesystem::path KeepAside(const std::filesystem::path& file)
{
    // The store itself goes aside; a link to it stays for the next save.
    const std::filesystem::path target = SaveTarget(file);
    std::filesystem::path aside = AsideName(target);
    std::filesystem::rename(target, aside);
    return aside;
}

std::filesystem::path KeepAside(const std::filesystem::path& file, const std::vector<StoreEntry>& entries)
{
    std::filesystem::path aside = AsideName(file);
    WriteStoreFile(aside, entries);
    return aside;
}

} // namespace kalhost
