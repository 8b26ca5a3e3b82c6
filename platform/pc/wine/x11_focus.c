// Mends the focus and the stacking of Wine 8.0's X driver.
//
// On the handheld's screen (a Wine virtual desktop) each program's windows are X windows of one common
// parent, and no X window manager keeps them in order. Some habits of winex11.drv then break what a device
// does:
//
//  - SetForegroundWindow from another process makes the driver call XSetInputFocus with the time of the last
//  event it
//    has seen itself. That is older than the focus change of the process the user came from, so the X server
//    ignores the call and the keys go on to the previous program.
//  - SetFocus raises the window that gets the focus above all others, also above the pop-up menus, notices
//  and soft-key
//    bars it owns. Windows keeps owned windows above their owner.
//  - SetFocus does so, and takes the X focus, even in a thread that is not in front. Windows only notes the
//  focus for
//    the time when that thread gets the front again. (Wine's regedit sets its focus while it loses the
//    front.)
//  - A window that goes behind all others (HWND_BOTTOM) stays where it is on the screen.
//  - What the driver asks for on one program's connection may wait there until the program reads its next
//    message. When another program comes to the front before that, the X server raises the two in the wrong
//    order, and the window in front is covered for good.
#define _GNU_SOURCE
#include "own_requests.h"
#include "wine_windows.h"

#include <dlfcn.h>

typedef int (*SetInputFocusFunction)(Display*, Window, int, Time);
typedef int (*ConfigureWindowFunction)(Display*, Window, unsigned int, XWindowChanges*);
typedef Status (*ReconfigureFunction)(Display*, Window, int, unsigned int, XWindowChanges*);

// The X server hands each connection its own range of identifiers; Wine opens one connection a thread.
static const XID connectionMask = ~(XID)0x1fffff;

// The last raise of this thread: what lay directly above the window before, for the case that it must be
// undone.
static __thread Window raised = None;
static __thread Window aboveRaised = None;

static int Configure(Display* display, Window window, unsigned int mask, XWindowChanges* changes)
{
    static ConfigureWindowFunction original;
    if (!original) {
        original = (ConfigureWindowFunction)dlsym(RTLD_NEXT, "XConfigureWindow");
    }
    return original(display, window, mask, changes);
}

// The windows beside this one, bottom to top, to be freed; null when there is none any more.
static Window* Siblings(Display* display, Window window, unsigned int* count)
{
    Window root = None;
    Window parent = None;
    Window* children = NULL;
    if (!XQueryTree(display, window, &root, &parent, &children, count)) {
        return NULL;
    }
    if (children) {
        XFree(children);
    }
    Window grandparent = None;
    Window* siblings = NULL;
    return parent != None && XQueryTree(display, parent, &root, &grandparent, &siblings, count) ? siblings
                                                                                                : NULL;
}

int XConfigureWindow(Display* display, Window window, unsigned int mask, XWindowChanges* changes)
{
    if (mask != CWStackMode || changes->stack_mode != Above) {
        return Configure(display, window, mask, changes);
    }
    unsigned int count = 0;
    BeginOwnRequests(display);
    Window* siblings = Siblings(display, window, &count);
    EndOwnRequests(display);
    if (!siblings) {
        return Configure(display, window, mask, changes);
    }
    unsigned int above = 0;
    while (above < count && siblings[above] != window) {
        above++;
    }
    raised = window;
    aboveRaised = above + 1 < count ? siblings[above + 1] : None;
    const int result = Configure(display, window, mask, changes);
    const void* owner = RootOwnerOf(window);
    BeginOwnRequests(display);
    for (unsigned int i = above + 1; i < count; i++) {
        if ((siblings[i] & connectionMask) == (window & connectionMask) &&
            RootOwnerOf(siblings[i]) == owner) {
            Configure(display, siblings[i], mask, changes);
        }
    }
    EndOwnRequests(display);
    XFree(siblings);
    XSync(display, False);
    return result;
}

// The X driver raises a window directly before it gives it the focus. The raise has been carried out: a
// window that comes to the front from now on is raised after it.
int XSetInputFocus(Display* display, Window focus, int revertTo, Time time)
{
    static SetInputFocusFunction original;
    if (!original) {
        original = (SetInputFocusFunction)dlsym(RTLD_NEXT, "XSetInputFocus");
    }
    (void)time;
    int result = 1;
    if (!AnotherThreadIsInFront()) {
        result = original(display, focus, revertTo, CurrentTime);
    } else {
        if (focus == raised && aboveRaised != None) {
            XWindowChanges changes = {.sibling = aboveRaised, .stack_mode = Below};
            BeginOwnRequests(display);
            Configure(display, focus, CWSibling | CWStackMode, &changes);
            EndOwnRequests(display);
        }
        raised = None;
    }
    XSync(display, False);
    return result;
}

// How the driver places and orders a window; it knows only one order, the front.
Status XReconfigureWMWindow(Display* display, Window window, int screen, unsigned int mask,
                            XWindowChanges* changes)
{
    static ReconfigureFunction original;
    if (!original) {
        original = (ReconfigureFunction)dlsym(RTLD_NEXT, "XReconfigureWMWindow");
    }
    const Status result = original(display, window, screen, mask, changes);
    if (!(mask & CWStackMode) && IsLowestWindow(window)) {
        XWindowChanges lower = {.stack_mode = Below};
        BeginOwnRequests(display);
        Configure(display, window, CWStackMode, &lower);
        EndOwnRequests(display);
    }
    XSync(display, False);
    return result;
}
