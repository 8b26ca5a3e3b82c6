// What the counted program finds on its handheld, the same in every run.
#include "tests/runner/counts/Scene.h"

#include "platform/pc/common/ActiveProfile.h"

#include <filesystem>
#include <fstream>

namespace counts {

// The same for everybody: the length of a path is work too. A handheld has one such scene at a time.
static constexpr const wchar_t* sceneFolder = L"C:\\QuorvaneCounts";
static constexpr size_t windowOwners = 5;
static constexpr size_t shortcutsEach = 25; // in a folder of the Start menu
static constexpr const wchar_t* shownVariable = L"QV_RUNNER_ONLY";

// Two digits: names of one length draw and compare alike.
static std::wstring Numbered(const std::wstring& text, size_t number)
{
    return text + (number < 10 ? L" 0" : L" ") + std::to_wstring(number);
}

Scene::Scene() : folder(sceneFolder)
{
    SetProcessDPIAware();
    std::error_code error;
    std::filesystem::remove_all(folder, error); // of a scene that was interrupted
    std::filesystem::create_directories(folder + L"\\Menu");
    SetEnvironmentVariableW(handheld::profileVariable, ProfilePath().c_str());
    SetEnvironmentVariableW(shownVariable, L"actor.exe");
    WriteProfile();
}

Scene::~Scene()
{
    SetEnvironmentVariableW(handheld::profileVariable, nullptr);
    SetEnvironmentVariableW(shownVariable, nullptr);
    programs.clear();
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

bool Scene::HavePrograms(size_t count)
{
    // On a busy machine about one start in a thousand of Wine 8.0 ends before the program begins.
    for (int failures = 0; programs.size() < count && failures < 3;) {
        auto program = std::make_unique<rig::Actor>();
        if (program->Ready()) {
            programs.push_back(std::move(program));
        } else {
            failures++;
        }
    }
    return programs.size() >= count;
}

bool Scene::HaveWindows(size_t count)
{
    if (!HavePrograms(windowOwners)) {
        return false;
    }
    rig::ActorWindowSpec spec;
    spec.place = {0, 2000, 10, 2010}; // below the screen, where they hide nothing
    while (windows.size() < count) {
        spec.title = Numbered(L"Application", windows.size());
        windows.push_back(programs[windows.size() % windowOwners]->Make(spec));
        if (!windows.back()) {
            return false;
        }
    }
    return true;
}

bool Scene::HaveShortcuts(size_t count)
{
    bool written = true;
    for (; shortcuts < count; shortcuts++) {
        const size_t number = shortcuts / shortcutsEach;
        const std::wstring inner = folder + L"\\Menu\\" + Numbered(L"Folder", number);
        std::filesystem::create_directories(inner);
        const std::wstring name =
            Numbered(L"Program", shortcuts % shortcutsEach) + Numbered(L" of", number) + L".lnk";
        std::ofstream file((inner + L"\\" + name).c_str(), std::ios::binary);
        file << "21#\\Windows\\notepad.exe";
        written = written && file.flush();
    }
    return written;
}

bool Scene::HaveCards(size_t count)
{
    bool made = true;
    for (; cards < count; cards++) {
        made = made && std::filesystem::create_directory(folder + L"\\" + Numbered(L"Card", cards));
    }
    return made && WriteProfile();
}

bool Scene::WriteProfile() const
{
    std::wstring names;
    std::wstring sizes = L"\\ = 134217728, 83886080\n";
    for (size_t i = 0; i < cards; i++) {
        names += (i == 0 ? L"" : L",") + Numbered(L"Card", i);
        sizes += L"\\" + Numbered(L"Card", i) + L" = 536870912, 402653184\n";
    }
    std::wofstream file(ProfilePath().c_str());
    file << L"[handheld]\nplatform = PocketPC\nwidth = 240\nheight = 320\ndpi = 96\nroot = " << folder
         << L"\nstart-menu = " << folder << L"\\Menu\n"
         << (cards == 0 ? L"" : L"cards = " + names + L"\n")
         << L"[memory]\nphysical = 67108864\nphysical-free = 34340864\n[storage]\n"
         << sizes << L"[battery]\npercent = 87\nac = 1\n"
         << L"[heap]\nactor.exe = 4096, 1536\nhandheld.exe = 4096, 1536\nQuorvane.exe = 4096, 1536\n";
    return static_cast<bool>(file.flush());
}

} // namespace counts
