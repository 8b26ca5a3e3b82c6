// The common check of a refusal: exit code, message, and nothing left behind.
#pragma once

#include "tests/tools/TempFolder.h"

#include <string>

// Packs a file of this content under id 7 and expects a refusal with one line that names the file and has
// these words.
void ExpectRefused(const Bytes& content, const std::string& words);
// The same content must be packed.
void ExpectPacked(const Bytes& content);
// A message of the packer is one line and begins with its name.
void ExpectOneLine(const std::string& message);
