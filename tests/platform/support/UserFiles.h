// What lies on the disk of a random user, and what such a user answers: for those that try a program out by
// chance.
#pragma once

#include "platform/Platform.h"
#include "support/MemoryFiles.h"

namespace tarvik {

/// What a random user picks in a dialog: files of a pair, a broken one, one that is new, and what is no file.
inline constexpr const char* kUserPaths[] = {
    "c:\\my\\a.b50",   "c:\\my\\a.m50", "c:\\my\\b.b50",
    "c:\\my\\b.m50",   "c:\\my\\new",   "c:\\my",
    "c:\\none\\a.b50", "c:\\my\\a.bmp", "c:\\tarvik\\templates\\title.rtf"};
inline constexpr Answer kUserAnswers[] = {Answer::Yes, Answer::No, Answer::Cancel};

/// A pair that is whole, one that is broken, and a picture that is none, in c:\my.
void PutUserFiles(MemoryFiles& files);

/// The beginning of a settings file on an ordinary day, with the user's folder.
inline constexpr const char* kUserSettings =
    "[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\nProgramFilesPath=c:\\my\r\n";

}  // namespace tarvik
