// Reads arbitrary bytes as a journal, also behind records that are sound, and reads edits of a pane back as
// the pane has them.
#include <cstdint>
#include <cstdlib>

#include "support/MemoryFiles.h"
#include "workbench/JournalRecords.h"

namespace {

using namespace tarvik;

const JournalHead kHead{TextKind::Joystick, "c:\\my\\a.b50", "a.b50"};

void CheckIsSound(const std::optional<UnsavedText>& read) {
  if (read && read->text.colours.size() != read->text.text.size()) std::abort();
}

struct Fixture final : Form {
  Fixture() : Form("Fixture") {}
  MemoryFiles files;
  Pane pane{*this, "Pane", files};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckIsSound(ReadJournal(bytes));
  Fixture fixture;
  std::string journal = HeadRecord(kHead) + TextRecord(fixture.pane.Content());
  const Connection noted =
      fixture.pane.Edited.Connect([&journal](const PaneEdit& edit) { journal += EditRecord(edit); });
  for (std::size_t i = 0; i + 2 < size; i += 3) {
    const std::size_t length = fixture.pane.Characters().size();
    fixture.pane.Select({data[i] % (length + 1), data[i + 1] % 8U});
    if (data[i + 2] % 4 == 0) {
      fixture.pane.SelColor = Colour{data[i + 2]};
    } else {
      fixture.pane.ReplaceSelection(
          RichText(std::string(bytes.substr(i, data[i + 2] % 8U)), Colour{data[i]}));
    }
  }
  const auto read = ReadJournal(journal);
  if (!read || !read->isWhole || read->text != fixture.pane.Content()) std::abort();
  const auto torn = ReadJournal(journal + std::string(bytes));
  if (!torn) std::abort();
  CheckIsSound(torn);
  return 0;
}
