// The plain-text report on a shortcut.
#include "pages/start/ShortcutReport.h"

#include "framework/Assert.h"
#include "framework/CFile.h"
#include "framework/NarrowToWide.h"
#include "framework/ReportText.h"

// Nothing of an empty file.
static void AppendContents(CStr& report, CFile& file)
{
    const uint32_t size = file.Size();
    char* narrow = new char[size + 1];
    Assert(narrow != nullptr, ErrorNoMemory, L"AppendShortcutReport", __LINE__);
    file.ReadText(narrow, size);
    if (wchar_t* wide = NarrowToWide(narrow)) {
        report.Append(wide);
        delete[] wide;
    }
    delete[] narrow;
}

void AppendShortcutReport(CStr& report, const SAppsList& program)
{
    AppendLabelled(report, L"Name: ", program.name);
    AppendLabelled(report, L"\r\nExecuteable: ", program.path); // spelled so on purpose
    AppendLabelled(report, L"\r\nTarget: ", program.target);
    CFile file(false);
    if (file.Open(program.path, true, false)) {
        report.Append(L"\r\n\r\nLNK file contents:\r\n");
        AppendContents(report, file);
    }
}
