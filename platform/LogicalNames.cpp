#include "platform/LogicalNames.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <algorithm>
#include <charconv>

#include "platform/LogicalPath.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr std::size_t kLetters = 2;
constexpr std::size_t kMarkLength = 4;

/// The beginning of a name without its ending; all of it where it has none.
std::string_view BaseOf(std::string_view name) { return name.substr(0, name.rfind('.')); }

/// The same for each start of the program, and another one for each number.
std::string MarkOf(std::string_view hostName, std::size_t number) {
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::string mark;
  auto hash = XXH3_64bits_withSeed(hostName.data(), hostName.size(), number);
  for (; mark.size() < kMarkLength; hash /= kDigits.size()) mark += kDigits[hash % kDigits.size()];
  return mark;
}

std::string Alias(std::string_view hostName, std::size_t number) {
  const std::string_view base = BaseOf(hostName);
  std::string letters = LowerCase(FromUtf8(base));
  std::erase_if(letters, [](char c) { return !IsWordCharacter(c); });
  return letters.substr(0, kLetters) + MarkOf(hostName, number) + "~" + std::to_string(number) +
         PlainName(hostName.substr(base.size())).value_or("");
}

/// The number of an alias; nothing for a name that is none.
std::optional<std::size_t> NumberOf(std::string_view name) {
  const std::string_view base = BaseOf(name);
  const std::size_t tilde = base.rfind('~');
  if (tilde == base.npos) return {};
  std::size_t number = 0;
  const auto [end, status] = std::from_chars(base.data() + tilde + 1, base.data() + base.size(), number);
  if (status != std::errc{} || end != base.data() + base.size()) return {};
  return number;
}

}  // namespace

std::optional<std::string> PlainName(std::string_view hostName) {
  std::string name = LowerCase(FromUtf8(hostName));
  if (!IsName(name)) return {};
  return name;
}

LogicalNames::LogicalNames(std::vector<std::string> hostNames) : hostNames_(std::move(hostNames)) {
  for (const std::string& host : hostNames_) {
    const auto name = PlainName(host);
    if (!name) continue;
    const auto [entry, isFirst] = plain_.try_emplace(*name, host);
    const std::string exact = ToUtf8(*name);
    if (!isFirst && entry->second != exact) entry->second = std::nullopt;
    if (host == exact) entry->second = host;
  }
}

const LogicalNames::Index& LogicalNames::Aliases(std::size_t number) const {
  const auto [aliases, isNew] = aliases_.try_emplace(number);
  if (!isNew) return aliases->second;
  for (const std::string& host : hostNames_) {
    const auto [entry, isFirst] = aliases->second.try_emplace(Alias(host, number), host);
    if (!isFirst) entry->second = std::nullopt;
  }
  return aliases->second;
}

std::optional<std::string> LogicalNames::Find(const std::string& name) const {
  if (const auto plain = plain_.find(name); plain != plain_.end()) return plain->second;
  const auto number = NumberOf(name);
  if (!number) return {};
  const Index& aliases = Aliases(*number);
  const auto alias = aliases.find(name);
  return alias == aliases.end() ? std::nullopt : alias->second;
}

std::string LogicalNames::NameOf(const std::string& hostName,
                                 const std::function<bool(const std::string&)>& mayBeTaken) const {
  const auto fits = [&](const std::string& name) { return Find(name) == hostName && mayBeTaken(name); };
  if (const auto plain = PlainName(hostName); plain && fits(*plain)) return *plain;
  for (std::size_t number = 1;; ++number) {
    if (std::string alias = Alias(hostName, number); fits(alias)) return alias;
  }
}

}  // namespace tarvik
