// Dialogs and message boxes.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/DialogTemplate.h"
#include "tools/runner/bridges/WindowProcedures.h"

namespace runner {

static Word DoCreateDialog(Call& call)
{
    WindowProcedures& procedures = WindowProcedures::Instance();
    const Address procedure = call.Argument(3);
    procedures.SetOfNextDialog(procedure);
    const DLGTEMPLATE* form = CheckedTemplate(call, call.Argument(1));
    const HWND dialog =
        CreateDialogIndirectParamW(ModuleArgument(call, 0), form, HandleAt<HWND>(call, 2),
                                   WindowProcedures::OfDialogs, static_cast<LPARAM>(call.Argument(4)));
    procedures.SetOfNextDialog(0);
    return WordOf(dialog);
}

static constexpr Bridge dialogRows[] = {
    {"CreateDialogIndirectParamW", DoCreateDialog},
    {"EndDialog", "u hi"},
    {"MessageBoxW", "u httu"},
};

Bridges DialogBridges()
{
    return dialogRows;
}

} // namespace runner
