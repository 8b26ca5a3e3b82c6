// The device's hardware buttons in the shell's registry.
#include "keys/CHardwareKeys.h"

#include "framework/Assert.h"
#include "framework/CVireoApp.h"
#include "framework/CVireoRegistry.h"
#include "keys/ShellKeys.h"

static constexpr wchar_t shellKeys[] = L"Software\\Microsoft\\Shell\\Keys";

static bool OpenButton(CVireoRegistry& registry, const SHardwareKey& key)
{
    CStr path(shellKeys);
    path.Append(L"\\");
    path.Append(key.key);
    return registry.Open(HKEY_LOCAL_MACHINE, path);
}

void CHardwareKeys::Load()
{
    keys.Clear();
    CVireoRegistry registry;
    if (!registry.Open(HKEY_LOCAL_MACHINE, shellKeys)) {
        return;
    }
    CStrList names;
    registry.EnumSubKeys(names);
    for (uint32_t i = 0; i < names.Count(); i++) {
        Add(names.At(i));
    }
    Sort();
}

void CHardwareKeys::Add(const wchar_t* name)
{
    auto* key = new SHardwareKey(name);
    Assert(key != nullptr, ErrorNoMemory, L"CHardwareKeys::Load", __LINE__);
    CVireoRegistry registry;
    if (OpenButton(registry, *key)) {
        registry.ReadIfString(L"Name", key->name);
        CStr command;
        registry.ReadIfString(L"Default", command);
        key->SetCommand(command);
    }
    if (key->vk == 0) {
        delete key;
        return;
    }
    keys.Append(key);
}

static int CompareNames(const void* left, const void* right)
{
    const SHardwareKey* a = *static_cast<SHardwareKey* const*>(left);
    const SHardwareKey* b = *static_cast<SHardwareKey* const*>(right);
    return _wcsicmp(a->name, b->name);
}

void CHardwareKeys::Sort()
{
    if (keys.Count() > 1) {
        qsort(&keys.At(0), keys.Count(), sizeof(SHardwareKey*), CompareNames);
    }
}

bool CHardwareKeys::Save()
{
    CVireoRegistry registry;
    if (!registry.Open(HKEY_LOCAL_MACHINE, shellKeys)) {
        CVireoApp::Current()->ShowNotice(L"Registry error: Can't open key");
        return false;
    }
    for (uint32_t i = 0; i < keys.Count(); i++) {
        if (!OpenButton(registry, At(i))) {
            CVireoApp::Current()->ShowNotice(L"Registry error: Can't save key");
            return false;
        }
        Save(registry, At(i));
    }
    return true;
}

static void GiveBack(CVireoRegistry& registry)
{
    CStr command;
    uint32_t flags = 0;
    registry.ReadIfString(L"ResetCmd", command);
    registry.ReadIfUint(L"ResetFlags", &flags);
    registry.WriteString(L"Default", command);
    registry.WriteUint(L"Flags", flags);
}

static void Take(CVireoRegistry& registry, const wchar_t* command)
{
    registry.WriteString(L"Default", command);
    registry.WriteUint(L"Flags", 0);
    registry.WriteUint(L"BtnWnd", 0);
    registry.WriteString(L"WndCls", L"");
}

// The registry's command of now decides, not the one that was read with the button: another program may have
// written it since.
void CHardwareKeys::Save(CVireoRegistry& registry, const SHardwareKey& key)
{
    CStr present;
    registry.ReadIfString(L"Default", present);
    if (key.pressAction == KeyActionLeave) {
        if (!SHardwareKey::IsOwnCommand(present)) {
            return;
        }
        GiveBack(registry);
    } else {
        CStr wanted;
        key.MakeCommand(wanted);
        if (wanted.CompareNoCase(present) == 0) {
            return;
        }
        Take(registry, wanted);
    }
    ReclaimButton(static_cast<uint32_t>(key.vk));
}
