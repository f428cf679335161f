// Every tab settings class of the module as the host keeps it: a copy holds
// the original's choices in pages of its own, a record loads back to the
// same bytes in both list schemas and fails whenever it is cut short, and a
// refresh lists the data sheet's variables. Each
// class's own lines and record layout are tested beside its analysis; a new
// tab class joins the list below.
#include "Source/DlgStat2.h"
#include "private/Anova/KDGAnovaTabData.h"
#include "private/Multivariate/KDGCorrelationsTabData.h"
#include "private/Quality/KDGShewhartTabData.h"
#include "private/Quality/KDGXMrTabData.h"
#include "private/Regression/KDGLogitTabData.h"
#include "private/Regression/KDGRegressionTabData.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/DialogTesting.h"

#include <gtest/gtest.h>

using namespace kaltest;

namespace {

template <class T>
concept HasFields = requires
{
    T::Fields();
};

// Moves every field of `object` (pages included) away from where it
// starts: numbers up by one, texts and lists filled. The lists name a
// variable the sheet of these tests lacks ("gone") and one it has ("Y").
template <class Owner>
void ChangeEveryField(Owner& object)
{
    kal::ForEachField<Owner>([&](const auto& field) {
        auto& value = object.*field.member;
        using T = std::remove_cvref_t<decltype(value)>;
        if constexpr (HasFields<T>)
            ChangeEveryField(value);
        else if constexpr (std::is_same_v<T, int>)
            value += 1;
        else if constexpr (std::is_same_v<T, CString>)
            value = u"out file.kvd";
        else if constexpr (std::is_same_v<T, CGUIArray<CGUIDataVariable>>)
            value = Vars({u"gone", u"Y"});
        else if constexpr (std::is_same_v<T, CGUIArray<CString>>)
            value = CGUIArray<CString>{CString()};
        else if constexpr (std::is_same_v<T, CGUIArray<int>>)
            value = CGUIArray<int>{2};
        else if constexpr (std::is_same_v<T, CGUIDataWnd<int>>)
            value = CGUIDataWnd<int>(value.m_Value + 1, 1);
        else {
            value.m_Value += 1;
            value.m_nState = 0;
        }
    });
}

// Every variable list of `object`, pages included.
template <class Owner>
void ForEachList(Owner& object, const std::function<void(const CGUIArray<CGUIDataVariable>&, bool source)>& fn)
{
    kal::ForEachField<Owner>([&](const auto& field) {
        auto& value = object.*field.member;
        using T = std::remove_cvref_t<decltype(value)>;
        if constexpr (HasFields<T>)
            ForEachList(value, fn);
        else if constexpr (std::is_same_v<T, CGUIArray<CGUIDataVariable>>)
            fn(value, (field.flags & kal::kFieldSource) != 0);
    });
}

// Whether a refresh also takes out of the role lists what the sheet no
// longer has; the other analyses leave their role lists to the dialog.
template <class T>
constexpr bool kRefreshDropsRoles = true;
template <>
constexpr bool kRefreshDropsRoles<CAnovaTabData> = false;
template <>
constexpr bool kRefreshDropsRoles<CShewhartTabData> = false;
template <>
constexpr bool kRefreshDropsRoles<CXMrTabData> = false;

template <class T>
Bytes Record(T& settings, UINT schema = CArchive::namedLists)
{
    return Store([&](CArchive& ar) { settings.Serialize(ar); }, schema);
}

template <class T>
class TabSettings : public ::testing::Test {
protected:
    TabSettings()
    {
        host.SetVariables({u"Y", u"X", u"S$"});
        module = GetModuleFactory(&host);
        ChangeEveryField(changed);
    }
    ~TabSettings() override { module->Release(); }

    FakeHost host;
    IModule* module = nullptr;
    T changed;
};

using TabClasses = ::testing::Types<CAnovaTabData, CRegressionTabData, CLogitTabData, CCorrelationsTabData,
                                    CShewhartTabData, CXMrTabData>;
TYPED_TEST_SUITE(TabSettings, TabClasses);

} // namespace

TYPED_TEST(TabSettings, ACopyHoldsTheChoicesInPagesOfItsOwn)
{
    TypeParam& original = this->changed;
    ASSERT_NE(Record(original), Record(*std::make_unique<TypeParam>())) << "no field was changed";
    original.SetWindowState(0);
    original.SetstrDialog(2008);

    const TypeParam copy(original);
    EXPECT_EQ(Record(const_cast<TypeParam&>(copy)), Record(original));
    EXPECT_EQ(LinesOf(copy), LinesOf(original));
    // The session's links are not choices: a copy starts afresh, an
    // assignment leaves them alone.
    EXPECT_EQ(copy.GetWindowState(), 1);
    EXPECT_EQ(copy.GetDialogID(), 0u);
    for (CGUIBaseObj* page : const_cast<TypeParam&>(copy).Pages()) {
        CGUIBaseObj* parent = nullptr;
        page->GetParent(parent);
        EXPECT_EQ(parent, &copy);
    }

    TypeParam assigned;
    assigned.SetWindowState(0);
    assigned = original;
    EXPECT_EQ(assigned.GetWindowState(), 0);
    assigned = assigned;
    EXPECT_EQ(Record(assigned), Record(original));
    // Changing the copy leaves the original as it was.
    const Bytes before = Record(original);
    ChangeEveryField(assigned);
    EXPECT_EQ(Record(original), before);
}

TYPED_TEST(TabSettings, ARecordLoadsBackToTheSameBytesAndFailsWheneverCutShort)
{
    for (const UINT schema : {UINT{CArchive::plainLists}, UINT{CArchive::namedLists}}) {
        SCOPED_TRACE(schema);
        const Bytes bytes = Record(this->changed, schema);
        TypeParam back;
        Load(bytes, schema, [&](CArchive& ar) { back.Serialize(ar); });
        EXPECT_EQ(Record(back, schema), bytes);
        // Every page came back, not just the bytes.
        for (std::size_t page = 0; page < back.Pages().size(); ++page)
            EXPECT_EQ(Record(*back.Pages()[page], schema), Record(*this->changed.Pages()[page], schema)) << page;
        for (std::size_t size = 0; size < bytes.size(); ++size) {
            TypeParam broken;
            try {
                Load(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)), schema,
                     [&](CArchive& ar) { broken.Serialize(ar); });
                ADD_FAILURE() << "loaded " << size << " of " << bytes.size() << " bytes";
            } catch (const CArchiveException& e) {
                EXPECT_EQ(e.m_cause, CArchiveException::endOfFile);
            }
        }
    }
}

TYPED_TEST(TabSettings, ARefreshListsTheSheetAndLeavesTheRolesToAnInvalidSheet)
{
    const auto roles = [](TypeParam& settings) {
        std::vector<std::vector<std::u16string>> lists;
        ForEachList(settings, [&](const CGUIArray<CGUIDataVariable>& list, bool source) {
            if (!source)
                lists.emplace_back(std::vector<std::u16string>{});
            for (const auto& variable : list)
                if (!source)
                    lists.back().push_back(variable.GetVariableName().Str());
        });
        return lists;
    };
    const auto before = roles(this->changed);
    this->host.sheet.valid = false;
    this->changed.FillListSource();
    EXPECT_EQ(roles(this->changed), before);

    // The first page's source list is the sheet's, with its types; the
    // role lists of the analyses that check them against the sheet drop
    // what it no longer has.
    this->host.sheet.valid = true;
    this->changed.FillListSource();
    bool first = true;
    ForEachList(this->changed, [&](const CGUIArray<CGUIDataVariable>& list, bool source) {
        std::vector<std::u16string> names;
        for (const auto& variable : list)
            names.push_back(variable.GetVariableName().Str());
        if (source && std::exchange(first, false)) {
            EXPECT_EQ(names, (std::vector<std::u16string>{u"Y", u"X", u"S$"}));
            EXPECT_EQ(list[2].GetVariableType(), NmsEnum::VT_STRING);
        }
        if (kRefreshDropsRoles<TypeParam>) {
            EXPECT_EQ(std::find(names.begin(), names.end(), u"gone"), names.end());
        }
    });
    EXPECT_FALSE(first) << "no source list";
}
