// Action scripts: one action a line, '#' starts a comment. Arguments are
// separated by blanks; an argument holding blanks, '#' or quotes is written
// in double quotes (\" and \\ inside). `type` and `expect text` take the
// rest of the line as their text.
//
// The whole script is parsed before anything runs, so a malformed line
// stops the run before it starts. Running, `open ID` sends a menu command;
// the actions that follow act on the dialog it opened until `ok` or
// `cancel` closes it.
#pragma once

#include "platform/HeadlessDriver.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kalhost {

struct ScriptLine {
    std::size_t number = 0;
    std::string verb;
    std::vector<std::string> args; // UTF-8
    std::string text;              // the rest of the line, for type / expect text
};

// A line that cannot be parsed or run: the run ends with status 2.
class ScriptError : public std::runtime_error {
public:
    ScriptError(std::size_t line, const std::string& why)
        : std::runtime_error("line " + std::to_string(line) + ": " + why), m_line(line)
    {
    }
    std::size_t Line() const { return m_line; }

private:
    std::size_t m_line;
};

// The longest script and the longest line a script may have: room for a
// selection of a million variables, short of exhausting memory.
inline constexpr std::size_t kMaxScriptBytes = std::size_t{64} << 20;
inline constexpr std::size_t kMaxScriptLine = std::size_t{16} << 20;

// Lines end with LF, CR LF or CR alone.
std::vector<ScriptLine> ParseScript(std::string_view text);

// `text` as a message shows it: in double quotes, control characters
// escaped (\t, \x1b, ...), cut after `limit` bytes with the length said.
std::string ShowText(std::string_view text, std::size_t limit = 60);
// A whole message made safe for a terminal: control characters escaped,
// and cut after `limit` bytes.
std::string Printable(std::string_view message, std::size_t limit = 2000);

class ScriptRunner {
public:
    // Sends a menu command; a dialog it opens runs this runner's actions.
    using OpenCommand = std::function<void(UINT id)>;

    enum class Outcome { NoDialog, Confirmed, NotConfirmed, BadLine, ExpectFailed };

    ScriptRunner(std::vector<ScriptLine> lines, bool allowOpen, OpenCommand open);

    // Runs a play script from its first line.
    void RunAll();
    // The driver's script: acts on `session`'s dialog until it closes, an
    // `open` line comes, the script ends or a line fails.
    void RunDialog(CHeadlessSession& session);

    Outcome GetOutcome() const { return m_outcome; }
    // Why the run failed: "line N: ..." for a bad line or a failed check.
    const std::string& GetMessage() const { return m_message; }
    bool Failed() const { return m_outcome == Outcome::BadLine || m_outcome == Outcome::ExpectFailed; }
    // How many `open` lines ran, and the line of the last one.
    int GetOpenCount() const { return m_opens; }
    std::size_t GetOpenLine() const { return m_openLine; }
    // Receives what the user should know but that does not stop the run
    // (a dialog left open by the next `open`).
    void SetNoteSink(std::function<void(const std::string&)> sink) { m_note = std::move(sink); }

private:
    void Act(CHeadlessSession& session, const ScriptLine& line);
    void Check(CHeadlessSession& session, const ScriptLine& line);
    static void Filter(CHeadlessSession& session, UINT list, const CString& text);
    void Fail(Outcome outcome, const std::string& message);

    std::vector<ScriptLine> m_lines;
    OpenCommand m_open;
    bool m_allowOpen;
    std::size_t m_next = 0;
    int m_opens = 0;
    std::size_t m_openLine = 0;
    std::function<void(const std::string&)> m_note;
    Outcome m_outcome = Outcome::NoDialog;
    std::string m_message;
};

} // namespace kalhost
