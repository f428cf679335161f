#include "framework/ResourceUtil.h"

#include "framework/CmdInfo.h"
#include "framework/HostLink.h"
#include "host/IBinReader.h"
#include "host/KalAssertDlg.h"
#include "platform/Dialog.h"

#include <vector>

namespace {

std::vector<KalComboEntry> ComboList(unsigned int comboId, unsigned int dialogId)
{
    IBinReader* reader = kal::framework::Resources();
    return reader ? reader->GetComboList(comboId, dialogId) : std::vector<KalComboEntry>();
}

std::vector<UINT> RadioGroup(unsigned int groupId)
{
    IBinReader* reader = kal::framework::Resources();
    return reader ? reader->GetRadioGroup(groupId) : std::vector<UINT>();
}

} // namespace

CString CComboUtil::GetComboString(unsigned int comboId, int index, unsigned int dialogId)
{
    const auto entries = ComboList(comboId, dialogId);
    return index >= 0 && index < static_cast<int>(entries.size()) ? entries[static_cast<std::size_t>(index)].text
                                                                  : CString();
}

unsigned int CComboUtil::GetComboItem(unsigned int comboId, int index, unsigned int dialogId)
{
    const auto entries = ComboList(comboId, dialogId);
    return index >= 0 && index < static_cast<int>(entries.size()) ? entries[static_cast<std::size_t>(index)].itemId : 0;
}

int CComboUtil::GetComboCount(unsigned int comboId, unsigned int dialogId)
{
    return static_cast<int>(ComboList(comboId, dialogId).size());
}

void CComboUtil::FillCombo(unsigned int comboId, CComboBox& combo, unsigned int dialogId)
{
    combo.ResetContent();
    for (const auto& entry : ComboList(comboId, dialogId))
        combo.AddString(entry.text);
}

void CRadioUtil::FillRadio(const CDialog* dialog, unsigned int groupId)
{
    for (const UINT id : RadioGroup(groupId)) {
        const CWnd* button = dialog ? dialog->GetDlgItem(id) : nullptr;
        if (!button || button->GetKind() != ControlKind::RadioButton)
            CKalAssertDlg("framework/ResourceUtil", __LINE__).DoPrint();
    }
}

unsigned int CRadioUtil::GetRadioItem(unsigned int groupId, int index)
{
    const auto buttons = RadioGroup(groupId);
    return index >= 0 && index < static_cast<int>(buttons.size()) ? buttons[static_cast<std::size_t>(index)] : 0;
}

int CRadioUtil::GetRadioIndex(unsigned int groupId, unsigned int controlId)
{
    const auto buttons = RadioGroup(groupId);
    for (std::size_t i = 0; i < buttons.size(); ++i)
        if (buttons[i] == controlId)
            return static_cast<int>(i);
    return -1;
}

bool CCommandUtil::GetCommandFromIDS(unsigned int id, CString& text)
{
    text = kal::framework::LoadResourceString(id);
    return !text.IsEmpty();
}

void CCommandUtil::GeneratePrintReset(CLIST<CCmdInfo>& list, int level)
{
    AppendCommandLine(list, u"PRINT = " + CString::FromNumber(level));
}
