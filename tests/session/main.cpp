// tarvik_session [--screen] FILE...: runs session scripts against the whole program, on its forms or on real
// widgets, and prints each line that does not hold.
#include <fstream>
#include <iostream>

#include "screen/Picture.h"
#include "session/Runner.h"
#include "session/ScreenSession.h"

namespace {

/// True when the session passed.
bool RunFile(const std::string& path, const tarvik::session::MakeDriver& makeDriver) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::cout << path << ": can't be read\n";
    return false;
  }
  const std::string script{std::istreambuf_iterator<char>(in), {}};
  tarvik::session::Runner runner(makeDriver, TARVIK_DATA);
  const auto failures = runner.Run(script);
  for (const std::string& failure : failures) std::cout << path << ":" << failure << "\n";
  return failures.empty();
}

}  // namespace

int main(int count, char** arguments) {
  if (const auto decoded = tarvik::screen::RunAsDecoder(count, arguments)) return *decoded;
  std::vector<std::string> files(arguments + 1, arguments + count);
  const bool screen = !files.empty() && files.front() == "--screen";
  if (screen) files.erase(files.begin());
  const tarvik::session::ScreenSession widgets(screen, count, arguments);

  int failed = 0;
  for (const std::string& file : files) {
    if (!RunFile(file, screen ? tarvik::session::MakeScreenDriver : tarvik::session::MakeFormDriver))
      ++failed;
  }
  std::cout << files.size() - static_cast<std::size_t>(failed) << " passed, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}
