#include "private/Regression/KDGLastLogit.h"

#include "framework/GUIBaseDlg.h"
#include "framework/HostLink.h"
#include "host/IGlobal.h"
#include "private/Regression/KDGLogitTabData.h"

#include <algorithm>

CLastLogitModel CLastLogitModel::Read()
{
    CLastLogitModel model;
    IGlobal* host = kal::framework::Host();
    auto* stored = dynamic_cast<CLogitTabData*>(host ? host->GetSettings(kLogitCommand) : nullptr);
    if (!stored)
        return model;
    const CLogitData& page = *stored->GetLogitData();
    // A model of several dependent variables is read by its first.
    for (const auto& variable : page.GetDependentVariableList())
        if (!variable.GetVariableName().IsEmpty()) {
            model.m_Dependent = variable.GetVariableName();
            break;
        }
    for (const auto* list : {&page.GetIndependentVariableList(), &page.GetConditionalVariableList()})
        for (const auto& variable : *list) {
            const CString& name = variable.GetVariableName();
            if (!name.IsEmpty() &&
                std::find(model.m_Regressors.begin(), model.m_Regressors.end(), name) == model.m_Regressors.end())
                model.m_Regressors.push_back(name);
        }
    return model;
}

CString CLastLogitModel::Describe() const
{
    if (!IsEstimated())
        return {};
    CString text = m_Dependent + u" = ";
    for (std::size_t i = 0; i < m_Regressors.size(); ++i)
        text += (i ? u"+" : u"") + m_Regressors[i];
    return text;
}

UINT CLastLogitModel::ReadValues(CString& text) const
{
    const CValueList::Result read = CValueList::Parse(text, m_Regressors);
    switch (read.problem) {
    case CValueList::Problem::None: text = CValueList::Format(read.values); return 0;
    case CValueList::Problem::ControlCharacter: return kMsgControlCharacter;
    case CValueList::Problem::UnknownName: return kMsgNotARegressor;
    case CValueList::Problem::Repeated: return kMsgValueTwice;
    default: return kMsgValueSyntax;
    }
}
