// Where a run writes what it finds and counts.
#include "tools/runner/RunLog.h"

#include <windows.h>

namespace runner {

RunLog::RunLog(const std::wstring& prefix)
{
    if (!prefix.empty()) {
        file = _wfopen((prefix + L"." + std::to_wstring(GetCurrentProcessId())).c_str(), L"w");
    }
}

void RunLog::Write(const std::string& line)
{
    if (file) {
        std::fprintf(file, "%s\n", line.c_str());
        std::fflush(file);
    }
}

void RunLog::Tell(const std::string& line)
{
    Write(line);
    const std::string text = line + "\n";
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
              nullptr);
}

void RunLog::Take(const Finding& finding)
{
    const Symbols* symbols = guest ? &guest->symbols : nullptr;
    Tell("FINDING: " + finding.Line(symbols) +
         (guest ? " [while serving " + guest->CurrentImport() + "]" : ""));
    TerminateProcess(GetCurrentProcess(), findingExitCode);
    for (;;) {
        Sleep(INFINITE);
    }
}

void RunLog::TellFault(Word code, std::uint64_t place, std::uint64_t address)
{
    char text[80];
    std::snprintf(text, sizeof text, "HOST FAULT %08x at %llx, access to %llx", code,
                  static_cast<unsigned long long>(place), static_cast<unsigned long long>(address));
    Tell(text + (guest ? " [while serving " + guest->CurrentImport() + "]" : std::string()));
}

std::string RunLog::Objects() const
{
    const GuestHeap& heap = guest->machine.heap;
    std::string text = "blocks " + std::to_string(heap.LiveBlocks()) + " bytes " +
                       std::to_string(heap.LiveBytes()) + " open";
    for (const auto& [kind, count] : guest->cookies.LiveByKind()) {
        text += std::string(", ") + NameOf(kind) + " " + std::to_string(count);
    }
    return text;
}

void RunLog::WriteEnd(Word exitCode)
{
    const GuestHeap& heap = guest->machine.heap;
    Write("end: code " + std::to_string(exitCode) + ", instructions " +
          std::to_string(guest->machine.processor.Count()) + " imports " +
          std::to_string(guest->counts.ImportCalls()) + ", stack " +
          std::to_string(guest->machine.layout.stackTop - guest->machine.memory.LowestStackPointer()) +
          " bytes");
    Write("heap: " + std::to_string(heap.LiveBlocks()) + " blocks of " + std::to_string(heap.LiveBytes()) +
          " bytes are left, at most " + std::to_string(heap.MostBytes()) + " bytes, " +
          std::to_string(heap.Allocations()) + " allocations");
    for (const GuestHeap::Leak& leak : heap.Leaks()) {
        Write("  left: " + std::to_string(leak.blocks) + " blocks of " + std::to_string(leak.bytes) +
              " bytes by " + guest->symbols.NameOf(leak.allocatedAt));
    }
    for (const auto& [kind, count] : guest->cookies.LiveByKind()) {
        Write(std::string("  open: ") + NameOf(kind) + " " + std::to_string(count));
    }
    for (const auto& [handle, entry] : guest->handles.Left()) {
        Write("  open: handle from " + guest->symbols.NameOf(entry.place));
    }
    for (const auto& [name, sum] : guest->counts.Sections()) {
        Write("  part: " + name + " times " + std::to_string(sum.times) + " instructions " +
              std::to_string(sum.instructions) + " most " + std::to_string(sum.most) + " last " +
              std::to_string(sum.last) + " imports " + std::to_string(sum.imports));
    }
    for (const auto& [name, calls] : guest->counts.Imports()) {
        Write("  import: " + name + " " + std::to_string(calls));
    }
}

} // namespace runner
