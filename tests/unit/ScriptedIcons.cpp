// A shell whose small-icon indexes are scripted.
#include "tests/unit/ScriptedIcons.h"

static ScriptedIcons* script;

static DWORD_PTR WINAPI AnswerFileInfo(const wchar_t* path, DWORD, SHFILEINFOW* info, UINT, UINT flags)
{
    script->askedPaths.emplace_back(path);
    script->askedFlags.push_back(flags);
    const auto found = script->indexes.find(path);
    if (found == script->indexes.end()) {
        return 0;
    }
    info->iIcon = found->second;
    return 1;
}

ScriptedIcons::ScriptedIcons() : hook("SHGetFileInfo", AnswerFileInfo)
{
    script = this;
}

ScriptedIcons::~ScriptedIcons()
{
    script = nullptr;
}
