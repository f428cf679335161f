// CLastLogitModel: the logistic model the follow-up dialogs work on
// (post-estimation 2005, quantiles 2006, simulation 2007). The host keeps
// the settings of each command in its store; the model is the one the user
// last confirmed in the logistic regression dialog (2004): its dependent
// variable and its regressors, the independent variables followed by the
// conditional ones, each once.
#pragma once

#include "platform/CString.h"
#include "platform/Types.h"
#include "private/Regression/KDGExpression.h"

#include <vector>

class CLastLogitModel {
public:
    static constexpr UINT kLogitCommand = 2004;
    // Messages of the follow-up dialogs: no model yet, and values typed
    // for the regressors that cannot be read.
    static constexpr UINT kMsgNoModel = 7590;
    static constexpr UINT kMsgValueSyntax = 7592;
    static constexpr UINT kMsgNotARegressor = 7593;
    static constexpr UINT kMsgValueTwice = 7594;

    // The model stored for the logistic regression; empty when the store
    // holds none.
    static CLastLogitModel Read();

    // Whether a model with a dependent variable and at least one regressor
    // is stored: predictions need something to vary.
    bool IsEstimated() const { return !m_Dependent.IsEmpty() && !m_Regressors.empty(); }
    const CString& GetDependent() const { return m_Dependent; }
    const std::vector<CString>& GetRegressors() const { return m_Regressors; }
    // "car = income+age", as the dialogs show the model; empty without one.
    CString Describe() const;
    // Reads values typed for regressors of this model; on success `text`
    // becomes the values as the command line writes them and 0 is
    // answered, else the message that refuses them.
    UINT ReadValues(CString& text) const;

private:
    CString m_Dependent;
    std::vector<CString> m_Regressors;
};
