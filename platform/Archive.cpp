#include "platform/Archive.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

// Loads consume at most this many bytes per step; it bounds what a load can
// allocate ahead of the data it has actually seen.
constexpr std::size_t kLoadBlockBytes = 64 * 1024;

} // namespace

CArchive::CArchive(CFile* file, UINT mode) : m_file(file), m_mode(mode)
{
    if (!file)
        throw CInvalidArgException();
}

CArchive::~CArchive()
{
    if (!m_closed && IsStoring()) {
        try {
            m_file->Flush();
        } catch (const CException&) {
            // A destructor cannot report; callers that care call Close().
        }
    }
}

void CArchive::CheckStoring() const
{
    if (!IsStoring())
        throw CArchiveException(CArchiveException::readOnly, m_file->GetFilePath());
}

void CArchive::CheckLoading() const
{
    if (!IsLoading())
        throw CArchiveException(CArchiveException::writeOnly, m_file->GetFilePath());
}

UINT CArchive::Read(void* buffer, UINT count)
{
    CheckLoading();
    if (count > 0 && !buffer)
        throw CInvalidArgException();
    return m_file->Read(buffer, count);
}

void CArchive::ReadExact(void* buffer, std::size_t count)
{
    CheckLoading();
    if (count > 0 && !buffer)
        throw CInvalidArgException();
    auto* bytes = static_cast<BYTE*>(buffer);
    while (count > 0) {
        const UINT step = static_cast<UINT>(std::min(count, kMaxTransferBytes));
        const UINT got = m_file->Read(bytes, step);
        if (got == 0)
            throw CArchiveException(CArchiveException::endOfFile, m_file->GetFilePath());
        bytes += got;
        count -= got;
    }
}

void CArchive::Write(const void* buffer, std::size_t count)
{
    CheckStoring();
    if (count > 0 && !buffer)
        throw CInvalidArgException();
    const auto* bytes = static_cast<const BYTE*>(buffer);
    while (count > 0) {
        const UINT step = static_cast<UINT>(std::min(count, kMaxTransferBytes));
        m_file->Write(bytes, step);
        bytes += step;
        count -= step;
    }
}

void CArchive::ReadBlocks(ULONGLONG count, std::size_t elementSize,
                          const std::function<void(const BYTE*, std::size_t)>& sink)
{
    CheckLoading();
    if (count == 0 || elementSize == 0)
        return;
    const std::size_t perBlock = std::max<std::size_t>(1, kLoadBlockBytes / elementSize);
    std::vector<BYTE> block;
    while (count > 0) {
        const std::size_t n = static_cast<std::size_t>(std::min<ULONGLONG>(count, perBlock));
        // A memory archive hands its bytes over where they are.
        if (const BYTE* inPlace = m_file->ReadInPlace(n * elementSize)) {
            sink(inPlace, n);
        } else {
            block.resize(n * elementSize);
            ReadExact(block.data(), n * elementSize);
            sink(block.data(), n);
        }
        count -= n;
    }
}

std::size_t CArchive::ElementsJustified(ULONGLONG count, std::size_t elementSize) const
{
    const ULONGLONG length = m_file->GetLength();
    const ULONGLONG position = m_file->GetPosition();
    const ULONGLONG left = length > position ? length - position : 0;
    return static_cast<std::size_t>(std::min<ULONGLONG>(count, elementSize ? left / elementSize : 0));
}

void CArchive::WriteBlocks(ULONGLONG count, std::size_t elementSize,
                           const std::function<void(BYTE*, std::size_t, std::size_t)>& source)
{
    CheckStoring();
    if (count == 0 || elementSize == 0)
        return;
    const std::size_t perBlock = std::max<std::size_t>(1, kLoadBlockBytes / elementSize);
    std::vector<BYTE> block;
    for (ULONGLONG first = 0; first < count;) {
        const std::size_t n = static_cast<std::size_t>(std::min<ULONGLONG>(count - first, perBlock));
        if (BYTE* inPlace = m_file->WriteInPlace(n * elementSize)) {
            source(inPlace, static_cast<std::size_t>(first), n);
        } else {
            block.resize(n * elementSize);
            source(block.data(), static_cast<std::size_t>(first), n);
            Write(block.data(), n * elementSize);
        }
        first += n;
    }
}

void CArchive::WriteCount(ULONGLONG count)
{
    if (count < 0xFFFF) {
        *this << static_cast<WORD>(count);
        return;
    }
    *this << static_cast<WORD>(0xFFFF);
    if (count < 0xFFFFFFFF) {
        *this << static_cast<DWORD>(count);
        return;
    }
    *this << static_cast<DWORD>(0xFFFFFFFF) << count;
}

ULONGLONG CArchive::ReadCount()
{
    WORD small = 0;
    *this >> small;
    if (small != 0xFFFF)
        return small;
    DWORD medium = 0;
    *this >> medium;
    if (medium != 0xFFFFFFFF)
        return medium;
    ULONGLONG large = 0;
    *this >> large;
    return large;
}

CArchive& CArchive::operator<<(const CString& value)
{
    CheckStoring();
    // The marker FF FE FF says "UTF-16 units follow"; then the length.
    *this << static_cast<BYTE>(0xFF) << static_cast<WORD>(0xFFFE);
    const auto length = static_cast<ULONGLONG>(value.GetLength());
    if (length < 0xFF) {
        *this << static_cast<BYTE>(length);
    } else if (length < 0xFFFE) {
        *this << static_cast<BYTE>(0xFF) << static_cast<WORD>(length);
    } else if (length < 0xFFFFFFFF) {
        *this << static_cast<BYTE>(0xFF) << static_cast<WORD>(0xFFFF) << static_cast<DWORD>(length);
    } else {
        *this << static_cast<BYTE>(0xFF) << static_cast<WORD>(0xFFFF) << static_cast<DWORD>(0xFFFFFFFF) << length;
    }
    Write(value.GetString(), static_cast<std::size_t>(length) * sizeof(char16_t));
    return *this;
}

CArchive& CArchive::operator>>(CString& value)
{
    CheckLoading();
    bool wide = false;
    ULONGLONG length = 0;
    for (;;) {
        BYTE b = 0;
        *this >> b;
        if (b < 0xFF) {
            length = b;
            break;
        }
        WORD w = 0;
        *this >> w;
        if (w == 0xFFFE) {
            // Unicode marker; a second marker would be malformed.
            if (wide)
                throw CArchiveException(CArchiveException::badIndex, m_file->GetFilePath());
            wide = true;
            continue;
        }
        if (w < 0xFFFF) {
            length = w;
            break;
        }
        DWORD d = 0;
        *this >> d;
        if (d < 0xFFFFFFFF) {
            length = d;
            break;
        }
        *this >> length;
        break;
    }
    if (wide) {
        std::u16string text;
        ReadBlocks(length, sizeof(char16_t), [&](const BYTE* data, std::size_t n) {
            const std::size_t old = text.size();
            text.resize(old + n);
            std::memcpy(text.data() + old, data, n * sizeof(char16_t));
        });
        value = CString(std::move(text));
    } else {
        std::string bytes;
        ReadBlocks(length, 1,
                   [&](const BYTE* data, std::size_t n) { bytes.append(reinterpret_cast<const char*>(data), n); });
        value = CString::FromLatin1(bytes);
    }
    return *this;
}

void CArchive::Flush()
{
    if (IsStoring())
        m_file->Flush();
}

void CArchive::Close()
{
    Flush();
    m_closed = true;
}
