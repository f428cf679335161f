// Settings-base services over variable lists and texts.
#include "framework/BaseGui.h"
#include "framework/GUIBaseObj.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

std::vector<std::u16string> Names(const CGUIArray<CGUIDataVariable>& list)
{
    std::vector<std::u16string> names;
    for (const auto& v : list)
        names.push_back(v.GetVariableName().Str());
    return names;
}

} // namespace

TEST(UpdateCtrlList, KeepsOwnOrderThenAddsWhatTheSourceHasInSourceOrder)
{
    CGUIBaseObj obj;
    auto target = Vars({u"C", u"gone", u"A"});
    const auto source = Vars({u"A", u"B", u"C", u"D"});
    obj.UpdateCtrlList(&target, &source, 1);
    EXPECT_EQ(Names(target), (std::vector<std::u16string>{u"C", u"A", u"B", u"D"}));

    auto keepOnly = Vars({u"D", u"gone", u"B", u"D"});
    obj.UpdateCtrlList(&keepOnly, &source, 0);
    EXPECT_EQ(Names(keepOnly), (std::vector<std::u16string>{u"D", u"B"}));

    // A data sheet naming a column twice lists it once; an equal list keeps
    // its own entries (their selection flags among them).
    CGUIArray<CGUIDataVariable> empty;
    obj.UpdateCtrlList(&empty, &keepOnly, 1);
    EXPECT_EQ(Names(empty), (std::vector<std::u16string>{u"D", u"B"}));
    auto twice = Vars({u"X", u"Y", u"X"});
    CGUIArray<CGUIDataVariable> fresh;
    obj.UpdateCtrlList(&fresh, &twice, 1);
    EXPECT_EQ(Names(fresh), (std::vector<std::u16string>{u"X", u"Y"}));
    auto same = Vars({u"X", u"Y"});
    same[1].SetSelected(1);
    obj.UpdateCtrlList(&same, &fresh, 1);
    EXPECT_EQ(same[1].IsSelected(), 1);

    obj.UpdateCtrlList(nullptr, &source, 1); // no target: nothing to do

    // A source given away fills an empty target with its own entries, each
    // name once; into a filled target it is merged as any source is.
    CGUIArray<CGUIDataVariable> taken;
    auto given = Vars({u"X", u"Y", u"X"});
    const CString shared = given[1].GetVariableName();
    obj.UpdateCtrlList(&taken, std::move(given), 1);
    EXPECT_EQ(Names(taken), (std::vector<std::u16string>{u"X", u"Y"}));
    EXPECT_TRUE(taken[1].GetVariableName().SharesBufferWith(shared));
    obj.UpdateCtrlList(&taken, Vars({u"Y", u"Z"}), 1);
    EXPECT_EQ(Names(taken), (std::vector<std::u16string>{u"Y", u"Z"}));

    // A sheet too long for a table that fits the caches (indexed region by
    // region): every hundredth column repeats an earlier one.
    CGUIArray<CGUIDataVariable> sheet;
    std::vector<std::u16string> once;
    for (int i = 0; i < 40'000; ++i) {
        const std::u16string name = u"V" + CString::FromNumber(i % 100 == 99 ? i - 50 : i).Str();
        sheet.Add(CGUIDataVariable(CString(name), NmsEnum::VT_NUMERIC, i));
        if (i % 100 != 99)
            once.push_back(name);
    }
    CGUIArray<CGUIDataVariable> listed;
    obj.UpdateCtrlList(&listed, std::move(sheet), 1);
    EXPECT_EQ(Names(listed), once);
}

TEST(ListQueries, PresenceComparisonAndSelection)
{
    auto list = Vars({u"A", u"B"});
    EXPECT_EQ(CGUIBaseObj::CheckStringPresentinListCtrlArray(list, u"B"), 1);
    EXPECT_EQ(CGUIBaseObj::CheckStringPresentinListCtrlArray(list, u"b"), 0);
    EXPECT_EQ(CGUIBaseObj::CompareTwoListCtrlArrays(list, Vars({u"A", u"B"})), 1);
    EXPECT_EQ(CGUIBaseObj::CompareTwoListCtrlArrays(list, Vars({u"B", u"A"})), 0);

    list[1].SetSelected(1);
    CGUIArray<CGUIDataVariable> out = Vars({u"old"});
    CGUIBaseObj::GetListCtrlArrayElements(list, out, LIST_SELECTED_ELEMENTS, 0);
    EXPECT_EQ(Names(out), (std::vector<std::u16string>{u"B"}));
    CGUIBaseObj::GetListCtrlArrayElements(list, out, LIST_ALL_ELEMENTS, 1);
    EXPECT_EQ(Names(out), (std::vector<std::u16string>{u"B", u"A", u"B"}));
}

TEST(TextServices, NumbersExpressionsAndMatrices)
{
    for (const char16_t* yes : {u"1", u"-2.5", u" 3e-4 ", u".5", u"+7."})
        EXPECT_EQ(CGUIBaseObj::IsNumeric(yes), 1) << CString(yes).ToUtf8();
    for (const char16_t* no : {u"", u"-", u"1e", u"e5", u"1.2.3", u"12a", u"."})
        EXPECT_EQ(CGUIBaseObj::IsNumeric(no), 0) << CString(no).ToUtf8();

    CStringArray names;
    CGUIBaseObj::GetUniqueArrFromExpn(u"Y = A + B*A + 'x y' + 2.5e3*C$ + log(A)", names);
    std::vector<std::u16string> got;
    for (const auto& n : names)
        got.push_back(n.Str());
    EXPECT_EQ(got, (std::vector<std::u16string>{u"Y", u"A", u"B", u"x y", u"C$", u"log"}));

    CString text(u"A,B,");
    CGUIBaseObj::ReplaceEndChar(text, u',', u')');
    EXPECT_EQ(text, CString(u"A,B)"));
    EXPECT_EQ(CGUIBaseObj::GetSingleLineMatrixString(u"1 2\r\n3 4\n\n5\t6"), CString(u"1 2;3 4;5 6"));
}

TEST(SourceVariables, ComeFromTheHostsDataSheetFilteredByType)
{
    FakeHost host;
    HostScope scope(&host);
    host.SetVariables({u"Y", u"B$", u"X"});
    CGUIArray<CGUIDataVariable> all;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    EXPECT_EQ(Names(all), (std::vector<std::u16string>{u"Y", u"B$", u"X"}));
    EXPECT_EQ(all[1].GetVariableType(), NmsEnum::VT_STRING);
    EXPECT_EQ(all[2].GetColumn(), 2);

    CGUIArray<CGUIDataVariable> numeric;
    CBaseGui::GetSourceVariable(&numeric, NmsEnum::ADD_NUMERIC_VARIABLES, 0);
    EXPECT_EQ(Names(numeric), (std::vector<std::u16string>{u"Y", u"X"}));

    host.sheet.valid = false;
    CBaseGui::GetSourceVariable(&all, NmsEnum::ADD_ALL_VARIABLES, 0);
    EXPECT_EQ(all.GetSize(), 0);
}

TEST(DataVariable, NameAndLabelSurviveCopiesMovesAndRenamesInBothForms)
{
    // A variable without a label keeps its name in place; one with a label
    // keeps both in a shared record. Mixing the two through every copy and
    // move must never lose or mix up a text (the sanitizer build checks
    // that nothing is freed twice or leaked).
    CGUIDataVariable plain(u"height", NmsEnum::VT_NUMERIC, 1);
    CGUIDataVariable labelled(u"w", NmsEnum::VT_NUMERIC, 2, u"weight in kg");
    CGUIDataVariable copy = labelled;
    copy.SetVariableName(u"w2"); // the original's record is not changed
    EXPECT_EQ(labelled.GetVariableName(), CString(u"w"));
    EXPECT_EQ(copy.GetVariableName(), CString(u"w2"));
    EXPECT_EQ(copy.GetLabel(), CString(u"weight in kg"));

    copy = plain; // labelled form replaced by the plain one
    EXPECT_EQ(copy.GetVariableName(), CString(u"height"));
    EXPECT_TRUE(copy.GetLabel().IsEmpty());
    copy = copy;
    plain = std::move(labelled); // and the other way round, by a move
    EXPECT_EQ(plain.GetVariableName(), CString(u"w"));
    EXPECT_EQ(plain.GetLabel(), CString(u"weight in kg"));
    EXPECT_TRUE(labelled.GetVariableName().IsEmpty());
    labelled = plain;
    plain = std::move(plain);
    EXPECT_EQ(labelled.GetLabel(), plain.GetLabel());

    CGUIArray<CGUIDataVariable> list;
    for (int i = 0; i < 100; ++i)
        list.Add(i % 3 ? CGUIDataVariable(CString::FromNumber(i), NmsEnum::VT_NUMERIC)
                       : CGUIDataVariable(CString::FromNumber(i), NmsEnum::VT_NUMERIC, 0, u"third"));
    CGUIArray<CGUIDataVariable> moved = std::move(list);
    CGUIArray<CGUIDataVariable> copied = moved;
    moved.RemoveAll();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(copied[i].GetVariableName(), CString::FromNumber(i));
        EXPECT_EQ(copied[i].GetLabel().IsEmpty(), i % 3 != 0);
    }

    // The name's hash, by which long lists are indexed, follows the name
    // through copies, moves and renames.
    for (const CGUIDataVariable* v : {&plain, &labelled, &copy, &copied[3]})
        EXPECT_EQ(v->GetNameHash(), CTextIndex::Hash(v->GetVariableName().Str())) << v->GetVariableName().ToUtf8();
    const CGUIDataVariable taken = std::move(copy);
    EXPECT_EQ(copy.GetNameHash(), CTextIndex::Hash(u"")); // NOLINT(bugprone-use-after-move): moved from, nameless
}
