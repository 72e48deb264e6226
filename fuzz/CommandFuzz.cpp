// Any bytes as the command line of a program, and as the beginning of the program's file: what is found is a
// file that is there, its rest is the end of the line, and what DOSBox is told is our own lines, each once,
// whatever stands in the command.
#include <algorithm>
#include <cstdlib>

#include "Bytes.h"
#include "platform/DosBox.h"
#include "support/TemporaryFolder.h"

namespace {

using namespace tarvik;

/// The drives of one run of the target, and a DOSBox that nobody starts.
struct Host {
  Host() {
    folder.Put("c/tm/f22/f22load.exe", "MZ");
    folder.Put("c/tm/load it.bat", "rem");
    folder.Put("c/100%.com", "x");
    std::filesystem::permissions(folder.Put("bin/dosbox", "#!/bin/sh\n"), std::filesystem::perms::owner_all);
    setenv("PATH", (folder.path() / "bin").c_str(), 1);
    setenv("TMPDIR", folder.Make("tmp").c_str(), 1);
  }
  TemporaryFolder folder;
  Drives drives{{{'c', (folder.path() / "c").string()}}};
};

void CheckBatch(const DosBoxRun& run) {
  const std::string batch = TemporaryFolder::Content(run.folder->path() / "job.bat");
  if (std::count(batch.begin(), batch.end(), '\n') != std::count(batch.begin(), batch.end(), '\r'))
    std::abort();
  std::size_t calls = 0;
  for (std::size_t at = 0; at < batch.size();) {
    const std::size_t end = std::min(batch.find("\r\n", at), batch.size());
    const std::string line = batch.substr(at, end - at);
    calls += line.starts_with("call ") ? 1 : 0;
    const bool leavesMark = line.starts_with("echo ");
    if (!leavesMark && line.find_first_of("<>|") != line.npos) std::abort();
    at = end + 2;
  }
  if (calls != 1) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static Host host;
  Bytes bytes(data, size);
  constexpr const char* kPrograms[] = {"", "c:\\tm\\f22\\f22load.exe", "\"c:\\tm\\load it.bat\"",
                                       "c:\\100%.com"};
  const std::string before = bytes.OneOf(kPrograms);
  host.folder.Put("c/tm/f22/f22load.exe", "MZ" + bytes.Next(70));
  const std::string line = before + bytes.Rest();
  const auto command = ParseCommandLine(line, host.drives);
  if (!command) return 0;
  if (!std::filesystem::is_regular_file(command->file) || !line.ends_with(command->rest)) std::abort();
  (void)KindOf(command->file);
  if (const auto run = PrepareDosBox(*command, host.drives, WindowStyle::Normal)) CheckBatch(*run);
  return 0;
}
