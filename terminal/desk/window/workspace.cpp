#include "terminal/desk/window/workspace.h"

#include <nlohmann/json.hpp>

#include "terminal/desk/appearance/skins.h"

namespace algo::terminal::desk::window {

namespace {

using nlohmann::json;

constexpr int Version = 1;

json Base64(const QByteArray& bytes) { return bytes.toBase64().toStdString(); }

QByteArray BytesOf(const json& text) {
  return QByteArray::fromBase64(QByteArray::fromStdString(text.get<std::string>()));
}

}  // namespace

std::string WorkspaceText(const TWorkspace& workspace) {
  json entries = json::array();
  for (const frames::TStoredEntry& entry : workspace.entries) {
    json stored{{"name", entry.name}, {"group", entry.group}, {"layout", entry.layout}};
    if (!entry.data.empty()) stored["data"] = entry.data;
    entries.push_back(std::move(stored));
  }
  const json all{{"version", Version},
                 {"language", appearance::LanguageCode(workspace.language)},
                 {"skin", workspace.skin},
                 {"geometry", Base64(workspace.geometry)},
                 {"panels", Base64(workspace.panels)},
                 {"watch", {{"group", workspace.watchGroup}}},
                 {"orders", {{"group", workspace.ordersGroup}}},
                 {"entries", std::move(entries)}};
  // Bytes that are no UTF-8 must not prevent the rest from being stored.
  return all.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::optional<TWorkspace> ParseWorkspace(std::string_view text) {
  try {
    const json all = json::parse(text);
    if (all.at("version").get<int>() != Version) return std::nullopt;
    const auto language = appearance::LanguageOfCode(all.at("language").get<std::string>());
    TWorkspace workspace;
    workspace.skin = all.at("skin").get<std::string>();
    if (!language || appearance::SkinNamed(workspace.skin) == nullptr) return std::nullopt;
    workspace.language = *language;
    workspace.geometry = BytesOf(all.at("geometry"));
    workspace.panels = BytesOf(all.at("panels"));
    workspace.watchGroup = all.at("watch").at("group").get<std::string>();
    workspace.ordersGroup = all.at("orders").at("group").get<std::string>();
    for (const json& entry : all.at("entries")) {
      workspace.entries.push_back({entry.at("name").get<std::string>(), entry.at("group").get<std::string>(),
                                   entry.at("layout").get<std::string>(),
                                   entry.value("data", std::string())});
    }
    return workspace;
  } catch (const json::exception&) {
    return std::nullopt;
  }
}

}  // namespace algo::terminal::desk::window
