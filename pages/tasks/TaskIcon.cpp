// The icon rules of the running applications.
#include "pages/tasks/TaskIcon.h"

#include "startmenu/CStartPrograms.h"

// Places in the device's image list.
static constexpr int shellIcon = 7;
static constexpr int homeIcon = 8;

static constexpr struct
{
    const wchar_t* className;
    KnownProgram slot;
} knownClasses[] = {
    {L"Calendar", KnownCalendar},
    {L"MSContactsUI", KnownContacts},
    {L"Tasks Application", KnownTasks},
    {L"Tasks Application", KnownTasks}, // compared twice; never reached, and kept
    {L"Notes.MainWnd", KnownNotes},
    {L"PICTURESAPP", KnownPictures},
    {L"MSINTERNET_SHARING", KnownInternetSharing},
};

STaskIcon TaskIconForClass(int shellIndex, const wchar_t* className, CStartPrograms& programs)
{
    if (shellIndex != genericProgramIcon) {
        return {shellIndex, false};
    }
    for (const auto& known : knownClasses) {
        if (_wcsicmp(className, known.className) == 0) {
            return {programs.KnownIcon(known.slot), false};
        }
    }
    if (_wcsicmp(className, L"Explore") == 0 || _wcsicmp(className, L"MSStart") == 0) {
        return {shellIcon, true};
    }
    if (_wcsicmp(className, L"DesktopExplorerWindow") == 0) {
        return {homeIcon, false};
    }
    return {shellIndex, false};
}

int TaskIconForPath(int index, const wchar_t* executablePath, CStartPrograms& programs)
{
    if (index == -1) {
        index = genericProgramIcon;
    }
    if (index == genericProgramIcon && wcsstr(executablePath, L"cprog.exe") != nullptr) {
        index = programs.KnownIcon(KnownPhone);
    }
    return index == -1 ? genericProgramIcon : index;
}
