// Takes arbitrary bytes for the names of a host's folder, each of which must have a logical name of its own,
// and for a path, which must mean the same when it is written out whole.
#include <cstdint>
#include <cstdlib>
#include <set>

#include "platform/LogicalNames.h"
#include "platform/LogicalPath.h"
#include "text/CodePage.h"

namespace {

using namespace tarvik;

void Check(bool holds) {
  if (!holds) std::abort();
}

/// What stands between NULs and slashes: a host has any other byte in its names.
LogicalNames NamesOf(std::string_view bytes) {
  constexpr std::string_view kNone("\0/", 2);
  std::set<std::string> names;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of(kNone), bytes.size());
    const std::string name(bytes.substr(0, end));
    if (!name.empty() && name != "." && name != "..") names.insert(name);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return LogicalNames({names.begin(), names.end()});
}

void CheckNames(const LogicalNames& names) {
  for (const std::string& host : names.HostNames()) {
    const std::string name = names.NameOf(host, [](const std::string&) { return true; });
    Check(names.Find(name) == host && IsName(name) && name == LowerCase(name));
  }
}

void CheckPath(std::string_view bytes) {
  CurrentFolders folders;
  const auto path = folders.Complete(bytes);
  if (!path) return;
  const std::string text = path->Text();
  Check(folders.Complete(text)->Text() == text);
  folders.SetFolder(*path);
  folders.SetDrive(path->drive);
  Check(folders.Complete(".")->Text() == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckNames(NamesOf(bytes));
  CheckPath(bytes);
  return 0;
}
