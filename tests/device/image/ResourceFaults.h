// Resources that the program asks for and the image lacks, and data that is not where it has to be.
#pragma once

#include "tests/device/image/Complaints.h"
#include "tests/device/image/ImageView.h"

void FindResourceFaults(const ImageView& image, Complaints& complaints);
