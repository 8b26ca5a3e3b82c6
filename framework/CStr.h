// A wide-character string that owns its buffer: dynamic (the buffer fits the text) or of a fixed capacity.
#pragma once

#include "platform/ce.h"

// A fixed string of N holds N + 1 characters and never moves, so the platform can write into it; a longer
// text is a fatal "Buffer is too small", never a silent cut. Every misuse is fatal. A text argument may lie
// in the string itself.
class CStr
{
  private:
    wchar_t* buffer;    // never null, always terminated; the length is never stored
    uint32_t fixedSize; // 0: dynamic

  public:
    CStr();
    explicit CStr(uint32_t size); // 0 gives the default
    CStr(const wchar_t* text);    // null gives an empty string
    CStr(const CStr& other);      // always dynamic
    ~CStr();

    CStr& operator=(const wchar_t* text);
    CStr& operator=(const CStr& other);
    CStr& operator=(const char* text); // by the framework's code page; an empty text has no conversion: fatal

    // At most n characters of the text, which need not be terminated behind them. On a dynamic string n = 0
    // means all.
    void Assign(const wchar_t* text, uint32_t n);
    void AssignFixed(const wchar_t* text); // n = the string's own fixed size: a longer text is cut

    // 0 makes the string dynamic with the buffer it has; else a new buffer receives what fits, the rest is
    // dropped.
    void SetFixedSize(uint32_t size);

    wchar_t* Buffer() { return buffer; }
    const wchar_t* Buffer() const { return buffer; }
    operator const wchar_t*() const { return buffer; }
    uint32_t Length() const;
    uint32_t FixedSize() const { return fixedSize; }
    uint32_t BufferSize() const; // the size argument of a platform call that writes into the string
    bool IsEmpty() const { return buffer[0] == 0; }

    // The terminator's place is a valid index; in a fixed string every place of the buffer is.
    wchar_t* At(uint32_t index);
    const wchar_t* At(uint32_t index) const;

    void Append(const wchar_t* text);
    void Append(wchar_t character, uint32_t count);
    void Empty();
    void Insert(uint32_t position, const wchar_t* text); // a position behind the end means the end
    void Delete(uint32_t position, uint32_t count);
    void Shrink(uint32_t head, uint32_t tail);
    void Trim(const wchar_t* set);
    void MakeLower();
    int CompareNoCase(const wchar_t* text) const;

    // -1: not found, or a null text.
    int Find(const wchar_t* text, uint32_t start) const;
    int ReverseFind(wchar_t character) const;

    // Heap copies that the caller frees with delete[].
    wchar_t* AllocLeft(uint32_t n) const;
    wchar_t* AllocRight(uint32_t n) const;
    wchar_t* AllocMiddle(uint32_t position, uint32_t n) const;
    static wchar_t* Duplicate(const wchar_t* text);

    CStr Left(uint32_t n) const;
    CStr Right(uint32_t n) const;
    CStr Mid(uint32_t position, uint32_t n) const;

    // Output of more than 256 characters (fixed: than the capacity) is fatal. No 64-bit value or double
    // through "...".
    void Format(const wchar_t* format, ...);
    void AppendFormat(const wchar_t* format, ...);
    void LoadStringW(uint32_t id); // of the running module
    void AppendInt(int32_t value);
    void AppendUint(uint32_t value);
    void AppendHex(uint32_t value);
    void AppendInt64(int64_t value);
    void AppendSize(int64_t bytes); // 1536 gives "1.50 KB"

    // Texts are compared by their characters: wcscmp, CompareNoCase.
    bool operator==(const CStr& other) const = delete;
    bool operator==(const wchar_t* text) const = delete;

  private:
    static wchar_t* NewBuffer(uint32_t characters, const wchar_t* function, int line);
    static wchar_t* NewCopy(const wchar_t* text, uint32_t n, const wchar_t* function, int line);
    void Replace(wchar_t* newBuffer);
    void Set(const wchar_t* text, uint32_t n, const wchar_t* function, int line);
    void Append(const wchar_t* text, uint32_t added, const wchar_t* function, int line);
};
