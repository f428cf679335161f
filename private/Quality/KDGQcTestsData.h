// CQcTestsData: the run tests of a control chart: "perform all" and the
// eight tests one by one, all set by default. Writes no line of its own:
// "  TEST = " with the numbers of the chosen tests joins the chart line,
// "0 " when none is chosen; performing all tests (the default) writes
// nothing.
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/quality.h"

class CQcTestsData : public CGUIBaseObj {
    DECLARE_SERIAL(CQcTestsData)
public:
    CQcTestsData() { kal::ResetFields(*this); }

    static int GetDefaultPerformAllCheck() { return 1; }
    static int GetDefaultTestCheck() { return 1; }

    int GetAll(int& performAll, int& test1, int& test2, int& test3, int& test4, int& test5, int& test6, int& test7,
               int& test8) const
    {
        return kal::CopyFieldsOut(*this, performAll, test1, test2, test3, test4, test5, test6, test7, test8);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(int performAll, int test1, int test2, int test3, int test4, int test5, int test6, int test7, int test8)
    {
        return kal::CopyFieldsIn(*this, performAll, test1, test2, test3, test4, test5, test6, test7, test8);
    }

    // The run-tests text before it joins a line: "  TEST = " and what
    // follows, without the " /" that may introduce it.
    CString GetTestsText() const;

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    void Serialize(CArchive& ar) override;

    // The checks of the run-tests page (template 3977), tests 1 to 8 in
    // order (their ids are not in order).
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CQcTestsData>;
        using Ids = CQcTestsDlgIds;
        return std::tuple{
            F::Value(&CQcTestsData::m_PerformAllCheck, Ids::IDC_PERFORM_ALL, &GetDefaultPerformAllCheck),
            F::Value(&CQcTestsData::m_Test1Check, Ids::IDC_TEST1, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test2Check, Ids::IDC_TEST2, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test3Check, Ids::IDC_TEST3, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test4Check, Ids::IDC_TEST4, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test5Check, Ids::IDC_TEST5, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test6Check, Ids::IDC_TEST6, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test7Check, Ids::IDC_TEST7, &GetDefaultTestCheck),
            F::Value(&CQcTestsData::m_Test8Check, Ids::IDC_TEST8, &GetDefaultTestCheck),
        };
    }

private:
    int m_PerformAllCheck;
    int m_Test1Check;
    int m_Test2Check;
    int m_Test3Check;
    int m_Test4Check;
    int m_Test5Check;
    int m_Test6Check;
    int m_Test7Check;
    int m_Test8Check;
};
