// An include upward, beside one that is allowed.
#include "framework/CStr.h"
#include "pages/CListPage.h"
