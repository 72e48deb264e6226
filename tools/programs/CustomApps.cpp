#include "tools/programs/CustomApps.h"

#include "tools/programs/Download.h"

namespace tarvik {

void RunCustomApp(Workbench& bench, int index) {
  const Trap trap{bench.errors, "ED_mnuCustomApp_Click"};
  const std::string& path = bench.lists.CustomApps[static_cast<std::size_t>(index - 1)].path;
  ChangeToRootOf(bench, path, trap);
  trap(bench.platform.programs.Start(path, WindowStyle::Normal));
}

}  // namespace tarvik
