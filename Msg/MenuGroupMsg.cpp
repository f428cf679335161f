#include "Msg/MenuGroupMsg.h"

#include "Msg/LaunchDialog.h"

#include "host/IGlobal.h"
#include "host/IGrHitNodeInfo.h"
#include "host/KalAssertDlg.h"

namespace {

constexpr int kConstructorAssertLine = 36;

} // namespace

CMenuGroupMsg::CMenuGroupMsg(IGlobal* global, const char* sourceFile, std::span<const MenuCommandRow> rows)
    : CKVMsg(global), m_rows(rows)
{
    if (!GetGlobal())
        CKalAssertDlg(sourceFile, kConstructorAssertLine).DoPrint();
}

const MenuCommandRow* CMenuGroupMsg::FindRow(UINT id) const
{
    for (const auto& row : m_rows)
        if (row.id == id)
            return &row;
    return nullptr;
}

void CMenuGroupMsg::OnKVCommand(UINT id)
{
    CKVMsg::OnKVCommand(id);
    // Dispatch on the recorded id, not the argument.
    Run(GetDID(), nullptr);
}

void CMenuGroupMsg::OnGraphCommand(UINT, IGrHitNodeInfo* node)
{
    IGlobal* global = GetGlobal();
    if (global && global->IsReplayMode()) {
        if (node)
            node->Highlight(0);
        return;
    }
    Run(GetDID(), node);
}

void CMenuGroupMsg::Run(UINT id, IGrHitNodeInfo* node)
{
    const MenuCommandRow* row = FindRow(id);
    if (!row)
        return;
    if (row->launch)
        row->launch(GetGlobal(), id, GetParent(), *row, node);
    else
        ReportUnavailable(GetGlobal());
}

CString JoinMenuCaption(const CStringArray& chain)
{
    CString caption;
    for (CString part : chain) {
        part.Remove(u'&');
        part.TrimRight(u'.');
        part.Trim();
        if (part.IsEmpty())
            continue;
        if (!caption.IsEmpty())
            caption += u" > ";
        caption += part;
    }
    return caption;
}

void ReportUnavailable(IGlobal* global)
{
    if (global)
        global->ReportMessage(kMsgNotAvailable, 0);
}
