// The keys stand beside the pages, not above them.
#include "pages/CListPage.h"
