#include "platform/DialogTemplate.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

constexpr std::array<std::pair<ControlKind, const char*>, 11> kNames = {{
    {ControlKind::PushButton, "button"},
    {ControlKind::CheckBox, "check"},
    {ControlKind::RadioButton, "radio"},
    {ControlKind::GroupBox, "group"},
    {ControlKind::Static, "label"},
    {ControlKind::Edit, "edit"},
    {ControlKind::ComboBox, "combo"},
    {ControlKind::List, "list"},
    {ControlKind::Tab, "tab"},
    {ControlKind::Grid, "grid"},
    {ControlKind::FileEdit, "fileedit"},
}};

} // namespace

const char* ControlKindName(ControlKind kind)
{
    for (const auto& [k, name] : kNames)
        if (k == kind)
            return name;
    return "?";
}

std::optional<ControlKind> ControlKindFromName(std::string_view name)
{
    for (const auto& [k, n] : kNames)
        if (name == n)
            return k;
    return std::nullopt;
}
