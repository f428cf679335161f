// ANOVA settings: what only settings can hold, the record bytes, and the
// factor list following the sheet's categorical marks; the lines the dialog
// reaches are held by tests/scripts/anova-*.kal.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

class AnovaSettings : public ::testing::Test {
protected:
    FakeHost host;
    HostScope scope{&host};
    CAnovaTabData tab;

    void SetModel(std::initializer_list<std::u16string> dependents, std::initializer_list<std::u16string> factors,
                  std::initializer_list<std::u16string> covariates, int missing = 0, int save = 0, int saveIndex = 6,
                  const CString& file = {})
    {
        tab.GetAnovaData()->SetAll(Vars({}), Vars(dependents), Vars(factors), Vars(covariates), missing, 0, save, 1,
                                   saveIndex, file);
    }
    void ConfirmOptions(int ks, int ad, int sw, int levene, int ss)
    {
        tab.GetAnovaOptionsData()->SetAll(ks, ad, sw, levene, ss);
        tab.GetAnovaOptionsData()->SetAllCheckState(1, 1, 1, 1, 1);
    }
    void Repeat(std::initializer_list<std::u16string> names, std::initializer_list<int> levels,
                std::initializer_list<std::u16string> metric)
    {
        CGUIArray<CString> n, m;
        for (const auto& s : names)
            n.Add(CString(s));
        for (const auto& s : metric)
            m.Add(CString(s));
        CGUIArray<int> l;
        for (const int v : levels)
            l.Add(v);
        tab.GetRepeatMeasuresData()->SetAll(1, n, l, m);
        tab.GetRepeatMeasuresData()->SetOwnerID(2263);
    }
    Lines16 Commands() const { return LinesOf(tab); }
};

} // namespace

TEST_F(AnovaSettings, PostHocChoicesChangeNoLine)
{
    SetModel({u"Y"}, {u"A"}, {});
    const Lines16 before = Commands();
    auto* model = tab.GetAnovaData();
    CGUIArray<CGUIDataVariable> s, d, f, c;
    int miss, postHoc, save, postHocIndex, saveIndex;
    CString file;
    model->GetAll(s, d, f, c, miss, postHoc, save, postHocIndex, saveIndex, file);
    model->SetAll(s, d, f, c, miss, 1, save, 3, saveIndex, file);
    EXPECT_EQ(Commands(), before);
}

TEST_F(AnovaSettings, OptionsCountWhileEnabledAtOkAndAnUnknownSumOfSquaresIsReported)
{
    SetModel({u"Y"}, {}, {});
    tab.GetAnovaOptionsData()->SetAllCheckState(0, 1, 1, 1, 0);
    ConfirmOptions(1, 0, 0, 0, 2);
    tab.GetAnovaOptionsData()->SetAllCheckState(0, 1, 1, 1, 0);
    EXPECT_EQ(Commands().back(), u"ESTIMATE /");

    // The clause stops after " SS =".
    AssertionCapture capture;
    ConfirmOptions(0, 0, 0, 0, 7);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / SS =");
    ASSERT_EQ(capture.reports.size(), 1u);
    EXPECT_EQ(capture.reports[0].first, "Source/KDGAnovaOptionsData");
}

TEST_F(AnovaSettings, OptionsWithoutAnEstimateLineWriteNothingAndASecondPageOnlyAppends)
{
    CAnovaOptionsData options;
    options.SetAll(1, 0, 0, 0, 2);
    options.SetAllCheckState(1, 1, 1, 1, 1);
    CLIST<CCmdInfo> list;
    AppendCommandLine(list, u"DEPEND Y");
    options.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), (Lines16{u"DEPEND Y"}));

    AppendCommandLine(list, u"ESTIMATE ");
    options.GetCommandInfoList(list);
    options.GetCommandInfoList(list);
    EXPECT_EQ(list.GetTail().m_strCommand, CString(u"ESTIMATE / NTEST = KS SS = TYPE3 NTEST = KS SS = TYPE3"));
}

TEST_F(AnovaSettings, RepeatClauseFollowsItsOwnerAndItsSwitch)
{
    CRepeatMeasuresData repeat;
    CGUIArray<CString> names{CString(u"a")};
    CGUIArray<int> levels{3};
    CGUIArray<CString> metric{CString()};
    repeat.SetAll(1, names, levels, metric);

    CLIST<CCmdInfo> list;
    AppendCommandLine(list, u"DEPEND A B C");
    AppendCommandLine(list, u"MODEL Y = X / CONSTANT");
    repeat.GetCommandInfoList(list); // owner 0: the MODEL line, which has a "/"
    EXPECT_EQ(list.GetAt(1).m_strCommand, CString(u"MODEL Y = X / CONSTANT REPEAT = 3"));
    repeat.SetOwnerID(2263);
    repeat.GetCommandInfoList(list);
    EXPECT_EQ(list.GetAt(0).m_strCommand, CString(u"DEPEND A B C/ REPEAT = 3"));

    repeat.SetAll(0, names, levels, metric);
    const Lines16 before = Lines(list);
    repeat.GetCommandInfoList(list);
    EXPECT_EQ(Lines(list), before);

    CGUIArray<int> twoLevels{2, 2};
    repeat.SetAll(1, names, twoLevels, metric);
    EXPECT_THROW(repeat.GetCommandInfoList(list), CInvalidArgException);
}

TEST_F(AnovaSettings, NamesCountAsDefaultWhenLettersInOrderOrAnyBlank)
{
    const auto isDefault = [](std::initializer_list<std::u16string> names) {
        CRepeatMeasuresData repeat;
        CGUIArray<CString> n;
        for (const auto& s : names)
            n.Add(CString(s));
        repeat.SetAll(1, n, CGUIArray<int>{2}, CGUIArray<CString>{CString()});
        return repeat.IsNamesDefault();
    };
    EXPECT_TRUE(isDefault({u"a", u"b", u"c"}));
    EXPECT_FALSE(isDefault({u"b", u"a"}));
    EXPECT_FALSE(isDefault({u"a", u"c"}));
    EXPECT_TRUE(isDefault({u"time", u"  "}));
    EXPECT_FALSE(isDefault({u"A"}));
}

TEST_F(AnovaSettings, APageWhoseWindowStateIsZeroWritesNothing)
{
    SetModel({u"Y", u"Y2"}, {}, {});
    Repeat({u"a"}, {2}, {u""});
    ConfirmOptions(1, 0, 0, 0, 2);
    tab.GetRepeatMeasuresData()->SetWindowState(0);
    tab.GetAnovaOptionsData()->SetWindowState(0);
    EXPECT_EQ(Commands(), (Lines16{u"ANOVA", u"DEPEND Y Y2", u"CATEGORY / OFF", u"COVAR ", u"ESTIMATE "}));
    tab.GetAnovaData()->SetWindowState(0);
    EXPECT_TRUE(Commands().empty());
}

TEST_F(AnovaSettings, ResamplingAnAnalysisCannotUseWritesNoClause)
{
    SetModel({u"Y"}, {}, {});
    ConfirmOptions(0, 0, 0, 0, 2);
    tab.GetBootStrapData()->SetAll(CBootStrapData::methodSubsampling, CGUIData<int>(200), CGUIData<int>(30),
                                   CGUIData<unsigned int>(0u));
    tab.GetBootStrapData()->SetEMEstimation(1);
    EXPECT_EQ(Commands().back(), u"ESTIMATE / SS = TYPE3");
}

TEST_F(AnovaSettings, RecordBytesFollowTheStoredFieldOrder)
{
    CAnovaData model;
    CGUIArray<CGUIDataVariable> source;
    source.Add(CGUIDataVariable(u"Y", NmsEnum::VT_NUMERIC, 4));
    model.SetAll(source, Vars({}), Vars({}), Vars({}), 1, 0, 1, 2, 5, u"r.kvd");
    // base: nothing; then missing, post hoc, save, post hoc index, save index,
    // the file name, then source, dependent, factor, covariate lists.
    const Bytes expected = Cat({Int32(1), Int32(0), Int32(1), Int32(2), Int32(5), Text(u"r.kvd"), Word(1), Int32(0),
                                Int32(0), Int32(1), Int32(4), Int32(0), Int32(0), Word(0), Word(0), Word(0)});
    EXPECT_EQ(Store([&](CArchive& ar) { model.Serialize(ar); }), expected);
}

TEST(AnovaSource, FillsFromTheSheetAndFollowsItsCategoricalMarks)
{
    FakeHost host;
    IModule* module = GetModuleFactory(&host);
    host.SetVariables({u"Y", u"A", u"B$", u"X"});
    host.sheet.variables[1].categorical = true;
    host.sheet.variables[2].categorical = true;

    CAnovaTabData tab;
    CGUIArray<CGUIDataVariable> stale;
    stale.Add(CGUIDataVariable(u"gone", NmsEnum::VT_NUMERIC));
    tab.GetAnovaData()->SetAll(stale, Vars({u"Y"}), Vars({u"gone", u"B$"}), Vars({}), 0, 0, 0, 1, 6, {});
    tab.FillListSource();
    CGUIArray<CGUIDataVariable> s, d, f, c;
    int i1, i2, i3, i4, i5;
    CString file;
    tab.GetAnovaData()->GetAll(s, d, f, c, i1, i2, i3, i4, i5, file);
    // The factor list keeps B$, drops what the sheet no longer marks, then
    // adds A.
    ASSERT_EQ(f.GetSize(), 2);
    EXPECT_EQ(f[0].GetVariableName(), CString(u"B$"));
    EXPECT_EQ(f[1].GetVariableName(), CString(u"A"));

    // An invalid sheet leaves the factors as they were.
    host.sheet.valid = false;
    tab.GetAnovaData()->SetAll(s, d, Vars({u"Z"}), c, 0, 0, 0, 1, 6, {});
    tab.FillListSource();
    EXPECT_EQ(tab.GetAnovaData()->GetFactorList().GetSize(), 1);
    module->Release();
}
