#include "platform/File.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

CFile::CFile(const std::filesystem::path& path, UINT flags)
{
    CFileException error(CFileException::none, {}, 0);
    if (!Open(path, flags, &error))
        throw error;
}

CFile::~CFile()
{
    if (m_file)
        std::fclose(m_file);
}

bool CFile::Open(const std::filesystem::path& path, UINT flags, CFileException* error)
{
    Close();
    m_strPath = CString::FromUtf8(path.string());
    const char* mode = "rb";
    if (flags & modeReadWrite)
        mode = (flags & modeCreate) ? "w+b" : "r+b";
    else if (flags & modeWrite)
        mode = "wb";
    m_file = std::fopen(path.c_str(), mode);
    if (m_file)
        return true;
    if (error) {
        const int err = errno;
        const auto cause = err == ENOENT   ? CFileException::fileNotFound
                           : err == EACCES ? CFileException::accessDenied
                           : err == ENOSPC ? CFileException::diskFull
                                           : CFileException::generic;
        *error = CFileException(cause, m_strPath, err);
    }
    return false;
}

UINT CFile::Read(void* buffer, UINT count)
{
    if (!m_file)
        return 0;
    return static_cast<UINT>(std::fread(buffer, 1, count, m_file));
}

void CFile::Write(const void* buffer, UINT count)
{
    if (!m_file || std::fwrite(buffer, 1, count, m_file) != count)
        throw CFileException(m_file ? CFileException::diskFull : CFileException::generic, m_strPath, errno);
}

void CFile::Flush()
{
    if (m_file && std::fflush(m_file) != 0)
        throw CFileException(CFileException::diskFull, m_strPath, errno);
}

void CFile::Close()
{
    if (!m_file)
        return;
    const bool failed = std::fclose(m_file) != 0;
    m_file = nullptr;
    if (failed)
        throw CFileException(CFileException::diskFull, m_strPath, errno);
}

ULONGLONG CFile::GetLength() const
{
    if (!m_file)
        return 0;
    const long here = std::ftell(m_file);
    std::fseek(m_file, 0, SEEK_END);
    const long end = std::ftell(m_file);
    std::fseek(m_file, here, SEEK_SET);
    return end < 0 ? 0 : static_cast<ULONGLONG>(end);
}

ULONGLONG CFile::GetPosition() const
{
    const long here = m_file ? std::ftell(m_file) : 0;
    return here < 0 ? 0 : static_cast<ULONGLONG>(here);
}

UINT CMemFile::Read(void* buffer, UINT count)
{
    const std::size_t available = m_data.size() - m_position;
    const std::size_t n = std::min<std::size_t>(count, available);
    if (n > 0)
        std::memcpy(buffer, m_data.data() + m_position, n);
    m_position += n;
    return static_cast<UINT>(n);
}

void CMemFile::Write(const void* buffer, UINT count)
{
    const auto* bytes = static_cast<const BYTE*>(buffer);
    if (m_position == m_data.size()) {
        m_data.insert(m_data.end(), bytes, bytes + count);
    } else {
        if (m_position + count > m_data.size())
            m_data.resize(m_position + count);
        std::memcpy(m_data.data() + m_position, bytes, count);
    }
    m_position += count;
}
