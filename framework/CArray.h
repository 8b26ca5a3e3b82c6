// A growable array of pointers or integers; what the elements point to stays its owner's.
#pragma once

#include "framework/ArrayNames.h"
#include "framework/Assert.h"

template <typename T>
class CArray
{
  private:
    T* block;
    uint32_t count;
    uint32_t capacity;
    uint32_t growStep;

  public:
    CArray() : CArray(16) {}

    explicit CArray(uint32_t n) : block(nullptr), count(0), capacity(n), growStep(n)
    {
        Assert(n != 0, ErrorInvalidValue, ArrayNames<T>::construct, __LINE__);
        block = NewBlock(n, ArrayNames<T>::construct, __LINE__);
    }

    // Virtual so that an array can be deleted through a base pointer.
    virtual ~CArray() { delete[] block; }

    CArray(const CArray&) = delete;
    CArray& operator=(const CArray&) = delete;

    uint32_t Count() const { return count; }
    uint32_t Capacity() const { return capacity; }

    T& At(uint32_t index)
    {
        Assert(index < count, ErrorOutOfRange, ArrayNames<T>::at, __LINE__);
        return block[index];
    }

    const T& At(uint32_t index) const
    {
        Assert(index < count, ErrorOutOfRange, ArrayNames<T>::at, __LINE__);
        return block[index];
    }

    // By value, so the item may be one of the array's own. The block grows by the step, never by doubling.
    void Append(T item)
    {
        if (count == capacity) {
            Grow();
        }
        block[count++] = item;
    }

    // On an array of exactly one element any accepted call empties it, with n = 0 too: the shortcut is meant
    // so.
    void Delete(uint32_t index, uint32_t n)
    {
        Assert(index <= count && n <= count - index, ErrorOutOfRange, ArrayNames<T>::remove, __LINE__);
        if (count == 1) {
            count = 0;
            return;
        }
        memmove(block + index, block + index + n, (count - index - n) * sizeof(T));
        count -= n;
    }

  private:
    static T* NewBlock(uint32_t n, const wchar_t* function, int line)
    {
        Assert(n <= UINT32_MAX / sizeof(T), ErrorNoMemory, function, line);
        T* const fresh = new T[n];
        Assert(fresh != nullptr, ErrorNoMemory, function, line);
        return fresh;
    }

    void Grow()
    {
        Assert(growStep <= UINT32_MAX - capacity, ErrorNoMemory, ArrayNames<T>::append, __LINE__);
        T* const larger = NewBlock(capacity + growStep, ArrayNames<T>::append, __LINE__);
        memcpy(larger, block, count * sizeof(T));
        delete[] block;
        block = larger;
        capacity += growStep;
    }
};

// Deletes what the elements point to and empties the array; for the owner of both.
template <typename T>
void DeleteElements(CArray<T*>& array)
{
    for (uint32_t i = 0; i < array.Count(); i++) {
        delete array.At(i);
    }
    array.Delete(0, array.Count());
}
