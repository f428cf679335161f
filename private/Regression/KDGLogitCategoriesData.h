// CLogitCategoriesData: the categories page of the logistic regression
// dialog. Which independent variables of the model are categorical, how
// their categories are coded (effect, or dummy against the last or the
// first category) and whether missing values form a category of their own.
// Writes "CATEGORY" with its variables and coding before the model page's
// "MODEL" line, naming only variables the model page has as independent
// variables (CLogitData::GetCondforCatnString).
//
// The page's source list holds the model's independent variables. Variables
// the data sheet treats as categorical are declared categorical when they
// enter the model, and string variables always are (see FollowModel).
#pragma once

#include "framework/Fields.h"
#include "framework/GUIBaseObj.h"
#include "ids/logit.h"

class CLogitData;

class CLogitCategoriesData : public CGUIBaseObj {
    DECLARE_SERIAL(CLogitCategoriesData)
public:
    // Radio groups, named by their first buttons.
    static constexpr UINT kCodingRadio = CLogitCategoriesDlgIds::IDC_EFFECT;
    static constexpr UINT kReferenceRadio = CLogitCategoriesDlgIds::IDC_REF_LAST;

    CLogitCategoriesData() { kal::ResetFields(*this); }

    static int GetDefaultEffectRadio() { return 0; }
    static int GetDefaultRefLastRadio() { return 0; }
    static int GetDefaultMissingCheck() { return 0; }

    int GetAll(CGUIArray<CGUIDataVariable>& source, CGUIArray<CGUIDataVariable>& categorical, int& codingRadio,
               int& referenceRadio, int& missingCheck) const
    {
        return kal::CopyFieldsOut(*this, source, categorical, codingRadio, referenceRadio, missingCheck);
    }
    // The settings-from-output-node form stays visible beside this one.
    using CGUIBaseObj::SetAll;
    int SetAll(const CGUIArray<CGUIDataVariable>& source, const CGUIArray<CGUIDataVariable>& categorical,
               int codingRadio, int referenceRadio, int missingCheck)
    {
        return kal::CopyFieldsIn(*this, source, categorical, codingRadio, referenceRadio, missingCheck);
    }

    const CGUIArray<CGUIDataVariable>& GetSourceList() const { return m_SourceList; }
    const CGUIArray<CGUIDataVariable>& GetCategoryList() const { return m_CategoryList; }

    // Brings a source list and a categorical list up to date with the
    // model's independent variables `terms`: the source list becomes the
    // terms; the categorical list keeps, in its order, the variables that
    // are still terms, then gets the string terms it lacks and the terms
    // the data sheet marks categorical that were not in the source list
    // before. Entries added arrive unselected.
    static void FollowModel(const CGUIArray<CGUIDataVariable>& terms, CGUIArray<CGUIDataVariable>& source,
                            CGUIArray<CGUIDataVariable>& categorical);

    void GetCommandInfoList(CLIST<CCmdInfo>& list) const override;
    // Follows the model page's independent variables (the model page is
    // refreshed first: it comes first in the tab).
    void FillListSource() override;
    void Serialize(CArchive& ar) override;

    // The members in order, the controls of the categories page (template
    // 2700) that show them, and their defaults.
    static constexpr auto Fields()
    {
        using F = kal::FieldsOf<CLogitCategoriesData>;
        using Ids = CLogitCategoriesDlgIds;
        using D = CLogitCategoriesData;
        return std::tuple{
            F::Source(&D::m_SourceList, Ids::IDC_SOURCE_LIST),
            F::List(&D::m_CategoryList, Ids::IDC_CATEGORY_LIST),
            F::Value(&D::m_CodingRadio, Ids::IDC_EFFECT, &GetDefaultEffectRadio),
            F::Value(&D::m_ReferenceRadio, Ids::IDC_REF_LAST, &GetDefaultRefLastRadio),
            F::Value(&D::m_MissingCheck, Ids::IDC_MISSING, &GetDefaultMissingCheck),
        };
    }

private:
    // The model page of the same tab, or null for a page on its own.
    const CLogitData* FindModel() const;
    // " / EFFECT", or " / DUMMY" with the reference category.
    CString CodingClause() const;

    CGUIArray<CGUIDataVariable> m_SourceList;
    CGUIArray<CGUIDataVariable> m_CategoryList;
    int m_CodingRadio;
    int m_ReferenceRadio;
    int m_MissingCheck;
};
