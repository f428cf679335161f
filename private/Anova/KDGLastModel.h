// CLastModel: the model a hypothesis or pairwise dialog tests. The host
// keeps the settings of each command in its store; a test of a general
// linear model (2011, 2012, 2013, and 2027, the multivariate model being a
// general linear model with several dependent variables) reads the stored
// settings of the general linear model (2010), a test after an analysis of
// variance (2009, 2077) those of the ANOVA (2008). The model is the one
// the user last confirmed there: its dependent variables, its terms, and
// the categorical variables its terms use, the factors a pairwise
// comparison can take. An ANOVA's terms are the full factorial of its
// factors followed by its covariates. The mixed models' test (2073) reads
// the fixed effects of the linear mixed model (2067), or of the
// hierarchical one (2068) while no linear mixed model is stored.
#pragma once

#include "framework/GUIArray.h"
#include "platform/CString.h"

#include <vector>

class CLastModel {
public:
    // The model behind the test command `testCommand`, read from the
    // host's store; empty when the store holds none.
    static CLastModel For(UINT testCommand);
    // The command whose settings hold the model of `testCommand` (0: none).
    static UINT ModelCommand(UINT testCommand);
    // The command a page of a test dialog serves: its tab settings' dialog
    // id (the page's own for a page on its own).
    static UINT TestCommandOf(const class CGUIBaseObj& page);
    // The module-name string id of the model's module.
    static UINT ModuleId(UINT testCommand);
    // The message that refuses a test while no model is stored.
    static UINT NoModelMessage(UINT testCommand);

    // Whether a model with at least one dependent variable and one term is
    // stored.
    bool IsEstimated() const { return !m_Dependents.IsEmpty() && !m_Terms.IsEmpty(); }
    const CGUIArray<CGUIDataVariable>& GetDependents() const { return m_Dependents; }
    const CGUIArray<CString>& GetTerms() const { return m_Terms; }
    const std::vector<CString>& GetFactors() const { return m_Factors; }

private:
    static CLastModel FromModelPage(const class CGLMData& page);
    static CLastModel ForMixedModel(class IGlobal& host);

    CGUIArray<CGUIDataVariable> m_Dependents;
    CGUIArray<CString> m_Terms;
    std::vector<CString> m_Factors;
};
