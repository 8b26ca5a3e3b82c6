// The program's entry.
#include "app/CApp.h"
#include "resources/ids.h"

int ProgramMain(HINSTANCE instance, HINSTANCE previousInstance, const wchar_t* commandLine, int showCommand)
{
    CApp app;
    return app.Run(IDS_TITLE, IDI_PROGRAM, IDA_PROGRAM, instance, previousInstance, commandLine, showCommand);
}
