// The picture container: numbered images in one file, decoded by the platform's imaging library.
#pragma once

#include "framework/CFile.h"
#include "framework/SImage.h"

// The last failure, process-wide. The codes: 1 no memory while opening, 2 no imaging factory, 3 the file
// cannot be opened, 4 not a container or cut short, 5 no such entry or its data cannot be read, 6 the data
// are not an image.
struct SResourceError
{
    uint32_t code;
    uint32_t argument; // the entry's id for codes 5 and 6, else 0
};

// A directory record as it stands in the file.
struct SResourceEntry
{
    uint32_t id;
    uint32_t offset; // from the start of the file
    uint32_t size;   // bytes
    uint32_t reserved1;
    uint32_t reserved2;
};
static_assert(sizeof(SResourceEntry) == 20);

class CResources
{
  private:
    IImagingFactory* factory;
    CFile* file;
    uint32_t headerWords[3]; // kept, not interpreted
    uint32_t entryCount;
    SResourceEntry* directory;

  public:
    // COM must have been started on the thread. Null on failure, with LastError set and nothing left open.
    static CResources* Open(const wchar_t* path);
    static void Close(CResources* resources);

    // Null on failure, with LastError set. The caller frees the record with FreeImage.
    SImage* LoadImage(uint32_t id);
    static void FreeImage(SImage* image);

    // A bitmap of the screen's depth, the image over the window colour; null on failure. The caller deletes
    // it.
    static HBITMAP RenderImage(const SImage* image);
    HBITMAP LoadBitmap(uint32_t id);

    // The mask is black where the picture is opaque and white where the target must show through. memory is
    // any memory context of the caller; it holds its own bitmap again afterwards. Nothing is drawn where the
    // picture or the mask is missing or is selected elsewhere.
    static void DrawMasked(HDC target, int x, int y, int width, int height, HDC memory, HBITMAP image,
                           HBITMAP mask);

    static const SResourceError& LastError();

    uint32_t EntryCount() const { return entryCount; }
    uint32_t HeaderWord(uint32_t index) const { return headerWords[index]; }

  private:
    CResources();
    ~CResources();
    CResources(const CResources&) = delete;
    CResources& operator=(const CResources&) = delete;

    bool Construct(const wchar_t* path);
    bool ReadHeader();
    bool ReadDirectory();
    const SResourceEntry* FindEntry(uint32_t id) const;
    void* ReadEntry(const SResourceEntry& entry);
};
