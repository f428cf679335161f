#include "private/Quality/KDGQcTestsData.h"

#include "framework/StringUtil.h"

IMPLEMENT_SERIAL(CQcTestsData, CGUIBaseObj, 1)

CString CQcTestsData::GetTestsText() const
{
    const int tests[] = {m_Test1Check, m_Test2Check, m_Test3Check, m_Test4Check,
                         m_Test5Check, m_Test6Check, m_Test7Check, m_Test8Check};
    bool any = m_PerformAllCheck != 0;
    for (const int test : tests)
        any = any || test != 0;

    CString text(u"  TEST = ");
    text += AddOnConditionCmd(u"0 ", !any);
    // Performing all tests is the chart's default: no numbers are written.
    if (!m_PerformAllCheck)
        for (int i = 0; i < 8; ++i)
            text += AddOnConditionCmd(NumberText(i + 1) + u" ", tests[i]);
    return text;
}

void CQcTestsData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CString text = GetTestsText();
    bool hasNumber = false;
    for (const char16_t ch : text.Str())
        hasNumber = hasNumber || (ch >= u'0' && ch <= u'8');
    if (!hasNumber)
        return;
    text = AddOnConditionCmd(u" /", CStringUtil::SearchString(list, u"/") < 0) + text;
    CStringUtil::ConcatStringAt(list, text, -1);
}

void CQcTestsData::Serialize(CArchive& ar)
{
    CGUIBaseObj::Serialize(ar);
    kal::SerializeValues(ar, m_PerformAllCheck, m_Test1Check, m_Test2Check, m_Test3Check, m_Test4Check, m_Test5Check,
                         m_Test6Check, m_Test7Check, m_Test8Check);
}
