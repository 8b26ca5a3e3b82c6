// Loaded before libX11 into every Wine process of the handheld: mends focus, stacking and pointer of
// Wine 8.0's X driver.
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
//  - SetCursorPos moves the pointer only when it is already inside the handheld's screen; otherwise Wine soon
//  takes the
//    pointer's old position again, and a tap goes astray.
//  - A pointer that hovers is reported, and so is one above which a window appears. A stylus does neither:
//  only while it
//    touches the screen is there anything to report. Such a report comes late, past keys that were pressed
//    after the movement, and takes the mark in an open menu from the line that the keys have put it on.
//
// The calls pass here on their way to the X server. Anything else of Xlib is untouched.
#define _GNU_SOURCE
#include <X11/Xlib.h>
#include <dlfcn.h>
#include <stdint.h>

typedef int (*SetInputFocusFunction)(Display*, Window, int, Time);
typedef int (*WarpPointerFunction)(Display*, Window, Window, int, int, unsigned int, unsigned int, int, int);
typedef int (*ConfigureWindowFunction)(Display*, Window, unsigned int, XWindowChanges*);
typedef Window (*CreateWindowFunction)(Display*, Window, int, int, unsigned int, unsigned int, unsigned int,
                                       int, unsigned int, Visual*, unsigned long, XSetWindowAttributes*);
typedef int (*ChangeAttributesFunction)(Display*, Window, unsigned long, XSetWindowAttributes*);
typedef int (*SelectInputFunction)(Display*, Window, long);
typedef int (*GrabPointerFunction)(Display*, Window, Bool, unsigned int, int, int, Window, Cursor, Time);

// The X server hands each connection its own range of identifiers; Wine opens one connection a thread, and
// the windows of one thread are those an owner and its pop-ups have in common.
static const XID connectionMask = ~(XID)0x1fffff;

// The last raise of this thread: what lay directly above the window before, for the case that it must be
// undone.
static __thread Window raised = None;
static __thread Window aboveRaised = None;

// GUITHREADINFO of Windows on x86-64.
typedef struct
{
    uint32_t size;
    uint32_t flags;
    void* active;
    void* others[5];
    int32_t caret[4];
} ThreadInfo;

// Whether another thread than this one has the window in front. Asked of Wine itself: the core of its user32
// is loaded wherever its X driver is. A front window is the active window of its thread.
static int AnotherThreadIsInFront(void)
{
    typedef void*(__attribute__((ms_abi)) * GetForegroundWindowFunction)(void);
    typedef int(__attribute__((ms_abi)) * GetThreadInfoFunction)(uint32_t thread, ThreadInfo * info);
    static GetForegroundWindowFunction getForegroundWindow;
    static GetThreadInfoFunction getThreadInfo;
    if (!getThreadInfo) {
        void* core = dlopen("win32u.so", RTLD_LAZY | RTLD_NOLOAD);
        if (!core)
            return 0;
        getForegroundWindow = (GetForegroundWindowFunction)dlsym(core, "NtUserGetForegroundWindow");
        getThreadInfo = (GetThreadInfoFunction)dlsym(core, "NtUserGetGUIThreadInfo");
        if (!getForegroundWindow || !getThreadInfo)
            return 0;
    }
    // The thread id in the thread's environment block, to which GS points in every thread of Wine's.
    uint64_t thread;
    __asm__("movq %%gs:0x48, %0" : "=r"(thread));
    ThreadInfo info = {.size = sizeof(info)};
    void* front = getForegroundWindow();
    return front && getThreadInfo((uint32_t)thread, &info) && info.active != front;
}

static Window ParentOf(Display* display, Window window)
{
    Window root = None;
    Window parent = None;
    Window* children = NULL;
    unsigned int count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count))
        return None;
    if (children)
        XFree(children);
    return parent;
}

int XConfigureWindow(Display* display, Window window, unsigned int mask, XWindowChanges* changes)
{
    static ConfigureWindowFunction original;
    if (!original)
        original = (ConfigureWindowFunction)dlsym(RTLD_NEXT, "XConfigureWindow");
    if (mask != CWStackMode || changes->stack_mode != Above)
        return original(display, window, mask, changes);

    Window root = None;
    Window grandparent = None;
    Window* siblings = NULL; // bottom to top
    unsigned int count = 0;
    const Window parent = ParentOf(display, window);
    if (parent == None || !XQueryTree(display, parent, &root, &grandparent, &siblings, &count))
        return original(display, window, mask, changes);

    unsigned int above = 0;
    while (above < count && siblings[above] != window)
        above++;
    raised = window;
    aboveRaised = above + 1 < count ? siblings[above + 1] : None;
    const int result = original(display, window, mask, changes);
    for (unsigned int i = above + 1; i < count; i++) {
        if ((siblings[i] & connectionMask) == (window & connectionMask))
            original(display, siblings[i], mask, changes);
    }
    if (siblings)
        XFree(siblings);
    return result;
}

// The X driver raises a window directly before it gives it the focus.
int XSetInputFocus(Display* display, Window focus, int revertTo, Time time)
{
    static SetInputFocusFunction original;
    if (!original)
        original = (SetInputFocusFunction)dlsym(RTLD_NEXT, "XSetInputFocus");
    (void)time;
    if (!AnotherThreadIsInFront())
        return original(display, focus, revertTo, CurrentTime);

    if (focus == raised && aboveRaised != None) {
        XWindowChanges changes = {.sibling = aboveRaised, .stack_mode = Below};
        XConfigureWindow(display, focus, CWSibling | CWStackMode, &changes);
    }
    raised = None;
    return 1;
}

// With a source window the X server moves the pointer only from within it.
int XWarpPointer(Display* display, Window source, Window destination, int sourceX, int sourceY,
                 unsigned int sourceWidth, unsigned int sourceHeight, int x, int y)
{
    static WarpPointerFunction original;
    if (!original)
        original = (WarpPointerFunction)dlsym(RTLD_NEXT, "XWarpPointer");
    (void)source;
    return original(display, None, destination, sourceX, sourceY, sourceWidth, sourceHeight, x, y);
}

// Movements with a button held down stay.
static long WithoutHovering(long events)
{
    if (events & PointerMotionMask)
        events |= ButtonMotionMask;
    return events & ~(PointerMotionMask | EnterWindowMask);
}

Window XCreateWindow(Display* display, Window parent, int x, int y, unsigned int width, unsigned int height,
                     unsigned int border, int depth, unsigned int windowClass, Visual* visual,
                     unsigned long mask, XSetWindowAttributes* attributes)
{
    static CreateWindowFunction original;
    if (!original)
        original = (CreateWindowFunction)dlsym(RTLD_NEXT, "XCreateWindow");
    XSetWindowAttributes changed;
    if (mask & CWEventMask) {
        changed = *attributes;
        changed.event_mask = WithoutHovering(changed.event_mask);
        attributes = &changed;
    }
    return original(display, parent, x, y, width, height, border, depth, windowClass, visual, mask,
                    attributes);
}

int XChangeWindowAttributes(Display* display, Window window, unsigned long mask,
                            XSetWindowAttributes* attributes)
{
    static ChangeAttributesFunction original;
    if (!original)
        original = (ChangeAttributesFunction)dlsym(RTLD_NEXT, "XChangeWindowAttributes");
    XSetWindowAttributes changed;
    if (mask & CWEventMask) {
        changed = *attributes;
        changed.event_mask = WithoutHovering(changed.event_mask);
        attributes = &changed;
    }
    return original(display, window, mask, attributes);
}

int XSelectInput(Display* display, Window window, long events)
{
    static SelectInputFunction original;
    if (!original)
        original = (SelectInputFunction)dlsym(RTLD_NEXT, "XSelectInput");
    return original(display, window, WithoutHovering(events));
}

int XGrabPointer(Display* display, Window window, Bool ownerEvents, unsigned int events, int pointerMode,
                 int keyboardMode, Window confineTo, Cursor cursor, Time time)
{
    static GrabPointerFunction original;
    if (!original)
        original = (GrabPointerFunction)dlsym(RTLD_NEXT, "XGrabPointer");
    return original(display, window, ownerEvents, (unsigned int)WithoutHovering(events), pointerMode,
                    keyboardMode, confineTo, cursor, time);
}
