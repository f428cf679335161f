#include "refhost/SettingsStore.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace kalhost {

namespace {

constexpr char kMagic[8] = {'K', 'A', 'L', 'S', 'T', 'O', 'R', 'E'};
constexpr DWORD kVersion = 1;

std::vector<BYTE> ReadWholeFile(const std::filesystem::path& file)
{
    std::FILE* f = std::fopen(file.c_str(), "rb");
    if (!f)
        throw StoreError(file.string() + ": cannot be read: " + std::strerror(errno));
    std::vector<BYTE> bytes;
    BYTE buffer[65536];
    std::size_t n = 0;
    while ((n = std::fread(buffer, 1, sizeof buffer, f)) > 0)
        bytes.insert(bytes.end(), buffer, buffer + n);
    const bool failed = std::ferror(f) != 0;
    std::fclose(f);
    if (failed)
        throw StoreError(file.string() + ": read error");
    return bytes;
}

} // namespace

std::vector<StoreEntry> ReadStoreFile(const std::filesystem::path& file)
{
    CMemFile memory(ReadWholeFile(file));
    CArchive ar(&memory, CArchive::load);
    std::vector<StoreEntry> entries;
    try {
        char magic[sizeof kMagic];
        ar.ReadExact(magic, sizeof magic);
        DWORD version = 0;
        ar >> version;
        if (std::memcmp(magic, kMagic, sizeof magic) != 0)
            throw StoreError(file.string() + ": not a kalhost settings store");
        if (version != kVersion)
            throw StoreError(file.string() + ": settings store version " + std::to_string(version) + " is unknown");
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
        throw StoreError(file.string() + ": " + e.what());
    }
    if (memory.GetPosition() != memory.GetLength())
        throw StoreError(file.string() + ": unexpected data after the last entry");
    return entries;
}

void WriteStoreFile(const std::filesystem::path& file, const std::vector<StoreEntry>& entries)
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
    // Write beside the target, push it to the disk, then rename over it: a
    // crash at any point leaves either the old store or the new one.
    const std::filesystem::path temporary = file.string() + ".tmp-" + std::to_string(::getpid());
    const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        throw StoreError(temporary.string() + ": cannot be written: " + std::strerror(errno));
    const auto& data = memory.Data();
    std::size_t written = 0;
    while (written < data.size()) {
        const ssize_t n = ::write(fd, data.data() + written, data.size() - written);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            const int error = errno;
            ::close(fd);
            std::filesystem::remove(temporary);
            throw StoreError(temporary.string() + ": cannot be written: " + std::strerror(error));
        }
        written += static_cast<std::size_t>(n);
    }
    if (::fsync(fd) != 0 || ::close(fd) != 0) {
        const int error = errno;
        std::filesystem::remove(temporary);
        throw StoreError(temporary.string() + ": cannot be flushed: " + std::strerror(error));
    }
    std::error_code renameError;
    std::filesystem::rename(temporary, file, renameError);
    if (renameError) {
        std::filesystem::remove(temporary);
        throw StoreError(file.string() + ": cannot be replaced: " + renameError.message());
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
        throw StoreError("entry for command " + std::to_string(entry.id) + ": " + entry.className +
                         " is not a settings class");
    CMemFile memory(entry.record);
    CArchive ar(&memory, CArchive::load);
    ar.SetSchemaFlags(CArchive::namedLists);
    try {
        settings->Serialize(ar);
    } catch (const CException& e) {
        throw StoreError("entry for command " + std::to_string(entry.id) + " (" + entry.className + "): " + e.what());
    }
    if (memory.GetPosition() != memory.GetLength())
        throw StoreError("entry for command " + std::to_string(entry.id) + " (" + entry.className +
                         "): the record is longer than its settings");
    object.release();
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

void SettingsStore::Load(const std::filesystem::path& file)
{
    std::map<UINT, std::unique_ptr<CGUIBaseObj>> objects;
    std::vector<StoreEntry> foreign;
    for (const auto& entry : ReadStoreFile(file)) {
        if (auto settings = LoadEntry(entry))
            objects[entry.id] = std::move(settings);
        else
            foreign.push_back(entry);
    }
    m_objects = std::move(objects);
    m_foreign = std::move(foreign);
}

void SettingsStore::Save(const std::filesystem::path& file) const
{
    std::vector<StoreEntry> entries = m_foreign;
    for (const auto& [id, settings] : m_objects)
        entries.push_back(SaveEntry(id, *settings));
    WriteStoreFile(file, entries);
}

std::filesystem::path KeepAside(const std::filesystem::path& file)
{
    std::filesystem::path aside = file.string() + ".unreadable";
    for (int n = 2; std::filesystem::exists(aside); ++n)
        aside = file.string() + ".unreadable-" + std::to_string(n);
    std::filesystem::rename(file, aside);
    return aside;
}

} // namespace kalhost
