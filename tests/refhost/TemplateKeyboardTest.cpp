// Every dialog template, worked from the keyboard: on each page no two
// mnemonics share a key (the page's own and those of the tab dialog around
// it), every mnemonic leads to the control it names, and every control that
// takes input can be reached from a mnemonic.
//
// The rules follow the Qt view: a label's mnemonic focuses the next control
// after it in template order that is neither a label nor a group box; a
// button, check box or radio button carries its own; Tab moves on in
// template order.
#include "refhost/Resources.h"
#include "tests/support/Mnemonics.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

using kalhost::ResourceTable;
using namespace kaltest;

namespace {

constexpr UINT kTabDialogTemplate = 101;

bool HasCaption(ControlKind kind)
{
    return kind == ControlKind::PushButton || kind == ControlKind::CheckBox || kind == ControlKind::RadioButton;
}

// Input controls without a caption of their own: a label names them.
bool IsField(ControlKind kind)
{
    switch (kind) {
    case ControlKind::Edit:
    case ControlKind::FileEdit:
    case ControlKind::ComboBox:
    case ControlKind::List:
    case ControlKind::Grid: return true;
    default: return false;
    }
}

// Keys other than mnemonics press these: Enter, Escape, F1.
bool IsDialogButton(const ControlTemplate& c)
{
    return c.kind == ControlKind::PushButton &&
           (c.id == static_cast<UINT>(IDOK) || c.id == static_cast<UINT>(IDCANCEL) || c.id == 9);
}

// "Add >" and "< Remove": the arrow buttons beside the variable lists, whose
// moves double-clicks, drags and the source list's menu also make.
bool IsMoveButton(const ControlTemplate& c)
{
    const std::u16string& text = c.caption.Str();
    return c.kind == ControlKind::PushButton && !text.empty() && (text.front() == u'<' || text.back() == u'>');
}

std::string Describe(const ControlTemplate& c)
{
    return std::string(ControlKindName(c.kind)) + " " + std::to_string(c.id) +
           (c.caption.IsEmpty() ? std::string() : " \"" + c.caption.ToUtf8() + "\"");
}

// What the keyboard cannot do on `page`; `window` is the tab dialog the
// page sits in (null for a dialog of its own).
std::vector<std::string> KeyboardProblems(const DialogTemplate& page, const DialogTemplate* window)
{
    std::vector<std::string> problems;
    const std::string where = "template " + std::to_string(page.id) + ": ";
    const std::vector<ControlTemplate>& controls = page.controls;

    std::map<char16_t, std::vector<std::string>> byKey;
    const auto collect = [&byKey](const DialogTemplate& t) {
        for (const ControlTemplate& c : t.controls)
            if (const auto key = MnemonicOf(c.caption))
                byKey[*key].push_back(Describe(c));
    };
    collect(page);
    if (window && window != &page)
        collect(*window);
    for (const auto& [key, owners] : byKey)
        if (owners.size() > 1) {
            std::string list;
            for (const std::string& owner : owners)
                list += (list.empty() ? "" : ", ") + owner;
            problems.push_back(where + "Alt+" + CString(std::u16string(1, key)).ToUtf8() + " is taken by " + list);
        }

    std::vector<bool> reached(controls.size(), false);
    std::optional<std::size_t> previousInput;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const ControlTemplate& c = controls[i];
        const auto key = MnemonicOf(c.caption);
        if (c.kind == ControlKind::GroupBox && key)
            problems.push_back(where + Describe(c) + ": a group box's mnemonic has no control to focus");
        if (c.kind == ControlKind::Static) {
            const ControlTemplate* buddy = BuddyOf(controls, i);
            if (key && (!buddy || !IsField(buddy->kind)))
                problems.push_back(where + Describe(c) + ": its mnemonic focuses " +
                                   (buddy ? Describe(*buddy) : std::string("nothing")) + ", not a field it names");
            if (!key && i + 1 < controls.size() && IsField(controls[i + 1].kind))
                problems.push_back(where + Describe(c) + " names " + Describe(controls[i + 1]) +
                                   " but has no mnemonic");
            if (key && buddy && IsField(buddy->kind))
                reached[static_cast<std::size_t>(buddy - controls.data())] = true;
            continue;
        }
        if (c.kind == ControlKind::GroupBox || c.kind == ControlKind::Tab)
            continue;
        if (HasCaption(c.kind)) {
            if (key)
                reached[i] = true;
            else if (!IsDialogButton(c) && !IsMoveButton(c))
                problems.push_back(where + Describe(c) + " has no mnemonic");
        } else if (!reached[i]) {
            // A field without a label of its own follows a control the
            // keyboard reaches, one Tab on.
            const bool follows = previousInput && reached[*previousInput] && (c.style & WS_TABSTOP) != 0;
            reached[i] = follows;
            if (!follows)
                problems.push_back(where + Describe(c) + " cannot be reached from any mnemonic");
        }
        previousInput = i;
    }
    return problems;
}

std::string Join(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += "\n  " + line;
    return text;
}

ControlTemplate Control(UINT id, ControlKind kind, const char16_t* caption)
{
    return ControlTemplate{id, kind, caption, 0, 0, 10, 10, kind == ControlKind::Static ? 0u : DWORD{WS_TABSTOP},
                           {}, {}};
}

} // namespace

TEST(TemplateKeyboard, EveryTemplateOfTheResourcesCanBeWorkedFromTheKeyboard)
{
    const auto table = ResourceTable::LoadEmbedded();
    const auto window = table->GetDialogTemplate(kTabDialogTemplate);
    ASSERT_NE(window, nullptr);
    std::vector<std::string> problems;
    int pages = 0;
    for (const UINT id : table->GetDialogIds()) {
        const auto t = table->GetDialogTemplate(id);
        // Every dialog of the module is a page of the shared tab dialog.
        const auto found = KeyboardProblems(*t, window.get());
        problems.insert(problems.end(), found.begin(), found.end());
        ++pages;
    }
    EXPECT_GE(pages, 10);
    EXPECT_TRUE(problems.empty()) << Join(problems);
}

TEST(TemplateKeyboard, TheRulesFindCollisionsMislabelledAndUnreachableControls)
{
    DialogTemplate window{
        kTabDialogTemplate,
        u"",
        100,
        100,
        {Control(IDOK, ControlKind::PushButton, u"OK"), Control(7, ControlKind::PushButton, u"&Apply")}};
    DialogTemplate page{500, u"", 100, 100, {}};
    page.controls = {
        Control(0, ControlKind::Static, u"&Variables:"), // names the list after it
        Control(10, ControlKind::List, u""),
        Control(11, ControlKind::Static, u"&Dependent:"), // focuses the button, not its list
        Control(12, ControlKind::PushButton, u"Add >"),
        Control(13, ControlKind::List, u""),
        Control(14, ControlKind::CheckBox, u"&All"), // Alt+A again: the window's Apply
        Control(15, ControlKind::Edit, u""),         // one Tab after All
        Control(16, ControlKind::GroupBox, u"&Limits"),
        Control(17, ControlKind::Static, u"Lower:"), // names the edit, no mnemonic
        Control(18, ControlKind::Edit, u""),
        Control(19, ControlKind::RadioButton, u"Fixed"), // no mnemonic of its own
        Control(20, ControlKind::Static, u"Tally &&Co"), // a plain '&', no mnemonic
        Control(21, ControlKind::PushButton, u"&Reset"),
    };
    const std::vector<std::string> problems = KeyboardProblems(page, &window);
    const std::vector<std::string> expected = {
        "template 500: Alt+a is taken by check 14 \"&All\", button 7 \"&Apply\"",
        "template 500: label 11 \"&Dependent:\": its mnemonic focuses button 12 \"Add >\", not a field it names",
        "template 500: list 13 cannot be reached from any mnemonic",
        "template 500: group 16 \"&Limits\": a group box's mnemonic has no control to focus",
        "template 500: label 17 \"Lower:\" names edit 18 but has no mnemonic",
        "template 500: radio 19 \"Fixed\" has no mnemonic",
    };
    EXPECT_EQ(problems, expected) << Join(problems);

    // Corrected, the same page passes.
    std::swap(page.controls[2], page.controls[3]); // the label right before its list
    page.controls[3].caption = u"D&ependents:";
    page.controls[5].caption = u"A&ll";
    page.controls[7].caption = u"Limits";
    page.controls[8].caption = u"L&ower:";
    page.controls[10].caption = u"&Fixed";
    EXPECT_EQ(KeyboardProblems(page, &window), std::vector<std::string>{}) << Join(KeyboardProblems(page, &window));
}
