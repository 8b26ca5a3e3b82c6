// The diary of a test.
#include "tests/ui/Events.h"

#include <map>

static Events events;
static std::map<HWND, std::string> names;

void Note(const std::string& event)
{
    events.push_back(event);
}

Events TakeEvents()
{
    Events taken;
    taken.swap(events);
    return taken;
}

std::string Numbers(uint64_t first, uint64_t second, int64_t third)
{
    return std::to_string(first) + "," + std::to_string(second) + "," + std::to_string(third);
}

void NameWindow(HWND window, const std::string& name)
{
    names[window] = name;
}

std::string NameOf(HWND window)
{
    if (window == nullptr) {
        return "null";
    }
    const auto found = names.find(window);
    return found != names.end() ? found->second : "?";
}

void ResetEvents()
{
    events.clear();
    names.clear();
}
