// The structures of messages as the guest lays them out.
#pragma once

#include "tools/runner/machine/Value.h"

#include "platform/ce.h"

namespace runner::guest {

struct QueuedMessage
{
    Word window;
    Word message;
    Word wParam;
    Word lParam;
    Word time;
    POINT place;
};
static_assert(sizeof(QueuedMessage) == 28);

struct CreateStruct
{
    Word parameter;
    Word instance;
    Word menu;
    Word parent;
    LONG height;
    LONG width;
    LONG y;
    LONG x;
    LONG style;
    Word name;
    Word className;
    Word exStyle;
};
static_assert(sizeof(CreateStruct) == 48);

struct DrawItem
{
    Word type;
    Word id;
    Word item;
    Word action;
    Word state;
    Word window;
    Word dc;
    RECT rect;
    Word data;
};
static_assert(sizeof(DrawItem) == 48);

struct MeasureItem
{
    Word type;
    Word id;
    Word item;
    Word width;
    Word height;
    Word data;
};
static_assert(sizeof(MeasureItem) == 24);

struct NotifyHeader
{
    Word from;
    Word id;
    Word code;
};
static_assert(sizeof(NotifyHeader) == 12);

struct NotifyListView
{
    NotifyHeader header;
    LONG item;
    LONG subItem;
    Word newState;
    Word oldState;
    Word changed;
    POINT place;
    Word data;
};
static_assert(sizeof(NotifyListView) == 44);

struct NotifyGesture
{
    NotifyHeader header;
    POINT place;
    Word item;
};
static_assert(sizeof(NotifyGesture) == 24);

struct CopyData
{
    Word data;
    Word size;
    Word address;
};
static_assert(sizeof(CopyData) == 12);

} // namespace runner::guest
