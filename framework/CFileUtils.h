// Where the program's own files lie, and whether a file exists.
#pragma once

#include "framework/CStr.h"
#include "framework/PathText.h"

class CFileUtils
{
  public:
    // out must be of fixed size (pathSize); it receives the folder of the running module with the backslash
    // at its end.
    static void MakeAppFolderPath(CStr& out);
    static void MakeAppFilePath(CStr& out, const wchar_t* fileName);

    // Wildcards are honoured, and folders count.
    static bool FileExists(const wchar_t* path);
};
