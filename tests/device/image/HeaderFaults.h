// What a device's loader would take amiss in the headers, but for the sections.
#pragma once

#include "tests/device/image/Complaints.h"
#include "tests/device/image/ElfFile.h"
#include "tests/device/image/ImageView.h"

void FindHeaderFaults(const ImageView& image, const ElfFile& linked, Complaints& complaints);
