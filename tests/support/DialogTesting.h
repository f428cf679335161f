// Shared pieces of the analyses' tests: names and lines as plain values,
// a changed value, a fixture that opens tab dialogs headless over a fake
// host as the launch routine does, the refusals of every ranged edit of a
// page, and the lines a restart leaves.
#pragma once

#include "Msg/LaunchDialog.h"
#include "Msg/MenuGroupMsg.h"
#include "Source/DlgStat2.h"
#include "framework/Fields.h"
#include "framework/GUIData.h"
#include "platform/HeadlessDriver.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace kaltest {

using Lines16 = std::vector<std::u16string>;
using Script = std::function<void(CHeadlessSession&)>;

inline std::vector<CString> Names(std::initializer_list<std::u16string> names)
{
    return {names.begin(), names.end()};
}

inline Lines16 LinesOf(const CGUIBaseObj& settings)
{
    CLIST<CCmdInfo> list;
    settings.GetCommandInfoList(list);
    return Lines(list);
}

// A value changed from its default, as a page leaves it.
template <class T>
CGUIData<T> Changed(T value, T defaultValue)
{
    return CGUIData<T>(0, value, defaultValue, 0, 1);
}

// The module loaded over a fake host with these variables, and the
// headless driver running every dialog.
class HeadlessDialogTest : public ::testing::Test {
protected:
    explicit HeadlessDialogTest(std::initializer_list<std::u16string> variables)
    {
        host.SetVariables(variables);
        module = GetModuleFactory(&host);
        previous = AfxSetDialogDriver(&driver);
    }
    ~HeadlessDialogTest() override
    {
        AfxSetDialogDriver(previous);
        module->Release();
    }

    // Opens a TDlg over `data` with a menu row's captions, as the launch
    // routine does, and runs `script` in it; `reassign` first puts the
    // defaults of the dialog's owner in place.
    template <class TDlg, class TData>
    INT_PTR Open(TData& data, const std::array<UINT, 4>& captions, const Script& script, bool reassign = false)
    {
        TDlg dialog;
        dialog.SetData(&data);
        dialog.SetCaptionIDs(captions);
        if (reassign)
            data.ReassignDefaultValue();
        data.FillListSource();
        driver.SetScript(script);
        open = &dialog;
        const INT_PTR result = dialog.DoModal();
        open = nullptr;
        return result;
    }
    static void Move(CHeadlessSession& s, UINT source, std::initializer_list<std::u16string> names, UINT button)
    {
        s.Select(source, Names(names));
        s.Click(button);
    }
    // OK is refused with `message` alone, and the dialog stays open on `control`.
    void ExpectRefused(CHeadlessSession& s, UINT message, UINT control)
    {
        host.messages.clear();
        s.Ok();
        EXPECT_TRUE(s.IsOpen());
        EXPECT_EQ(host.messages, std::vector<UINT>{message});
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(control)) << control;
    }

    FakeHost host;
    IModule* module = nullptr;
    CHeadlessDriver driver;
    CDialogDriver* previous = nullptr;
    CDialog* open = nullptr; // the dialog Open is running
};

// Every edit of page settings TData whose field has a range, bounds from
// the field table: text that is not a number, a number just below the
// range, one just above it and (unless the field is optional) an empty
// edit are each refused at OK with their message, after a turn to page
// `elsewhere`, and the dialog stays open on the edit; then its own text
// passes. `run(page, edit, refuse)` opens the dialog, puts the edit in use
// and calls `refuse`.
template <class TData>
void ExpectRangedEditsRefuse(FakeHost& host, int page, int elsewhere,
                             const std::function<INT_PTR(int page, UINT edit, const Script& refuse)>& run)
{
    int edits = 0;
    kal::ForEachField<TData>([&](const auto& field) {
        using T = typename std::remove_cvref_t<decltype(field)>::Type;
        constexpr bool real = std::is_same_v<T, CGUIData<double>>;
        if constexpr (real || std::is_same_v<T, CGUIData<int>>) {
            if (field.rangeMessage == 0 || field.control == 0)
                return;
            const auto number = [](double v) {
                std::ostringstream text;
                text << std::setprecision(real ? 6 : 12) << v;
                const std::string s = text.str();
                return std::u16string(s.begin(), s.end());
            };
            const UINT parse = real ? 2010 : 2011;
            std::vector<std::u16string> texts{u"abc", number(field.min - 1), number(field.max + 1)};
            // A whole number beyond what the holder can hold is not one.
            const bool unholdable = !real && field.max + 1 > std::numeric_limits<int>::max();
            std::vector<UINT> expected{parse, field.rangeMessage, unholdable ? parse : field.rangeMessage};
            if (!(field.flags & kal::kFieldOptional)) {
                texts.push_back({});
                expected.push_back(parse);
            }
            SCOPED_TRACE(field.control);
            host.messages.clear();
            const INT_PTR result = run(page, field.control, [&](CHeadlessSession& s) {
                s.Page(page);
                const CString good = s.Text(field.control);
                for (const std::u16string& text : texts) {
                    s.Page(page);
                    ASSERT_TRUE(s.Type(field.control, text)) << "not in use";
                    s.Page(elsewhere); // OK brings the page back
                    s.Ok();
                    ASSERT_TRUE(s.IsOpen());
                    EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(field.control));
                }
                s.Page(page);
                s.Type(field.control, good);
                s.Ok();
                EXPECT_FALSE(s.IsOpen());
            });
            EXPECT_EQ(result, IDOK);
            EXPECT_EQ(host.messages, expected);
            ++edits;
        }
    });
    EXPECT_GT(edits, 0);
}

// What a restart leaves of the settings of menu command `id`: their record
// with names, loaded into fresh settings and confirmed as `kalhost commands`
// confirms them. The lines they write.
template <class TData>
Lines16 LinesAfterRestart(FakeHost& host, const CMenuGroupMsg& handler, UINT id)
{
    const Bytes record = Store([&](CArchive& ar) { host.store.at(id)->Serialize(ar); }, CArchive::namedLists);
    TData restored;
    Load(record, CArchive::namedLists, [&](CArchive& ar) { restored.Serialize(ar); });
    const MenuCommandRow* row = handler.FindRow(id);
    CLIST<CCmdInfo> lines;
    if (!row || !row->IsAvailable() || !row->confirm(&host, id, *row, &restored, lines))
        ADD_FAILURE() << "command " << id << " confirms nothing";
    return Lines(lines);
}

} // namespace kaltest
