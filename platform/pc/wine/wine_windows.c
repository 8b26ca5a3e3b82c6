// What Wine knows of windows.
#define _GNU_SOURCE
#include "wine_windows.h"

#include <dlfcn.h>
#include <stdint.h>

// GUITHREADINFO of Windows on x86-64.
typedef struct
{
    uint32_t size;
    uint32_t flags;
    void* active;
    void* others[5];
    int32_t caret[4];
} ThreadInfo;

typedef struct
{
    void*(WINE_CALL* getForegroundWindow)(void);
    int(WINE_CALL* getThreadInfo)(uint32_t thread, ThreadInfo* info);
    void*(WINE_CALL* getThreadDesktop)(uint32_t thread);
    int(WINE_CALL* buildWindowList)(void* desktop, uint32_t, uint32_t, uint32_t, uint32_t thread,
                                    uint32_t room, void** windows, uint32_t* count);
    void*(WINE_CALL* getProperty)(void* window, const uint16_t* name);
    void*(WINE_CALL* getAncestor)(void* window, uint32_t type);
} Core;

// Null when it is not the core that this was written for.
static const Core* LoadCore(void)
{
    static Core core;
    static int complete;
    if (!complete) {
        void* library = dlopen("win32u.so", RTLD_LAZY | RTLD_NOLOAD);
        if (!library) {
            return NULL;
        }
        *(void**)&core.getForegroundWindow = dlsym(library, "NtUserGetForegroundWindow");
        *(void**)&core.getThreadInfo = dlsym(library, "NtUserGetGUIThreadInfo");
        *(void**)&core.getThreadDesktop = dlsym(library, "NtUserGetThreadDesktop");
        *(void**)&core.buildWindowList = dlsym(library, "NtUserBuildHwndList");
        *(void**)&core.getProperty = dlsym(library, "NtUserGetProp");
        *(void**)&core.getAncestor = dlsym(library, "NtUserGetAncestor");
        complete = core.getAncestor && core.getForegroundWindow && core.getThreadInfo &&
                   core.getThreadDesktop && core.buildWindowList && core.getProperty;
    }
    return complete ? &core : NULL;
}

// From the thread's environment block, to which GS points in every thread of Wine's.
static uint32_t ThisThread(void)
{
    uint64_t thread;
    __asm__("movq %%gs:0x48, %0" : "=r"(thread));
    return (uint32_t)thread;
}

// A front window is the active window of its thread.
int AnotherThreadIsInFront(void)
{
    const Core* core = LoadCore();
    if (!core) {
        return 0;
    }
    ThreadInfo info = {.size = sizeof(info)};
    void* front = core->getForegroundWindow();
    return front && core->getThreadInfo(ThisThread(), &info) && info.active != front;
}

// The driver keeps a window's X window in a property that every process can read.
static Window WholeWindow(const Core* core, void* window)
{
    return (Window)core->getProperty(window, u"__wine_x11_whole_window");
}

enum
{
    Room = 1024
};

// Front-most first; 0 when there are more than there is room for.
static uint32_t ListWindows(const Core* core, uint32_t thread, void** windows)
{
    uint32_t count = 0;
    void* desktop = core->getThreadDesktop(ThisThread());
    return core->buildWindowList(desktop, 0, 0, 0, thread, Room, windows, &count) == 0 && count <= Room
               ? count
               : 0;
}

static void* RootOwner(const Core* core, void* window)
{
    enum
    {
        RootOwnerType = 3
    };
    return core->getAncestor(window, RootOwnerType);
}

void* RootOwnerOf(Window window)
{
    const Core* core = LoadCore();
    void* windows[Room];
    for (uint32_t i = core ? ListWindows(core, ThisThread(), windows) : 0; i > 0; i--) {
        if (WholeWindow(core, windows[i - 1]) == window) {
            return RootOwner(core, windows[i - 1]);
        }
    }
    return NULL;
}

int BelongsToFront(Window window)
{
    const Core* core = LoadCore();
    void* front = core ? core->getForegroundWindow() : NULL;
    return front && RootOwnerOf(window) == RootOwner(core, front);
}

int IsLowestWindow(Window window)
{
    const Core* core = LoadCore();
    void* windows[Room];
    uint32_t count = core ? ListWindows(core, 0, windows) : 0;
    while (count > 0) {
        const Window lowest = WholeWindow(core, windows[--count]);
        if (lowest != None) {
            return lowest == window;
        }
    }
    return 0;
}
