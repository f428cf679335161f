#include "private/Multivariate/KDGDiscrimRoles.h"

#include "private/Anova/KDGMatrixText.h"

#include <cmath>

namespace kal::discrim {

CString ModelLine(const CGUIBaseObj& writer, const CGUIArray<CGUIDataVariable>& group,
                  const CGUIArray<CGUIDataVariable>& predictors, const CString& options)
{
    CString model(u"MODEL ");
    writer.AddVariables(model, group, u" ");
    model += u" = ";
    writer.AddVariables(model, predictors, u"+");
    model += writer.AddOnConditionCmd(u" /" + options, !options.IsEmpty());
    return model;
}

CString PriorsLine(Priors priors, const CString& typed)
{
    switch (priors) {
    case Priors::Sample: return u"PRIORS / SAMPLE";
    case Priors::Typed:
        // Only numbers reach the line: typed text cannot add a clause.
        if (PriorsProblem(typed) == 0)
            return u"PRIORS " + CMatrixText::Format(CMatrixText::Parse(typed));
        return {};
    default: return {};
    }
}

UINT PriorsProblem(const CString& typed)
{
    if (ContainsControlCharacter(typed))
        return kMsgControlCharacter;
    const CMatrixText::Rows rows = CMatrixText::Parse(typed);
    if (rows.size() != 1 || rows.front().size() < 2 || CMatrixText::Check(rows) != CMatrixText::Problem::None)
        return kMsgPriors;
    for (const CString& cell : rows.front()) {
        const double prior = CMatrixText::RowSum({cell});
        if (!(prior > 0 && prior <= 1))
            return kMsgPriors;
    }
    return std::abs(CMatrixText::RowSum(rows.front()) - 1) <= kPriorsTolerance ? 0 : kMsgPriorsSum;
}

} // namespace kal::discrim
