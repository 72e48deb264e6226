// tarvik-check: tells on the command line what is wrong in joystick files and macro files.
#include <iostream>

#include "check/Arguments.h"

int main(int count, char** words) { return tarvik::check::Run(count, words, {std::cout, std::cerr}); }
