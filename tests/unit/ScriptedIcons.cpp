// A shell whose small-icon indexes are scripted.
#include "tests/unit/ScriptedIcons.h"

static ScriptedIcons* scriptedIcons;

static DWORD_PTR WINAPI AnswerFileInfo(const wchar_t* path, DWORD, SHFILEINFOW* info, UINT, UINT flags)
{
    scriptedIcons->askedPaths.emplace_back(path);
    scriptedIcons->askedFlags.push_back(flags);
    const auto found = scriptedIcons->indexes.find(path);
    if (found == scriptedIcons->indexes.end()) {
        return 0;
    }
    info->iIcon = found->second;
    return 1;
}

ScriptedIcons::ScriptedIcons() : hook("SHGetFileInfo", AnswerFileInfo)
{
    scriptedIcons = this;
}

ScriptedIcons::~ScriptedIcons()
{
    scriptedIcons = nullptr;
}
