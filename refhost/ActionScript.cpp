#include "refhost/ActionScript.h"

#include "framework/GUIListCtrl.h"
#include "platform/UserInput.h"

#include <charconv>
#include <map>

namespace kalhost {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

// Reads one argument at `pos`; quoted arguments lose their quotes.
std::string Token(std::string_view line, std::size_t& pos, std::size_t number)
{
    if (line[pos] != '"') {
        const std::size_t start = pos;
        while (pos < line.size() && !IsBlank(line[pos]) && line[pos] != '#') {
            if (line[pos] == '"')
                throw ScriptError(number, "a quote inside an unquoted argument");
            ++pos;
        }
        return std::string(line.substr(start, pos - start));
    }
    std::string value;
    for (++pos; pos < line.size(); ++pos) {
        const char c = line[pos];
        if (c == '"') {
            ++pos;
            if (pos < line.size() && !IsBlank(line[pos]) && line[pos] != '#')
                throw ScriptError(number, "text right after a closing quote");
            return value;
        }
        if (c == '\\' && pos + 1 < line.size() && (line[pos + 1] == '"' || line[pos + 1] == '\\'))
            ++pos; // the escaped character follows
        value += line[pos];
    }
    throw ScriptError(number, "a quote that is not closed");
}

void SkipBlanks(std::string_view line, std::size_t& pos)
{
    while (pos < line.size() && IsBlank(line[pos]))
        ++pos;
}

// The rest of the line as one text: a quoted text as one argument, else
// the raw text without trailing blanks ('#' belongs to it).
std::string RestOfLine(std::string_view line, std::size_t pos, std::size_t number)
{
    SkipBlanks(line, pos);
    if (pos < line.size() && line[pos] == '"') {
        std::string text = Token(line, pos, number);
        SkipBlanks(line, pos);
        if (pos < line.size() && line[pos] != '#')
            throw ScriptError(number, "text after the quoted text");
        return text;
    }
    std::string_view rest = line.substr(pos);
    while (!rest.empty() && IsBlank(rest.back()))
        rest.remove_suffix(1);
    return std::string(rest);
}

// How many arguments come before any rest-of-line text, and the usage
// shown when a line has the wrong number.
struct Shape {
    std::size_t minArgs;
    std::size_t maxArgs;
    bool restOfLine;
    const char* usage;
};

const std::map<std::string, Shape, std::less<>> kActions = {
    {"open", {1, 1, false, "open ID"}},
    {"page", {1, 1, false, "page N"}},
    {"select", {1, SIZE_MAX, false, "select LIST NAME..."}},
    {"click", {1, 1, false, "click ID"}},
    {"check", {2, 2, false, "check ID 0|1"}},
    {"choose", {2, 2, false, "choose COMBO INDEX"}},
    {"type", {1, 1, true, "type EDIT TEXT..."}},
    {"filter", {1, 1, true, "filter LIST TEXT..."}},
    {"cell", {4, SIZE_MAX, false, "cell GRID ROW COL TEXT..."}},
    {"dblclick", {1, 1, false, "dblclick LIST"}},
    {"drag", {2, 2, false, "drag LIST TARGET"}},
    {"menu", {2, 2, false, "menu LIST COMMAND"}},
    {"reset", {0, 0, false, "reset"}},
    {"ok", {0, 0, false, "ok"}},
    {"cancel", {0, 0, false, "cancel"}},
    {"expect", {1, SIZE_MAX, false, "expect enabled|visible|checked|items|combo|text|cursor ..."}},
};

// The checks count their arguments after the check's name.
const std::map<std::string, Shape, std::less<>> kChecks = {
    {"enabled", {2, 2, false, "expect enabled ID 0|1"}},
    {"visible", {2, 2, false, "expect visible ID 0|1"}},
    {"checked", {2, 2, false, "expect checked ID 0|1"}},
    {"items", {1, SIZE_MAX, false, "expect items LIST NAME..."}},
    {"combo", {2, 2, false, "expect combo COMBO INDEX"}},
    {"text", {1, 1, true, "expect text ID TEXT..."}},
    {"cursor", {1, 1, false, "expect cursor NONE|DROP|NODROP|REMOVE"}},
};

long long Number(const std::string& text, std::size_t line, const char* what, long long min, long long max)
{
    long long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value < min || value > max)
        throw ScriptError(line, std::string(what) + " must be a number" +
                                    (min >= 0 ? " from " + std::to_string(min) : std::string()) + ", not " +
                                    ShowText(text));
    return value;
}

UINT Id(const std::string& text, std::size_t line)
{
    return static_cast<UINT>(Number(text, line, "a control id", 0, 0xFFFFFFFF));
}

int Flag(const std::string& text, std::size_t line)
{
    return static_cast<int>(Number(text, line, "the state", 0, 1));
}

const std::map<std::string, HCURSOR, std::less<>> kCursors = {{"NONE", CursorShape::Arrow},
                                                              {"DROP", CursorShape::Drop},
                                                              {"NODROP", CursorShape::NoDrop},
                                                              {"REMOVE", CursorShape::Remove}};

std::string CursorName(HCURSOR cursor)
{
    for (const auto& [name, shape] : kCursors)
        if (shape == cursor)
            return name;
    return "?";
}

std::vector<CString> Texts(const std::vector<std::string>& args, std::size_t first)
{
    std::vector<CString> texts;
    for (std::size_t i = first; i < args.size(); ++i)
        texts.push_back(CString::FromUtf8(args[i]));
    return texts;
}

std::string Show(const std::vector<CString>& items)
{
    if (items.empty())
        return "(no items)";
    std::string shown;
    for (const auto& item : items) {
        if (!shown.empty())
            shown += ' ';
        const std::string text = item.ToUtf8();
        const bool quote = text.empty() || text.find_first_of(" \t#\"") != std::string::npos;
        shown += quote ? "\"" + text + "\"" : text;
    }
    return shown;
}

bool EffectivelyEnabled(const CWnd& wnd)
{
    for (const CWnd* w = &wnd; w; w = w->GetParent())
        if (!w->IsWindowEnabled())
            return false;
    return true;
}

bool EffectivelyVisible(const CWnd& wnd)
{
    for (const CWnd* w = &wnd; w; w = w->GetParent())
        if (!w->IsWindowVisible())
            return false;
    return true;
}

// Appends `text` with its control characters escaped, up to `limit` bytes
// and never inside a UTF-8 sequence; returns how much of `text` it took.
std::size_t AppendEscaped(std::string& out, std::string_view text, std::size_t limit)
{
    static constexpr char kHex[] = "0123456789abcdef";
    std::size_t i = 0;
    for (; i < text.size() && i < limit; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == '\t')
            out += "\\t";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\r')
            out += "\\r";
        else if (c < 0x20 || c == 0x7F)
            out += {'\\', 'x', kHex[c >> 4], kHex[c & 15]};
        else
            out += static_cast<char>(c);
    }
    // Finish a character that the limit cut.
    for (; i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80; ++i)
        out += text[i];
    return i;
}

} // namespace

std::string ShowText(std::string_view text, std::size_t limit)
{
    std::string shown = "\"";
    const std::size_t taken = AppendEscaped(shown, text, limit);
    shown += '"';
    if (taken < text.size())
        shown = shown.substr(0, shown.size() - 1) + "...\" (" + std::to_string(text.size()) + " bytes)";
    return shown;
}

std::string Printable(std::string_view message, std::size_t limit)
{
    std::string shown;
    const std::size_t taken = AppendEscaped(shown, message, limit);
    if (taken < message.size())
        shown += "... (" + std::to_string(message.size() - taken) + " more bytes)";
    return shown;
}

std::vector<ScriptLine> ParseScript(std::string_view text)
{
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    std::vector<ScriptLine> lines;
    std::size_t number = 0;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        std::string_view line = text.substr(0, end);
        std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
        if (end != std::string_view::npos && text[end] == '\r' && next < text.size() && text[next] == '\n')
            ++next;
        text.remove_prefix(next);
        ++number;
        if (line.size() > kMaxScriptLine)
            throw ScriptError(number, "the line is longer than " + std::to_string(kMaxScriptLine >> 20) + " MiB");
        if (line.find('\0') != std::string_view::npos)
            throw ScriptError(number, "a NUL character");

        ScriptLine parsed;
        parsed.number = number;
        std::size_t pos = 0;
        SkipBlanks(line, pos);
        if (pos >= line.size() || line[pos] == '#')
            continue;
        parsed.verb = Token(line, pos, number);
        const auto action = kActions.find(parsed.verb);
        if (action == kActions.end())
            throw ScriptError(number, "unknown action " + ShowText(parsed.verb));
        Shape shape = action->second;
        for (;;) {
            SkipBlanks(line, pos);
            if (parsed.verb == "expect" && parsed.args.size() == 1) {
                const auto check = kChecks.find(parsed.args[0]);
                if (check == kChecks.end())
                    throw ScriptError(number, "unknown check " + ShowText(parsed.args[0]));
                const Shape& c = check->second;
                shape = {c.minArgs + 1, c.maxArgs == SIZE_MAX ? SIZE_MAX : c.maxArgs + 1, c.restOfLine, c.usage};
            }
            if (shape.restOfLine && parsed.args.size() == shape.maxArgs) {
                parsed.text = RestOfLine(line, pos, number);
                break;
            }
            if (pos >= line.size() || line[pos] == '#')
                break;
            parsed.args.push_back(Token(line, pos, number));
        }
        if (parsed.args.size() < shape.minArgs || parsed.args.size() > shape.maxArgs)
            throw ScriptError(number, std::string("wrong arguments; the form is: ") + shape.usage);
        // Numbers are checked now, so that no bad line waits to be reached.
        const auto& a = parsed.args;
        const std::string& v = parsed.verb;
        if (v == "open" || v == "click" || v == "dblclick" || v == "type" || v == "select" || v == "filter")
            Id(a[0], number);
        else if (v == "page")
            Number(a[0], number, "the page", 0, 1000);
        else if (v == "check")
            Id(a[0], number), Flag(a[1], number);
        else if (v == "choose")
            Id(a[0], number), Number(a[1], number, "the index", 0, 0x7FFFFFFF);
        else if (v == "cell")
            Id(a[0], number), Number(a[1], number, "the row", 1, 0x7FFFFFFF),
                Number(a[2], number, "the column", 1, 0x7FFFFFFF);
        else if (v == "drag" || v == "menu")
            Id(a[0], number), Id(a[1], number);
        else if (v == "expect") {
            const std::string& what = a[0];
            if (what == "enabled" || what == "visible" || what == "checked")
                Id(a[1], number), Flag(a[2], number);
            else if (what == "items" || what == "text")
                Id(a[1], number);
            else if (what == "combo")
                Id(a[1], number), Number(a[2], number, "the index", -1, 0x7FFFFFFF);
            else if (what == "cursor" && !kCursors.count(a[1]))
                throw ScriptError(number, "the cursor is NONE, DROP, NODROP or REMOVE, not " + ShowText(a[1]));
        }
        lines.push_back(std::move(parsed));
    }
    return lines;
}

ScriptRunner::ScriptRunner(std::vector<ScriptLine> lines, bool allowOpen, OpenCommand open)
    : m_lines(std::move(lines)), m_open(std::move(open)), m_allowOpen(allowOpen)
{
}

void ScriptRunner::Fail(Outcome outcome, const std::string& message)
{
    m_outcome = outcome;
    m_message = message;
}

void ScriptRunner::RunAll()
{
    while (m_next < m_lines.size() && !Failed()) {
        const ScriptLine& line = m_lines[m_next++];
        if (line.verb != "open") {
            Fail(Outcome::BadLine,
                 "line " + std::to_string(line.number) + ": \"" + line.verb + "\" with no dialog open");
            return;
        }
        if (!m_allowOpen) {
            Fail(Outcome::BadLine, "line " + std::to_string(line.number) + ": \"open\" belongs in play scripts");
            return;
        }
        m_outcome = Outcome::NoDialog;
        ++m_opens;
        m_openLine = line.number;
        m_open(Id(line.args[0], line.number));
    }
}

void ScriptRunner::RunDialog(CHeadlessSession& session)
{
    m_outcome = Outcome::NotConfirmed;
    while (m_next < m_lines.size() && session.IsOpen()) {
        const ScriptLine& line = m_lines[m_next];
        if (line.verb == "open") {
            if (!m_allowOpen)
                Fail(Outcome::BadLine, "line " + std::to_string(line.number) + ": \"open\" belongs in play scripts");
            else if (m_note)
                m_note("line " + std::to_string(line.number) + ": the dialog opened at line " +
                       std::to_string(m_openLine) +
                       " is still open; it is left without ok or cancel, so its "
                       "choices are not kept");
            return; // this dialog is left open
        }
        ++m_next;
        try {
            if (line.verb == "expect")
                Check(session, line);
            else
                Act(session, line);
        } catch (const HeadlessError& e) {
            Fail(Outcome::BadLine, "line " + std::to_string(line.number) + ": " + e.what());
        }
        if (Failed())
            return;
    }
    if (!session.IsOpen())
        m_outcome = session.Dialog().GetModalResult() == IDOK ? Outcome::Confirmed : Outcome::NotConfirmed;
}

void ScriptRunner::Act(CHeadlessSession& s, const ScriptLine& line)
{
    const auto& a = line.args;
    const std::string& v = line.verb;
    const std::size_t n = line.number;
    if (v == "page")
        s.Page(static_cast<int>(Number(a[0], n, "the page", 0, 1000)));
    else if (v == "select")
        s.Select(Id(a[0], n), Texts(a, 1));
    else if (v == "click")
        s.Click(Id(a[0], n));
    else if (v == "check")
        s.Check(Id(a[0], n), Flag(a[1], n));
    else if (v == "choose")
        s.Choose(Id(a[0], n), static_cast<int>(Number(a[1], n, "the index", 0, 0x7FFFFFFF)));
    else if (v == "type")
        s.Type(Id(a[0], n), CString::FromUtf8(line.text));
    else if (v == "filter")
        Filter(s, Id(a[0], n), CString::FromUtf8(line.text));
    else if (v == "cell") {
        std::string text;
        for (std::size_t i = 3; i < a.size(); ++i)
            text += (i > 3 ? " " : "") + a[i];
        s.Cell(Id(a[0], n), static_cast<int>(Number(a[1], n, "the row", 1, 0x7FFFFFFF)),
               static_cast<int>(Number(a[2], n, "the column", 1, 0x7FFFFFFF)), CString::FromUtf8(text));
    } else if (v == "dblclick")
        s.DoubleClick(Id(a[0], n));
    else if (v == "drag")
        s.Drag(Id(a[0], n), Id(a[1], n));
    else if (v == "menu")
        s.Menu(Id(a[0], n), Id(a[1], n));
    else if (v == "reset")
        s.Reset();
    else if (v == "ok")
        s.Ok();
    else if (v == "cancel")
        s.Cancel();
}

void ScriptRunner::Filter(CHeadlessSession& s, UINT list, const CString& text)
{
    // Source lists alone have a filter field: target lists are short.
    const auto* variables = dynamic_cast<const CGUIListCtrl*>(&s.Find(list));
    if (!variables || !variables->IsSourceList())
        throw HeadlessError("control " + std::to_string(list) + " is not a source list: only they have a filter");
    s.Filter(list, text);
}

void ScriptRunner::Check(CHeadlessSession& s, const ScriptLine& line)
{
    const auto& a = line.args;
    const std::string& what = a[0];
    const std::size_t n = line.number;
    std::string expected;
    std::string found;
    if (what == "enabled" || what == "visible" || what == "checked") {
        const CWnd& control = s.Find(Id(a[1], n));
        const int state = what == "enabled"   ? EffectivelyEnabled(control)
                          : what == "visible" ? EffectivelyVisible(control)
                                              : s.IsChecked(Id(a[1], n));
        expected = what + " " + a[2];
        found = what + " " + std::to_string(state);
    } else if (what == "items") {
        expected = Show(Texts(a, 2));
        found = Show(s.Items(Id(a[1], n)));
    } else if (what == "combo") {
        expected = "entry " + a[2];
        found = "entry " + std::to_string(s.ComboSelection(Id(a[1], n)));
    } else if (what == "text") {
        expected = "\"" + line.text + "\"";
        found = "\"" + s.Text(Id(a[1], n)).ToUtf8() + "\"";
    } else if (what == "cursor") {
        expected = a[1];
        found = CursorName(s.LastDragCursor());
    }
    if (expected != found)
        Fail(Outcome::ExpectFailed, "line " + std::to_string(n) + ": expected " + expected + ", found " + found);
}

} // namespace kalhost
