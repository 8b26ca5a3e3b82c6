// What the counted program finds on its handheld, the same in every run: programs with windows, shortcuts,
// cards, and a profile that says every figure.
#pragma once

#include "rig/Actor.h"

#include <memory>
#include <string>
#include <vector>

namespace counts {

class Scene
{
    std::wstring folder;
    std::vector<std::unique_ptr<rig::Actor>> programs;
    std::vector<HWND> windows; // of the programs, by turns
    size_t cards = 0;
    size_t shortcuts = 0;

  public:
    Scene();
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    const std::wstring& Folder() const { return folder; }

    // Each makes what there is too little of; false when that fails.
    bool HavePrograms(size_t count);
    bool HaveWindows(size_t count);
    bool HaveShortcuts(size_t count);
    // For programs that are started from then on.
    bool HaveCards(size_t count);

  private:
    std::wstring ProfilePath() const { return folder + L"\\profile.ini"; }
    bool WriteProfile() const;
};

} // namespace counts
