// The command line of a button.
#include "keys/CommandTail.h"

static bool IsDecimal(const CStr& token)
{
    for (const wchar_t* p = token; *p != 0; ++p) {
        if (*p < L'0' || *p > L'9') {
            return false;
        }
    }
    return true;
}

static uint32_t ParseToken(const CStr& token, CStr& file)
{
    file.Empty();
    if (token.IsEmpty()) {
        return KeyActionNone;
    }
    if (IsDecimal(token)) {
        return static_cast<uint32_t>(_wtol(token));
    }
    file = token;
    return KeyActionStartFile;
}

void SCommandTail::Parse(const wchar_t* text)
{
    CStr tail(text);
    tail.Trim(L" \t\r\n");
    keyCode = 0;
    shortAction = longAction = KeyActionNone;
    shortFile.Empty();
    longFile.Empty();

    const int blank = tail.Find(L" ", 0);
    const int star = blank != -1 ? tail.Find(L"*", static_cast<uint32_t>(blank) + 1) : -1;
    if (star == -1) {
        return;
    }
    const auto tokenStart = static_cast<uint32_t>(blank) + 1;
    const auto split = static_cast<uint32_t>(star);
    keyCode = static_cast<uint32_t>(_wtol(tail.Left(static_cast<uint32_t>(blank))));
    shortAction =
        ParseToken(split > tokenStart ? tail.Mid(tokenStart, split - tokenStart) : CStr(), shortFile);
    longAction = ParseToken(
        split + 1 < tail.Length() ? tail.Mid(split + 1, tail.Length() - split - 1) : CStr(), longFile);
}
