// A row of a list as far as its identity goes.
#pragma once

#include "framework/ArrayNames.h"

struct SNamedRow
{
    int name;
    int Identity() const { return name; }
};

QV_ARRAY_NAMES(SNamedRow*, "struct SNamedRow *");
