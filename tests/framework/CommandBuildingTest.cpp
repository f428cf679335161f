// The building services every settings class writes its lines with.
#include "framework/GUIBaseObj.h"
#include "framework/ResourceUtil.h"
#include "framework/StringUtil.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <utility>

using namespace kaltest;

namespace {

class CommandBuilding : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CGUIBaseObj settings;
};

CLIST<CCmdInfo> ListOf(std::initializer_list<std::u16string> lines)
{
    CLIST<CCmdInfo> list;
    for (const auto& l : lines)
        list.AddTail(CCmdInfo(CString(l)));
    return list;
}

} // namespace

TEST_F(CommandBuilding, EmptyLinesAreNeverAppendedAndKeywordOnlyLinesAre)
{
    CLIST<CCmdInfo> list;
    AppendCommandLine(list, CString());
    AppendCommandLine(list, CString(u"COVAR "));
    settings.AddStringCmd(u"", list, u"", u"", 1);
    settings.AddStringCmd(u"x+y", list, u"SPECIFY ", u"", 1);
    settings.AddStringCmd(u"never", list, u"SPECIFY ", u"", 0);
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"COVAR ", u"SPECIFY x+y"}));
    EXPECT_EQ(list.GetAt(0).m_nKind, 0);
}

TEST_F(CommandBuilding, AModuleLineIsTheResourceText)
{
    CLIST<CCmdInfo> list;
    settings.AddModuleCmd(12894, list);
    settings.AddModuleCmd(12933, list);
    settings.AddModuleCmd(4242424, list); // unknown id: empty text, no line
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"ANOVA", u"QC"}));
}

TEST_F(CommandBuilding, VariablesAreJoinedAndQuotedWhenNotPlainNames)
{
    CString line(u"DEPEND ");
    settings.AddVariables(line, Vars({u"Y", u"b.2", u"_x$", u"two words", u"O'Brien", u"9lives", u"$x"}), u" ");
    EXPECT_EQ(line, CString(u"DEPEND Y b.2 _x$ 'two words' 'O''Brien' '9lives' '$x'"));

    CString empty(u"COVAR ");
    settings.AddVariables(empty, Vars({}), u" ");
    EXPECT_EQ(empty, CString(u"COVAR "));
    EXPECT_EQ(settings.GetMixedDataVariable(Vars({u"A", u"B"}), u" * "), CString(u"A * B"));
    EXPECT_EQ(settings.GetMixedDataVariable(Vars({u"A"}), u"+"), CString(u"A"));
}

TEST_F(CommandBuilding, NamesWithControlCharactersAreLeftOutAndReported)
{
    {
        // The host's report names the variable, its control characters shown.
        std::ostringstream err;
        std::streambuf* previous = std::cerr.rdbuf(err.rdbuf());
        CString line(u"COVAR ");
        settings.AddVariables(line, Vars({u"tab\tname", u"bell\u0007"}), u" ");
        std::cerr.rdbuf(previous);
        EXPECT_NE(err.str().find(": the variable \"tab\\tname\" holds a control character"), std::string::npos)
            << err.str();
        EXPECT_NE(err.str().find("\"bell\\x07\""), std::string::npos) << err.str();
    }
    AssertionCapture capture;
    CString line(u"DEPEND ");
    settings.AddVariables(line, Vars({u"Y", u"bad\nESTIMATE", u"Z", u"tab\tname"}), u" ");
    EXPECT_EQ(line, CString(u"DEPEND Y Z"));
    EXPECT_EQ(capture.reports.size(), 2u);

    CLIST<CCmdInfo> list;
    AppendCommandLine(list, CString(u"A\nB"));
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(CommandBuilding, NamesAreQuotedByEveryUnitTheyHold)
{
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"a$"), CString(u"a$"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"_"), CString(u"_"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"$"), CString(u"'$'"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"a$$"), CString(u"'a$$'"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"a$b"), CString(u"'a$b'"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u".5"), CString(u"'.5'"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"gr\u00F6\u00DFe"), CString(u"'gr\u00F6\u00DFe'"));
    EXPECT_EQ(CGUIBaseObj::QuoteName(u"''"), CString(u"''''''"));
}

TEST_F(CommandBuilding, ALineOfNamesQuotesEachAsQuoteNameDoes)
{
    // A line reads its names several units at a time: every length around
    // those pieces, with a unit that matters at every place of the name.
    CGUIArray<CGUIDataVariable> list;
    std::u16string expected = u"VARS ";
    for (std::size_t length = 1; length <= 18; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            for (const char16_t unit : {u'a', u'7', u'_', u'.', u'$', u' ', u'\'', u'\u00E9'}) {
                std::u16string name(length, u'x');
                name[at] = unit;
                list.Add(CGUIDataVariable(CString(name), NmsEnum::VT_NUMERIC));
                expected += (expected.size() > 5 ? u"," : u"") + CGUIBaseObj::QuoteName(CString(name)).Str();
            }
        }
    }
    CString line(u"VARS ");
    settings.AddVariables(line, list, u",");
    EXPECT_EQ(line.Str(), expected);

    // The text around the names is looked at too: a control character
    // there keeps the line out of the list.
    for (const auto& [prefix, separator] : {std::pair(u"VARS\n", u","), std::pair(u"VARS ", u"\t")}) {
        CString bad(prefix);
        settings.AddVariables(bad, list, separator);
        AssertionCapture capture;
        CLIST<CCmdInfo> lines;
        AppendCommandLine(lines, bad);
        EXPECT_TRUE(lines.IsEmpty());
        EXPECT_EQ(capture.reports.size(), 1u);
    }
}

TEST_F(CommandBuilding, LongListsStayJoinedAroundLeftOutNamesAndOutgrowTheirRoom)
{
    // Most names are quoted and hold quotes of their own, so that they take
    // more room written than any name of the list suggests; names with
    // control characters come first, in the middle and last.
    CGUIArray<CGUIDataVariable> list;
    const auto add = [&list](const std::u16string& name) {
        list.Add(CGUIDataVariable(CString(name), NmsEnum::VT_NUMERIC));
    };
    add(u"first\tbad");
    std::u16string expected = u"MODEL Y = ";
    for (int i = 0; i < 2000; ++i) {
        if (i == 1000)
            add(u"middle\nbad");
        const std::u16string n = CString::FromNumber(i).Str();
        add(i % 10 == 0 ? u"V" + n : u"it's '" + n + u"'");
        if (i > 0)
            expected += u"+";
        expected += i % 10 == 0 ? u"V" + n : u"'it''s ''" + n + u"'''";
    }
    add(u"last\u007Fbad");

    AssertionCapture capture;
    CString line(u"MODEL Y = ");
    const CString before = line;
    settings.AddVariables(line, list, u"+");
    EXPECT_EQ(line.Str(), expected);
    EXPECT_EQ(before, CString(u"MODEL Y = ")); // shared with the line until it grew
    EXPECT_EQ(capture.reports.size(), 3u);

    // The line goes into the list as it is, not copied.
    CLIST<CCmdInfo> lines;
    const CString written = line;
    AppendCommandLine(lines, std::move(line));
    EXPECT_TRUE(lines.GetTail().m_strCommand.SharesBufferWith(written));
}

TEST_F(CommandBuilding, ValueClausesFollowTheDefaultAndTheWriteAllPreference)
{
    const CGUIData<int> iterations(20);
    const CGUIData<int> changed(0, 35, 20, 0, 1);
    EXPECT_EQ(settings.AddEditValueCmd(changed, iterations, 0, u" ITER = ", 1), CString(u" ITER = 35"));
    EXPECT_EQ(settings.AddEditValueCmd(iterations, iterations, 0, u" ITER = ", 1), CString());
    EXPECT_EQ(settings.AddEditValueCmd(iterations, iterations, 1, u" ITER = ", 1), CString(u" ITER = 20"));
    EXPECT_EQ(settings.AddEditValueCmd(changed, iterations, 0, u" ITER = ", 0), CString());
    EXPECT_EQ(settings.AddEditValueCmd(changed, u" ITER = ", 1), CString(u" ITER = 35"));
    EXPECT_EQ(settings.AddEditValueCmd(0.0, 1.0, 0, u" GAMMA=", 1), CString(u" GAMMA=0"));
    EXPECT_EQ(settings.AddEditValueCmd(CString(u"x"), CString(u"x"), 0, u" T = ", 1), CString());

    host.writeEveryOption = true;
    EXPECT_EQ(settings.AddEditValueCmd(iterations, iterations, 0, u" ITER = ", 1), CString(u" ITER = 20"));
    EXPECT_EQ(settings.AddEditValueCmd(1e-12, 1e-12, 0, u" CONV=", 1), CString(u" CONV=1e-12"));
}

TEST_F(CommandBuilding, ChangedValueRuleReadsStateAndFirstFlag)
{
    // What the settings classes write with: keyword and value under the rule,
    // and the state query, its opposite.
    const CGUIData<double> tolerance(1e-12);
    CGUIData<double> typed = tolerance;
    typed.m_nState = 0;
    EXPECT_EQ(settings.AddChangedValueCmd(u" TOL = ", tolerance), CString());
    EXPECT_EQ(settings.AddChangedValueCmd(u" TOL = ", typed), CString(u" TOL = 1e-12"));
    EXPECT_EQ(settings.GetValueState(tolerance), 1);
    host.writeEveryOption = true;
    EXPECT_EQ(settings.AddChangedValueCmd(u" TOL = ", tolerance), CString(u" TOL = 1e-12"));
    EXPECT_EQ(settings.GetValueState(tolerance), 0);
    host.writeEveryOption = false;

    const CGUIData<double> atDefault(0.001);
    CGUIData<double> edited = atDefault;
    edited.m_nState = 0;
    CGUIData<double> fixed = atDefault;
    fixed.m_nFlag1 = 1;
    EXPECT_FALSE(atDefault.IsToBeWritten(false));
    EXPECT_TRUE(edited.IsToBeWritten(false));
    EXPECT_TRUE(atDefault.IsToBeWritten(true));
    EXPECT_FALSE(fixed.IsToBeWritten(true));
}

TEST_F(CommandBuilding, NumbersUseTheHostDecimalSeparator)
{
    const CGUIData<double> lower(0.95);
    const CGUIData<double> upper(1234567.0);
    EXPECT_EQ(settings.AppendLimits(lower, upper, u" LIMITS=", 1), CString(u" LIMITS=0.95,1.23457e+06"));
    EXPECT_EQ(settings.AppendLimits(lower, upper, u" LIMITS=", 0), CString());
    host.decimalSeparator = u',';
    EXPECT_EQ(settings.AppendEditValueCmd(lower, u" SIGMA="), CString(u" SIGMA=0,95"));
    // The bounds' separator may not read as a decimal comma.
    EXPECT_EQ(settings.AppendLimits(lower, upper, u" LIMITS=", 1), CString(u" LIMITS=0,95;1,23457e+06"));
    EXPECT_EQ(settings.AddOnConditionCmd(CGUIData<int>(3), 1), CString(u"3"));
    EXPECT_EQ(settings.AddOnConditionCmd(CGUIData<int>(3), 0), CString());
    EXPECT_EQ(settings.AddOnConditionCmd(u" MISS", CGUIDataWnd<int>(1, 0)), CString(u" MISS"));
    EXPECT_EQ(settings.AddOnConditionCmd(u" MISS", CGUIDataWnd<int>(0, 1)), CString());
}

TEST_F(CommandBuilding, SaveLinesQuoteTheFileAndRefuseControlCharacters)
{
    CLIST<CCmdInfo> list;
    settings.AddSaveCmd(u"out.kvd", list, u"RESIDUALS/DATA", u"");
    settings.AddSaveCmd(u"it's here.kvd", list, u"", u"");
    settings.AddSaveCmd(u"a.kvd", list, u"MODEL", u"EXTRA");
    {
        AssertionCapture capture;
        settings.AddSaveCmd(u"evil.kvd'\nQUIT", list, u"MODEL", u"");
        EXPECT_EQ(capture.reports.size(), 1u);
    }
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"SAVE 'out.kvd' / RESIDUALS/DATA", u"SAVE 'it''s here.kvd'",
                                                        u"SAVE 'a.kvd' / MODEL EXTRA"}));
}

TEST_F(CommandBuilding, LinesAreFoundAndEditedByIndex)
{
    auto list = ListOf({u"ANOVA", u"DEPEND Y", u"ESTIMATE "});
    EXPECT_EQ(CStringUtil::SearchString(list, u"ESTIMATE"), 2);
    EXPECT_EQ(CStringUtil::SearchString(list, u"Y"), 1);
    EXPECT_EQ(CStringUtil::SearchString(list, u"MODEL"), -1);
    EXPECT_EQ(CStringUtil::SearchStringAtBeginning(list, u"Y"), -1);
    EXPECT_EQ(CStringUtil::SearchStringAtBeginning(list, u"DEPEND"), 1);
    EXPECT_FALSE(CStringUtil::StringFoundAtIndex(list, u"/", 2));
    EXPECT_FALSE(CStringUtil::StringFoundAtIndex(list, u"ANOVA", 7));

    CStringUtil::ReplaceStringAt(list, 2, u"ESTIMATE", u"ESTIMATE / ");
    CStringUtil::ConcatStringAt(list, u"SS = TYPE3", -1);
    const CString second(u" MISS");
    CStringUtil::ConcatStringAt(list, u" / REPLACE", 1, &second);
    CStringUtil::ConcatStringAt(list, u"ignored", 9);
    CStringUtil::InsertStringAt(list, u"COVAR X", 2);
    CStringUtil::InsertStringAt(list, u"PRINT = 2", list.GetCount());
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"ANOVA", u"DEPEND Y / REPLACE MISS", u"COVAR X",
                                                        u"ESTIMATE /  SS = TYPE3", u"PRINT = 2"}));
    EXPECT_TRUE(CStringUtil::StringFoundAtIndex(list, u"/", 3));

    AssertionCapture capture;
    CStringUtil::ConcatStringAt(list, u"\nQUIT", -1);
    EXPECT_EQ(list.GetTail().m_strCommand, CString(u"PRINT = 2"));
    EXPECT_EQ(capture.reports.size(), 1u);
}

TEST_F(CommandBuilding, SlashesAndTrailingCharactersAreTidied)
{
    auto list = ListOf({u"XBAR Y / / LIMITS=3 /", u"ESTIMATE /", u"CATEGORY A / REPLACE"});
    CStringUtil::RemoveRedundantSlash(list, 0);
    CStringUtil::RemoveRedundantSlash(list, 1);
    CStringUtil::RemoveRedundantSlash(list, -1);
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"XBAR Y / LIMITS=3 ", u"ESTIMATE ", u"CATEGORY A / REPLACE"}));

    CString clause(u" NTEST = KS, AD,");
    CStringUtil::RemoveTrailingChar(clause, u',');
    EXPECT_EQ(clause, CString(u" NTEST = KS, AD"));
    CStringUtil::RemoveTrailingChar(clause, u',');
    EXPECT_EQ(clause, CString(u" NTEST = KS, AD"));
    CString estimate(u"ESTIMATE /");
    CStringUtil::RemoveTrailingChar(estimate, u'/');
    EXPECT_EQ(estimate, CString(u"ESTIMATE "));

    CString name(u"it's");
    CStringUtil::AppendQuotes(name);
    EXPECT_EQ(name, CString(u"'it''s'"));
    CStringArray lines;
    CStringUtil::GetStringLines(u"a\r\nb\nc", lines);
    ASSERT_EQ(lines.GetSize(), 3);
    EXPECT_EQ(lines[2], CString(u"c"));
}

TEST_F(CommandBuilding, ASlashInsideAQuotedNameIsNoOptionSeparator)
{
    auto list = ListOf({u"DEPEND 'a/b' c", u"SAVE 'x/y.kvd' / MODEL", u"MODEL 'MODEL x' = A"});
    EXPECT_FALSE(CStringUtil::StringFoundAtIndex(list, u"/", 0));
    EXPECT_TRUE(CStringUtil::StringFoundAtIndex(list, u"/", 1));
    EXPECT_EQ(CStringUtil::SearchString(list, u"/"), 1);
    EXPECT_EQ(CStringUtil::SearchString(list, u"MODEL x"), -1);
    // A doubled quote inside a name does not end it.
    EXPECT_EQ(CStringUtil::FindOutsideQuotes(u"A 'it''s/' / B", u"/"), 11);
    CStringUtil::ReplaceStringAt(list, 2, u"MODEL", u"MODEL /");
    EXPECT_EQ(list.GetAt(2).m_strCommand, CString(u"MODEL / 'MODEL x' = A"));
    auto slashes = ListOf({u"XBAR 'a/ /b' / / Z"});
    CStringUtil::RemoveRedundantSlash(slashes, 0);
    EXPECT_EQ(slashes.GetAt(0).m_strCommand, CString(u"XBAR 'a/ /b' / Z"));
}

TEST_F(CommandBuilding, ComboAndRadioLookupsUseTheDialogsList)
{
    EXPECT_EQ(CComboUtil::GetComboString(1092, 6, 8009), CString(u"RESIDUALS/DATA"));
    EXPECT_EQ(CComboUtil::GetComboString(1092, 4, 8010), CString(u"RESIDUALS/DATA"));
    EXPECT_EQ(CComboUtil::GetComboString(1092, 2, 8010), CString(u"MODEL"));
    EXPECT_EQ(CComboUtil::GetComboString(1422, 2, 2002), CString(u"SSCP")); // shared list, any dialog
    EXPECT_EQ(CComboUtil::GetComboItem(1422, 0, 0), 12480u);
    EXPECT_EQ(CComboUtil::GetComboItem(4370, 8, 0), 12297u);
    EXPECT_EQ(CComboUtil::GetComboItem(4370, 3, 0), 0u);
    // Index -1, an index past the end and an unknown combo give nothing.
    EXPECT_EQ(CComboUtil::GetComboString(1092, -1, 8009), CString());
    EXPECT_EQ(CComboUtil::GetComboString(1092, 7, 8009), CString());
    EXPECT_EQ(CComboUtil::GetComboItem(9999, 0, 0), 0u);
    EXPECT_EQ(CComboUtil::GetComboCount(1092, 8010), 5);

    EXPECT_EQ(CRadioUtil::GetRadioItem(1084, 2), 1086u);
    EXPECT_EQ(CRadioUtil::GetRadioItem(1398, 0), 1407u);
    EXPECT_EQ(CRadioUtil::GetRadioItem(1084, 3), 0u);
    EXPECT_EQ(CRadioUtil::GetRadioItem(1084, -1), 0u);
    EXPECT_EQ(CRadioUtil::GetRadioIndex(1423, 1445), 3);

    CLIST<CCmdInfo> list;
    CCommandUtil::GeneratePrintReset(list, 3);
    EXPECT_EQ(Lines(list), (std::vector<std::u16string>{u"PRINT = 3"}));
    CString text;
    EXPECT_TRUE(CCommandUtil::GetCommandFromIDS(12914, text));
    EXPECT_EQ(text, CString(u"LOGIT"));
}

TEST_F(CommandBuilding, WithoutAHostTheDefaultsApply)
{
    KalUseRes::SetGlobalResourceHandle(nullptr);
    EXPECT_EQ(CComboUtil::GetComboString(1092, 6, 8009), CString());
    EXPECT_EQ(settings.GetModuleCommand(12894), CString());
    KalUseRes::SetGlobalResourceHandle(&host.Resources());
}
