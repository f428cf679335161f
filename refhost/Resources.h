// The reference host's resources: string and message tables, combo lists,
// radio groups, dialog templates and the menu bar, read from the JSON files
// under resources/. The same loader serves kalhost and the tests' fake host.
#pragma once

#include "host/IBinReader.h"

#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kalhost {

struct MenuNode {
    CString text;
    UINT id = 0;            // 0 for a submenu
    std::string handler;    // menu-group handler class that receives the command
    std::string help;       // the command's help topic: "document.md#section", or empty
    std::vector<MenuNode> items;
};

class ResourceError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class ResourceTable final : public IBinReader {
public:
    // The resource files compiled into the program.
    static std::unique_ptr<ResourceTable> LoadEmbedded();
    // Every *.json file of `directory`. Throws ResourceError naming the file.
    static std::unique_ptr<ResourceTable> LoadDirectory(const std::filesystem::path& directory);

    // Adds the contents of one resource file; throws ResourceError naming
    // `fileName` and what is wrong.
    void AddFile(const std::string& fileName, std::string_view json);

    CString GetString(UINT id) override;
    std::vector<KalComboEntry> GetComboList(UINT comboId, UINT dialogId) override;
    std::vector<UINT> GetRadioGroup(UINT groupId) override;
    std::shared_ptr<const DialogTemplate> GetDialogTemplate(UINT id) override;

    // Message `id`, or an empty text.
    CString GetMessageText(UINT id) const;
    // The ids of every dialog template, ascending.
    std::vector<UINT> GetDialogIds() const;
    const std::vector<MenuNode>& GetMenuBar() const { return m_menus; }
    // The help topic the menu gives command `id`, or empty.
    std::string GetHelpTopic(UINT id) const;

private:
    std::map<UINT, CString> m_strings;
    std::map<UINT, CString> m_messages;
    std::map<std::pair<UINT, UINT>, std::vector<KalComboEntry>> m_combos; // (combo, dialog)
    std::map<UINT, std::vector<UINT>> m_radios;
    std::map<UINT, std::shared_ptr<const DialogTemplate>> m_dialogs;
    std::vector<MenuNode> m_menus;
};

} // namespace kalhost
