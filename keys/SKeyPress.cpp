// The press of a hardware button: from its command line, to and from the hand-over record.
#include "keys/SKeyPress.h"

static bool IsDecimal(const CStr& token)
{
    for (const wchar_t* p = token; *p != 0; ++p) {
        if (*p < L'0' || *p > L'9') {
            return false;
        }
    }
    return true;
}

static int32_t ParseAction(const CStr& token, CStr& application)
{
    application.Empty();
    if (token.IsEmpty()) {
        return KeyActionNone;
    }
    if (IsDecimal(token)) {
        return static_cast<int32_t>(_wtol(token));
    }
    application = token;
    return KeyActionStart;
}

static CStr Part(const CStr& text, uint32_t from, uint32_t to)
{
    return to > from ? text.Mid(from, to - from) : CStr();
}

void SKeyPress::Parse(const wchar_t* tail)
{
    CStr text(tail);
    text.Trim(L" \t\r\n");
    vk = 0;
    pressAction = holdAction = KeyActionNone;
    pressApplication.Empty();
    holdApplication.Empty();

    const int blank = text.Find(L" ", 0);
    const int star = blank != -1 ? text.Find(L"*", static_cast<uint32_t>(blank) + 1) : -1;
    if (star == -1) {
        return;
    }
    const auto split = static_cast<uint32_t>(star);
    vk = static_cast<int32_t>(_wtol(text.Left(static_cast<uint32_t>(blank))));
    pressAction = ParseAction(Part(text, static_cast<uint32_t>(blank) + 1, split), pressApplication);
    holdAction = ParseAction(Part(text, split + 1, text.Length()), holdApplication);
}

static void CopyPath(wchar_t (&target)[keyCommandPathSize], const CStr& path)
{
    wcsncpy(target, path, keyCommandPathSize - 1);
    target[keyCommandPathSize - 1] = 0;
}

void SKeyPress::Write(SKeyCommand& record) const
{
    record = {};
    record.vk = vk;
    record.pressAction = pressAction;
    record.holdAction = holdAction;
    CopyPath(record.pressApplication, pressApplication);
    CopyPath(record.holdApplication, holdApplication);
}

bool SKeyPress::Read(const COPYDATASTRUCT* data)
{
    if (data == nullptr || data->dwData != keyCommandData || data->cbData != sizeof(SKeyCommand) ||
        data->lpData == nullptr) {
        return false;
    }
    SKeyCommand record;
    memcpy(&record, data->lpData, sizeof record);
    record.pressApplication[keyCommandPathSize - 1] = 0;
    record.holdApplication[keyCommandPathSize - 1] = 0;
    vk = record.vk;
    pressAction = record.pressAction;
    holdAction = record.holdAction;
    pressApplication = record.pressApplication;
    holdApplication = record.holdApplication;
    return true;
}
