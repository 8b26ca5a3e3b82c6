// The row height of the single-line lists.
#include "lists/CLB_SingleLine.h"

#include "lists/RowMeasures.h"

int CLB_SingleLine::RowHeight() const
{
    return SingleLineRowHeight(look.BoldFont(), look.Icons().height);
}
