// The kind a variable list shows for each entry, from the entry's own type
// and what the open data sheet marks.
#include "framework/VariableKind.h"
#include "framework/GUIListCtrl.h"
#include "tests/support/FakeHost.h"

#include <gtest/gtest.h>

using namespace kaltest;
using kal::framework::VariableKind;
using kal::framework::VariableKindsOf;

TEST(VariableKinds, TheEntrysTypeAndTheSheetsCategoriesDecide)
{
    FakeHost host;
    host.sheet.variables = {{u"Yield", NmsEnum::VT_NUMERIC, false},
                            {u"Dose", NmsEnum::VT_NUMERIC, true},
                            {u"Soil$", NmsEnum::VT_STRING, true}};
    CGUIArray<CGUIDataVariable> entries;
    entries.Add(CGUIDataVariable(u"Yield", NmsEnum::VT_NUMERIC));
    entries.Add(CGUIDataVariable(u"Dose", NmsEnum::VT_NUMERIC));
    entries.Add(CGUIDataVariable(u"Soil$", NmsEnum::VT_STRING));
    // Entries without a type (a factor list filled from the sheet's
    // categorical variables) take the sheet's; others stay unknown.
    entries.Add(CGUIDataVariable(u"Dose", NmsEnum::VT_UNKNOWN));
    entries.Add(CGUIDataVariable(u"Soil$", NmsEnum::VT_UNKNOWN));
    entries.Add(CGUIDataVariable(u"Gone", NmsEnum::VT_UNKNOWN));
    CGUIListCtrl list;
    list.SetVariables(entries);

    const std::vector<VariableKind> expected = {VariableKind::Numeric, VariableKind::Categorical,
                                                VariableKind::String,  VariableKind::Categorical,
                                                VariableKind::String,  VariableKind::Unknown};
    {
        HostScope scope(&host);
        EXPECT_EQ(VariableKindsOf(list), expected);
        host.hasSheet = false;
        // Without a sheet nothing is categorical: the entries' own types.
        EXPECT_EQ(VariableKindsOf(list),
                  (std::vector<VariableKind>{VariableKind::Numeric, VariableKind::Numeric, VariableKind::String,
                                             VariableKind::Unknown, VariableKind::Unknown, VariableKind::Unknown}));
    }
    EXPECT_EQ(kal::framework::VariableKindText(VariableKind::Categorical), CString(u"categorical variable"));
    EXPECT_TRUE(kal::framework::VariableKindText(VariableKind::Unknown).IsEmpty());
}
