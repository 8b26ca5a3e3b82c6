// Misuses the platform in the way that its command line numbers; with another command line it does nothing.
#include "tests/device/bridges/Misuse.h"

// In the order of the test's rows.
static void (*const misuses[])() = {
    ShortProcessEntry,
    ShortModuleEntry,
    ShortHeapEntry,
    ShortFileInfo,
    ShortExecuteInfo,
    ShortMemoryStatus,
    ShortVersion,
    ShortDisplayMode,
    KeyClosedTwice,
    InventedKey,
    SnapshotAsSearch,
    SearchAfterItsEnd,
    FileAfterItsEnd,
    FileAsProcess,
    AllocatorReleasedTwice,
    ItemFreedTwice,
    ImagesBlockFreed,
    ReadIntoAShortBlock,
    PatternWithoutEnd,
    NameBehindItsEnd,
    SizeThatNobodySet,
    FigureOfAFailedCall,
    CopyOntoItself,
    ImageOfNoBlock,
    ColourWithoutItsMark,
    BrushWithoutItsMark,
    WideNumberInAFormat,
    MovableBlock,
    FunctionThatIsMissing,
    LibraryAfterItsEnd,
    TextWithoutItsZero,
    NumberOfTwoBytes,
    PenDeletedTwice,
    AllocatorLeft,
    DialogWithoutEnd,
    WindowRestored,
    ExtendedDialog,
    TreeItemAfterItsEnd,
    ShortHeapList,
    ShortMenuBar,
    ShortGesture,
    ShortActivation,
    ShortBitmap,
    ShortClasses,
    ContextDeletedTwice,
    DialogWithoutItsControl,
    ValueThatDidNotFit,
    LowerCaseWithoutEnd,
    SortOfTooMany,
    ColumnOfTheDesktop,
    RowOfTheDesktop,
    TreeItemOfTheDesktop,
    ByteBehindTheFile,
    CharacterBehindTheFormat,
    ShortFindData,
    SelectedPenDeleted,
    ComEndedBeforeAnImage,
    ComEndedTwice,
    SizeOfNoImages,
    ProcessOfAFailedStart,
};

int ProgramMain(HINSTANCE, HINSTANCE, const wchar_t* commandLine, int)
{
    const long number = *commandLine ? _wtol(commandLine) : -1;
    if (number >= 0 && static_cast<size_t>(number) < sizeof misuses / sizeof *misuses) {
        misuses[number]();
    }
    return 7;
}
