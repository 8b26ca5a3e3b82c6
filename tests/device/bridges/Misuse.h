// Misuses of the platform that the PC's libraries, or the compiler for the PC, do not mind: a function each.
#pragma once

#include "platform/ce.h"

// Structures of a wrong size.
void ShortProcessEntry();
void ShortModuleEntry();
void ShortHeapEntry();
void ShortFileInfo();
void ShortExecuteInfo();
void ShortMemoryStatus();
void ShortVersion();
void ShortDisplayMode();
void TextWithoutItsZero();
void NumberOfTwoBytes();
void ShortHeapList();
void ShortMenuBar();
void ShortGesture();
void ShortActivation();
void ShortBitmap();
void ShortClasses();
void ShortFindData();
void SizeOfNoImages();
void ProcessOfAFailedStart();

// Handles and objects after their end, or of another kind.
void KeyClosedTwice();
void InventedKey();
void SnapshotAsSearch();
void SearchAfterItsEnd();
void FileAfterItsEnd();
void FileAsProcess();
void AllocatorReleasedTwice();
void ItemFreedTwice();
void ImagesBlockFreed();
void PenDeletedTwice();
void AllocatorLeft();
void ContextDeletedTwice();
void SelectedPenDeleted();
void ComEndedBeforeAnImage();
void ComEndedTwice();
void TreeItemAfterItsEnd();

// Memory that a call reads or writes.
void ReadIntoAShortBlock();
void PatternWithoutEnd();
void NameBehindItsEnd();
void SizeThatNobodySet();
void FigureOfAFailedCall();
void CopyOntoItself();
void ImageOfNoBlock();
void DialogWithoutEnd();
void DialogWithoutItsControl();
void ValueThatDidNotFit();
void LowerCaseWithoutEnd();
void SortOfTooMany();
void ByteBehindTheFile();
void CharacterBehindTheFormat();

// What the device has otherwise.
void ColourWithoutItsMark();
void BrushWithoutItsMark();
void WideNumberInAFormat();
void MovableBlock();
void FunctionThatIsMissing();
void LibraryAfterItsEnd();
void WindowRestored();
void ExtendedDialog();
void ColumnOfTheDesktop();
void RowOfTheDesktop();
void TreeItemOfTheDesktop();
