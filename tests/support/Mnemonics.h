// Reading a dialog template as the keyboard does: the mnemonic of a
// caption and the control a label's mnemonic focuses. The template rules
// and the Qt view's keyboard test both need them.
#pragma once

#include "platform/DialogTemplate.h"

#include <optional>
#include <string>
#include <vector>

namespace kaltest {

// The key of a caption's mnemonic, lower-cased; "&&" is a plain '&'.
inline std::optional<char16_t> MnemonicOf(const CString& caption)
{
    const std::u16string& text = caption.Str();
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] == u'&') {
            ++i;
            continue;
        }
        const char16_t key = text[i + 1];
        return key >= u'A' && key <= u'Z' ? static_cast<char16_t>(key - u'A' + u'a') : key;
    }
    return std::nullopt;
}

// Labels and frames: controls the keyboard passes over.
inline bool IsDecoration(ControlKind kind)
{
    return kind == ControlKind::Static || kind == ControlKind::GroupBox;
}

// The control the mnemonic of label `label` focuses: the next one that is
// not a decoration, or none.
inline const ControlTemplate* BuddyOf(const std::vector<ControlTemplate>& controls, std::size_t label)
{
    for (std::size_t j = label + 1; j < controls.size(); ++j)
        if (!IsDecoration(controls[j].kind))
            return &controls[j];
    return nullptr;
}

} // namespace kaltest
