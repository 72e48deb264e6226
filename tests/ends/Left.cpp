// tarvik_left FOLDER: prints each text whose journal a program that has ended left in the folder.
#include <iostream>

#include "platform/HostJournals.h"
#include "workbench/JournalRecords.h"

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const tarvik::HostJournals journals({arguments[1]});
  for (const std::string& name : journals.Left()) {
    const auto bytes = journals.Read(name);
    const auto unsaved = bytes ? tarvik::ReadJournal(*bytes) : std::nullopt;
    std::cout << (unsaved ? unsaved->text.text : "damaged: " + name) << "\n";
  }
  return 0;
}
