#include "workbench/Log.h"

namespace tarvik {

std::string InWords(const Failure& failure) {
  std::string words = "error " + std::to_string(failure.number);
  if (!failure.text.empty()) words += ", " + failure.text;
  if (failure.systemCode != 0) words += ", system error " + std::to_string(failure.systemCode);
  return words;
}

void Log::ErrorRecorded(std::string_view tag, const Failure& failure) {
  Write(std::string(tag) + ": " + InWords(failure));
}

/// The value may be anything that the user has put there.
void Log::SettingUnreadable(std::string_view section, std::string_view key) {
  Write("Tarvik.ini: " + std::string(key) + " in [" + std::string(section) + "] can't be read as a number");
}

void Log::SettingsFileUnreadable(const Failure& failure) {
  Write("Tarvik.ini can't be read, and is left alone: " + InWords(failure));
}

void Log::SettingsFileDamaged() { Write("Tarvik.ini is damaged, and its backup Tarvik.bak is used"); }

void Log::Write(std::string_view what) {
  lines_.push_back(calendar_.TimeOfDay() + " " + std::string(what));
  if (lines_.size() > kMost) lines_.pop_front();
  const std::string line = lines_.back();  // who hears of it may write another one
  Written(line);
}

}  // namespace tarvik
