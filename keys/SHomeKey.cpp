// What holding the Home key does, in the program's settings.
#include "keys/SHomeKey.h"

#include "framework/CVireoRegistry.h"
#include "keys/SettingsKey.h"

void SHomeKey::Load()
{
    command = KeyActionLeave;
    file.Empty();
    SettingsKeyPath path;
    CVireoRegistry registry;
    if (!registry.Open(HKEY_CURRENT_USER, MakeSettingsKeyPath(path))) {
        return;
    }
    registry.ReadIfUint(L"HomeKeyCommand", &command);
    registry.ReadIfString(L"HomeKeyFile", file);
}

bool SHomeKey::Save() const
{
    SettingsKeyPath path;
    CVireoRegistry registry;
    if (!registry.Create(HKEY_CURRENT_USER, MakeSettingsKeyPath(path))) {
        return false;
    }
    registry.WriteUint(L"HomeKeyCommand", command);
    registry.WriteString(L"HomeKeyFile", file);
    return true;
}
