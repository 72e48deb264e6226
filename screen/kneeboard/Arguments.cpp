#include "screen/kneeboard/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <map>
#include <vector>

namespace tarvik::screen {
namespace {

using kneeboard::Layers;
using kneeboard::ListOrder;
using kneeboard::Options;
using kneeboard::Paper;
using kneeboard::Turned;

const std::map<std::string, Format> kFormats = {
    {".pdf", Format::Pdf}, {".svg", Format::Svg}, {".png", Format::Png}, {".txt", Format::Text}};

/// An option whose value is one of a few words.
template <class Value>
void AddChoice(CLI::App& app, const char* name, Value& value, const std::map<std::string, Value>& words,
               const char* description) {
  app.add_option(name, value, description)
      ->transform(CLI::CheckedTransformer(words, CLI::ignore_case).description(""))
      ->option_text([&] {
        std::string text;
        for (const auto& [word, ignored] : words) text.append(text.empty() ? "" : "|").append(word);
        return text;
      }());
}

/// Options that take a word each.
void AddChoices(CLI::App& app, Options& options) {
  AddChoice<Paper>(app, "--paper", options.paper,
                   {{"a4", Paper::A4}, {"letter", Paper::Letter}, {"a5", Paper::A5}},
                   "The size of the paper");
  AddChoice<Layers>(app, "--layers", options.layers,
                    {{"together", Layers::Together}, {"each", Layers::PageEach}},
                    "All layers on one page, or a page for each");
  AddChoice<ListOrder>(app, "--order", options.order,
                       {{"control", ListOrder::ByControl}, {"heading", ListOrder::ByHeading}},
                       "What the list is sorted by");
}

/// What is added to the options once the line has been read.
struct Flags {
  bool isLandscape = false;
  bool isWithoutKeys = false;
  bool isBlackAndWhite = false;
  std::vector<std::string> pages;
};

void Apply(const Flags& flags, Arguments& arguments) {
  Options& options = arguments.options;
  if (flags.isLandscape) options.turned = Turned::Landscape;
  if (flags.isBlackAndWhite) arguments.inks = kneeboard::Colouring::BlackAndWhite;
  options.hasKeys = !flags.isWithoutKeys;
  if (flags.pages.empty()) return;
  const auto isWanted = [&](const char* kind) {
    return std::ranges::find(flags.pages, kind) != flags.pages.end();
  };
  options.hasDevices = isWanted("devices");
  options.hasKeyboard = isWanted("keyboard");
  options.hasList = isWanted("list");
}

std::string EndingOf(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::ranges::transform(ending, ending.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return ending;
}

void AddOptions(CLI::App& app, Arguments& arguments, Flags& flags) {
  app.set_version_flag("--version", "tarvik-kneeboard " TARVIK_VERSION, "Print the version and exit");
  app.add_option("FILE", arguments.file, "A joystick file, which its macro file goes with, or a macro file")
      ->required();
  app.add_option("-o,--output", arguments.output, "The file to write: .pdf, .svg, .png or .txt")
      ->required()
      ->check([](const std::string& path) {
        return kFormats.contains(EndingOf(path)) ? std::string()
                                                 : "Must end in .pdf, .svg, .png or .txt: " + path;
      });
  AddChoices(app, arguments.options);
  app.add_flag("--landscape", flags.isLandscape, "Turn the paper");
  app.add_flag("--two", arguments.options.twoOnASheet, "Two pages on a sheet");
  app.add_option("--pages", flags.pages,
                 "The kinds of pages: devices, keyboard, list; all of them unless told")
      ->delimiter(',')
      ->check(CLI::IsMember({"devices", "keyboard", "list"}).description(""));
  app.add_flag("--no-keys", flags.isWithoutKeys, "Words alone, without the keys that are sent");
  app.add_flag("--black-and-white", flags.isBlackAndWhite, "No colours");
  app.add_option("--resolution", arguments.dotsPerInch, "Dots per inch of a .png")
      ->check(CLI::Range(20, 1200))
      ->capture_default_str();
}

}  // namespace

std::variant<Arguments, Status> ReadArguments(int count, const char* const* words, const Streams& streams) {
  Arguments arguments;
  Flags flags;
  CLI::App app("Draws what every control does from a joystick file and its macro file.", "tarvik-kneeboard");
  AddOptions(app, arguments, flags);
  try {
    app.parse(count, words);
  } catch (const CLI::ParseError& stopped) {
    return app.exit(stopped, streams.out, streams.error) == 0 ? kFine : kUnreadable;
  }
  Apply(flags, arguments);
  arguments.format = kFormats.at(EndingOf(arguments.output));
  return arguments;
}

}  // namespace tarvik::screen
