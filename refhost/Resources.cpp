#include "refhost/Resources.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <functional>
#include <sstream>

namespace kalhost {

struct EmbeddedResource {
    const char* name;
    const char* text;
};
extern const EmbeddedResource kEmbeddedResources[];
extern const std::size_t kEmbeddedResourceCount;

namespace {

using nlohmann::json;

UINT ParseId(const std::string& key, const std::string& where)
{
    std::size_t used = 0;
    unsigned long value = 0;
    try {
        value = std::stoul(key, &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used != key.size() || key.empty() || value > 0xFFFFFFFFul)
        throw ResourceError(where + ": \"" + key + "\" is not a resource id");
    return static_cast<UINT>(value);
}

// Resources are split over several files; an id may be defined once only.
template <class Map, class Key, class Value>
void AddOnce(Map& map, const Key& key, Value&& value, const std::string& where)
{
    if (!map.emplace(key, std::forward<Value>(value)).second)
        throw ResourceError(where + ": defined twice");
}

CString Text(const json& value, const std::string& where)
{
    if (!value.is_string())
        throw ResourceError(where + ": expected a text");
    return CString::FromUtf8(value.get<std::string>());
}

int Int(const json& value, const std::string& where)
{
    if (!value.is_number_integer())
        throw ResourceError(where + ": expected a whole number");
    return value.get<int>();
}

DWORD ParseStyle(const json& styles, ControlKind kind, const std::string& where)
{
    const bool focusable = kind != ControlKind::Static && kind != ControlKind::GroupBox;
    DWORD style = focusable ? DWORD{WS_TABSTOP} : DWORD{0};
    if (styles.is_null())
        return style;
    if (!styles.is_array())
        throw ResourceError(where + ": \"style\" must be a list of names");
    static const std::map<std::string, DWORD> kNames = {
        {"group", WS_GROUP},           {"tabstop", WS_TABSTOP},      {"disabled", WS_DISABLED}, {"hidden", WS_HIDDEN},
        {"default", BS_DEFPUSHBUTTON}, {"singlesel", LVS_SINGLESEL}, {"readonly", ES_READONLY}, {"right", SS_RIGHT},
    };
    for (const auto& name : styles) {
        if (name.is_string() && name.get<std::string>() == "notabstop") {
            style &= ~static_cast<DWORD>(WS_TABSTOP);
            continue;
        }
        const auto it = name.is_string() ? kNames.find(name.get<std::string>()) : kNames.end();
        if (it == kNames.end())
            throw ResourceError(where + ": unknown style " + name.dump());
        style |= it->second;
    }
    return style;
}

std::array<int, 4> Rect(const json& value, const std::string& where)
{
    if (!value.is_array() || value.size() != 4)
        throw ResourceError(where + ": \"rect\" must be [x, y, width, height]");
    std::array<int, 4> rect{};
    for (std::size_t i = 0; i < 4; ++i)
        rect[i] = Int(value[i], where);
    return rect;
}

DialogTemplate ParseDialog(const json& d, const std::string& where)
{
    DialogTemplate t;
    t.id = static_cast<UINT>(Int(d.at("id"), where));
    const std::string here = where + " dialog " + std::to_string(t.id);
    t.caption = d.contains("caption") ? Text(d["caption"], here) : CString();
    const auto& size = d.at("size");
    if (!size.is_array() || size.size() != 2)
        throw ResourceError(here + ": \"size\" must be [width, height]");
    t.cx = Int(size[0], here);
    t.cy = Int(size[1], here);
    for (const auto& c : d.at("controls")) {
        ControlTemplate control;
        control.id = static_cast<UINT>(Int(c.at("id"), here));
        const std::string at = here + " control " + std::to_string(control.id);
        const auto kind = ControlKindFromName(c.at("kind").get<std::string>());
        if (!kind)
            throw ResourceError(at + ": unknown kind " + c["kind"].dump());
        control.kind = *kind;
        control.caption = c.contains("caption") ? Text(c["caption"], at) : CString();
        const auto rect = Rect(c.at("rect"), at);
        control.x = rect[0];
        control.y = rect[1];
        control.cx = rect[2];
        control.cy = rect[3];
        control.style = ParseStyle(c.contains("style") ? c["style"] : json(), control.kind, at);
        control.tip = c.contains("tip") ? Text(c["tip"], at) : CString();
        if (c.contains("columns"))
            for (const auto& column : c["columns"])
                control.columns.push_back(Text(column, at));
        if (control.id != 0 && t.Find(control.id))
            throw ResourceError(at + ": id used twice");
        t.controls.push_back(std::move(control));
    }
    return t;
}

MenuNode ParseMenu(const json& m, const std::string& inheritedHandler, const std::string& where)
{
    MenuNode node;
    node.text = Text(m.at("text"), where);
    node.handler = m.contains("handler") ? m["handler"].get<std::string>() : inheritedHandler;
    if (m.contains("id")) {
        node.id = static_cast<UINT>(Int(m["id"], where));
        if (node.handler.empty())
            throw ResourceError(where + ": menu command " + std::to_string(node.id) + " has no handler");
    }
    if (m.contains("help")) {
        if (!m["help"].is_string() || !node.id)
            throw ResourceError(where + ": \"help\" names the topic of a menu command as a text");
        node.help = m["help"].get<std::string>();
    }
    if (m.contains("items"))
        for (const auto& item : m["items"])
            node.items.push_back(ParseMenu(item, node.handler, where));
    return node;
}

} // namespace

std::unique_ptr<ResourceTable> ResourceTable::LoadEmbedded()
{
    auto table = Embedded();
    table->Load();
    return table;
}

std::unique_ptr<ResourceTable> ResourceTable::Embedded()
{
    std::vector<ResourceFile> files;
    for (std::size_t i = 0; i < kEmbeddedResourceCount; ++i)
        files.push_back({kEmbeddedResources[i].name, kEmbeddedResources[i].text});
    return std::make_unique<ResourceTable>(std::move(files));
}

std::unique_ptr<ResourceTable> ResourceTable::LoadDirectory(const std::filesystem::path& directory)
{
    auto table = std::make_unique<ResourceTable>();
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory))
        if (entry.is_regular_file() && entry.path().extension() == ".json")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        if (!in)
            throw ResourceError(file.string() + ": cannot be read");
        table->AddFile(file.string(), text.str());
    }
    return table;
}

const ResourceTable::Tables& ResourceTable::Parsed() const
{
    if (!m_waiting.empty()) {
        // Into fresh tables, kept only when every file is in.
        Tables tables;
        for (const ResourceFile& file : m_waiting)
            Add(tables, file.name, file.json);
        m_tables = std::move(tables);
        m_waiting.clear();
    }
    return m_tables;
}

const std::vector<MenuNode>& ResourceTable::ReadMenuBarAlone() const
{
    if (m_waiting.empty())
        return m_tables.menus;
    if (!m_menusAlone) {
        auto tables = std::make_unique<Tables>();
        for (const ResourceFile& file : m_waiting)
            if (file.name.ends_with("menus.json"))
                Add(*tables, file.name, file.json);
        m_menusAlone = std::move(tables);
    }
    return m_menusAlone->menus;
}

void ResourceTable::AddFile(const std::string& fileName, std::string_view text)
{
    Parsed(); // files keep their order
    Add(m_tables, fileName, text);
}

void ResourceTable::Add(Tables& tables, const std::string& fileName, std::string_view text)
{
    json doc;
    try {
        doc = json::parse(text);
    } catch (const json::parse_error& e) {
        throw ResourceError(fileName + ": " + e.what());
    }
    try {
        if (doc.contains("strings"))
            for (const auto& [key, value] : doc["strings"].items())
                AddOnce(tables.strings, ParseId(key, fileName), Text(value, fileName + " string " + key),
                        fileName + " string " + key);
        if (doc.contains("messages"))
            for (const auto& [key, value] : doc["messages"].items())
                AddOnce(tables.messages, ParseId(key, fileName), Text(value, fileName + " message " + key),
                        fileName + " message " + key);
        if (doc.contains("combos")) {
            for (const auto& combo : doc["combos"]) {
                const UINT comboId = static_cast<UINT>(Int(combo.at("combo"), fileName));
                const UINT dialogId = static_cast<UINT>(combo.contains("dialog") ? Int(combo["dialog"], fileName) : 0);
                const std::string where = fileName + " combo " + std::to_string(comboId);
                std::vector<KalComboEntry> entries;
                for (const auto& e : combo.at("entries")) {
                    if (e.is_object())
                        entries.push_back({Text(e.at("text"), where), static_cast<UINT>(Int(e.at("item"), where))});
                    else
                        entries.push_back({Text(e, where), 0});
                }
                AddOnce(tables.combos, std::make_pair(comboId, dialogId), std::move(entries),
                        where + " for dialog " + std::to_string(dialogId));
            }
        }
        if (doc.contains("radios")) {
            for (const auto& [key, value] : doc["radios"].items()) {
                std::vector<UINT> buttons;
                for (const auto& id : value)
                    buttons.push_back(static_cast<UINT>(Int(id, fileName + " radio group " + key)));
                AddOnce(tables.radios, ParseId(key, fileName), std::move(buttons), fileName + " radio group " + key);
            }
        }
        if (doc.contains("dialogs")) {
            for (const auto& d : doc["dialogs"]) {
                auto t = std::make_shared<DialogTemplate>(ParseDialog(d, fileName));
                const UINT id = t->id;
                AddOnce(tables.dialogs, id, std::move(t), fileName + " dialog " + std::to_string(id));
            }
        }
        if (doc.contains("menus"))
            for (const auto& m : doc["menus"])
                tables.menus.push_back(ParseMenu(m, {}, fileName));
    } catch (const json::exception& e) {
        throw ResourceError(fileName + ": " + e.what());
    }
}

CString ResourceTable::GetString(UINT id)
{
    const auto& strings = Parsed().strings;
    const auto it = strings.find(id);
    return it == strings.end() ? CString() : it->second;
}

std::vector<KalComboEntry> ResourceTable::GetComboList(UINT comboId, UINT dialogId)
{
    const auto& combos = Parsed().combos;
    auto it = combos.find({comboId, dialogId});
    if (it == combos.end())
        it = combos.find({comboId, 0});
    return it == combos.end() ? std::vector<KalComboEntry>() : it->second;
}

std::vector<UINT> ResourceTable::GetRadioGroup(UINT groupId)
{
    const auto& radios = Parsed().radios;
    const auto it = radios.find(groupId);
    return it == radios.end() ? std::vector<UINT>() : it->second;
}

std::shared_ptr<const DialogTemplate> ResourceTable::GetDialogTemplate(UINT id)
{
    const auto& dialogs = Parsed().dialogs;
    const auto it = dialogs.find(id);
    return it == dialogs.end() ? nullptr : it->second;
}

std::string ResourceTable::GetHelpTopic(UINT id) const
{
    const std::function<std::string(const std::vector<MenuNode>&)> find = [&](const std::vector<MenuNode>& nodes) {
        for (const auto& node : nodes) {
            if (node.id == id && id != 0)
                return node.help;
            if (auto topic = find(node.items); !topic.empty())
                return topic;
        }
        return std::string();
    };
    return find(Parsed().menus);
}

std::vector<UINT> ResourceTable::GetDialogIds() const
{
    const auto& dialogs = Parsed().dialogs;
    std::vector<UINT> ids;
    ids.reserve(dialogs.size());
    for (const auto& [id, dialog] : dialogs)
        ids.push_back(id);
    return ids;
}

CString ResourceTable::GetMessageText(UINT id) const
{
    const auto& messages = Parsed().messages;
    const auto it = messages.find(id);
    return it == messages.end() ? CString() : it->second;
}

} // namespace kalhost
