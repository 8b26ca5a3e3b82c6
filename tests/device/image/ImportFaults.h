// What a device's loader would take amiss in the import tables, and imports that are not in the lists.
#pragma once

#include "tests/device/image/Complaints.h"
#include "tests/device/image/ImageView.h"
#include "tests/device/image/ImportLists.h"

void FindImportFaults(const ImageView& image, const ImportLists& lists, Complaints& complaints);
