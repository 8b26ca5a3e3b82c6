// A page that includes another page, beside what it may include.
#include "dialogs/CDialogInfo.h"
#include "pages/CListPage.h"
#include "pages/procs/CViewProcs.h"
