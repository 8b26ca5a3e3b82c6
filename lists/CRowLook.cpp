// What the rows of a list are drawn with.
#include "lists/CRowLook.h"

#include "lists/RowMeasures.h"

void CRowLook::Create(LONG boldExtraHeight, LONG normalExtraHeight)
{
    icons.Fetch();
    boldFont.Reset(CreateSystemFont(FW_BOLD, boldExtraHeight));
    normalFont.Reset(CreateSystemFont(FW_NORMAL, normalExtraHeight));
}
