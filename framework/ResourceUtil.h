// Lookups of the texts and ids behind stored selection indexes. Settings
// keep indexes; the keyword or id behind one is looked up only when command
// text is written. An index or id the resources do not know yields an empty
// text or item 0.
#pragma once

#include "platform/CString.h"

class CComboBox;
class CDialog;

class CComboUtil {
public:
    // Entry `index` of combo `comboId` as filled for dialog `dialogId`
    // (0 when the combo is the same in every dialog).
    static CString GetComboString(unsigned int comboId, int index, unsigned int dialogId);
    static unsigned int GetComboItem(unsigned int comboId, int index, unsigned int dialogId);
    static int GetComboCount(unsigned int comboId, unsigned int dialogId);
    // Empties `combo` and fills it with the entries of the combo list.
    static void FillCombo(unsigned int comboId, CComboBox& combo, unsigned int dialogId);
};

class CRadioUtil {
public:
    // Control id of button `index` of the group whose first button is
    // `groupId`; 0 when there is none.
    static unsigned int GetRadioItem(unsigned int groupId, int index);
    static int GetRadioIndex(unsigned int groupId, unsigned int controlId);
    // Checks that every button of the group is a radio button of `dialog`;
    // each one missing is reported as an assertion.
    static void FillRadio(const CDialog* dialog, unsigned int groupId);
};

template <class T>
class CLIST;
class CCmdInfo;

class CCommandUtil {
public:
    static bool GetCommandFromIDS(unsigned int id, CString& text);
    // Appends "PRINT = <level>", restoring the host's output level.
    static void GeneratePrintReset(CLIST<CCmdInfo>& list, int level);
};
