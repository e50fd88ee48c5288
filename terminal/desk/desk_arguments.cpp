#include "terminal/desk/desk_arguments.h"

#include <CLI/CLI.hpp>
#include <QStandardPaths>
#include <filesystem>
#include <iostream>
#include <string>

#include "terminal/drive/module_library.h"

namespace algo::terminal {

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

}  // namespace

std::string MarketBesideProgram() {
  const std::filesystem::path module = ModuleBesideProgram();
  for (auto folder = module.parent_path(); folder.has_relative_path(); folder = folder.parent_path()) {
    const auto market = folder / "examples" / "market";
    if (std::error_code error; std::filesystem::is_directory(market, error)) return market.string();
  }
  return "examples/market";
}

TDeskArguments ReadDeskArguments(int argc, char** argv) {
  CLI::App app{
      "A desktop trading terminal for the algo order entry module. It trades on paper: prices and fills are "
      "made up,\n"
      "and no order leaves this machine."};
  app.name("algo-desk");
  TDeskOptions options;
  options.dataFolder = DefaultDataFolder();
  options.marketFolder = MarketBesideProgram();
  options.moduleFile = ModuleBesideProgram();
  std::string language;
  std::string skin;
  app.add_option("--data", options.dataFolder, "Where orders, settings and workspaces are kept")
      ->type_name("FOLDER")
      ->capture_default_str();
  app.add_option("--market", options.marketFolder, "The tables of the paper market")
      ->type_name("FOLDER")
      ->capture_default_str();
  app.add_option("--module", options.moduleFile, "The module to load")
      ->type_name("FILE")
      ->capture_default_str();
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
  app.add_option("--language", language, "The language; else the one of the last time")
      ->check(OneOf("en, zh_Hant, zh_Hans",
                    [](const std::string& code) { return LanguageOfCode(code).has_value(); }));
  app.add_option("--skin", skin, "The skin; else the one of the last time")
      ->check(OneOf("light, dark, high-contrast",
                    [](const std::string& name) { return SkinNamed(name) != nullptr; }));
  auto* play = app.add_option("--play", options.playFile,
                              "A script to play with keys and mouse, as algo-drive's; ends after it")
                   ->type_name("FILE");
  app.add_option("--screens", options.screensFolder, "Where a picture of each step of the play goes")
      ->type_name("FOLDER")
      ->needs(play);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return {std::nullopt, app.exit(help)};
  } catch (const CLI::ParseError& error) {
    std::cerr << "algo-desk: " << error.what() << '\n';
    return {std::nullopt, UnusableArguments};
  }
  options.language = LanguageOfCode(language);
  options.skin = SkinNamed(skin);
  return {options, 0};
}

}  // namespace algo::terminal
