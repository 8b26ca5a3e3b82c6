// Mends the pointer of Wine 8.0's X driver.
//
//  - SetCursorPos moves the pointer only when it is already inside the handheld's screen; otherwise Wine soon
//  takes the
//    pointer's old position again, and a tap goes astray.
//  - A pointer that hovers is reported, and so is one above which a window appears. A stylus does neither:
//  only while it
//    touches the screen is there anything to report. Such a report comes late, past keys that were pressed
//    after the movement, and takes the mark in an open menu from the line that the keys have put it on.
#define _GNU_SOURCE
#include <X11/Xlib.h>
#include <dlfcn.h>

typedef int (*WarpPointerFunction)(Display*, Window, Window, int, int, unsigned int, unsigned int, int, int);
typedef Window (*CreateWindowFunction)(Display*, Window, int, int, unsigned int, unsigned int, unsigned int,
                                       int, unsigned int, Visual*, unsigned long, XSetWindowAttributes*);
typedef int (*ChangeAttributesFunction)(Display*, Window, unsigned long, XSetWindowAttributes*);
typedef int (*SelectInputFunction)(Display*, Window, long);
typedef int (*GrabPointerFunction)(Display*, Window, Bool, unsigned int, int, int, Window, Cursor, Time);

// With a source window the X server moves the pointer only from within it.
int XWarpPointer(Display* display, Window source, Window destination, int sourceX, int sourceY,
                 unsigned int sourceWidth, unsigned int sourceHeight, int x, int y)
{
    static WarpPointerFunction original;
    if (!original) {
        original = (WarpPointerFunction)dlsym(RTLD_NEXT, "XWarpPointer");
    }
    (void)source;
    return original(display, None, destination, sourceX, sourceY, sourceWidth, sourceHeight, x, y);
}

// Movements with a button held down stay.
static long WithoutHovering(long events)
{
    if (events & PointerMotionMask) {
        events |= ButtonMotionMask;
    }
    return events & ~(PointerMotionMask | EnterWindowMask);
}

// The attributes, or a changed copy of them.
static XSetWindowAttributes* AttributesWithoutHovering(unsigned long mask, XSetWindowAttributes* attributes,
                                                       XSetWindowAttributes* copy)
{
    if (!(mask & CWEventMask)) {
        return attributes;
    }
    *copy = *attributes;
    copy->event_mask = WithoutHovering(copy->event_mask);
    return copy;
}

Window XCreateWindow(Display* display, Window parent, int x, int y, unsigned int width, unsigned int height,
                     unsigned int border, int depth, unsigned int windowClass, Visual* visual,
                     unsigned long mask, XSetWindowAttributes* attributes)
{
    static CreateWindowFunction original;
    if (!original) {
        original = (CreateWindowFunction)dlsym(RTLD_NEXT, "XCreateWindow");
    }
    XSetWindowAttributes copy;
    return original(display, parent, x, y, width, height, border, depth, windowClass, visual, mask,
                    AttributesWithoutHovering(mask, attributes, &copy));
}

int XChangeWindowAttributes(Display* display, Window window, unsigned long mask,
                            XSetWindowAttributes* attributes)
{
    static ChangeAttributesFunction original;
    if (!original) {
        original = (ChangeAttributesFunction)dlsym(RTLD_NEXT, "XChangeWindowAttributes");
    }
    XSetWindowAttributes copy;
    return original(display, window, mask, AttributesWithoutHovering(mask, attributes, &copy));
}

int XSelectInput(Display* display, Window window, long events)
{
    static SelectInputFunction original;
    if (!original) {
        original = (SelectInputFunction)dlsym(RTLD_NEXT, "XSelectInput");
    }
    return original(display, window, WithoutHovering(events));
}

int XGrabPointer(Display* display, Window window, Bool ownerEvents, unsigned int events, int pointerMode,
                 int keyboardMode, Window confineTo, Cursor cursor, Time time)
{
    static GrabPointerFunction original;
    if (!original) {
        original = (GrabPointerFunction)dlsym(RTLD_NEXT, "XGrabPointer");
    }
    return original(display, window, ownerEvents, (unsigned int)WithoutHovering(events), pointerMode,
                    keyboardMode, confineTo, cursor, time);
}
