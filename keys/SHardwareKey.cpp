// A hardware button: its code, and its command to and from the actions.
#include "keys/SHardwareKey.h"

#include "framework/PathText.h"
#include "keys/SKeyPress.h"

static constexpr wchar_t programName[] = L"quorvane.exe";
static constexpr uint32_t programNameLength = sizeof programName / sizeof programName[0] - 1;
static constexpr uint32_t behindProgram = 2; // the quotation mark that ends the path, and a blank

static int HexDigit(wchar_t character)
{
    if (character >= L'0' && character <= L'9') {
        return character - L'0';
    }
    const wchar_t letter = character | 0x20;
    return letter >= L'a' && letter <= L'f' ? letter - L'a' + 10 : -1;
}

// "40C1": the code are the last two of four characters, in hexadecimal.
void SHardwareKey::ReadCode()
{
    vk = 0;
    if (key.Length() != 4) {
        return;
    }
    const int high = HexDigit(*key.At(2));
    const int low = HexDigit(*key.At(3));
    if (high >= 0 && low >= 0) {
        vk = high * 16 + low;
    }
}

// Where the program's file name begins in a command; -1 when it does not start this program.
static int FindProgram(const CStr& shellCommand)
{
    CStr lowered(shellCommand);
    lowered.MakeLower();
    return lowered.Find(programName, 0);
}

bool SHardwareKey::IsOwnCommand(const CStr& shellCommand)
{
    return FindProgram(shellCommand) != -1;
}

void SHardwareKey::SetCommand(const wchar_t* shellCommand)
{
    command = shellCommand;
    const int program = FindProgram(command);
    if (program == -1) {
        return;
    }
    const uint32_t tail = static_cast<uint32_t>(program) + programNameLength + behindProgram;
    if (tail >= command.Length()) {
        return;
    }
    SKeyPress bound;
    bound.Parse(command.At(tail));
    vk = bound.vk;
    pressAction = bound.pressAction;
    holdAction = bound.holdAction;
    pressApplication = bound.pressApplication;
    holdApplication = bound.holdApplication;
}

static void AppendAction(CStr& line, int32_t action, const CStr& application)
{
    if (action == KeyActionStart) {
        line.Append(application);
    } else {
        line.AppendInt(action);
    }
}

void SHardwareKey::MakeCommand(CStr& line) const
{
    CPathText program;
    GetModuleFileNameW(nullptr, program.Room(), pathSize);
    line = L"\"";
    line.Append(program);
    line.Append(L"\" ");
    line.AppendInt(vk);
    line.Append(L" ");
    AppendAction(line, pressAction, pressApplication);
    line.Append(L"*");
    AppendAction(line, holdAction, holdApplication);
}
