// A file that exists already: it is opened, read and positioned, never created.
#pragma once

#include "platform/ce.h"

class CFile
{
  private:
    bool open;
    bool assertOnFailure; // failures of open and read are fatal; else they are plain results
    HANDLE file;          // INVALID_HANDLE_VALUE until opened

  public:
    explicit CFile(bool failuresAreFatal);
    ~CFile();
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    bool Open(const wchar_t* path, bool readOnly, bool exclusive);
    void Close();
    bool IsOpen() const { return open; }

    // The low 32 bits of the size; a failure is fatal in both modes.
    uint32_t Size() const;

    // Whether so many bytes can follow the offset. A file that does not tell its size can hold anything.
    bool CanHold(uint32_t offset, uint32_t bytes) const;

    bool ReadFixed(void* buffer, uint32_t n); // true only if exactly n bytes came
    bool Read(void* buffer, uint32_t* n);     // in: at most; out: bytes read; fewer at the end is still true
    bool ReadText(wchar_t* buffer, uint32_t n); // at most n characters and a terminator behind what was read
    bool ReadText(char* buffer, uint32_t n);

    // Fatal on failure even where open and read are not.
    void SeekBegin(uint32_t offset);
};
