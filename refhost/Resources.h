// The reference host's resources: string and message tables, combo lists,
// radio groups, dialog templates and the menu bar, read from the JSON files
// under resources/. The same loader serves kalhost and the tests' fake host.
// A table may leave its files until something is looked up: `kalhost list`
// needs none of them.
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
    UINT id = 0;         // 0 for a submenu
    std::string handler; // menu-group handler class that receives the command
    std::string help;    // the command's help topic: "document.md#section", or empty
    std::vector<MenuNode> items;
};

class ResourceError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A resource file's name and text; the text is not copied.
struct ResourceFile {
    std::string name;
    std::string_view json;
};

class ResourceTable final : public IBinReader {
public:
    ResourceTable() = default;
    // `files`, parsed at the first lookup, so that a run that looks nothing
    // up does not pay for them. That lookup (or Load) throws the
    // ResourceError that adding the files one by one would, and throws it
    // again at the next: a broken file leaves nothing half-added.
    explicit ResourceTable(std::vector<ResourceFile> files) : m_waiting(std::move(files)) {}

    // The resource files compiled into the program, parsed now. Throws
    // ResourceError naming the file.
    static std::unique_ptr<ResourceTable> LoadEmbedded();
    // The same, parsed at the first lookup.
    static std::unique_ptr<ResourceTable> Embedded();
    // Every *.json file of `directory`. Throws ResourceError naming the file.
    static std::unique_ptr<ResourceTable> LoadDirectory(const std::filesystem::path& directory);

    // Parses the files that wait for the first lookup, if any.
    void Load() const { Parsed(); }

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
    const std::vector<MenuNode>& GetMenuBar() const { return Parsed().menus; }
    // The menu bar read from the menu file alone while the other files wait
    // (they are still checked at their first lookup): kalhost list names
    // each command's menu and still starts at once.
    const std::vector<MenuNode>& ReadMenuBarAlone() const;
    // The help topic the menu gives command `id`, or empty.
    std::string GetHelpTopic(UINT id) const;

private:
    struct Tables {
        std::map<UINT, CString> strings;
        std::map<UINT, CString> messages;
        std::map<std::pair<UINT, UINT>, std::vector<KalComboEntry>> combos; // (combo, dialog)
        std::map<UINT, std::vector<UINT>> radios;
        std::map<UINT, std::shared_ptr<const DialogTemplate>> dialogs;
        std::vector<MenuNode> menus;
    };
    static void Add(Tables& tables, const std::string& fileName, std::string_view json);
    // The tables, once the waiting files are in them.
    const Tables& Parsed() const;

    mutable std::vector<ResourceFile> m_waiting;
    mutable Tables m_tables;
    mutable std::unique_ptr<Tables> m_menusAlone; // read ahead of the waiting files
};

} // namespace kalhost
