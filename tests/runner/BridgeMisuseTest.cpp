// What a program for the device must not do with the platform is found where it does it, by the bridge that
// it calls.
#include "tests/runner/GuestRun.h"

#include <gtest/gtest.h>

static constexpr unsigned long foundCode = 99;

struct MisuseRow
{
    const char* function; // of the program
    const char* finding;
};

// In the order of the program's table.
static constexpr MisuseRow misuses[] = {
    {"ShortProcessEntry", "Process32First: a structure of 556 bytes; the device's has 564"},
    {"ShortModuleEntry", "Module32First: a structure of 1064 bytes; the device's has 1076"},
    {"ShortHeapEntry", "Heap32First: a structure of 0 bytes; the device's has 36"},
    {"ShortFileInfo", "SHGetFileInfo: a structure of 688 bytes; the device's has 692"},
    {"ShortExecuteInfo", "ShellExecuteEx: a structure of 0 bytes; the device's has 60"},
    {"ShortMemoryStatus", "GlobalMemoryStatus: a structure of 0 bytes; the device's has 32"},
    {"ShortVersion", "GetVersionExW: a structure of 274 bytes; the device's has 276"},
    {"ShortDisplayMode", "ChangeDisplaySettingsEx: a structure of 220 bytes; the device's has 192"},
    {"KeyClosedTwice", "RegCloseKey: a registry key that was closed"},
    {"InventedKey", "RegCloseKey: no registry key"},
    {"SnapshotAsSearch", "FindClose: an object of another kind in the place of a search for files"},
    {"SearchAfterItsEnd", "FindNextFileW: a search for files that was closed"},
    {"FileAfterItsEnd", "GetFileSize: a file that was closed"},
    {"FileAsProcess", "WaitForSingleObject: an object of another kind in the place of a process"},
    {"AllocatorReleasedTwice", "IMalloc method 2: no COM object, or one that was released"},
    {"ItemFreedTwice", "IMalloc method 5: a shell's item list that was closed"},
    {"ImagesBlockFreed", "the block is freed"},
    {"ReadIntoAShortBlock", "0 bytes behind the block of 8 bytes"},
    {"PatternWithoutEnd", "0 bytes behind the block of 4 bytes"},
    {"NameBehindItsEnd", "the value was never written"},
    {"SizeThatNobodySet", "the value was never written"},
    {"FigureOfAFailedCall", "the value was never written"},
    {"CopyOntoItself", "memcpy of bytes onto themselves"},
    {"ImageOfNoBlock", "IImagingFactory method 5: an image of something else than a block of the heap"},
    {"ColourWithoutItsMark", "GetSysColor: a system colour's index without the device's mark"},
    {"BrushWithoutItsMark",
     "FillRect: a system colour's index without the device's mark in the place of a brush"},
    {"WideNumberInAFormat", "_vsnwprintf: a format that is not carried across: %I"},
    {"MovableBlock", "LocalAlloc: flags of a block that the device does not have"},
    {"FunctionThatIsMissing", "no memory there"},
    {"LibraryAfterItsEnd", "GetProcAddressW: a library that was closed"},
    {"TextWithoutItsZero", "RegSetValueExW: a text of another length than its bytes"},
    {"NumberOfTwoBytes", "RegSetValueExW: a number of 2 bytes"},
    {"PenDeletedTwice", "DeleteObject: a handle that the program was not given, or has given back"},
    {"AllocatorLeft", "TerminateProcess: a program that ends well leaves COM object from AllocatorLeft"},
    {"DialogWithoutEnd", "0 bytes behind the block of 18 bytes"},
    {"WindowRestored", "ShowWindow: a way to show a window that the device does not have"},
    {"ExtendedDialog", "CreateDialogIndirectParamW: an extended dialog, which the device does not have"},
    {"TreeItemAfterItsEnd", "SendMessageW: a tree's item that was closed"},
    {"ShortHeapList", "Heap32ListFirst: a structure of 0 bytes; the device's has 16"},
    {"ShortMenuBar", "SHCreateMenuBar: a structure of 56 bytes; the device's has 36"},
    {"ShortGesture", "SHRecognizeGesture: a structure of 0 bytes; the device's has 20"},
    {"ShortActivation", "SHHandleWMActivate: a structure of 0 bytes; the device's has 12"},
    {"ShortBitmap", "GetObjectW: a structure of 20 bytes; the device's has 24"},
    {"ShortClasses", "InitCommonControlsEx: a structure of 4 bytes; the device's has 8"},
    {"ContextDeletedTwice", "DeleteDC: a handle that the program was not given, or has given back"},
    {"DialogWithoutItsControl", "0 bytes behind the block of 24 bytes"},
    {"ValueThatDidNotFit", "the value was never written"},
    {"LowerCaseWithoutEnd", "0 bytes behind the block of 2 bytes"},
    {"SortOfTooMany", "0 bytes behind the block of 16 bytes"},
    {"ColumnOfTheDesktop", "SendMessageW: a mask of a list's column that the device does not have"},
    {"RowOfTheDesktop", "SendMessageW: a mask of a list's item that the device does not have"},
    {"TreeItemOfTheDesktop", "SendMessageW: a mask of a tree's item that the device does not have"},
    {"ByteBehindTheFile", "the value was never written"},
    {"CharacterBehindTheFormat", "the value was never written"},
    {"ShortFindData", "0 bytes behind the block of 100 bytes"},
    {"SelectedPenDeleted", "DeleteObject: an object that is still selected"},
    {"ComEndedBeforeAnImage", "CoUninitialize: objects of COM are still held"},
    {"ComEndedTwice", "CoUninitialize: COM has not been started"},
    {"SizeOfNoImages", "the value was never written"},
    {"ProcessOfAFailedStart", "the value was never written"},
};

TEST(BridgeMisuseTest, EveryMisuseIsFoundAndNamed)
{
    for (std::size_t i = 0; i < std::size(misuses); i++) {
        const MisuseRow& row = misuses[i];
        const GuestRun run(L"MisusingProgram", std::to_wstring(i));
        EXPECT_EQ(run.ExitCode(), foundCode) << row.function;
        EXPECT_TRUE(run.Says(row.function) && run.Says(row.finding)) << row.function << ": " << run.Log();
    }
}

TEST(BridgeMisuseTest, WithoutAMisuseTheProgramEndsAsItWants)
{
    const GuestRun run(L"MisusingProgram", L"");
    EXPECT_EQ(run.ExitCode(), 7u) << run.Log();
    EXPECT_FALSE(run.Says("FINDING")) << run.Log();
}
