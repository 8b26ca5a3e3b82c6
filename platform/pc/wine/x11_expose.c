// Mends what Wine 8.0's X driver makes of exposed windows.
//
// It takes a window whose area has become visible for one that is in front there, and puts it before all
// others in Wine's order. A program reads of it late: another window may have covered the area again, or be
// about to, perhaps the menu bar that was made in the place of the one before. Then the home screen is before
// the program that the user sees, a list of windows shows it first, and a tap sent to the screen reaches it.
//
// So only the window in front, and those that belong to it, get the order changed.
#define _GNU_SOURCE
#include "wine_windows.h"

#include <dlfcn.h>
#include <stdint.h>

typedef Bool (*Predicate)(Display*, XEvent*, XPointer);
typedef Bool (*CheckIfEventFunction)(Display*, XEvent*, Predicate, XPointer);

// Exposed areas whose windows must not come before others for them. The driver reads one event further before
// it handles one, so there are the last event's and the one's before.
typedef struct
{
    int awaited;
    int width, height;
} ExposedSize;
static __thread ExposedSize unwanted[2];

// The driver reads all its events by this.
Bool XCheckIfEvent(Display* display, XEvent* event, Predicate predicate, XPointer argument)
{
    static CheckIfEventFunction original;
    if (!original) {
        original = (CheckIfEventFunction)dlsym(RTLD_NEXT, "XCheckIfEvent");
    }
    const Bool found = original(display, event, predicate, argument);
    unwanted[0] = unwanted[1];
    unwanted[1].awaited = found && event->type == Expose && !BelongsToFront(event->xexpose.window);
    if (unwanted[1].awaited) {
        unwanted[1].width = event->xexpose.width;
        unwanted[1].height = event->xexpose.height;
    }
    return found;
}

// A request to Wine's server that names a window and a rectangle and nothing else. What the driver asks the
// server because of an exposed area is the only one of that form with the area's size.
typedef struct
{
    int32_t number;
    uint32_t requestSize;
    uint32_t replySize;
    uint32_t window;
    int32_t left, top, right, bottom;
} OrderRequest;

static int IsUnwanted(const OrderRequest* request)
{
    for (int i = 0; i < 2; i++) {
        if (unwanted[i].awaited && request->requestSize == 0 && request->replySize == 0 &&
            request->window != 0 && request->right - request->left == unwanted[i].width &&
            request->bottom - request->top == unwanted[i].height) {
            unwanted[i].awaited = 0;
            return 1;
        }
    }
    return 0;
}

typedef unsigned int(WINE_CALL* ServerCallFunction)(void*);

unsigned int WINE_CALL wine_server_call(void* request)
{
    static ServerCallFunction original;
    if (!original) {
        original = (ServerCallFunction)dlsym(dlopen("ntdll.so", RTLD_LAZY | RTLD_NOLOAD), "wine_server_call");
    }
    return IsUnwanted(request) ? 0 : original(request);
}
