// The machinery every analysis page stands on, tried on a small page of the
// test's own: the field table (defaults, reset, all-at-once copies, data
// exchange by control kind, ranges), role lists as rows (buttons, menu,
// drags, limits, conditions), the tab pages' interface and the confirm
// routine behind `kalhost commands`.
#include "framework/BaseGui.h"
#include "framework/BootStrapDlg.h"
#include "framework/GUIDataDlg.h"
#include "framework/GUIPageDlg.h"
#include "framework/GUITabData.h"
#include "framework/GUITabDlg.h"
#include "platform/HeadlessDriver.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kaltest;

namespace {

enum : UINT {
    IDD_PROBE = 9100,
    SOURCE = 9101,
    NUMBERS = 9102,
    ADD_NUMBERS = 9103,
    REMOVE_NUMBERS = 9104,
    NUMBERS_LABEL = 9105,
    ONE = 9106,
    ADD_ONE = 9107,
    REMOVE_ONE = 9108,
    CHECK = 9110,
    LEVEL = 9111,
    FILE_EDIT = 9112,
    CHOICE = 9114,
    CHOICE_2 = 9115,
    MENU_NUMBERS = 33010,
};

constexpr const char* kTemplate = R"({"dialogs": [{"id": 9100, "caption": "Probe", "size": [300, 200], "controls": [
    {"id": 9101, "kind": "list", "rect": [0, 0, 90, 100]},
    {"id": 9105, "kind": "label", "caption": "&Numbers:", "rect": [150, 0, 90, 9]},
    {"id": 9102, "kind": "list", "rect": [150, 10, 90, 40]},
    {"id": 9103, "kind": "button", "caption": "Add", "rect": [100, 10, 40, 14]},
    {"id": 9104, "kind": "button", "caption": "Remove", "rect": [100, 26, 40, 14]},
    {"id": 9106, "kind": "list", "rect": [150, 60, 90, 40]},
    {"id": 9107, "kind": "button", "caption": "Add", "rect": [100, 60, 40, 14]},
    {"id": 9108, "kind": "button", "caption": "Remove", "rect": [100, 76, 40, 14]},
    {"id": 9110, "kind": "check", "caption": "Level", "rect": [0, 110, 60, 10]},
    {"id": 9111, "kind": "edit", "rect": [70, 110, 60, 13]},
    {"id": 9112, "kind": "fileedit", "rect": [0, 130, 120, 13]},
    {"id": 9114, "kind": "radio", "caption": "A", "rect": [0, 150, 40, 10], "style": ["group"]},
    {"id": 9115, "kind": "radio", "caption": "B", "rect": [50, 150, 40, 10]},
    {"id": 14, "kind": "button", "caption": "Reset", "rect": [240, 180, 50, 14], "style": ["group"]}]}]})";

class CProbeData : public CGUIBaseObj {
public:
    CProbeData() { kal::ResetFields(*this); }

    static int GetDefaultCheck() { return 1; }
    static CGUIData<double> GetDefaultLevel() { return CGUIData<double>(0.95); }
    static CString GetDefaultFile() { return u"out.kvd"; }
    static int GetDefaultChoice() { return 1; }
    static int GetDefaultHidden() { return 7; }

    int GetAll(CVariableList& source, CVariableList& numbers, CVariableList& one, int& check, CGUIData<double>& level,
               CString& file, int& choice, int& hidden) const
    {
        return kal::CopyFieldsOut(*this, source, numbers, one, check, level, file, choice, hidden);
    }
    int SetAll(const CVariableList& source, const CVariableList& numbers, const CVariableList& one, int check,
               const CGUIData<double>& level, const CString& file, int choice, int hidden)
    {
        return kal::CopyFieldsIn(*this, source, numbers, one, check, level, file, choice, hidden);
    }
    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override
    {
        CString line(u"PROBE ");
        AddVariables(line, m_Numbers, u" ");
        AppendCommandLine(list, line + AddChangedValueCmd(u" / LEVEL = ", m_Level));
    }
    void Serialize(CArchive& ar) override { kal::SerializeValues(ar, m_Hidden, m_Check, m_Level); }

    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CProbeData>;
        return std::tuple{
            F::Source(&CProbeData::m_Source, SOURCE),
            F::List(&CProbeData::m_Numbers, NUMBERS),
            F::List(&CProbeData::m_One, ONE),
            F::Value(&CProbeData::m_Check, CHECK, &GetDefaultCheck),
            F::Value(&CProbeData::m_Level, LEVEL, &GetDefaultLevel).Range(0, 1),
            F::Value(&CProbeData::m_File, FILE_EDIT, &GetDefaultFile),
            F::Value(&CProbeData::m_Choice, CHOICE, &GetDefaultChoice),
            F::Value(&CProbeData::m_Hidden, 0, &GetDefaultHidden),
        };
    }

    CVariableList m_Source, m_Numbers, m_One;
    int m_Check, m_Choice, m_Hidden;
    CGUIData<double> m_Level;
    CString m_File;
};

// A page with one optional number: empty stands for its default.
constexpr const char* kOptionalTemplate = R"({"dialogs": [{"id": 9120, "caption": "Optional", "size": [100, 40],
    "controls": [{"id": 9121, "kind": "edit", "rect": [0, 0, 60, 13]}]}]})";

class COptionalData : public CGUIBaseObj {
public:
    COptionalData() { kal::ResetFields(*this); }
    static CGUIData<double> GetDefaultBound() { return CGUIData<double>(0.0); }
    int GetAll(CGUIData<double>& bound) const { return kal::CopyFieldsOut(*this, bound); }
    int SetAll(const CGUIData<double>& bound) { return kal::CopyFieldsIn(*this, bound); }
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<COptionalData>;
        return std::tuple{F::Value(&COptionalData::m_Bound, 9121, &GetDefaultBound).Range(0, 1).Optional()};
    }
    CGUIData<double> m_Bound;
};

class COptionalPage : public CGUIPageDlg<COptionalData> {
public:
    COptionalPage() : CGUIPageDlg(9120, nullptr) {}
};

class CProbePage : public CGUIPageDlg<CProbeData> {
public:
    explicit CProbePage(CWnd* parent = nullptr) : CGUIPageDlg(IDD_PROBE, parent)
    {
        SetSourceList(SOURCE);
        AddRoleList({.list = NUMBERS,
                     .add = ADD_NUMBERS,
                     .remove = REMOVE_NUMBERS,
                     .menuCommand = MENU_NUMBERS,
                     .menuLabel = NUMBERS_LABEL,
                     .acceptsStrings = [] { return false; },
                     .afterMove = [this] { ++moves; }});
        AddRoleList({.list = ONE,
                     .add = ADD_ONE,
                     .remove = REMOVE_ONE,
                     .removeEnabled = [this] { return mayRemove; },
                     .maxItems = 1});
    }
    void UpdateDependentWindows() override
    {
        CGUIPageDlg::UpdateDependentWindows();
        EnableCtrl(LEVEL, IsDlgButtonChecked(CHECK) != 0);
        ++rulesRun;
    }
    BOOL OnCmdMsg(UINT message, int code, UINT id, NMHDR* nm = nullptr, LRESULT* result = nullptr,
                  CCmdUI* ui = nullptr) override
    {
        if (message == WM_COMMAND && code == BN_CLICKED && id == CHECK) {
            UpdateDependentWindows();
            return TRUE;
        }
        return CGUIPageDlg::OnCmdMsg(message, code, id, nm, result, ui);
    }
    BOOL IsWindowEnabled() override { return inUse; }

    int moves = 0;
    int rulesRun = 0;
    bool mayRemove = true;
    bool inUse = true;
};

// Two probe pages; the record keeps them in the opposite order.
class CProbeTabData : public CGUITabData {
public:
    CProbeTabData() { LinkPages(); }
    CProbeTabData(const CProbeTabData& other) : CProbeTabData() { *this = other; }
    CProbeTabData& operator=(const CProbeTabData&) = default;
    PageList Pages() override { return {&first, &second}; }
    PageList ArchiveOrder() override { return {&second, &first}; }
    CProbeData first, second;
};

class CProbeTab : public CGUIDataDlg<CProbeTabData, CGUITabDlg> {
public:
    explicit CProbeTab(CWnd* = nullptr) : CGUIDataDlg(IDD, nullptr)
    {
        AddPage(first);
        AddPage(second);
    }
    int GetDependentVariableCount() override { return first.ListCtrl(NUMBERS).GetItemCount(); }
    CString GetUnavailableReason(CGUIBaseDlg& page) override
    {
        return &page == &second && secondUnavailable ? CString(u"not for these numbers") : CString();
    }
    CProbePage first{this}, second{this};
    bool secondUnavailable = false;
};

std::vector<CString> Items(std::initializer_list<std::u16string> names)
{
    return {names.begin(), names.end()};
}

class Page : public ::testing::Test {
protected:
    Page()
    {
        host.Resources().AddFile("probe.json", kTemplate);
        host.SetVariables({u"Y", u"X", u"S$"});
        previous = AfxSetDialogDriver(&driver);
    }
    ~Page() override { AfxSetDialogDriver(previous); }

    // Opens a page over `data` and runs `script` in it.
    INT_PTR Run(CProbeData& data, const std::function<void(CHeadlessSession&, CProbePage&)>& script)
    {
        CProbePage page;
        page.SetData(&data);
        CBaseGui::GetSourceVariable(&data.m_Source, NmsEnum::ADD_ALL_VARIABLES, 0);
        driver.SetScript([&](CHeadlessSession& s) { script(s, page); });
        return page.DoModal();
    }

    FakeHost host;
    HostScope scope{&host};
    CHeadlessDriver driver;
    CDialogDriver* previous = nullptr;
};

} // namespace

TEST_F(Page, TheFieldTableGivesDefaultsAndCopiesInMemberOrder)
{
    CProbeData data;
    EXPECT_EQ(data.m_Check, 1);
    EXPECT_EQ(data.m_Level, CGUIData<double>(0.95));
    EXPECT_EQ(data.m_File, CString(u"out.kvd"));
    EXPECT_EQ(data.m_Hidden, 7);

    data.SetAll(Vars({u"Y"}), Vars({u"X"}), {}, 0, CGUIData<double>(0.5), u"f", 0, 3);
    CVariableList source, numbers, one;
    int check = -1, choice = -1, hidden = -1;
    CGUIData<double> level;
    CString file;
    data.GetAll(source, numbers, one, check, level, file, choice, hidden);
    EXPECT_EQ(numbers.GetSize(), 1);
    EXPECT_EQ(std::vector<int>({check, choice, hidden}), std::vector<int>({0, 0, 3}));
    // Handing a member its own value leaves it alone.
    data.GetAll(data.m_Source, numbers, data.m_One, check, level, file, choice, hidden);
    EXPECT_EQ(data.m_Source.GetSize(), 1);

    kal::ResetFields(data, true);
    EXPECT_EQ(data.m_Source.GetSize(), 1); // a page's reset keeps the source
    EXPECT_EQ(data.m_Numbers.GetSize(), 0);
    EXPECT_EQ(data.m_Hidden, 7);
    kal::ResetFields(data);
    EXPECT_EQ(data.m_Source.GetSize(), 0);
}

TEST_F(Page, ControlsShowTheFieldsByTheirKindAndGiveThemBack)
{
    CProbeData data;
    data.m_Hidden = 42;
    Run(data, [](CHeadlessSession& s, CProbePage&) {
        EXPECT_EQ(s.IsChecked(CHECK), 1);
        EXPECT_EQ(s.Text(LEVEL), CString(u"0.95"));
        EXPECT_EQ(s.Text(FILE_EDIT), CString(u"out.kvd"));
        EXPECT_EQ(s.IsChecked(CHOICE_2), 1);
        EXPECT_EQ(s.Items(SOURCE), Items({u"Y", u"X", u"S$"}));
        s.Type(LEVEL, u" 0.5 ");
        s.Type(FILE_EDIT, u"  new.kvd ");
        s.Click(CHOICE);
        s.Ok();
    });
    EXPECT_EQ(data.m_Level.m_Value, 0.5);
    EXPECT_EQ(data.m_Level.m_nState, 0); // no longer its default
    EXPECT_EQ(data.m_File, CString(u"new.kvd"));
    EXPECT_EQ(data.m_Choice, 0);
    EXPECT_EQ(data.m_Hidden, 42); // no control: kept as it was
}

TEST_F(Page, RefusedEntriesKeepThePageOpenOnTheirControl)
{
    CProbeData data;
    Run(data, [this](CHeadlessSession& s, CProbePage&) {
        s.Type(LEVEL, u"1.5");
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(LEVEL));
        s.Type(LEVEL, u"");
        s.Ok();
        s.Type(LEVEL, u"1e");
        s.Ok();
        EXPECT_EQ(host.messages, (std::vector<UINT>{2012, 2010, 2010}));
        // A range applies while its control is in use; an edit the user
        // cannot reach refuses nothing, and its text counts when it is a
        // number.
        s.Type(LEVEL, u"7");
        s.Check(CHECK, 0);
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_EQ(data.m_Level.m_Value, 7);
    Run(data, [](CHeadlessSession& s, CProbePage& page) {
        s.Check(CHECK, 1);
        s.Type(LEVEL, u"not now");
        page.EnableCtrl(LEVEL, FALSE);
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_EQ(data.m_Level.m_Value, 7);
}

TEST_F(Page, AnOptionalNumberIsEmptyAtItsDefaultAndEmptyGivesTheDefaultBack)
{
    host.Resources().AddFile("optional.json", kOptionalTemplate);
    COptionalData data;
    const auto run = [&](const std::function<void(CHeadlessSession&)>& script) {
        COptionalPage page;
        page.SetData(&data);
        driver.SetScript(script);
        return page.DoModal();
    };
    run([](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(9121), CString());
        s.Type(9121, u"0.25");
        s.Ok();
    });
    EXPECT_EQ(data.m_Bound, CGUIData<double>(0, 0.25, 0.0, 0, 1));

    // A value the user gave is shown; blanks give the default back; a
    // typed default counts as none given.
    run([](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(9121), CString(u"0.25"));
        s.Type(9121, u"  ");
        s.Ok();
    });
    EXPECT_EQ(data.m_Bound, CGUIData<double>(0.0));
    run([](CHeadlessSession& s) {
        s.Type(9121, u"0");
        s.Ok();
    });
    EXPECT_EQ(data.m_Bound, CGUIData<double>(0.0));

    // Anything else is read as usual: refused when not a number or out of
    // range.
    EXPECT_EQ(run([](CHeadlessSession& s) {
                  s.Type(9121, u"x");
                  s.Ok();
                  s.Type(9121, u"-1");
                  s.Ok();
                  EXPECT_TRUE(s.IsOpen());
                  s.Cancel();
              }),
              IDCANCEL);
    EXPECT_EQ(host.messages, (std::vector<UINT>{2010, 2012}));
    EXPECT_EQ(data.m_Bound, CGUIData<double>(0.0));
}

TEST_F(Page, EveryEditReadsNumbersByOneGrammar)
{
    host.Resources().AddFile("optional.json", kOptionalTemplate);
    // What is typed, and the value it gives, or the message that refuses it.
    const struct {
        std::u16string typed;
        double value;
        UINT message;
    } table[] = {
        {u" 0.25 ", 0.25, 0}, {u"+0.5", 0.5, 0},  {u".5", 0.5, 0},     {u"5e-1", 0.5, 0}, {u"-0", 0, 0},
        {u"1e-400", 0, 0},    {u"-1e-400", 0, 0}, {u"1e400", 0, 2010}, {u"+-1", 0, 2010}, {u"--1", 0, 2010},
        {u"++1", 0, 2010},    {u"1,5", 0, 2010},  {u"inf", 0, 2010},   {u"nan", 0, 2010}, {u"0x1p-1", 0, 2010},
        {u"1 e2", 0, 2010},   {u"2", 0, 2012},    {u"-0.5", 0, 2012},
    };
    for (const auto& row : table) {
        COptionalData data;
        data.m_Bound.m_Value = 0.75;
        host.messages.clear();
        COptionalPage page;
        page.SetData(&data);
        driver.SetScript([&](CHeadlessSession& s) {
            s.Type(9121, CString(row.typed));
            s.Ok();
            if (s.IsOpen())
                s.Cancel();
        });
        page.DoModal();
        const std::string typed = CString(row.typed).ToUtf8();
        if (row.message != 0) {
            EXPECT_EQ(host.messages, std::vector<UINT>{row.message}) << typed;
            continue;
        }
        EXPECT_TRUE(host.messages.empty()) << typed;
        EXPECT_EQ(data.m_Bound.m_Value, row.value) << typed;
        EXPECT_FALSE(std::signbit(data.m_Bound.m_Value)) << typed; // written as 0, never -0
    }
    EXPECT_EQ(CString::FromNumber(-0.0), CString(u"0"));
}

TEST_F(Page, RoleListsMoveByButtonMenuDragAndDoubleClick)
{
    CProbeData data;
    Run(data, [this](CHeadlessSession& s, CProbePage& page) {
        // The list takes numbers only, by every way in.
        s.Select(SOURCE, Items({u"S$"}));
        EXPECT_FALSE(s.IsEnabled(ADD_NUMBERS));
        EXPECT_TRUE(s.IsEnabled(ADD_ONE));
        s.Menu(SOURCE, MENU_NUMBERS);
        EXPECT_FALSE(driver.LastMenu().IsEnabled(MENU_NUMBERS));
        EXPECT_EQ(driver.LastMenu().Items()[0].caption, CString(u"Numbers"));
        s.Select(SOURCE, Items({u"S$"}));
        s.Drag(SOURCE, NUMBERS);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);
        EXPECT_TRUE(s.Items(NUMBERS).empty());

        s.Select(SOURCE, Items({u"Y"}));
        EXPECT_TRUE(s.Menu(SOURCE, MENU_NUMBERS));
        EXPECT_EQ(s.Items(NUMBERS), Items({u"Y"}));
        EXPECT_EQ(page.moves, 1);
        s.Select(SOURCE, Items({u"X"}));
        s.DoubleClick(SOURCE); // the first row fills
        EXPECT_EQ(s.Items(NUMBERS), Items({u"Y", u"X"}));
        EXPECT_EQ(page.moves, 2);

        s.Select(SOURCE, Items({u"X", u"Y"}));
        s.Click(ADD_ONE);
        EXPECT_EQ(s.Items(ONE), Items({u"Y"})); // at most one, in list order
        s.Select(SOURCE, Items({u"X"}));
        EXPECT_FALSE(s.IsEnabled(ADD_ONE));
        s.Drag(SOURCE, ONE);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);

        s.Select(ONE, Items({u"Y"}));
        EXPECT_TRUE(s.IsEnabled(REMOVE_ONE));
        page.mayRemove = false;
        s.Select(ONE, Items({u"Y"}));
        EXPECT_FALSE(s.IsEnabled(REMOVE_ONE));

        s.Select(NUMBERS, Items({u"Y"}));
        s.Drag(NUMBERS, ONE); // out of a target list: back to the source
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Remove);
        EXPECT_EQ(s.Items(NUMBERS), Items({u"X"}));
        EXPECT_EQ(page.moves, 3);

        s.Reset();
        EXPECT_TRUE(s.Items(NUMBERS).empty());
        EXPECT_EQ(s.Items(SOURCE).size(), 3u);
        s.Ok();
    });
    EXPECT_EQ(data.m_Numbers.GetSize(), 0);
    EXPECT_EQ(data.m_One.GetSize(), 0);
}

TEST_F(Page, ADoubleClickedTargetListGivesBackItsOwnSelection)
{
    CProbeData data;
    Run(data, [](CHeadlessSession& s, CProbePage&) {
        s.Select(SOURCE, Items({u"Y"}));
        s.Click(ADD_NUMBERS); // Y stays selected in the first list
        s.Select(SOURCE, Items({u"X"}));
        s.Click(ADD_ONE);
        s.DoubleClick(ONE);
        EXPECT_EQ(s.Items(NUMBERS), Items({u"Y"}));
        EXPECT_TRUE(s.Items(ONE).empty());
        s.DoubleClick(NUMBERS);
        EXPECT_TRUE(s.Items(NUMBERS).empty());
        s.Ok();
    });
}

TEST_F(Page, ADisabledListTakesNoDropAndNoMenuMove)
{
    CProbeData data;
    Run(data, [this](CHeadlessSession& s, CProbePage& page) {
        page.EnableCtrl(ONE, FALSE);
        page.EnableCtrl(NUMBERS, FALSE);
        s.Select(SOURCE, Items({u"Y"}));
        s.Drag(SOURCE, ONE);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Arrow);
        s.Menu(SOURCE, MENU_NUMBERS);
        EXPECT_FALSE(driver.LastMenu().IsEnabled(MENU_NUMBERS));
        EXPECT_TRUE(s.Items(ONE).empty());
        EXPECT_TRUE(s.Items(NUMBERS).empty());

        page.EnableCtrl(ONE, TRUE);
        s.Select(SOURCE, Items({u"Y"}));
        s.Drag(SOURCE, ONE);
        EXPECT_EQ(s.LastDragCursor(), CursorShape::Drop);
        EXPECT_EQ(s.Items(ONE), Items({u"Y"}));
        s.Cancel();
    });
}

TEST_F(Page, TabPagesGetTheirSettingsInPageOrderAndAnswerThroughTheTab)
{
    CProbeTabData data;
    CBaseGui::GetSourceVariable(&data.first.m_Source, NmsEnum::ADD_ALL_VARIABLES, 0);
    CProbeTab tab;
    tab.SetData(&data);
    CProbeData* second = nullptr;
    tab.second.GetData(second);
    EXPECT_EQ(second, &data.second);
    EXPECT_EQ(tab.FindPage<CProbePage>(), &tab.first);
    EXPECT_EQ(tab.FindPage<CBootStrapDlg>(), nullptr);

    driver.SetScript([&](CHeadlessSession& s) {
        s.Select(SOURCE, Items({u"Y"}));
        s.Click(ADD_NUMBERS);
        EXPECT_EQ(tab.GetDependentVariableCount(), 1);
        EXPECT_EQ(tab.first.GetTabDlg(), &tab);
        const int before = tab.second.rulesRun;
        tab.first.NotifyTab(); // the other pages' rules run again
        EXPECT_EQ(tab.second.rulesRun, before + 1);

        // A refused entry on another page brings that page to the front.
        s.Page(1);
        s.Type(LEVEL, u"2");
        s.Page(0);
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(tab.GetTabCtrl().GetCurSel(), 1);
        s.Type(LEVEL, u"0.25");
        tab.first.inUse = false;
        s.Ok();
    });
    EXPECT_EQ(tab.DoModal(), IDOK);
    // OK gives each page's settings the page's use as window state; a page
    // out of use writes nothing.
    EXPECT_EQ(data.first.GetWindowState(), 0);
    CLIST<CCmdInfo> lines;
    data.GetCommandInfoList(lines);
    EXPECT_EQ(Lines(lines), std::vector<std::u16string>{u"PROBE  / LEVEL = 0.25"});

    // A page the dialog shows as unavailable cannot be chosen and is out of
    // use at OK, whatever the page itself says.
    driver.SetScript([&](CHeadlessSession& s) {
        tab.secondUnavailable = true;
        tab.first.NotifyTab();
        EXPECT_FALSE(tab.GetTabCtrl().IsItemAvailable(1));
        EXPECT_EQ(tab.GetTabCtrl().GetItemReason(1), CString(u"not for these numbers"));
        EXPECT_FALSE(tab.second.CWnd::IsWindowEnabled());
        try {
            s.Page(1);
            ADD_FAILURE() << "an unavailable page was chosen";
        } catch (const HeadlessError& e) {
            EXPECT_EQ(std::string(e.what()), "page 1 is not available: not for these numbers");
        }
        s.Ok();
    });
    tab.first.inUse = true;
    EXPECT_EQ(tab.DoModal(), IDOK);
    EXPECT_EQ(data.first.GetWindowState(), 1);
    EXPECT_EQ(data.second.GetWindowState(), 0);

    // The record keeps the class's own page order; a copy's pages have the
    // copy as parent.
    data.first.m_Hidden = 1;
    data.second.m_Hidden = 2;
    const Bytes bytes = Store([&](CArchive& ar) { data.Serialize(ar); });
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 4), Int32(2));
    const CProbeTabData copy(data);
    CGUIBaseObj* parent = nullptr;
    copy.second.GetParent(parent);
    EXPECT_EQ(parent, &copy);
    EXPECT_EQ(copy.first.m_Numbers.GetSize(), 1);
}
