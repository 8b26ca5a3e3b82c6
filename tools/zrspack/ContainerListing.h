// Describes a picture container as text.
#pragma once

#include "tools/common/ByteView.h"

#include <string>

// A heading and a line an entry: id, offset, size, kind of picture. An entry that is no picture is described
// as such; a header or a directory that does not fit the file throws Refusal.
std::string ListContainer(ByteView file);
