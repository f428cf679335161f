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
    CKalAssertDlg(std::string file, int line, CWnd* owner = nullptr)
        : m_file(std::move(file)), m_line(line), m_owner(owner)
    {
    }
    // With a text saying what was wrong (a variable's name, say).
    CKalAssertDlg(std::string file, int line, std::string detail)
        : m_file(std::move(file)), m_line(line), m_owner(nullptr), m_detail(std::move(detail))
    {
    }

    void DoPrint() const { kal::ReportAssertion(m_file, m_line, m_detail); }

    const std::string& File() const { return m_file; }
    int Line() const { return m_line; }
    CWnd* Owner() const { return m_owner; }

private:
    std::string m_file;
    int m_line;
    CWnd* m_owner;
    std::string m_detail;
};
