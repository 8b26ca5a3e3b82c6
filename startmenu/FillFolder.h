// The shortcuts below a folder.
#pragma once

#include "framework/CRecords.h"
#include "startmenu/SAppsList.h"

// Appends a record with path and target for every shortcut in the folder and the folders in it, however deep.
// The folder ends with a backslash. A folder whose own name ends like a shortcut's is entered twice.
void FillFolder(const wchar_t* folder, CRecords<SAppsList>& programs);
