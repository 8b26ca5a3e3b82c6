// The picture container: the file, its directory and its images.
#include "framework/CResources.h"

static const char magic[7] = "QV_ZRS"; // with the terminator
static const uint32_t formatVersion = 1;
static const uint32_t directoryOffset = 27;

static SResourceError lastError;

static void SetError(uint32_t code, uint32_t argument)
{
    lastError.code = code;
    lastError.argument = argument;
}

const SResourceError& CResources::LastError()
{
    return lastError;
}

CResources::CResources() : factory(nullptr), file(nullptr), headerWords(), entryCount(0), directory(nullptr)
{}

CResources::~CResources()
{
    if (factory) {
        factory->Release();
    }
    delete file;
    delete[] directory;
}

CResources* CResources::Open(const wchar_t* path)
{
    CResources* const resources = new CResources;
    if (!resources) {
        SetError(1, 0);
        return nullptr;
    }
    if (resources->Construct(path)) {
        return resources;
    }
    delete resources;
    return nullptr;
}

void CResources::Close(CResources* resources)
{
    delete resources;
}

bool CResources::Construct(const wchar_t* path)
{
    void* created = nullptr;
    if (FAILED(CoCreateInstance(CLSID_ImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IImagingFactory,
                                &created))) {
        SetError(2, 0);
        return false;
    }
    factory = static_cast<IImagingFactory*>(created);

    file = new CFile(false);
    if (!file) {
        SetError(1, 0);
        return false;
    }
    // With write access, though it is only read: a container that somebody holds against writers counts as
    // missing.
    if (!file->Open(path, false, false)) {
        SetError(3, 0);
        return false;
    }
    if (!ReadHeader() || !ReadDirectory()) {
        SetError(4, 0);
        return false;
    }
    return true;
}

bool CResources::ReadHeader()
{
    char begin[sizeof(magic)];
    uint32_t version = 0;
    if (!file->ReadFixed(begin, sizeof(begin)) || memcmp(begin, magic, sizeof(magic)) != 0) {
        return false;
    }
    if (!file->ReadFixed(&version, sizeof(version)) || version != formatVersion) {
        return false;
    }
    for (uint32_t& word : headerWords) {
        if (!file->ReadFixed(&word, sizeof(word))) {
            return false;
        }
    }
    return file->ReadFixed(&entryCount, sizeof(entryCount));
}

bool CResources::ReadDirectory()
{
    if (!entryCount) {
        return true;
    }
    // Refused before anything is allocated: a count that overflows in bytes, or that the file cannot hold.
    if (entryCount > UINT32_MAX / sizeof(SResourceEntry)) {
        return false;
    }
    const uint32_t size = entryCount * sizeof(SResourceEntry);
    if (!file->CanHold(directoryOffset, size)) {
        return false;
    }
    directory = new SResourceEntry[entryCount];
    return directory && file->ReadFixed(directory, size);
}

const SResourceEntry* CResources::FindEntry(uint32_t id) const
{
    for (uint32_t i = 0; i < entryCount; i++) {
        if (directory[i].id == id) {
            return &directory[i];
        }
    }
    return nullptr;
}

// The entry's bytes in a local-heap block, so that the imaging library can free it; null if they cannot be
// read.
void* CResources::ReadEntry(const SResourceEntry& entry)
{
    file->SeekBegin(entry.offset);
    if (!file->CanHold(entry.offset, entry.size)) {
        return nullptr;
    }
    void* const block = LocalAlloc(LMEM_FIXED, entry.size ? entry.size : 1);
    if (block && !file->ReadFixed(block, entry.size)) {
        LocalFree(block);
        return nullptr;
    }
    return block;
}

SImage* CResources::LoadImage(uint32_t id)
{
    const SResourceEntry* const entry = FindEntry(id);
    void* const block = entry ? ReadEntry(*entry) : nullptr;
    SImage* const loaded = block ? new SImage() : nullptr;
    if (!loaded) {
        if (block) {
            LocalFree(block);
        }
        SetError(5, id);
        return nullptr;
    }

    if (FAILED(factory->CreateImageFromBuffer(block, entry->size, BufferDisposalFlagGlobalFree,
                                              &loaded->image))) {
        LocalFree(block);
        delete loaded;
        SetError(6, id);
        return nullptr;
    }
    ImageInfo info = {};
    if (SUCCEEDED(loaded->image->GetImageInfo(&info))) {
        loaded->width = info.Width;
        loaded->height = info.Height;
    }
    SIZE physical = {};
    if (SUCCEEDED(loaded->image->GetPhysicalDimension(&physical))) {
        loaded->physicalWidth = static_cast<uint32_t>(physical.cx);
        loaded->physicalHeight = static_cast<uint32_t>(physical.cy);
    }
    return loaded;
}

void CResources::FreeImage(SImage* image)
{
    if (!image) {
        return;
    }
    image->image->Release();
    delete image;
}

HBITMAP CResources::LoadBitmap(uint32_t id)
{
    SImage* const image = LoadImage(id);
    if (!image) {
        return nullptr;
    }
    HBITMAP const bitmap = RenderImage(image);
    FreeImage(image);
    return bitmap;
}
