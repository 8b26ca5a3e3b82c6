// The XML instructions (_setup.xml), which a Smartphone needs and a Pocket PC of Windows Mobile 5 takes too.
#pragma once

#include "tools/cabheader/Installation.h"

#include <string>

std::string WriteXmlInstructions(const Installation& installation);
