// Mends what Wine 8.0's X driver makes of exposed windows.
//
// It takes a window whose area has become visible for one that is in front there, and puts it before all
// others in Wine's order. A program that is busy reads of it late, when another window has covered the area
// again, perhaps the menu bar that was made in the place of the one before: then the home screen is before
// the program that the user sees, a list of windows shows it first, and a tap sent to the screen reaches it.
//
// So a program reads only of what can be seen of the area by then. Of what is covered it will read again when
// that is uncovered, as the X server keeps no covered picture.
#define _GNU_SOURCE
#include "own_requests.h"

#include <dlfcn.h>
#include <stdlib.h>

typedef Bool (*Predicate)(Display*, XEvent*, XPointer);
typedef Bool (*CheckIfEventFunction)(Display*, XEvent*, Predicate, XPointer);

typedef struct
{
    int left, top, right, bottom; // in the coordinates of the window's parent
} Box;

enum
{
    BoxCount = 64
};
typedef struct
{
    Box boxes[BoxCount];
    int count;
} Area;

static int IsEmpty(Box box)
{
    return box.left >= box.right || box.top >= box.bottom;
}

static int Larger(int a, int b)
{
    return a > b ? a : b;
}

static int Smaller(int a, int b)
{
    return a < b ? a : b;
}

// A piece that does not fit any more is given up: too little is painted rather than the order spoilt.
static void Add(Area* area, Box box)
{
    if (!IsEmpty(box) && area->count < BoxCount) {
        area->boxes[area->count++] = box;
    }
}

// What cover leaves of the area: up to four pieces of each box.
static void Subtract(Area* area, Box cover)
{
    Area rest = {.count = 0};
    for (int i = 0; i < area->count; i++) {
        const Box box = area->boxes[i];
        const Box common = {Larger(box.left, cover.left), Larger(box.top, cover.top),
                            Smaller(box.right, cover.right), Smaller(box.bottom, cover.bottom)};
        if (IsEmpty(common)) {
            Add(&rest, box);
            continue;
        }
        Add(&rest, (Box){box.left, box.top, box.right, common.top});
        Add(&rest, (Box){box.left, common.bottom, box.right, box.bottom});
        Add(&rest, (Box){box.left, common.top, common.left, common.bottom});
        Add(&rest, (Box){common.right, common.top, box.right, common.bottom});
    }
    *area = rest;
}

static int PlaceOf(Display* display, Window window, Box* place)
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes)) {
        return 0;
    }
    *place = (Box){attributes.x, attributes.y, attributes.x + attributes.width + 2 * attributes.border_width,
                   attributes.y + attributes.height + 2 * attributes.border_width};
    return attributes.map_state == IsViewable && attributes.class == InputOutput;
}

// Takes away what the windows above this one cover. Left as it is where the X server does not know the
// window.
static void SubtractCovered(Display* display, Window window, Area* area)
{
    Window root = None;
    Window parent = None;
    Window grandparent = None;
    Window* windows = NULL; // bottom to top
    unsigned int count = 0;
    if (!XQueryTree(display, window, &root, &parent, &windows, &count)) {
        return;
    }
    XFree(windows);
    if (parent == None || !XQueryTree(display, parent, &root, &grandparent, &windows, &count)) {
        return;
    }
    while (count > 0 && windows[count - 1] != window) {
        Box cover;
        if (PlaceOf(display, windows[--count], &cover)) {
            Subtract(area, cover);
        }
    }
    XFree(windows);
}

// The part of the event's area that can be seen, in the window's coordinates. False: the event is as it was.
static int VisibleArea(Display* display, const XExposeEvent* event, Area* area)
{
    Box place;
    BeginOwnRequests(display);
    const int known = PlaceOf(display, event->window, &place);
    if (known) {
        const Box exposed = {place.left + event->x, place.top + event->y,
                             place.left + event->x + event->width, place.top + event->y + event->height};
        area->count = 0;
        Add(area, exposed);
        SubtractCovered(display, event->window, area);
    }
    EndOwnRequests(display);
    for (int i = 0; known && i < area->count; i++) {
        Box* box = &area->boxes[i];
        *box = (Box){box->left - place.left, box->top - place.top, box->right - place.left,
                     box->bottom - place.top};
    }
    return known;
}

static void SetArea(XEvent* event, Box box)
{
    event->xexpose.x = box.left;
    event->xexpose.y = box.top;
    event->xexpose.width = box.right - box.left;
    event->xexpose.height = box.bottom - box.top;
}

// Becomes the first visible piece; the others are read next. False when nothing is left of it.
static int Trim(Display* display, XEvent* event)
{
    Area area;
    if (!VisibleArea(display, &event->xexpose, &area)) {
        return 1;
    }
    for (int i = area.count - 1; i > 0; i--) {
        XEvent piece = *event;
        SetArea(&piece, area.boxes[i]);
        XPutBackEvent(display, &piece);
    }
    if (area.count > 0) {
        SetArea(event, area.boxes[0]);
    }
    return area.count > 0;
}

// The driver reads all its events by this.
Bool XCheckIfEvent(Display* display, XEvent* event, Predicate predicate, XPointer argument)
{
    static CheckIfEventFunction original;
    if (!original) {
        original = (CheckIfEventFunction)dlsym(RTLD_NEXT, "XCheckIfEvent");
    }
    Bool found = original(display, event, predicate, argument);
    while (found && event->type == Expose && !Trim(display, event)) {
        found = original(display, event, predicate, argument);
    }
    return found;
}
