// The device's imaging factory over the PC's imaging component.
#pragma once

#include <unknwn.h>

// Fails when COM is not started; *object is null then. The PC's component is loaded by the first picture.
HRESULT CreateImagingFactory(const IID& interfaceId, void** object);
