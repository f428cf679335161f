// CStringUtil: finding and editing lines of a command list, and small text
// helpers. Index -1 names the last line. Edits that would put a control
// character into a line are refused with an assertion report.
//
// Searches look outside quoted names only: a variable called 'a/b' holds no
// option separator and 'MODEL x' no keyword.
#pragma once

#include "framework/CmdInfo.h"
#include "platform/Collections.h"

enum TRIMSTR : int {
    TRIM_LEFT = 0,
    TRIM_RIGHT = 1,
    TRIM_BOTH = 2,
};

class CStringUtil {
public:
    // Index of the first line containing / beginning with `text`, or -1.
    static int SearchString(const CLIST<CCmdInfo>& list, const CString& text);
    static int SearchStringAtBeginning(const CLIST<CCmdInfo>& list, const CString& text);
    static bool StringFoundAtIndex(const CLIST<CCmdInfo>& list, const CString& text, int index);
    // Replaces the first occurrence of `oldText` in the line.
    static void ReplaceStringAt(CLIST<CCmdInfo>& list, int index, const CString& oldText, const CString& newText);
    // Appends `text` (then `second`, when given) to the line at `index`.
    static void ConcatStringAt(CLIST<CCmdInfo>& list, const CString& text, int index, const CString* second = nullptr);
    // Inserts `text` (then `second`) as a new line before the line at `index`;
    // an index equal to the line count appends.
    static void InsertStringAt(CLIST<CCmdInfo>& list, const CString& text, int index, const CString* second = nullptr);
    // Drops every "/" that introduces no option ("A / / B" -> "A / B",
    // "ESTIMATE /" -> "ESTIMATE ").
    static void RemoveRedundantSlash(CLIST<CCmdInfo>& list, int index);

    // Single quotes around the text, inner quotes doubled.
    static void AppendQuotes(CString& text);
    // Removes one `ch` from the end of the text, if it ends with one.
    static void RemoveTrailingChar(CString& text, char16_t ch);
    static void Trim(CString& text, TRIMSTR side);
    static bool IsEmpty(const CString& text) { return text.IsEmpty(); }
    static void GetStringLines(const CString& text, CStringArray& lines);

    // Where `text` first occurs in `line` at or after `start` outside single
    // quotes, or -1.
    static int FindOutsideQuotes(const CString& line, const CString& text, int start = 0);

private:
    // Resolves -1 to the last line; -1 again when the index names no line.
    static int Resolve(const CLIST<CCmdInfo>& list, int index);
};
