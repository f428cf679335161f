// Shared pieces of the analyses' tests: names and lines as plain values,
// a changed value, and a fixture that opens tab dialogs headless over a
// fake host as the launch routine does.
#pragma once

#include "Source/DlgStat2.h"
#include "framework/GUIData.h"
#include "platform/HeadlessDriver.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
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

    FakeHost host;
    IModule* module = nullptr;
    CHeadlessDriver driver;
    CDialogDriver* previous = nullptr;
    CDialog* open = nullptr; // the dialog Open is running
};

// Types each bad text (not a number, negative, `outOfRange`, empty) into
// edit `id` of page `page`, turns to page `elsewhere` and presses OK: the
// dialog stays open, back on the edit. Then the edit's own text passes.
inline void ExpectEditRefusesBadEntries(CHeadlessSession& s, int page, UINT id, const std::u16string& outOfRange,
                                        int elsewhere)
{
    s.Page(page);
    const CString good = s.Text(id);
    for (const std::u16string& text : {std::u16string(u"abc"), std::u16string(u"-1"), outOfRange, std::u16string()}) {
        s.Page(page);
        ASSERT_TRUE(s.Type(id, text));
        s.Page(elsewhere); // OK brings the page back
        s.Ok();
        ASSERT_TRUE(s.IsOpen());
        EXPECT_EQ(s.Dialog().GetFocusCtrl(), &s.Find(id));
    }
    s.Page(page);
    s.Type(id, good);
    s.Ok();
    EXPECT_FALSE(s.IsOpen());
}

} // namespace kaltest
