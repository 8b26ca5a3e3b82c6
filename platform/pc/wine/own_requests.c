// The X requests that are this library's own.
//
// Errors come to one handler of the process, Wine's, which ends the process for most of them. A handler put
// before it knows the serial numbers of the library's requests.
#define _GNU_SOURCE
#include "own_requests.h"

#include <dlfcn.h>
#include <limits.h>

typedef struct
{
    Display* display;
    unsigned long first;
    unsigned long end; // the first that is not the library's again
} SerialRange;

// The last ranges of this thread, the only one that uses its connection. Each raise of a window begins with a
// question to the X server, whose answer comes behind the errors of all earlier requests; so few ranges are
// ever awaited.
enum
{
    RangeCount = 16
};
static __thread SerialRange ranges[RangeCount];
static __thread unsigned int current;

static XErrorHandler programsHandler; // null: not yet known

static int HandleError(Display* display, XErrorEvent* error)
{
    for (int i = 0; i < RangeCount; i++) {
        if (ranges[i].display == display && error->serial >= ranges[i].first &&
            error->serial < ranges[i].end) {
            return 0;
        }
    }
    return programsHandler ? programsHandler(display, error) : 0;
}

// The program gets what it has set before; null stands for the X library's own handler.
XErrorHandler XSetErrorHandler(XErrorHandler handler)
{
    static XErrorHandler (*original)(XErrorHandler);
    static XErrorHandler librarysHandler;
    if (!original) {
        original = (XErrorHandler(*)(XErrorHandler))dlsym(RTLD_NEXT, "XSetErrorHandler");
        librarysHandler = original(HandleError);
        programsHandler = librarysHandler;
    }
    const XErrorHandler previous = programsHandler;
    programsHandler = handler ? handler : librarysHandler;
    return previous;
}

void BeginOwnRequests(Display* display)
{
    if (!programsHandler) {
        XSetErrorHandler(NULL);
    }
    // No other thread's request may come between.
    XLockDisplay(display);
    ranges[current] = (SerialRange){.display = display, .first = XNextRequest(display), .end = ULONG_MAX};
}

void EndOwnRequests(Display* display)
{
    ranges[current].end = XNextRequest(display);
    current = (current + 1) % RangeCount;
    XUnlockDisplay(display);
}
