// Everything that is wrong with an image of the program, as far as its bytes can tell.
#pragma once

#include "tests/device/image/ByteView.h"
#include "tests/device/image/ElfFile.h"
#include "tests/device/image/ImportLists.h"

#include <vector>

// Complaints in plain sentences; none for a good image. What cannot be read is a complaint too.
std::vector<std::string> FaultsOf(ByteView file, const ElfFile& linked, const ImportLists& lists);
