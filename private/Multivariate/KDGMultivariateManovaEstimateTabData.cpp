#include "private/Multivariate/KDGMultivariateManovaEstimateTabData.h"

IMPLEMENT_SERIAL(CManovaModelData, CGLMData, 1)
IMPLEMENT_SERIAL(CMultivariateManovaEstimateTabData, CGUITabData, 1)

void CManovaModelData::GetCommandInfoList(CLIST<CCmdInfo>& list) const
{
    CGLMData::GetCommandInfoList(list);
    // The model is estimated as it stands: the options and resampling
    // clauses attach to this line.
    AppendCommandLine(list, u"ESTIMATE ");
}
