#include "terminal/desk/appearance/texts.h"

#include <QFile>
#include <algorithm>
#include <cassert>
#include <nlohmann/json.hpp>

#include "plugin/host_contract/language_manager.h"
#include "terminal/render/qt_text.h"

// The linker takes the resources of a static library only where they are asked for, and they cannot be asked
// for within a namespace.
static void LinkResources() { Q_INIT_RESOURCE(appearance); }

namespace algo::terminal::desk::appearance {

namespace {

struct TLanguageRow {
  TLanguage language;
  std::string_view code;
  const char* ownName;
};

constexpr std::array<TLanguageRow, Languages.size()> LanguageTable{{
    {TLanguage::English, "en", "English"},
    {TLanguage::TraditionalChinese, "zh_Hant", "繁體中文"},
    {TLanguage::SimplifiedChinese, "zh_Hans", "简体中文"},
}};

const TLanguageRow& RowOf(TLanguage language) {
  const auto* row = std::ranges::find(LanguageTable, language, &TLanguageRow::language);
  assert(row != LanguageTable.end());
  return *row;
}

std::string_view TextOr(const TTextTable& table, std::string_view id) {
  const auto text = table.find(id);
  return text != table.end() ? std::string_view(text->second) : id;
}

}  // namespace

std::string_view LanguageCode(TLanguage language) { return RowOf(language).code; }

std::optional<TLanguage> LanguageOfCode(std::string_view code) {
  const auto* row = std::ranges::find(LanguageTable, code, &TLanguageRow::code);
  return row != LanguageTable.end() ? std::optional(row->language) : std::nullopt;
}

QString LanguageOwnName(TLanguage language) { return QString::fromUtf8(RowOf(language).ownName); }

TTexts::TTexts(TLanguage language) : FLanguage(language) {
  LinkResources();
  QFile file(QStringLiteral(":/desk/texts/%1.json").arg(render::ToQt(LanguageCode(language))));
  const bool opened = file.open(QIODevice::ReadOnly);
  assert(opened);
  const auto texts = nlohmann::json::parse(opened ? file.readAll().toStdString() : "{}");
  FResources = texts.at("resources").get<TTextTable>();
  FErrors = texts.at("errors").get<TTextTable>();
  FExchanges = texts.at("exchanges").get<TTextTable>();
  FDesk = texts.at("desk").get<TTextTable>();
}

std::string TTexts::Resource(std::string_view id) const { return std::string(TextOr(FResources, id)); }

QString TTexts::Desk(std::string_view key) const { return render::ToQt(TextOr(FDesk, key)); }

std::string TTexts::ErrorText(std::string_view code) const { return std::string(TextOr(FErrors, code)); }

void TTexts::FillInto(THostData& data) const {
  data.texts.insert_or_assign(std::string(host::Const_ResourceStringTag), FResources);
  data.texts.insert_or_assign(std::string(host::ExchangeTag), FExchanges);
}

}  // namespace algo::terminal::desk::appearance
