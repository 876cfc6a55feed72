// The statuses of xml/XmlError.h are the platform's HRESULTs.
#include <windows.h>

#include "xml/XmlError.h"

namespace orv {

static_assert(kStatusOk == S_OK);
static_assert(kStatusFail == E_FAIL);
static_assert(kStatusPointer == E_POINTER);
static_assert(kStatusNoInterface == E_NOINTERFACE);
static_assert(kStatusUnexpected == E_UNEXPECTED);
static_assert(kStatusInvalidArg == E_INVALIDARG);
static_assert(kStatusOutOfMemory == E_OUTOFMEMORY);
static_assert(kStatusNotInitialized == CO_E_NOTINITIALIZED);
static_assert(sizeof(Status) == sizeof(HRESULT));

}  // namespace orv
