// The device's imaging factory over the PC's imaging component.
#pragma once

#include <unknwn.h>

// Fails when the PC has no imaging component or COM is not started; *object is null then.
HRESULT CreateImagingFactory(const IID& interfaceId, void** object);
