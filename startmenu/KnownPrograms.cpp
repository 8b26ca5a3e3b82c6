// The well-known built-in programs.
#include "startmenu/KnownPrograms.h"

struct SKnownText
{
    const wchar_t* text;
    KnownProgram slot;
};

// One program shows all of these, told apart by its arguments.
static constexpr const wchar_t* organiser = L"poutlook.exe";
static constexpr SKnownText organiserParts[] = {
    {L"calendar", KnownCalendar},
    {L"contacts", KnownContacts},
    {L"tasks", KnownTasks},
    {L"notes", KnownNotes},
};

// The capitals of the third are meant so: the target is in small letters by then, and its slot stays empty.
static constexpr SKnownText programs[] = {
    {L"iexplore.exe", KnownBrowser},
    {L"pimg.exe", KnownPictures},
    {L"IntShrUI.exe", KnownInternetSharing},
    {L"cprog.exe", KnownPhone},
};

template <size_t count>
static int FirstContained(const CStr& target, const SKnownText (&texts)[count])
{
    for (const SKnownText& known : texts) {
        if (target.Find(known.text, 0) != -1) {
            return static_cast<int>(known.slot);
        }
    }
    return noKnownProgram;
}

int KnownProgramOf(const CStr& target)
{
    CStr lower(target);
    lower.MakeLower();
    return lower.Find(organiser, 0) != -1 ? FirstContained(lower, organiserParts)
                                          : FirstContained(lower, programs);
}
