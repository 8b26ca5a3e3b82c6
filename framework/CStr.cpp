// CStr: its buffer, assignment and changes in place.
#include "framework/CStr.h"

#include "framework/Assert.h"
#include "framework/NarrowToWide.h"

static const uint32_t wholeText = UINT32_MAX; // as a count of characters: up to the terminator

// The characters before the terminator, at most n; what lies behind them is not read.
static uint32_t LengthWithin(const wchar_t* text, uint32_t n)
{
    if (n == wholeText) {
        return static_cast<uint32_t>(wcslen(text)); // the platform's is quicker than a loop of ours
    }
    uint32_t length = 0;
    while (length < n && text[length]) {
        length++;
    }
    return length;
}

// A zeroed block of so many characters and the terminator.
wchar_t* CStr::NewBuffer(uint32_t characters, const wchar_t* function, int line)
{
    Assert(characters < INT32_MAX / sizeof(wchar_t), ErrorNoMemory, function, line);
    const size_t size = static_cast<size_t>(characters) + 1;
    wchar_t* const block = new wchar_t[size];
    Assert(block != nullptr, ErrorNoMemory, function, line);
    memset(block, 0, size * sizeof(wchar_t));
    return block;
}

wchar_t* CStr::NewCopy(const wchar_t* text, uint32_t n, const wchar_t* function, int line)
{
    const uint32_t length = text ? LengthWithin(text, n) : 0;
    wchar_t* const copy = NewBuffer(length, function, line);
    if (length) {
        memcpy(copy, text, length * sizeof(wchar_t));
    }
    return copy;
}

void CStr::Replace(wchar_t* newBuffer)
{
    delete[] buffer;
    buffer = newBuffer;
}

CStr::CStr() : CStr(0u) {}

CStr::CStr(uint32_t size) : buffer(NewBuffer(size, L"CStr::CStr", __LINE__)), fixedSize(size) {}

CStr::CStr(const wchar_t* text) : buffer(NewCopy(text, wholeText, L"CStr::CStr", __LINE__)), fixedSize(0) {}

CStr::CStr(const CStr& other) : CStr(other.buffer) {}

CStr::~CStr()
{
    delete[] buffer;
}

// Part of the string itself is a legal text: it is copied before the old buffer goes, and moved within a
// fixed one.
void CStr::Set(const wchar_t* text, uint32_t n, const wchar_t* function, int line)
{
    if (text == buffer) {
        return;
    }
    if (!fixedSize) {
        Replace(NewCopy(text, n, function, line));
        return;
    }
    const uint32_t length = text ? LengthWithin(text, n) : 0;
    Assert(length <= fixedSize, ErrorBufferTooSmall, function, line);
    if (length) {
        memmove(buffer, text, length * sizeof(wchar_t));
    }
    buffer[length] = 0;
}

CStr& CStr::operator=(const wchar_t* text)
{
    Set(text, wholeText, L"CStr::operator =", __LINE__);
    return *this;
}

CStr& CStr::operator=(const CStr& other)
{
    if (this != &other) {
        Set(other.buffer, wholeText, L"CStr::operator =", __LINE__);
    }
    return *this;
}

CStr& CStr::operator=(const char* text)
{
    if (!text) {
        return *this = static_cast<const wchar_t*>(nullptr);
    }
    wchar_t* const wide = NarrowToWide(text);
    Assert(wide != nullptr, ErrorGeneric, L"CStr::operator =", __LINE__);
    *this = wide;
    delete[] wide;
    return *this;
}

void CStr::Assign(const wchar_t* text, uint32_t n)
{
    const uint32_t most = n || fixedSize ? n : wholeText;
    Set(text, most, L"CStr::Assign", __LINE__);
}

void CStr::AssignFixed(const wchar_t* text)
{
    Assign(text, fixedSize);
}

void CStr::SetFixedSize(uint32_t size)
{
    if (size == fixedSize) {
        return;
    }
    if (size) {
        wchar_t* const resized = NewBuffer(size, L"CStr::SetFixedSize", __LINE__);
        memcpy(resized, buffer, LengthWithin(buffer, size) * sizeof(wchar_t));
        Replace(resized);
    }
    fixedSize = size;
}

uint32_t CStr::Length() const
{
    return static_cast<uint32_t>(wcslen(buffer));
}

uint32_t CStr::BufferSize() const
{
    return fixedSize ? fixedSize : Length();
}

wchar_t* CStr::At(uint32_t index)
{
    Assert(index <= BufferSize(), ErrorOutOfRange, L"CStr::At", __LINE__);
    return buffer + index;
}

const wchar_t* CStr::At(uint32_t index) const
{
    Assert(index <= BufferSize(), ErrorOutOfRange, L"CStr::At", __LINE__);
    return buffer + index;
}

// Without a sum that could overflow.
static bool FitsWithin(uint32_t length, uint32_t added, uint32_t limit)
{
    return length <= limit && added <= limit - length;
}

void CStr::Append(const wchar_t* text, uint32_t added, const wchar_t* function, int line)
{
    const uint32_t length = Length();
    if (fixedSize) {
        Assert(FitsWithin(length, added, fixedSize), ErrorBufferTooSmall, function, line);
        memmove(buffer + length, text, added * sizeof(wchar_t));
        buffer[length + added] = 0;
        return;
    }
    wchar_t* const longer = NewBuffer(length + added, function, line);
    memcpy(longer, buffer, length * sizeof(wchar_t));
    memcpy(longer + length, text, added * sizeof(wchar_t));
    Replace(longer);
}

void CStr::Append(const wchar_t* text)
{
    if (text && *text) {
        Append(text, LengthWithin(text, wholeText), L"CStr::Append", __LINE__);
    }
}

void CStr::Append(wchar_t character, uint32_t count)
{
    const uint32_t length = Length();
    if (!count) {
        return;
    }
    if (fixedSize) {
        Assert(FitsWithin(length, count, fixedSize), ErrorBufferTooSmall, L"CStr::Append", __LINE__);
    } else {
        Assert(count <= INT32_MAX, ErrorNoMemory, L"CStr::Append", __LINE__);
        wchar_t* const longer = NewBuffer(length + count, L"CStr::Append", __LINE__);
        memcpy(longer, buffer, length * sizeof(wchar_t));
        Replace(longer);
    }
    for (uint32_t i = 0; i < count; i++) {
        buffer[length + i] = character;
    }
    buffer[length + count] = 0;
}

void CStr::Empty()
{
    if (!fixedSize) {
        Replace(NewBuffer(0, L"CStr::Empty", __LINE__));
    }
    buffer[0] = 0;
}

void CStr::Insert(uint32_t position, const wchar_t* text)
{
    if (!text || !*text) {
        return;
    }
    const uint32_t length = Length();
    const uint32_t added = LengthWithin(text, wholeText);
    const uint32_t head = position < length ? position : length;
    if (fixedSize) {
        Assert(FitsWithin(length, added, fixedSize), ErrorBufferTooSmall, L"CStr::Insert", __LINE__);
    }

    // Put together outside the string: the text may be part of what has to move.
    wchar_t* const whole = NewBuffer(length + added, L"CStr::Insert", __LINE__);
    memcpy(whole, buffer, head * sizeof(wchar_t));
    memcpy(whole + head, text, added * sizeof(wchar_t));
    memcpy(whole + head + added, buffer + head, (length - head) * sizeof(wchar_t));
    if (!fixedSize) {
        Replace(whole);
        return;
    }
    memcpy(buffer, whole, (length + added + 1) * sizeof(wchar_t));
    delete[] whole;
}

void CStr::Delete(uint32_t position, uint32_t count)
{
    if (!count) {
        return;
    }
    const uint32_t length = Length();
    Assert(position < length, ErrorOutOfRange, L"CStr::Delete", __LINE__);
    const uint32_t removed = count < length - position ? count : length - position;
    memmove(buffer + position, buffer + position + removed,
            (length - position - removed + 1) * sizeof(wchar_t));
    if (!fixedSize) {
        Replace(NewCopy(buffer, wholeText, L"CStr::Delete", __LINE__));
    }
}

void CStr::Shrink(uint32_t head, uint32_t tail)
{
    const uint32_t length = Length();
    Assert(FitsWithin(head, tail, length), ErrorOutOfRange, L"CStr::Shrink", __LINE__);
    const uint32_t kept = length - head - tail;
    memmove(buffer, buffer + head, kept * sizeof(wchar_t));
    buffer[kept] = 0;
    if (!fixedSize) {
        Replace(NewCopy(buffer, wholeText, L"CStr::Shrink", __LINE__));
    }
}

static bool IsInSet(wchar_t character, const wchar_t* set)
{
    while (*set && *set != character) {
        set++;
    }
    return *set != 0;
}

void CStr::Trim(const wchar_t* set)
{
    if (!set) {
        return;
    }
    const uint32_t length = Length();
    uint32_t leading = 0;
    while (leading < length && IsInSet(buffer[leading], set)) {
        leading++;
    }
    uint32_t trailing = 0;
    while (trailing < length && IsInSet(buffer[length - 1 - trailing], set)) {
        trailing++;
    }
    if (FitsWithin(leading, trailing, length) && leading + trailing < length) {
        Shrink(leading, trailing);
    } else {
        Empty();
    }
}

void CStr::MakeLower()
{
    _wcslwr(buffer);
}
