// CKalAssertDlg: the host's assertion report. Built with the reporting
// source (folder/file without extension) and line and an owner window,
// DoPrint shows it and execution goes on.
#pragma once

#include "platform/Diagnostics.h"

#include <string>
#include <utility>

class CWnd;

class CKalAssertDlg {
public:
    CKalAssertDlg(std::string file, int line, CWnd* owner = nullptr) : m_file(std::move(file)), m_line(line), m_owner(owner) {}

    void DoPrint() const { kal::ReportAssertion(m_file, m_line); }

    const std::string& File() const { return m_file; }
    int Line() const { return m_line; }
    CWnd* Owner() const { return m_owner; }

private:
    std::string m_file;
    int m_line;
    CWnd* m_owner;
};
