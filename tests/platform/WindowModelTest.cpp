// The window model on its own: templates, radio groups, grids, data
// exchange, user input and the headless driver.
#include "platform/DataExchange.h"
#include "platform/Diagnostics.h"
#include "platform/HeadlessDriver.h"
#include "platform/TextIndex.h"
#include "platform/UserInput.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

ControlTemplate Control(UINT id, ControlKind kind, const char16_t* caption = u"", DWORD style = WS_TABSTOP)
{
    ControlTemplate t;
    t.id = id;
    t.kind = kind;
    t.caption = caption;
    t.style = style;
    return t;
}

std::shared_ptr<const DialogTemplate> TestTemplate(UINT id)
{
    if (id != 500)
        return nullptr;
    auto t = std::make_shared<DialogTemplate>();
    t->id = 500;
    t->caption = u"Test";
    t->controls = {
        Control(1, ControlKind::PushButton, u"OK"),
        Control(2, ControlKind::PushButton, u"Cancel"),
        Control(10, ControlKind::RadioButton, u"a", WS_GROUP),
        Control(11, ControlKind::RadioButton, u"b"),
        Control(12, ControlKind::RadioButton, u"c"),
        Control(20, ControlKind::RadioButton, u"x", WS_GROUP),
        Control(21, ControlKind::RadioButton, u"y"),
        Control(30, ControlKind::Edit),
        Control(31, ControlKind::CheckBox, u"check", WS_DISABLED),
        Control(40, ControlKind::Grid),
        Control(50, ControlKind::ComboBox),
    };
    t->controls[9].columns = {u"No.", u"Name"};
    return t;
}

// A dialog with a number field and a click counter.
class TestDialog : public CDialog {
public:
    TestDialog() : CDialog(500) {}
    int number = 7;
    int radio = 1;
    int clicks = 0;
    CEdit edit;

    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, 30, edit);
        DDX_Text(pDX, 30, number);
        DDX_Radio(pDX, 10, radio);
    }
    void OnRadio() { ++clicks; }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TestDialog, CDialog)
    ON_COMMAND_RANGE(10, 12, &TestDialog::OnRadio)
END_MESSAGE_MAP()

class WindowModel : public ::testing::Test {
protected:
    WindowModel()
    {
        kal::SetDialogTemplateSource(TestTemplate);
        kal::SetMessageBoxSink([this](UINT id, const CString&) { messages.push_back(id); });
        previous = AfxSetDialogDriver(&driver);
    }
    ~WindowModel() override
    {
        AfxSetDialogDriver(previous);
        kal::SetDialogTemplateSource({});
        kal::SetMessageBoxSink({});
    }

    CHeadlessDriver driver;
    CDialogDriver* previous;
    std::vector<UINT> messages;
};

} // namespace

TEST_F(WindowModel, RadioClicksKeepOneButtonOfTheirGroupChecked)
{
    TestDialog dialog;
    driver.SetScript([&](CHeadlessSession& s) {
        EXPECT_EQ(s.IsChecked(11), 1); // loaded from radio = 1
        s.Click(12);
        EXPECT_EQ(s.IsChecked(11), 0);
        EXPECT_EQ(s.IsChecked(12), 1);
        s.Click(20);
        EXPECT_EQ(s.IsChecked(12), 1); // another group
        EXPECT_EQ(dialog.clicks, 1);
        s.Ok();
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.radio, 2);
}

TEST_F(WindowModel, ANumberThatDoesNotParseKeepsTheDialogOpen)
{
    TestDialog dialog;
    driver.SetScript([&](CHeadlessSession& s) {
        EXPECT_EQ(s.Text(30), CString(u"7"));
        s.Type(30, u"12x");
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        s.Type(30, u" 42 ");
        s.Ok();
        EXPECT_FALSE(s.IsOpen());
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(messages, std::vector<UINT>{AFX_IDP_PARSE_INT});
    EXPECT_EQ(dialog.number, 42);
    EXPECT_EQ(dialog.edit.GetDlgCtrlID(), 30u); // the member took the template's place
}

TEST_F(WindowModel, ScriptsThatStopEarlyLeaveTheDialogOpenAndBadActionsSayWhy)
{
    TestDialog dialog;
    driver.SetScript([](CHeadlessSession& s) {
        EXPECT_THROW(s.Click(999), HeadlessError);
        EXPECT_THROW(s.Select(30, {}), HeadlessError);
        EXPECT_THROW(s.Choose(50, 0), HeadlessError);
        EXPECT_THROW(s.Page(0), HeadlessError);
        // Each action on a control of the wrong kind, and a reset the
        // dialog has no button for, says what the control is not.
        const std::pair<std::function<void()>, std::string> wrongKinds[] = {
            {[&] { s.Click(30); }, "control 30 is not a button"},
            {[&] { s.Check(1, 1); }, "control 1 is not a check box"},
            {[&] { s.Type(31, u"x"); }, "control 31 is not an edit field"},
            {[&] { s.Reset(); }, "the current page has no reset button"},
        };
        for (const auto& [action, message] : wrongKinds) {
            try {
                action();
                ADD_FAILURE() << "no error: " << message;
            } catch (const HeadlessError& e) {
                EXPECT_EQ(e.what(), message);
            }
        }
        EXPECT_FALSE(s.Check(31, 1)); // disabled: no effect
        EXPECT_EQ(s.IsChecked(31), 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_TRUE(driver.LastLeftOpen());
}

TEST_F(WindowModel, GridsGrowByTheRowAfterTheLast)
{
    TestDialog dialog;
    driver.SetScript([](CHeadlessSession& s) {
        auto& grid = dynamic_cast<CGridCtrl&>(s.Find(40));
        EXPECT_EQ(grid.GetRowCount(), 1);
        EXPECT_EQ(grid.GetItemText(0, 1), CString(u"Name"));
        EXPECT_TRUE(s.Cell(40, 1, 1, u"first"));
        EXPECT_TRUE(s.Cell(40, 2, 1, u"second"));
        EXPECT_THROW(s.Cell(40, 4, 1, u"gap"), HeadlessError);
        EXPECT_THROW(s.Cell(40, 1, 0, u"fixed"), HeadlessError);
        EXPECT_EQ(grid.GetRowCount(), 3);
        EXPECT_EQ(grid.GetItemText(2, 0), CString(u"2"));
        grid.InsertRow(1);
        EXPECT_EQ(grid.GetItemText(2, 1), CString(u"first"));
        EXPECT_EQ(grid.GetItemText(3, 0), CString(u"3"));
        EXPECT_FALSE(grid.DeleteRow(0)); // the header row stays
        s.Cancel();
    });
    dialog.DoModal();
}

TEST_F(WindowModel, MissingTemplatesAndControlsAreReportedNotFatal)
{
    std::vector<std::pair<std::string, int>> reports;
    auto previousSink = kal::SetAssertionSink([&](const std::string& f, int l) { reports.emplace_back(f, l); });
    CDialog unknown(404);
    EXPECT_EQ(unknown.DoModal(), -1);
    TestDialog dialog;
    CDataExchange dx(&dialog, FALSE);
    EXPECT_EQ(dx.PrepareCtrl(30), nullptr); // not created yet
    kal::SetAssertionSink(std::move(previousSink));
    EXPECT_EQ(reports.size(), 2u);
}

TEST(ListControl, FindsItemsAndKeepsItsSelectionThroughInsertsAndDeletes)
{
    CListCtrl list;
    std::vector<CString> texts;
    for (int i = 0; i < 100; ++i)
        texts.push_back(CString(u"V") + CString::FromNumber(i));
    texts.push_back(u"V7"); // shown twice: the first one is found
    list.SetItems(texts);

    // Few texts: the list is read once against their index; many: the
    // list's own index. Both answer alike, a text asked twice included.
    const std::vector<CString> few{u"V42", u"V7", u"nope", u"V42"};
    EXPECT_EQ(list.FindItems(few), (std::vector<int>{42, 7, -1, 42}));
    EXPECT_EQ(list.FindItem(u"V7"), 7);
    EXPECT_EQ(list.FindItems(few), (std::vector<int>{42, 7, -1, 42}));
    EXPECT_EQ(list.FindItems(texts)[100], 7);

    list.SetSelection({3, 50, 3});
    EXPECT_EQ(list.GetSelectedItems(), (std::vector<int>{3, 50}));
    list.InsertItem(0, u"first"); // the items after it move up one
    EXPECT_EQ(list.GetSelectedItems(), (std::vector<int>{4, 51}));
    EXPECT_EQ(list.FindItem(u"V42"), 43);
    list.InsertItem(list.GetItemCount(), u"last");
    EXPECT_EQ(list.FindItem(u"last"), 102);
    std::vector<bool> marked(5, false);
    marked[0] = marked[4] = true; // "first" and the selected V3
    list.DeleteItems(marked);
    EXPECT_EQ(list.GetSelectedItems(), (std::vector<int>{49}));
    EXPECT_EQ(list.GetItemText(49), CString(u"V50"));
    EXPECT_EQ(list.FindItem(u"V3"), -1);
    list.SetItemSelected(0, true);
    EXPECT_EQ(list.GetSelectedCount(), 2);
}

TEST(TextIndex, LargeIndexesFindTheFirstOfEqualTextsAcrossCrowdedAndWrappingProbes)
{
    // Enough texts that the index fills its table region by region; every
    // third text repeats an earlier one, and a few hundred share one hash
    // that leads to the last slot, so their probes wrap to the start.
    constexpr int kCount = 90'000;
    constexpr int kDistinct = 60'000;
    constexpr int kCrowd = 300;
    std::vector<std::u16string> texts;
    for (int i = 0; i < kCount; ++i)
        texts.push_back(u"V" + CString::FromNumber(i % kDistinct).Str());
    const auto textOf = [&texts](int i) -> std::u16string_view { return texts[static_cast<std::size_t>(i)]; };
    const auto hashOf = [&](int i) { return i % kDistinct < kCrowd ? 0xFFFFFFFFu : CTextIndex::Hash(textOf(i)); };
    CTextIndex index;
    EXPECT_EQ(index.Build(kCount, textOf, hashOf), kDistinct);
    int misplaced = 0;
    for (int i = 0; i < kCount; ++i)
        misplaced += index.Find(texts[static_cast<std::size_t>(i)], hashOf(i), textOf) != i % kDistinct;
    EXPECT_EQ(misplaced, 0);
    EXPECT_EQ(index.Find(u"V60000", textOf), -1);
}

TEST(CommandRouting, MessageMapsWalkFromTheClassToItsBases)
{
    TestDialog dialog;
    EXPECT_TRUE(dialog.OnCmdMsg(WM_COMMAND, BN_CLICKED, 11));
    EXPECT_FALSE(dialog.OnCmdMsg(WM_COMMAND, BN_CLICKED, 13));
    EXPECT_FALSE(dialog.OnCmdMsg(WM_NOTIFY, BN_CLICKED, 11));
    EXPECT_EQ(dialog.clicks, 1);
    // The standard buttons fall through to OnOK / OnCancel.
    dialog.OnCmdMsg(WM_COMMAND, BN_CLICKED, IDCANCEL);
    EXPECT_EQ(dialog.GetModalResult(), IDCANCEL);
}
