// tarvik_session [--screen|--check] FILE...: runs session scripts against the whole program, on its forms or
// on real widgets, and prints each line that does not hold. With --check it only prints each line that reads
// wrong.
#include <algorithm>
#include <fstream>
#include <iostream>

#include "screen/widgets/Picture.h"
#include "session/Runner.h"
#include "session/ScreenSession.h"

namespace {

namespace session = tarvik::session;

using Way = std::vector<std::string> (*)(std::string_view script);

std::vector<std::string> OnForms(std::string_view script) {
  return session::Runner(session::MakeFormDriver, TARVIK_DATA).Run(script);
}

std::vector<std::string> OnScreen(std::string_view script) {
  return session::Runner(session::MakeScreenDriver, TARVIK_DATA).Run(script);
}

std::vector<std::string> Check(std::string_view script) {
  return session::Runner(session::MakeFormDriver, TARVIK_DATA).Check(script);
}

/// True when the session passed.
bool PassesFile(const std::string& path, Way way) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::cout << path << ": can't be read\n";
    return false;
  }
  const std::string script{std::istreambuf_iterator<char>(in), {}};
  const auto failures = way(script);
  for (const std::string& failure : failures) std::cout << path << ":" << failure << "\n";
  return failures.empty();
}

}  // namespace

int main(int count, char** arguments) {
  if (const auto decoded = tarvik::screen::RunAsDecoder(count, arguments)) return *decoded;
  std::vector<std::string> files(arguments + 1, arguments + count);
  const bool screen = !files.empty() && files.front() == "--screen";
  const bool check = !files.empty() && files.front() == "--check";
  if (screen || check) files.erase(files.begin());
  const session::ScreenSession widgets(screen, count, arguments);
  const Way way = screen ? OnScreen : check ? Check : OnForms;

  const auto failed = std::count_if(files.begin(), files.end(),
                                    [way](const std::string& file) { return !PassesFile(file, way); });
  std::cout << static_cast<long>(files.size()) - failed << " passed, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}
