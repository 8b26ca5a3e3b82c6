// The row height of the single-line lists.
#include "lists/CLB_SingleLine.h"

#include "lists/CListPage.h"
#include "lists/RowLook.h"

CLB_SingleLine::CLB_SingleLine(const SListTraits& listTraits, CListPage& owningPage)
    : CLB_Base(listTraits), page(owningPage)
{}

int CLB_SingleLine::RowHeight() const
{
    return SingleLineRowHeight(page.BoldFont(), page.Icons().height);
}
