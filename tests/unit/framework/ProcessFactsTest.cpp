// What the pages ask about a process.
#include "framework/ProcessFacts.h"
#include "tests/unit/ScriptedHeaps.h"
#include "tests/unit/ScriptedWindows.h"

#include <gtest/gtest.h>

#include <string>

static const DWORD processId = 0x1234567A;
static const uint32_t gibibyte = 0x40000000;

static uint32_t HeapBytes(ScriptedHeaps& script, const std::vector<ScriptedHeap>& heaps)
{
    script.processes[processId] = heaps;
    return ProcessHeapBytes(processId);
}

TEST(ProcessFactsTest, AllBlocksOfAllHeapsAreSummed)
{
    ScriptedHeaps script;
    EXPECT_EQ(HeapBytes(script, {{{1, 20, 300}}, {{4000}}, {{50000, 600000}}}), 654321u);
    EXPECT_EQ(script.visitedHeaps, (std::vector<DWORD>{0, 1, 2}));
    EXPECT_FALSE(script.badRequest);
}

TEST(ProcessFactsTest, OnlyTheHeapsOfTheOneProcessAreInTheSnapshot)
{
    ScriptedHeaps script;
    HeapBytes(script, {{{1}}});
    EXPECT_EQ(script.snapshots, std::vector<DWORD>{processId});
    EXPECT_EQ(script.snapshotFlags, std::vector<DWORD>{1});
}

TEST(ProcessFactsTest, BlocksCountWhateverTheirFlags)
{
    for (const DWORD flags : {0u, 1u, 2u, 4u, 0x80000000u, 0xFFFFFFFFu}) {
        ScriptedHeaps script;
        EXPECT_EQ(HeapBytes(script, {{{100, 20}, flags}}), 120u) << flags;
    }
}

TEST(ProcessFactsTest, NoSnapshotMeansNoBytes)
{
    ScriptedHeaps script;
    EXPECT_EQ(ProcessHeapBytes(processId), 0u);
    EXPECT_EQ(script.open, 0);
}

TEST(ProcessFactsTest, NoHeapMeansNoBytes)
{
    ScriptedHeaps script;
    EXPECT_EQ(HeapBytes(script, {}), 0u);
    EXPECT_EQ(script.snapshots.size(), 1u);
    EXPECT_EQ(script.open, 0);
}

TEST(ProcessFactsTest, AHeapWithoutAFirstBlockEndsTheWalk)
{
    ScriptedHeaps script;
    EXPECT_EQ(HeapBytes(script, {{}, {{4096}}}), 0u);
    EXPECT_EQ(script.visitedHeaps, std::vector<DWORD>{0});
    EXPECT_EQ(HeapBytes(script, {{{100}}, {{20, 3}}, {}, {{4096}}}), 123u);
    EXPECT_EQ(script.visitedHeaps, (std::vector<DWORD>{0, 0, 1, 2}));
    EXPECT_EQ(script.open, 0);
}

TEST(ProcessFactsTest, TheSumWrapsAt4GiB)
{
    ScriptedHeaps script;
    EXPECT_EQ(HeapBytes(script, {{{3 * gibibyte}}, {{2 * gibibyte}}}), gibibyte);
    EXPECT_EQ(HeapBytes(script, {{{3 * gibibyte, 2 * gibibyte}}}), gibibyte);
    EXPECT_EQ(HeapBytes(script, {{{3 * gibibyte, gibibyte}}}), 0u);
    EXPECT_EQ(HeapBytes(script, {{{0xFFFFFFFF}}}), 0xFFFFFFFFu);
}

TEST(ProcessFactsTest, EverySnapshotIsClosed)
{
    ScriptedHeaps script;
    for (const auto& heaps : {std::vector<ScriptedHeap>{{{1, 2}}}, {}, {{}}, {{{5}}, {}}}) {
        HeapBytes(script, heaps);
    }
    EXPECT_EQ(script.snapshots.size(), 4u);
    EXPECT_EQ(script.open, 0);
    EXPECT_FALSE(script.badRequest);
}

TEST(ProcessFactsTest, TheOwnProcessHasHeaps)
{
    EXPECT_GT(ProcessHeapBytes(GetCurrentProcessId()), 1000u);
}

TEST(ProcessFactsTest, TheImagePathIsAskedByTheProcessId)
{
    ScriptedWindows script;
    script.paths[processId] = L"\\Windows\\pword.exe";
    CStr path;
    ProcessImagePath(processId, path);
    EXPECT_STREQ(path.Buffer(), L"\\Windows\\pword.exe");
    EXPECT_EQ(script.askedPaths, std::vector<DWORD>{processId});
    EXPECT_EQ(script.askedPathSizes, std::vector<DWORD>{260});
}

TEST(ProcessFactsTest, AProcessThatCannotBeAskedHasAnEmptyPath)
{
    ScriptedWindows script;
    CStr path(L"left over");
    ProcessImagePath(processId, path);
    EXPECT_STREQ(path.Buffer(), L"");
}

TEST(ProcessFactsTest, APathOf259CharactersIsWholeAndALongerOneIsCut)
{
    for (const size_t length : {1u, 258u, 259u, 260u, 261u, 1000u}) {
        ScriptedWindows script;
        script.paths[processId] = std::wstring(length, L'x');
        CStr path;
        ProcessImagePath(processId, path);
        EXPECT_EQ(path.Length(), length < 260 ? length : 259) << length;
    }
}

// As the device fills a buffer that is too small: without a terminator.
static DWORD WINAPI FillWholeBuffer(HMODULE, wchar_t* buffer, DWORD size)
{
    wmemset(buffer, L'y', size);
    return size;
}

TEST(ProcessFactsTest, APathWithoutATerminatorIsTerminated)
{
    const ImportHook hook("GetModuleFileNameW", FillWholeBuffer);
    CStr path;
    ProcessImagePath(processId, path);
    EXPECT_EQ(path.Length(), 259u);
}

TEST(ProcessFactsTest, TheFileNameIsWhatFollowsTheLastBackslash)
{
    const struct
    {
        const wchar_t* path;
        const wchar_t* name;
    } cases[] = {{L"\\Windows\\gwes.exe", L"gwes.exe"},
                 {L"gwes.exe", L"gwes.exe"},
                 {L"\\gwes.exe", L"gwes.exe"},
                 {L"\\folder\\", L""},
                 {L"", L""},
                 {L"C:/a/b.exe", L"C:/a/b.exe"},
                 {L"\\a b\\\\c%s.exe", L"c%s.exe"},
                 {L"\\Программы\\Ключ.exe", L"Ключ.exe"}};
    for (const auto& each : cases) {
        EXPECT_STREQ(FileNameOf(each.path), each.name) << each.path;
    }
}
