// Byte streams under an archive: CFile over an operating-system file and
// CMemFile over a growable memory buffer.
#pragma once

#include "platform/CString.h"
#include "platform/Exceptions.h"
#include "platform/Types.h"

#include <cstdio>
#include <filesystem>
#include <vector>

class CFile {
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        modeCreate = 0x1000,
    };

    CFile() = default;
    // Throws CFileException when the file cannot be opened.
    CFile(const std::filesystem::path& path, UINT flags);
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    virtual ~CFile();

    // Returns false and fills `error` (when given) instead of throwing.
    bool Open(const std::filesystem::path& path, UINT flags, CFileException* error = nullptr);

    // Reads up to `count` bytes; returns how many were read (0 at the end).
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual void Flush();
    virtual void Close();
    virtual ULONGLONG GetLength() const;
    virtual ULONGLONG GetPosition() const;
    // Room for the next `count` bytes where they will stay, the position
    // moved past them; null when the file cannot offer it (a disk file).
    // Writers then fill a buffer of their own and Write it.
    virtual BYTE* WriteInPlace(std::size_t) { return nullptr; }
    // The next `count` bytes where they already are, the position moved past
    // them; null when the file cannot show them so (a disk file, or fewer
    // left). Readers then copy them with Read.
    virtual const BYTE* ReadInPlace(std::size_t) { return nullptr; }

    const CString& GetFilePath() const { return m_strPath; }

private:
    std::FILE* m_file = nullptr;
    CString m_strPath;
};

class CMemFile : public CFile {
public:
    CMemFile() = default;
    // A read-only view would be cheaper, but archives are small and a copy
    // keeps the file independent of the caller's buffer.
    CMemFile(const BYTE* data, std::size_t size) : m_data(data, data + size) {}
    explicit CMemFile(std::vector<BYTE> data) : m_data(std::move(data)) {}

    UINT Read(void* buffer, UINT count) override;
    void Write(const void* buffer, UINT count) override;
    void Flush() override {}
    void Close() override {}
    ULONGLONG GetLength() const override { return m_data.size(); }
    ULONGLONG GetPosition() const override { return m_position; }

    void SeekToBegin() { m_position = 0; }
    BYTE* WriteInPlace(std::size_t count) override
    {
        if (count > m_data.size() - m_position)
            m_data.resize(m_position + count);
        BYTE* bytes = m_data.data() + m_position;
        m_position += count;
        return bytes;
    }
    const BYTE* ReadInPlace(std::size_t count) override
    {
        if (count > m_data.size() - m_position)
            return nullptr;
        const BYTE* bytes = m_data.data() + m_position;
        m_position += count;
        return bytes;
    }
    const std::vector<BYTE>& Data() const { return m_data; }
    std::vector<BYTE> Detach()
    {
        m_position = 0;
        return std::move(m_data);
    }

private:
    std::vector<BYTE> m_data;
    std::size_t m_position = 0;
};
