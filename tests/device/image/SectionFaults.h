// What a device's loader would take amiss in the sections and in what the headers say of their sizes.
#pragma once

#include "tests/device/image/Complaints.h"
#include "tests/device/image/ElfFile.h"
#include "tests/device/image/ImageView.h"

void FindSectionFaults(const ImageView& image, const ElfFile& linked, Complaints& complaints);
