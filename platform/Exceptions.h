// The framework's exception classes. They are thrown by value and caught by
// reference to their type; `what()` gives a short English description.
#pragma once

#include "platform/CString.h"

#include <exception>
#include <string>

class CException : public std::exception {
public:
    const char* what() const noexcept override { return "framework exception"; }
};

class CArchiveException : public CException {
public:
    enum Cause { none, generic, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    explicit CArchiveException(Cause cause, CString fileName = {}) : m_cause(cause), m_strFileName(std::move(fileName))
    {
    }
    const char* what() const noexcept override;

    Cause m_cause;
    CString m_strFileName;
};

class CFileException : public CException {
public:
    enum Cause { none, generic, fileNotFound, badPath, accessDenied, diskFull, endOfFile };

    CFileException(Cause cause, CString fileName, int osError);
    const char* what() const noexcept override { return m_what.c_str(); }

    Cause m_cause;
    CString m_strFileName;
    int m_lOsError;

private:
    std::string m_what;
};

class CInvalidArgException : public CException {
public:
    const char* what() const noexcept override { return "invalid argument"; }
};

// Thrown by data exchange to abandon an update after the user was told why.
class CUserException : public CException {
public:
    const char* what() const noexcept override { return "user input rejected"; }
};
