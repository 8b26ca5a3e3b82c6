// Dialogs and message boxes.
#include "tools/runner/bridges/Bridges.h"
#include "tools/runner/bridges/WindowProcedures.h"

namespace runner {

static constexpr Word smallestTemplate = 18;

static Word DoCreateDialog(Call& call)
{
    WindowProcedures& procedures = WindowProcedures::Instance();
    const Address procedure = call.Argument(3);
    procedures.SetOfNextDialog(procedure);
    // The template comes out of a resource as it is.
    const auto* form = static_cast<const DLGTEMPLATE*>(call.In(call.Argument(1), smallestTemplate));
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
