#include "terminal/desk/session/desk_arguments.h"

#include <CLI/CLI.hpp>
#include <QStandardPaths>
#include <filesystem>
#include <iostream>
#include <string>

#include "terminal/drive/module_library.h"

namespace algo::terminal::desk {

namespace {

std::string DefaultDataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation).toStdString();
}

CLI::Validator OneOf(const std::string& expected, bool (*isOne)(const std::string&)) {
  return CLI::Validator(
      [=](const std::string& given) {
        return isOne(given) ? std::string() : "'" + given + "' is none of " + expected;
      },
      expected);
}

void AddData(CLI::App& app, TDeskOptions& options) {
  options.dataFolder = DefaultDataFolder();
  options.marketFolder = MarketBesideProgram();
  options.moduleFile = drive::ModuleBesideProgram();
  app.add_option("--data", options.dataFolder, "Where orders, settings and workspaces are stored")
      ->type_name("FOLDER")
      ->capture_default_str();
  app.add_option("--market", options.marketFolder, "The tables of the paper market")
      ->type_name("FOLDER")
      ->capture_default_str();
  app.add_option("--module", options.moduleFile, "The module to load")
      ->type_name("FILE")
      ->capture_default_str();
}

void AddPrices(CLI::App& app, TDeskOptions& options) {
  auto* replay =
      app.add_option("--replay", options.replayFile, "A recording of prices to play; else they are made up")
          ->type_name("FILE");
  app.add_option("--speed", options.speed, "How fast the recording plays; 2 plays it in half the time")
      ->type_name("NUMBER")
      ->check(CLI::PositiveNumber)
      ->needs(replay);
  app.add_option("--seed", options.seed,
                 "Where the made-up prices begin; the same number gives the same prices")
      ->type_name("NUMBER")
      ->capture_default_str();
}

void AddAppearance(CLI::App& app, std::string& language, std::string& skin) {
  app.add_option("--language", language, "The language; else the one of the last time")
      ->check(OneOf("en, zh_Hant, zh_Hans",
                    [](const std::string& code) { return appearance::LanguageOfCode(code).has_value(); }));
  app.add_option("--skin", skin, "The skin; else the one of the last time")
      ->check(OneOf("light, dark, high-contrast",
                    [](const std::string& name) { return appearance::SkinNamed(name) != nullptr; }));
}

}  // namespace

std::string MarketBesideProgram() {
  const std::filesystem::path module = drive::ModuleBesideProgram();
  for (auto folder = module.parent_path(); folder.has_relative_path(); folder = folder.parent_path()) {
    const auto market = folder / "examples" / "market";
    if (std::error_code error; std::filesystem::is_directory(market, error)) return market.string();
  }
  return "examples/market";
}

TDeskArguments ReadDeskArguments(const std::string& program, int argc, char** argv,
                                 const std::function<void(CLI::App&)>& addOptions) {
  CLI::App app{
      "A desktop trading terminal for the algo order entry module. It trades on paper: prices and fills are "
      "made up,\n"
      "and no order leaves this machine."};
  app.name(program);
  TDeskOptions options;
  std::string language;
  std::string skin;
  AddData(app, options);
  AddPrices(app, options);
  AddAppearance(app, language, skin);
  if (addOptions) addOptions(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return {std::nullopt, app.exit(help)};
  } catch (const CLI::ParseError& error) {
    std::cerr << program << ": " << error.what() << '\n';
    return {std::nullopt, UnusableArguments};
  }
  options.language = appearance::LanguageOfCode(language);
  options.skin = appearance::SkinNamed(skin);
  return {options, 0};
}

}  // namespace algo::terminal::desk
