#include "platform/Exceptions.h"

#include <cstring>

const char* CArchiveException::what() const noexcept
{
    switch (m_cause) {
    case none: return "archive: no error";
    case generic: return "archive: unspecified error";
    case readOnly: return "archive: tried to write into an archive opened for loading";
    case endOfFile: return "archive: reached the end of the data";
    case writeOnly: return "archive: tried to read from an archive opened for storing";
    case badIndex: return "archive: invalid file format";
    case badClass: return "archive: object of an unexpected class";
    case badSchema: return "archive: object of an unknown schema";
    }
    return "archive error";
}

CFileException::CFileException(Cause cause, CString fileName, int osError)
    : m_cause(cause), m_strFileName(std::move(fileName)), m_lOsError(osError)
{
    m_what = m_strFileName.ToUtf8() + ": " + (osError != 0 ? std::strerror(osError) : "file error");
}
