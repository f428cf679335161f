// CCmdTarget and message maps. A message map is a static table of
// {message, notification code, control id range, handler}; the handler is
// a member function bound at compile time through a small thunk, so the
// table itself is constant data, as in the desktop framework. Dispatch
// walks the class's table, then its base classes' tables.
#pragma once

#include "platform/Object.h"
#include "platform/Types.h"

#include <type_traits>

class CWnd;
class CCmdTarget;

enum : UINT {
    WM_COMMAND = 0x0111,
    WM_NOTIFY = 0x004E,
};

// Command notification codes (WM_COMMAND).
enum : int {
    CN_COMMAND = 0,
    BN_CLICKED = 0,
    BN_DOUBLECLICKED = 5,
    CBN_SELCHANGE = 1,
    EN_CHANGE = 0x0300,
    CN_UPDATE_COMMAND_UI = -1,
};

// Control notification codes (WM_NOTIFY).
enum : int {
    NM_CLICK = -2,
    NM_DBLCLK = -3,
    NM_RCLICK = -5,
    LVN_ITEMCHANGED = -101,
    LVN_BEGINDRAG = -109,
    TCN_SELCHANGE = -551,
    GVN_ENDLABELEDIT = -2001, // a grid cell was edited
};

struct NMHDR {
    CWnd* hwndFrom;
    UINT idFrom;
    int code;
};

// Update handler argument: the handler enables or checks the item.
class CCmdUI {
public:
    explicit CCmdUI(UINT id) : m_nID(id) {}
    virtual ~CCmdUI() = default;
    virtual void Enable(BOOL on = TRUE) { m_bEnabled = on != FALSE; }
    virtual void SetCheck(int check = 1) { m_nCheck = check; }

    UINT m_nID;
    bool m_bEnabled = true;
    int m_nCheck = 0;
};

// What a handler thunk receives.
struct AFX_NOTIFICATION {
    UINT nID;
    NMHDR* pNMHDR;    // WM_NOTIFY only
    LRESULT* pResult; // WM_NOTIFY only
    CCmdUI* pCmdUI;   // update handlers only
};

using AFX_PMSG = void (*)(CCmdTarget*, const AFX_NOTIFICATION&);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    int nCode;
    UINT nID;
    UINT nLastID;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

class CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    // Routes a command or notification through the message maps; returns
    // whether a handler took it.
    virtual BOOL OnCmdMsg(UINT nMessage, int nCode, UINT nID, NMHDR* pNMHDR = nullptr, LRESULT* pResult = nullptr,
                          CCmdUI* pCmdUI = nullptr);

protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

namespace kal::detail {

template <class>
struct MemberTraits;
template <class C, class R, class... A>
struct MemberTraits<R (C::*)(A...)> {
    using Class = C;
};

// Adapts a member function of any of the supported shapes to AFX_PMSG.
template <auto Member>
void Invoke(CCmdTarget* target, const AFX_NOTIFICATION& n)
{
    using M = decltype(Member);
    auto* self = static_cast<typename MemberTraits<M>::Class*>(target);
    if constexpr (std::is_invocable_v<M, decltype(self)>)
        (self->*Member)();
    else if constexpr (std::is_invocable_v<M, decltype(self), NMHDR*, LRESULT*>)
        (self->*Member)(n.pNMHDR, n.pResult);
    else if constexpr (std::is_invocable_v<M, decltype(self), CCmdUI*>)
        (self->*Member)(n.pCmdUI);
    else
        (self->*Member)(n.nID);
}

} // namespace kal::detail

// The map macros open and close one function between them; laid out by hand.
// clang-format off
#define DECLARE_MESSAGE_MAP()                           \
protected:                                              \
    static const AFX_MSGMAP* GetThisMessageMap();       \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                          \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }   \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                     \
    {                                                                                   \
        using TheBaseClass = baseClass;                                                 \
        static const AFX_MSGMAP_ENTRY entries[] = {

#define END_MESSAGE_MAP()                                                               \
            {0, 0, 0, 0, nullptr}                                                       \
        };                                                                              \
        static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};      \
        return &map;                                                                    \
    }
// clang-format on

#define KAL_MSG_ENTRY_(message, code, first, last, member) {message, code, first, last, &kal::detail::Invoke<member>},

#define ON_COMMAND(id, member) KAL_MSG_ENTRY_(WM_COMMAND, CN_COMMAND, id, id, member)
#define ON_COMMAND_RANGE(first, last, member) KAL_MSG_ENTRY_(WM_COMMAND, CN_COMMAND, first, last, member)
#define ON_UPDATE_COMMAND_UI(id, member) KAL_MSG_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, member)
#define ON_UPDATE_COMMAND_UI_RANGE(first, last, member) \
    KAL_MSG_ENTRY_(WM_COMMAND, CN_UPDATE_COMMAND_UI, first, last, member)
#define ON_BN_CLICKED(id, member) KAL_MSG_ENTRY_(WM_COMMAND, BN_CLICKED, id, id, member)
#define ON_BN_DOUBLECLICKED(id, member) KAL_MSG_ENTRY_(WM_COMMAND, BN_DOUBLECLICKED, id, id, member)
#define ON_CBN_SELCHANGE(id, member) KAL_MSG_ENTRY_(WM_COMMAND, CBN_SELCHANGE, id, id, member)
#define ON_EN_CHANGE(id, member) KAL_MSG_ENTRY_(WM_COMMAND, EN_CHANGE, id, id, member)
#define ON_NOTIFY(code, id, member) KAL_MSG_ENTRY_(WM_NOTIFY, code, id, id, member)
#define ON_NOTIFY_RANGE(code, first, last, member) KAL_MSG_ENTRY_(WM_NOTIFY, code, first, last, member)
