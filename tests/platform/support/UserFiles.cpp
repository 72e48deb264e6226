#include "support/UserFiles.h"

#include <string>

namespace tarvik {

void PutUserFiles(MemoryFiles& files) {
  files.Put("c:\\my\\a.b50", "USE MDEF a\r\nBTN S1 Fire /U Gear RAW (1C) Rem c\r\n~ d");
  files.Put("c:\\my\\a.m50", "Gear = g\r\nrem ----\r\nrem guns\r\nrem ----\r\nFire = SPC\r\nBomb = b, x = 1");
  files.Put("c:\\my\\b.b50", std::string("\0\r\x80 RAW (\n\xFF", 10));
  files.Put("c:\\my\\b.m50", "");
  files.Put("c:\\my\\a.bmp", "BM no picture");
}

}  // namespace tarvik
