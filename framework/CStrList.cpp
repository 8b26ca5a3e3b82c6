// A list of strings that owns them.
#include "framework/CStrList.h"

CStrList::CStrList() : items(new CArray<CStr*>)
{
    Assert(items != nullptr, ErrorNoMemory, L"CStrList::CStrList", __LINE__);
}

CStrList::~CStrList()
{
    Clear();
    delete items;
}

void CStrList::Append(const wchar_t* text)
{
    CStr* const copy = new CStr(text);
    Assert(copy != nullptr, ErrorNoMemory, L"CStrList::Append", __LINE__);
    items->Append(copy);
}

void CStrList::Clear()
{
    DeleteElements(*items);
}
