// The settings file: any bytes can be read, and a value written into any bytes is found again while every
// other line stays.
#include <cstdlib>

#include "platform/ProfileFile.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  tarvik::Profile profile(text);
  (void)profile.GetString("Miscellaneous", "ValidUser", "User unknown", 100);
  (void)profile.GetInt("Miscellaneous", "UndoMax", 50);

  profile.Set("Miscellaneous", "UndoMax", "77");
  if (profile.GetInt("Miscellaneous", "UndoMax", 0) != 77) std::abort();
  const std::string once = profile.text();
  profile.Set("Miscellaneous", "UndoMax", "77");
  if (profile.text() != once) std::abort();
  profile.Set("Apps", "TextFilePath", "c:\\a b\\readme.txt");
  if (profile.GetString("Apps", "TextFilePath", "", 100) != "c:\\a b\\readme.txt") std::abort();
  if (profile.GetInt("Miscellaneous", "UndoMax", 0) != 77) std::abort();
  return 0;
}
