// CArchive: the desktop framework's native binary archive, byte for byte.
//
// Little-endian; int/unsigned/LONG/DWORD take 4 bytes, WORD 2, BYTE 1,
// double 8. A CString is stored as FF FE FF, then its length in UTF-16 units
// (one byte below 0xFF, else FF + WORD below 0xFFFE, else FF FF FF + DWORD),
// then the units; on load the 8-bit form without the FF FE FF marker is
// accepted too. A count is a WORD below 0xFFFF, else FFFF + DWORD below
// 0xFFFFFFFF, else FFFF FFFFFFFF + QWORD.
//
// Loads never allocate more than the bytes actually read justify: data is
// consumed in bounded blocks, so a huge count in a short archive ends in
// CArchiveException::endOfFile and not in an allocation of the count.
#pragma once

#include "platform/CString.h"
#include "platform/Exceptions.h"
#include "platform/File.h"
#include "platform/Types.h"

#include <bit>
#include <cstddef>
#include <functional>

static_assert(std::endian::native == std::endian::little, "the archive format is little-endian");

class CArchive {
public:
    enum Mode : UINT { store = 0, load = 1 };

    // Schema flags say how collections lay out their elements. With
    // namedLists a variable list writes each variable's texts too, so that
    // names survive a reload; the default is the framework's plain layout.
    enum SchemaFlags : UINT { plainLists = 0, namedLists = 1 };

    // Largest single transfer: keeps every Read/Write below 2^31 bytes.
    static constexpr std::size_t kMaxTransferBytes = 0x7FFFFFFF;

    CArchive(CFile* file, UINT mode);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;
    ~CArchive();

    bool IsLoading() const { return m_mode == load; }
    bool IsStoring() const { return m_mode == store; }
    CFile* GetFile() const { return m_file; }

    void SetSchemaFlags(UINT flags) { m_schemaFlags = flags; }
    UINT GetSchemaFlags() const { return m_schemaFlags; }
    bool HasNamedLists() const { return (m_schemaFlags & namedLists) != 0; }

    // Raw transfer. Read returns the number of bytes read (short at the end);
    // ReadExact throws endOfFile when fewer than `count` bytes are left.
    UINT Read(void* buffer, UINT count);
    void ReadExact(void* buffer, std::size_t count);
    void Write(const void* buffer, std::size_t count);

    // Reads `count` elements of `elementSize` bytes in bounded blocks, giving
    // each block to `sink` (pointer to the block, number of elements in it).
    // Throws endOfFile as soon as the data runs out.
    void ReadBlocks(ULONGLONG count, std::size_t elementSize,
                    const std::function<void(const BYTE*, std::size_t)>& sink);

    // Writes `count` elements of `elementSize` bytes in bounded blocks that
    // `source` fills (pointer to the block, index of its first element,
    // number of elements in it): in place in a memory archive, else through
    // a buffer that stays in the cache.
    void WriteBlocks(ULONGLONG count, std::size_t elementSize,
                     const std::function<void(BYTE*, std::size_t, std::size_t)>& source);

    // How many of `count` elements of `elementSize` bytes the data left in
    // the archive could hold: a safe capacity to reserve before a load.
    std::size_t ElementsJustified(ULONGLONG count, std::size_t elementSize) const;

    void WriteCount(ULONGLONG count);
    ULONGLONG ReadCount();

    void Flush();
    void Close();

    CArchive& operator<<(BYTE value) { return Put(value); }
    CArchive& operator<<(WORD value) { return Put(value); }
    CArchive& operator<<(int value) { return Put(value); }
    CArchive& operator<<(unsigned int value) { return Put(value); }
    CArchive& operator<<(ULONGLONG value) { return Put(value); }
    CArchive& operator<<(double value) { return Put(value); }
    CArchive& operator<<(const CString& value);

    CArchive& operator>>(BYTE& value) { return Get(value); }
    CArchive& operator>>(WORD& value) { return Get(value); }
    CArchive& operator>>(int& value) { return Get(value); }
    CArchive& operator>>(unsigned int& value) { return Get(value); }
    CArchive& operator>>(ULONGLONG& value) { return Get(value); }
    CArchive& operator>>(double& value) { return Get(value); }
    CArchive& operator>>(CString& value);

    // Throws readOnly unless storing / writeOnly unless loading.
    void CheckStoring() const;
    void CheckLoading() const;

private:
    template <class T>
    CArchive& Put(T value)
    {
        Write(&value, sizeof value);
        return *this;
    }
    template <class T>
    CArchive& Get(T& value)
    {
        ReadExact(&value, sizeof value);
        return *this;
    }

    CFile* m_file;
    UINT m_mode;
    UINT m_schemaFlags = plainLists;
    bool m_closed = false;
};
