// Saves, other programs' writes and a disk that runs full, among files that anybody put into the folder of
// the versions: what is saved is the newest version, the first one stays, and there are never too many.
#include <algorithm>
#include <cstdlib>

#include "Bytes.h"
#include "support/BareWorkbench.h"

namespace {

using namespace tarvik;

constexpr const char* kPath = "c:\\my\\a.b50";

class Saver {
 public:
  Saver() {
    bench_.files.PutFolder("c:\\tarvik\\backup");
    bench_.workbench.values.BackupDir = Folder("c:\\tarvik\\Backup\\");
    bench_.files.Put(kPath, "first");
    bench_.workbench.files.OpenWithoutDialog(kPath);
    bench_.workbench.files.Load(bench_.joystick);
  }

  void Save(const std::string& text) {
    bench_.joystick.text.SetContent(RichText(text));
    bench_.workbench.files.Save(bench_.joystick);
    const std::vector<Version> kept = versions_.Of(bench_.joystick);
    if (kept.size() > Versions::kMost) std::abort();
    if (isFull_) return;
    if (bench_.files.Content(kPath) != text || kept.empty() || TextOf(kept.front()) != text) std::abort();
  }

  void OthersWrite(const std::string& text) { bench_.files.Put(kPath, text); }

  void PutAmongThem(const std::string& name, const std::string& content) {
    const std::vector<Version> kept = versions_.Of(bench_.joystick);
    if (kept.empty()) return;
    const std::string path = versions_.PathOf(bench_.joystick, kept.front());
    const std::string strange = path.substr(0, path.rfind('\\') + 1) + name;
    if (FileName::From(name) && IsName(name) && strange != path) bench_.files.Put(strange, content);
  }

  void Fill(bool isFull) {
    isFull_ = isFull;
    if (isFull) return bench_.files.FailAfter(3);
    bench_.files.StopFailing();
  }

 private:
  std::string TextOf(const Version& version) {
    return bench_.files.Content(versions_.PathOf(bench_.joystick, version)).value_or("");
  }

  BareWorkbench bench_;
  Versions& versions_ = bench_.workbench.versions;
  bool isFull_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  Saver saver;
  while (!bytes.Empty()) {
    switch (bytes.Below(8)) {
      case 0:
        saver.OthersWrite(bytes.Next(3));
        break;
      case 1:
        saver.PutAmongThem(bytes.Next(bytes.Below(40)), bytes.Next(2));
        break;
      case 2:
        saver.Fill(bytes.Below(2) == 1);
        break;
      default:
        saver.Save(std::string(bytes.Below(4), 'a') + "x");
    }
  }
  return 0;
}
